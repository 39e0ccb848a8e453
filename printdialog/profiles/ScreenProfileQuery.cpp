// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ScreenProfileQuery.h"

#include "ChildProcess.h"
#include "PlatformException.h"

#include <QtCore/QFile>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <utility>

namespace printdialog {

namespace {

constexpr std::chrono::seconds patience(2);

} // namespace

ScreenProfileQuery::ScreenProfileQuery(const QString &program, const QString &screen)
{
    const bool isLaunched = launch(program, screen);
    QTimer::singleShot(isLaunched ? patience : std::chrono::seconds(0), this, [this] {
        answer_.clear();
        finish();
    });
    if (!isLaunched)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(output_.number(), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &ScreenProfileQuery::read);
}

ScreenProfileQuery::~ScreenProfileQuery()
{
    // It may be blocked, and has nothing to lose. isRunning() makes sure that the number is still its own.
    if (child_ && child_->isRunning())
        ::kill(child_->processIdentifier(), SIGKILL);
    pdekit::ChildProcess::leaveToItself(std::move(child_));
}

bool ScreenProfileQuery::launch(const QString &program, const QString &screen)
{
    auto output = pdekit::Pipe::make();
    if (!output || fcntl(output->reading.number(), F_SETFL, O_NONBLOCK) != 0)
        return false;
    auto child = std::make_unique<pdekit::ChildProcess>();
    child->setLaunchPath(program);
    child->setArguments({screen});
    child->setStandardInput(pdekit::FileDescriptor(open("/dev/null", O_RDONLY | O_CLOEXEC)));
    child->setStandardOutput(std::move(output->writing));
    child->setStandardError(pdekit::FileDescriptor(open("/dev/null", O_WRONLY | O_CLOEXEC)));
    try {
        child->launch();
    } catch (const pdekit::PlatformException &) {
        return false;
    }
    child_ = std::move(child);
    output_ = std::move(output->reading);
    return true;
}

void ScreenProfileQuery::read()
{
    std::array<char, PATH_MAX> bytes = {};
    const ssize_t count = ::read(output_.number(), bytes.data(), bytes.size());
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count > 0)
        answer_.append(bytes.data(), static_cast<qsizetype>(count));
    if (answer_.size() > PATH_MAX)
        answer_.clear();
    else if (count > 0)
        return;
    finish();
}

void ScreenProfileQuery::finish()
{
    if (std::exchange(isFinished_, true))
        return;
    if (notifier_)
        notifier_->setEnabled(false);
    Q_EMIT finished(QFile::decodeName(answer_));
}

} // namespace printdialog
