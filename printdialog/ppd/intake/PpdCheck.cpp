// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdCheck.h"

#include "CorvelPpdCheckPath.h"
#include "FileDescriptor.h"
#include "PlainText.h"
#include "PpdFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;
using pdekit::FileDescriptor;

namespace printdialog {

namespace {

constexpr auto shortestTurn = 2ms; // interval for polling a child without a pidfd

struct CheckText
{
    Q_DECLARE_TR_FUNCTIONS(PpdCheck)
};

struct ActionsDeleter
{
    void operator()(posix_spawn_file_actions_t *actions) const { posix_spawn_file_actions_destroy(actions); }
};

struct AttributesDeleter
{
    void operator()(posix_spawnattr_t *attributes) const { posix_spawnattr_destroy(attributes); }
};

/// Starts the program with the PPD as its standard input and none of our other descriptors. Returns 0 or an
/// errno.
int start(const QByteArray &program, const FileDescriptor &ppd, pid_t &child)
{
    posix_spawn_file_actions_t actionList;
    posix_spawn_file_actions_init(&actionList);
    const std::unique_ptr<posix_spawn_file_actions_t, ActionsDeleter> actions(&actionList);
    posix_spawn_file_actions_adddup2(actions.get(), ppd.number(), STDIN_FILENO);
    posix_spawn_file_actions_addopen(actions.get(), STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(actions.get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(actions.get(), STDERR_FILENO + 1);

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

/// How the child ended.
struct End
{
    int status = 0;         ///< from waitpid(2)
    int error = 0;          ///< an errno when the status is not available
    bool isOverdue = false; ///< killed at the limit
};

/// Waits for the child to end, and kills it at the limit.
End endOf(pid_t child, std::chrono::milliseconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    const FileDescriptor announcement(static_cast<int>(::syscall(SYS_pidfd_open, child, 0)));
    End end;
    for (;;) {
        const pid_t ended = ::waitpid(child, &end.status, end.isOverdue ? 0 : WNOHANG);
        if (ended == child)
            return end;
        if (ended < 0 && errno != EINTR) {
            end.error = errno;
            return end;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left <= 0ms) {
            end.isOverdue = true;
            ::kill(child, SIGKILL);
            continue;
        }
        pollfd watched = {announcement.number(), POLLIN,
                          0}; // poll(2) ignores a negative descriptor and only sleeps
        ::poll(&watched, 1,
               static_cast<int>((announcement.number() < 0 ? std::min(left, +shortestTurn) : left).count()));
    }
}

} // namespace

QString ppdCheckProgram()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QLatin1String("/" CORVEL_PPD_CHECK_FROM_PROGRAM));
}

Result<CheckedPpd, PpdFault> trustPpd(const QByteArray &data, const QString &name)
{
    const auto inspection = inspectPpd(data, name);
    if (!inspection)
        return inspection.failure();
    return CheckedPpd(data, name, *inspection);
}

Result<CheckedPpd, PpdFault> checkPpd(const QByteArray &data, const QString &name, const QString &program,
                                      std::chrono::milliseconds limit)
{
    auto inspected = trustPpd(data, name);
    if (!inspected)
        return inspected;
    const FileDescriptor ppd(ppdInMemory(inspected->inspection().bytes));
    if (ppd.number() < 0)
        return ppdNotReadable(name, errno);

    constexpr int noSandbox = 2;
    const QString shown = plainText(name, 300);
    const auto notTried = [&](const QString &reason) {
        return Failure<PpdFault>{PpdFault::NotTried,
                                 CheckText::tr("The PPD \"%1\" is not used, since it could not be checked "
                                               "safely: %2. Install corvel-print again.")
                                     .arg(shown, reason),
                                 {}};
    };
    pid_t child = 0;
    if (const int error = start(QFile::encodeName(program), ppd, child))
        return notTried(CheckText::tr("\"%1\" cannot be run: %2").arg(program, qt_error_string(error)));
    const End end = endOf(child, limit);
    if (end.error != 0)
        return notTried(qt_error_string(end.error));
    // SIGKILL that we did not send is most likely the OOM killer's, and says nothing about the PPD.
    if (end.isOverdue || (WIFSIGNALED(end.status) && WTERMSIG(end.status) == SIGKILL))
        return Failure<PpdFault>{
            PpdFault::NotTried,
            CheckText::tr(
                "The PPD \"%1\" is not used, since this computer was too busy to check it. Try again later.")
                .arg(shown),
            {}};
    if (WIFEXITED(end.status)) {
        switch (WEXITSTATUS(end.status)) {
        case 0:
            return inspected;
        case noSandbox:
            return notTried(CheckText::tr("the system offers no sandbox"));
        default: // most likely the dynamic linker's
            return notTried(
                CheckText::tr("\"%1\" ends with status %2").arg(program).arg(WEXITSTATUS(end.status)));
        }
    }
    if (WTERMSIG(end.status) == SIGXCPU)
        return Failure<PpdFault>{PpdFault::Harmful,
                                 CheckText::tr("The PPD \"%1\" is not used: libcups does not finish reading "
                                               "it. Fetch another from the printer's maker.")
                                     .arg(shown),
                                 {}};
    return Failure<PpdFault>{
        PpdFault::Harmful,
        CheckText::tr(
            "The PPD \"%1\" is not used: it makes libcups crash. Fetch another from the printer's maker.")
            .arg(shown),
        {}};
}

} // namespace printdialog
