// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WatchRun.h"

#include "Console.h"
#include "RequestedSession.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto longestStop = 15s; // a folder on a dead mount never lets go of its thread

/// The signals that end the program, as a descriptor. They no longer end it by themselves, whichever thread
/// they reach.
int endingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

bool isSameFolder(const QString &one, const QString &other)
{
    return QFileInfo(one) == QFileInfo(other);
}

} // namespace

WatchRun::WatchRun(const CommandLine &commandLine, Console &console)
    : commandLine_(commandLine)
    , console_(console)
{
    connect(&printer_, &FolderPrinter::said, this,
            [this](const QString &sentence) { console_.writeLine(sentence); });
    connect(&printer_, &FolderPrinter::complained, this,
            [this](const QString &sentence) { console_.complain(sentence); });
    connect(&printer_, &FolderPrinter::finished, this, [this](const QString &failure) {
        QCoreApplication::exit(failure.isEmpty() ? static_cast<int>(exitDone) : fail(failure));
    });
}

int WatchRun::run()
{
    // Nothing has begun yet.
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, [](int) { ::_exit(exitDone); });
    const auto made = order();
    if (!made)
        return fail(made.failure().text);
    const int signals = endingSignals();
    QSocketNotifier ending(signals, QSocketNotifier::Read);
    connect(&ending, &QSocketNotifier::activated, this, [this, signals] {
        signalfd_siginfo signal = {};
        if (::read(signals, &signal, sizeof signal) > 0)
            stop();
    });
    printer_.start(*made);
    const int status = QCoreApplication::exec();
    ::close(signals);
    return status;
}

void WatchRun::stop()
{
    // What is done by then is recorded: nothing is lost.
    if (std::exchange(isStopping_, true))
        ::_exit(exitDone);
    printer_.stop();
    QTimer::singleShot(longestStop, this, [] { ::_exit(exitDone); });
}

QString WatchRun::whyNotFolder(const QString &folder, const QString &option) const
{
    const QFileInfo info(folder);
    if (!info.exists())
        return tr("The folder \"%1\" of %2 does not exist. Make it, or choose another one.")
            .arg(folder, option);
    if (!info.isDir())
        return tr("\"%1\" is not a folder, and %2 needs one. Choose a folder.").arg(folder, option);
    if (!info.isReadable() || !info.isExecutable())
        return tr("You may not read the folder \"%1\" of %2. Change its permissions, or choose another one.")
            .arg(folder, option);
    return {};
}

Result<WatchOrder, std::monostate> WatchRun::order() const
{
    const auto refusal = [](const QString &sentence) {
        return Failure<std::monostate>{{}, sentence, {}};
    };
    WatchOrder order;
    order.folder = QDir(*commandLine_.watch).absolutePath();
    if (const QString why = whyNotFolder(order.folder, QStringLiteral("--watch")); !why.isEmpty())
        return refusal(why);
    if (commandLine_.printed) {
        order.printed = QDir(*commandLine_.printed).absolutePath();
        if (const QString why = whyNotFolder(*order.printed, QStringLiteral("--printed")); !why.isEmpty())
            return refusal(why);
        if (isSameFolder(order.folder, *order.printed))
            return refusal(
                tr("--printed and --watch name the same folder, \"%1\". Choose another one for the "
                   "printed photos.")
                    .arg(order.folder));
    }
    const auto requested = openRequestedSession(commandLine_);
    if (!requested)
        return refusal(requested.failure().text);
    auto job = jobOfRequested(*requested, console_);
    if (!job)
        return refusal(job.failure().text);
    order.job = *std::move(job);
    order.job.folder = {QDir(commandLine_.outputFolder()).absolutePath(), false, {}};
    order.printsExisting = commandLine_.existing;
    order.pages = commandLine_.pages;
    order.setStyle(commandLine_.style.over(requested->style));
    if (const auto why = order.whyImpossible())
        return refusal(*why);
    return order;
}

int WatchRun::fail(const QString &sentence)
{
    console_.complain(sentence);
    return exitFailed;
}

} // namespace printdialog
