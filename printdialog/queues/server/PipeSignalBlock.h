// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <csignal>

namespace printdialog {

/// While it exists, writing to a connection that the server has closed fails on this thread without a
/// SIGPIPE. A handler of that signal, if there is one, is meant for other pipes.
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
