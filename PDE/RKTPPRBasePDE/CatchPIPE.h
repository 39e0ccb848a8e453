// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// Makes `catchPIPE` the process's handler for SIGPIPE, so that a write to a child that has ended fails
/// instead of ending the process. False: it could not be registered.
bool installCatchPIPE();
