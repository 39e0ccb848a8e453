// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace testing_support {

enum class Among { Files, Pipes };

/// Has this thread's `number`-th (from 1) call of the C library's function fail, once, with the error of
/// errno(3), which for posix_spawn, pipe2 and rename is any call, else one on that sort of descriptor. 0
/// kills the process instead.
void armFault(const char *call, int error, int number, Among among);
/// Whether it has failed meanwhile. None fails any more.
bool disarmFault();

} // namespace testing_support
