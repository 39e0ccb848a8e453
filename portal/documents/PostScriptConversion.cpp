// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PostScriptConversion.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <csignal>
#include <linux/filter.h>
#include <memory>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <vector>

namespace printdialog {

namespace {

using Clock = std::chrono::steady_clock;

constexpr rlim_t mostMemory = rlim_t(2) << 30; // bytes of address space
constexpr int outputDescriptor = 3;
constexpr int pollInterval = 50; // milliseconds

/// A filter under which no socket can be made; empty when the system has none. Compiled before the fork: the
/// child may not allocate.
std::vector<sock_filter> filterWithoutSockets()
{
    const std::unique_ptr<void, decltype(&seccomp_release)> context(seccomp_init(SCMP_ACT_ALLOW),
                                                                    seccomp_release);
    const pdekit::FileDescriptor file(memfd_create("filter", MFD_CLOEXEC));
    struct stat status = {};
    if (!context || !file.isOpen() ||
        seccomp_rule_add(context.get(), SCMP_ACT_ERRNO(EPERM), SCMP_SYS(socket), 0) != 0 ||
        seccomp_rule_add(context.get(), SCMP_ACT_ERRNO(EPERM), SCMP_SYS(ptrace), 0) != 0 ||
        seccomp_export_bpf(context.get(), file.number()) != 0 || fstat(file.number(), &status) != 0)
        return {};
    std::vector<sock_filter> filter(static_cast<std::size_t>(status.st_size) / sizeof(sock_filter));
    const auto size = static_cast<ssize_t>(filter.size() * sizeof(sock_filter));
    return pread(file.number(), filter.data(), static_cast<std::size_t>(size), 0) == size
               ? filter
               : std::vector<sock_filter>();
}

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit limits{most, most};
    setrlimit(resource, &limits);
}

} // namespace

std::optional<IntakeFault> convertPostScript(const pdekit::FileDescriptor &postScript,
                                             const pdekit::FileDescriptor &pdf, const IntakeLimits &limits,
                                             const std::atomic<bool> *isCanceled)
{
    if (!QFile::exists(limits.ghostscript))
        return IntakeFault::NoConverter;
    std::vector<sock_filter> filter = filterWithoutSockets();
    if (filter.empty() || !pdf.isOpen())
        return IntakeFault::Unconverted;
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limits.conversion).count();
    QProcess ghostscript;
    ghostscript.setStandardInputFile(
        QStringLiteral("/proc/%1/fd/%2").arg(QCoreApplication::applicationPid()).arg(postScript.number()));
    ghostscript.setStandardOutputFile(QProcess::nullDevice());
    ghostscript.setStandardErrorFile(QProcess::nullDevice());
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    ghostscript.setProcessEnvironment(environment);
    ghostscript.setChildProcessModifier([&, most = static_cast<rlim_t>(limits.largest), parent = getpid()] {
        if (dup2(pdf.number(), outputDescriptor) < 0)
            _exit(1);
        if (pdf.number() == outputDescriptor)
            fcntl(outputDescriptor, F_SETFD, 0);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        limit(RLIMIT_CPU, static_cast<rlim_t>(seconds + 1));
        limit(RLIMIT_AS, mostMemory);
        limit(RLIMIT_FSIZE, most);
        limit(RLIMIT_CORE, 0);
        if (getppid() != parent || prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
            prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
            _exit(1);
    });
    ghostscript.start(limits.ghostscript,
                      {QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"), QStringLiteral("-dNOPAUSE"),
                       QStringLiteral("-q"), QStringLiteral("-sDEVICE=pdfwrite"),
                       QStringLiteral("-sOutputFile=/dev/fd/%1").arg(outputDescriptor), QStringLiteral("-")});
    const auto end = Clock::now() + limits.conversion;
    while (!ghostscript.waitForFinished(pollInterval) && ghostscript.state() != QProcess::NotRunning) {
        const bool isGivenUp = isCanceled && *isCanceled;
        if (!isGivenUp && Clock::now() < end)
            continue;
        ghostscript.kill();
        ghostscript.waitForFinished();
        return isGivenUp ? IntakeFault::Canceled : IntakeFault::Unconverted;
    }
    if (ghostscript.exitStatus() == QProcess::CrashExit && ghostscript.exitCode() == SIGXFSZ)
        return IntakeFault::TooLarge;
    char begin[5] = {};
    const bool isPdf = pread(pdf.number(), begin, sizeof begin, 0) == sizeof begin &&
                       QByteArrayView(begin, sizeof begin) == "%PDF-";
    const bool isDone = ghostscript.exitStatus() == QProcess::NormalExit && ghostscript.exitCode() == 0;
    return isDone && isPdf ? std::nullopt : std::optional(IntakeFault::Unconverted);
}

} // namespace printdialog
