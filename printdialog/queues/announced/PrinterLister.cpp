// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterLister.h"

#include "ChildProcess.h"
#include "CorvelPrinterListPath.h"
#include "PlatformException.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include <cerrno>
#include <csignal>
#include <fcntl.h>

namespace printdialog {

QString printerListProgram()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QLatin1String("/" CORVEL_PRINTER_LIST_FROM_PROGRAM));
}

PrinterLister::PrinterLister(const QString &program)
{
    auto input = pdekit::Pipe::make();
    auto output = pdekit::Pipe::make();
    if (!input || !output || fcntl(output->reading.number(), F_SETFL, O_NONBLOCK) != 0)
        return;
    auto child = std::make_unique<pdekit::ChildProcess>();
    child->setLaunchPath(program);
    child->setStandardInput(std::move(input->reading));
    child->setStandardOutput(std::move(output->writing));
    child->setStandardError(pdekit::FileDescriptor(open("/dev/null", O_WRONLY | O_CLOEXEC)));
    try {
        child->launch();
    } catch (const pdekit::PlatformException &) {
        return;
    }
    child_ = std::move(child);
    input_ = std::move(input->writing);
    output_ = std::move(output->reading);
}

PrinterLister::~PrinterLister()
{
    // It may be blocked, and has nothing to lose. isRunning() makes sure that the number is still its own.
    if (child_ && child_->isRunning())
        ::kill(child_->processIdentifier(), SIGKILL);
    pdekit::ChildProcess::leaveToItself(std::move(child_));
}

std::optional<QByteArray> PrinterLister::read()
{
    constexpr qsizetype most = qsizetype(64) * 1024;
    if (!output_.isOpen())
        return std::nullopt;
    QByteArray bytes(most, Qt::Uninitialized);
    const ssize_t count = ::read(output_.number(), bytes.data(), static_cast<size_t>(most));
    if (count > 0)
        return bytes.first(count);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return QByteArray();
    output_.close();
    return std::nullopt;
}

} // namespace printdialog
