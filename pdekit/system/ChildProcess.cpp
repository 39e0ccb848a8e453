// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChildProcess.h"

#include "PlatformException.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace pdekit {

namespace {

constexpr std::chrono::milliseconds destructorPatience(500);
constexpr std::chrono::milliseconds killPatience(500);
constexpr std::chrono::milliseconds endPollInterval(50);

/// Owns the arguments of posix_spawn(3).
class SpawnSettings
{
public:
    SpawnSettings()
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~SpawnSettings()
    {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }
    Q_DISABLE_COPY_MOVE(SpawnSettings)

    void give(const FileDescriptor &descriptor, int number)
    {
        if (descriptor.isOpen())
            posix_spawn_file_actions_adddup2(&actions_, descriptor.number(), number);
    }
    void closeTheRest() { posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1); }

    const posix_spawn_file_actions_t *actions() const { return &actions_; }
    const posix_spawnattr_t *attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_;
    posix_spawnattr_t attributes_;
};

/// Children without an owner, until they end.
std::vector<std::unique_ptr<ChildProcess>> &leftToThemselves()
{
    static std::vector<std::unique_ptr<ChildProcess>> children;
    return children;
}

} // namespace

ChildProcess::ChildProcess() = default;

ChildProcess::~ChildProcess()
{
    if (isLeftToItself_)
        return; // this process is ending; init reaps the child
    takeDown(destructorPatience);
}

void ChildProcess::launch()
{
    const QByteArray path = QFile::encodeName(path_);
    std::vector<QByteArray> texts = {path};
    for (const QString &argument : std::as_const(arguments_))
        texts.push_back(argument.toUtf8());
    std::vector<char *> argv;
    argv.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);

    SpawnSettings settings;
    settings.give(standardInput_, STDIN_FILENO);
    settings.give(standardOutput_, STDOUT_FILENO);
    settings.give(standardError_, STDERR_FILENO);
    settings.closeTheRest();
    const int error =
        posix_spawn(&pid_, path.constData(), settings.actions(), settings.attributes(), argv.data(), environ);
    standardInput_.close();
    standardOutput_.close();
    standardError_.close();
    if (error != 0) {
        pid_ = -1;
        throw PlatformException(QStringLiteral("cannot launch %1: %2").arg(path_, qt_error_string(error)));
    }
    watchForEnd();
}

void ChildProcess::watchForEnd()
{
    if (!QCoreApplication::instance())
        return; // the child is reaped at the next query
    // By its number, since the C library declares the call without C linkage.
    pidDescriptor_ = FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, pid_, 0)));
    if (pidDescriptor_.isOpen()) {
        auto notifier = std::make_unique<QSocketNotifier>(pidDescriptor_.number(), QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { noteEnd(); });
        endWatcher_ = std::move(notifier);
        return;
    }
    // No descriptor is left, or the kernel or a sandbox does not support the call: poll instead.
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [this] { noteEnd(); });
    timer->start(endPollInterval);
    endWatcher_ = std::move(timer);
}

void ChildProcess::noteEnd()
{
    if (isRunning() || !isLeftToItself_)
        return;
    std::erase_if(leftToThemselves(), [this](const auto &child) { return child.get() == this; });
}

bool ChildProcess::isRunning()
{
    if (pid_ < 0)
        return false;
    int status = 0;
    const pid_t ended = waitpid(pid_, &status, WNOHANG);
    if (ended == 0)
        return true;
    pid_ = -1;
    stopWatching();
    return false;
}

void ChildProcess::interrupt()
{
    if (isRunning())
        kill(pid_, SIGINT);
}

bool ChildProcess::endsWithin(std::chrono::milliseconds patience)
{
    constexpr std::chrono::milliseconds step(1);
    for (auto waited = std::chrono::milliseconds(0); isRunning(); waited += step) {
        if (waited >= patience)
            return false;
        pollfd end = {pidDescriptor_.number(), POLLIN, 0};
        poll(&end, 1, static_cast<int>(step.count()));
    }
    return true;
}

void ChildProcess::takeDown(std::chrono::milliseconds patience)
{
    interrupt();
    if (endsWithin(patience))
        return;
    kill(pid_, SIGKILL);
    if (endsWithin(killPatience))
        return;
    // The kernel still holds the child, for example in a device that does not answer: reap it later.
    auto held = std::make_unique<ChildProcess>();
    held->pid_ = std::exchange(pid_, -1);
    stopWatching();
    held->watchForEnd();
    leaveToItself(std::move(held));
}

// The watcher may be the sender of the current signal.
void ChildProcess::stopWatching()
{
    if (auto *notifier = qobject_cast<QSocketNotifier *>(endWatcher_.get()))
        notifier->setEnabled(false);
    if (endWatcher_) {
        endWatcher_->disconnect();
        endWatcher_.release()->deleteLater();
    }
    pidDescriptor_.close();
}

void ChildProcess::leaveToItself(std::unique_ptr<ChildProcess> child)
{
    if (!child || !child->isRunning())
        return;
    child->isLeftToItself_ = true;
    leftToThemselves().push_back(std::move(child));
}

} // namespace pdekit
