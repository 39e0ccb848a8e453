// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace testing_support {

/// Has the `number`-th (from 1) call of the C library's function fail, once, with the error of errno(3).
/// Counted are the calls that have to do with a file below `folder`; of those that have to do with none
/// (pipe2, posix_spawn, socket), all. "open" and "rename" stand for their families.
void armFault(const char *call, int error, int number, const char *folder);
/// Whether it has failed meanwhile. None fails any more.
bool disarmFault();

} // namespace testing_support
