// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The identifier of the bundle that this plug-in is built for; a panel's kind is it with a suffix of the
/// panel's own.
#define CORVEL_9031_BUNDLE_IDENTIFIER "org.corvel.printing.Corvel9031"
