// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>

#include <atomic>
#include <chrono>
#include <vector>

namespace printdialog {

/// How a helper program ended.
struct HelperEnd
{
    enum class How {
        NotRun,  ///< It could not be started, or its end is not known.
        Exited,  ///< By itself.
        Killed,  ///< By a signal that was not ours.
        Overdue, ///< We have killed it at the limit.
        GivenUp, ///< We have killed it, since it is not needed any more.
    };

    How how = How::NotRun;
    int code = 0; ///< The errno, the exit status, or the signal.
};

/// Runs a helper program to its end, and leaves neither a process nor a descriptor behind. Blocks; any
/// thread, several at a time.
/// @param program its path, in the file system's encoding
/// @param descriptors the first becomes its standard input, the others its descriptors from 3 on; it has none
/// of our others, and writes its messages nowhere
/// @param limit it is killed then
/// @param isGivenUp it is killed soon after this is set; may be null
HelperEnd runHelper(const QByteArray &program, const std::vector<int> &descriptors,
                    std::chrono::milliseconds limit, const std::atomic<bool> *isGivenUp = nullptr);

} // namespace printdialog
