// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace pdekit {
class ChildProcess;
}

namespace printdialog {

/// Where the program stands that lists the printers on the network: a system bus that hangs blocks its
/// caller forever, and a process can be given up. Needs a QCoreApplication.
QString printerListProgram();

/// A running corvel-printer-list. Main thread only. It ends with this object, and by itself when this process
/// is gone; nothing here waits for it.
class PrinterLister
{
public:
    /// Starts the program; takes less than a millisecond. False from isRunning() when it cannot be started.
    explicit PrinterLister(const QString &program);
    ~PrinterLister();
    Q_DISABLE_COPY_MOVE(PrinterLister)

    bool isRunning() const { return output_.isOpen(); }
    /// Can be polled for what read() reads; non-blocking.
    int descriptor() const { return output_.number(); }
    /// What there is to read, at most 64 KiB; empty when there is nothing at the moment. Nothing: the program
    /// has ended.
    std::optional<QByteArray> read();

private:
    pdekit::FileDescriptor input_; ///< the program ends when this is closed
    pdekit::FileDescriptor output_;
    std::unique_ptr<pdekit::ChildProcess> child_;
};

} // namespace printdialog
