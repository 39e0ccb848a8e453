// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The identifier of the bundle that this plug-in is built for. A panel's kind is this identifier with the
/// panel's suffix.
#define CORVEL_9031_BUNDLE_IDENTIFIER "org.corvel.printing.Corvel9031"
