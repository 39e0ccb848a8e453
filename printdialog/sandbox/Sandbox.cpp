// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Sandbox.h"

#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <seccomp.h>
#include <sys/resource.h>
#include <unistd.h>

namespace printdialog {

namespace {

/// A condition on the system call's argument at `index`.
scmp_arg_cmp argument(unsigned index, scmp_compare comparison, scmp_datum_t a, scmp_datum_t b = 0)
{
    return {index, comparison, a, b};
}

bool limit(__rlimit_resource resource, rlim_t most)
{
    // The hard limit is one second above the soft one, so that SIGXCPU comes before SIGKILL, which would look
    // like the OOM killer's.
    const rlimit value = {most, resource == RLIMIT_CPU ? most + 1 : most};
    return setrlimit(resource, &value) == 0;
}

bool allow(scmp_filter_ctx filter, std::initializer_list<int> calls)
{
    for (const int call : calls) {
        if (seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) != 0)
            return false;
    }
    return true;
}

bool allowOpening(scmp_filter_ctx filter)
{
    // O_TRUNC empties even a file that is opened for reading.
    const scmp_datum_t writing = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC;
    for (const int call : {SCMP_SYS(open), SCMP_SYS(openat)}) {
        const unsigned flags = call == SCMP_SYS(open) ? 1 : 2;
        if (seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 1, argument(flags, SCMP_CMP_MASKED_EQ, writing)) !=
            0)
            return false;
    }
    return allow(filter, {SCMP_SYS(stat), SCMP_SYS(newfstatat), SCMP_SYS(statx), SCMP_SYS(access),
                          SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(readlink), SCMP_SYS(getcwd)});
}

} // namespace

bool enterSandbox(const SandboxRights &rights)
{
#ifndef __SANITIZE_ADDRESS__ // its shadow memory is all of the address space
    if (!limit(RLIMIT_AS, rights.memory))
        return false;
#endif
    if (!limit(RLIMIT_CPU, rights.processorTime) || !limit(RLIMIT_FSIZE, rights.largestOutput) ||
        !limit(RLIMIT_CORE, 0))
        return false;
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (!filter)
        return false;
    bool isReady = allow(filter, {SCMP_SYS(read),         SCMP_SYS(readv),        SCMP_SYS(pread64),
                                  SCMP_SYS(lseek),        SCMP_SYS(close),        SCMP_SYS(fstat),
                                  SCMP_SYS(mmap),         SCMP_SYS(munmap),       SCMP_SYS(mremap),
                                  SCMP_SYS(mprotect),     SCMP_SYS(madvise),      SCMP_SYS(brk),
                                  SCMP_SYS(futex),        SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask),
                                  SCMP_SYS(rt_sigreturn), SCMP_SYS(sigaltstack),  SCMP_SYS(clock_gettime),
                                  SCMP_SYS(gettimeofday), SCMP_SYS(getrandom),    SCMP_SYS(getpid),
                                  SCMP_SYS(gettid),       SCMP_SYS(exit),         SCMP_SYS(exit_group)});
    if (rights.canOpenFiles)
        isReady = isReady && allowOpening(filter);
    for (const int descriptor : rights.writable)
        isReady =
            isReady && seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(write), 1,
                                        argument(0, SCMP_CMP_EQ, static_cast<scmp_datum_t>(descriptor))) == 0;
    // Only these commands: others make the kernel send signals to other processes.
    for (const auto command : {scmp_datum_t(F_GETFD), scmp_datum_t(F_SETFD), scmp_datum_t(F_GETFL)})
        isReady = isReady && seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(fcntl), 1,
                                              argument(1, SCMP_CMP_EQ, command)) == 0;
    // For abort(): this process may signal only itself.
    isReady = isReady && seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1,
                                          argument(0, SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid()))) == 0;
    isReady = isReady && seccomp_load(filter) == 0; // also sets no_new_privs
    seccomp_release(filter);
    return isReady;
}

} // namespace printdialog
