// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <csignal>

namespace printdialog {

/// While it lives, writing to a connection that the server has closed is an error and no SIGPIPE, on this
/// thread: the signal's handler, if there is one, is for other pipes.
class PipeSignalBlock
{
public:
    PipeSignalBlock();
    ~PipeSignalBlock();
    Q_DISABLE_COPY_MOVE(PipeSignalBlock)

private:
    sigset_t before_;
    bool wasPending_;
};

} // namespace printdialog
