// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace printdialog {

/// Lets this process have as many open files as the system allows it, up to some ten thousand: each document
/// keeps its file open until it is printed. Call at the program's start; its children inherit it.
void raiseDescriptorLimit();

} // namespace printdialog
