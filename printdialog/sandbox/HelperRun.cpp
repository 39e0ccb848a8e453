// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HelperRun.h"

#include "FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;
using pdekit::FileDescriptor;

namespace printdialog {

namespace {

constexpr auto turnWithoutPidfd = 2ms; ///< Interval for polling a child.
constexpr auto turnOfGivingUp = 20ms;  ///< Interval for asking whether the child is still needed.

struct ActionsDeleter
{
    void operator()(posix_spawn_file_actions_t *actions) const { posix_spawn_file_actions_destroy(actions); }
};

struct AttributesDeleter
{
    void operator()(posix_spawnattr_t *attributes) const { posix_spawnattr_destroy(attributes); }
};

/// Returns 0 or an errno.
int start(const QByteArray &program, const std::vector<int> &descriptors, pid_t &child)
{
    posix_spawn_file_actions_t actionList;
    posix_spawn_file_actions_init(&actionList);
    const std::unique_ptr<posix_spawn_file_actions_t, ActionsDeleter> actions(&actionList);
    constexpr int firstFree = STDERR_FILENO + 1;
    // From above all the child's own numbers, so that none overwrites another.
    const int end = firstFree + std::max(0, static_cast<int>(descriptors.size()) - 1);
    std::vector<FileDescriptor> copies;
    int number = STDIN_FILENO;
    for (const int descriptor : descriptors) {
        int source = descriptor;
        if (source < end) {
            copies.emplace_back(::fcntl(source, F_DUPFD_CLOEXEC, end));
            source = copies.back().number();
            if (source < 0)
                return errno;
        }
        posix_spawn_file_actions_adddup2(actions.get(), source, number);
        number = std::max(number + 1, firstFree);
    }
    posix_spawn_file_actions_addopen(actions.get(), STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(actions.get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(actions.get(), end);

    posix_spawnattr_t attributeList;
    posix_spawnattr_init(&attributeList);
    const std::unique_ptr<posix_spawnattr_t, AttributesDeleter> attributes(&attributeList);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(attributes.get(), &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(attributes.get(), &signals);
    posix_spawnattr_setflags(attributes.get(), POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    QByteArray path = program;
    char *arguments[] = {path.data(), nullptr};
    return ::posix_spawn(&child, path.constData(), actions.get(), attributes.get(), arguments, environ);
}

HelperEnd endOf(int status)
{
    if (WIFEXITED(status))
        return {HelperEnd::How::Exited, WEXITSTATUS(status)};
    return {HelperEnd::How::Killed, WTERMSIG(status)};
}

} // namespace

HelperEnd runHelper(const QByteArray &program, const std::vector<int> &descriptors,
                    std::chrono::milliseconds limit, const std::atomic<bool> *isGivenUp)
{
    pid_t child = 0;
    if (const int error = start(program, descriptors, child))
        return {HelperEnd::How::NotRun, error};
    const auto deadline = std::chrono::steady_clock::now() + limit;
    const FileDescriptor announcement(static_cast<int>(::syscall(SYS_pidfd_open, child, 0)));
    std::optional<HelperEnd> ours;
    for (;;) {
        int status = 0;
        const pid_t ended = ::waitpid(child, &status, ours ? 0 : WNOHANG);
        if (ended == child)
            return ours.value_or(endOf(status));
        if (ended < 0 && errno != EINTR)
            return {HelperEnd::How::NotRun, errno};
        if (ended < 0)
            continue;
        auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        const bool isOverdue = left <= 0ms;
        if (isOverdue || (isGivenUp && *isGivenUp)) {
            ours = {isOverdue ? HelperEnd::How::Overdue : HelperEnd::How::GivenUp, SIGKILL};
            ::kill(child, SIGKILL);
            continue;
        }
        if (isGivenUp)
            left = std::min<std::chrono::milliseconds>(left, turnOfGivingUp);
        if (!announcement.isOpen())
            left = std::min<std::chrono::milliseconds>(left, turnWithoutPidfd);
        // poll(2) ignores a negative descriptor and only sleeps.
        pollfd watched = {announcement.number(), POLLIN, 0};
        ::poll(&watched, 1, static_cast<int>(left.count()));
    }
}

} // namespace printdialog
