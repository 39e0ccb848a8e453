// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// Stands before the C library: linked into a test program, or preloaded into another program. Qt-free, since
// what is preloaded may be called before anything else is there.

#include "FaultInjection.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#define CORVEL_INTERPOSED extern "C" __attribute__((visibility("default")))

namespace {

struct Plan
{
    std::array<char, 32> call = {};
    std::array<char, 512> folder = {};
    std::array<char, 512> report = {};
    int error = 0;
    std::atomic<int> left = 0; ///< calls until the one that fails; 0: none fails
};

Plan plan;

void copy(char *place, std::size_t size, const char *text)
{
    std::strncpy(place, text, size - 1);
}

void set(const char *call, int error, int number, const char *folder, const char *report)
{
    plan.left = 0;
    copy(plan.call.data(), plan.call.size(), call);
    copy(plan.folder.data(), plan.folder.size(), folder);
    copy(plan.report.data(), plan.report.size(), report);
    plan.error = error;
    plan.left = number;
}

/// CORVEL_FAULT: call, error, number, folder and report, separated by colons.
__attribute__((constructor)) void readPlan()
{
    const char *variable = std::getenv("CORVEL_FAULT");
    if (!variable)
        return;
    std::array<std::string, 5> parts;
    std::size_t part = 0;
    for (const char *c = variable; *c; ++c) {
        if (*c == ':' && part + 1 < parts.size())
            ++part;
        else
            parts.at(part) += *c;
    }
    set(parts[0].c_str(), std::atoi(parts[1].c_str()), std::atoi(parts[2].c_str()), parts[3].c_str(),
        parts[4].c_str());
    // The program's children are left alone.
    unsetenv("CORVEL_FAULT");
    unsetenv("LD_PRELOAD");
}

bool isBelowFolder(const char *path)
{
    const std::size_t length = std::strlen(plan.folder.data());
    return path && std::strncmp(path, plan.folder.data(), length) == 0;
}

bool isBelowFolder(int descriptor)
{
    std::array<char, 512> path = {};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    // What is in memory has no such faults.
    return syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path.data(), path.size() - 1) > 0 &&
           std::strncmp(path.data(), "/memfd:", 7) != 0 && isBelowFolder(path.data());
}

bool isBelowFolder(int folder, const char *path)
{
    return path && *path == '/' ? isBelowFolder(path) : isBelowFolder(folder);
}

/// Whether this call is the one that fails. The file in question is looked at only for calls that may be.
template <class... File>
bool fails(const char *call, File... file)
{
    if (plan.left.load() <= 0 || std::strcmp(call, plan.call.data()) != 0)
        return false;
    if constexpr (sizeof...(file) > 0) {
        const int before = errno;
        const bool counts = isBelowFolder(file...);
        errno = before;
        if (!counts)
            return false;
    }
    if (plan.left.fetch_sub(1) != 1)
        return false;
    if (plan.report[0] != '\0')
        syscall(SYS_close, syscall(SYS_openat, AT_FDCWD, plan.report.data(), O_CREAT | O_WRONLY, 0666));
    if (plan.error == 0)
        syscall(SYS_kill, getpid(), SIGKILL);
    errno = plan.error;
    return true;
}

template <class Function>
Function *real(Function * /*interposed*/, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

int openPath(const char *name, const char *path, int flags, mode_t mode)
{
    return fails("open", path) ? -1 : real(&open, name)(path, flags, mode);
}

int openAt(const char *name, int folder, const char *path, int flags, mode_t mode)
{
    return fails("open", folder, path) ? -1 : real(&openat, name)(folder, path, flags, mode);
}

} // namespace

namespace testing_support {

void armFault(const char *call, int error, int number, const char *folder)
{
    set(call, error, number, folder, "");
}

bool disarmFault()
{
    return plan.left.exchange(0) <= 0;
}

} // namespace testing_support

// Callers that give no mode leave an arbitrary one in its register, which the system does not look at. The
// last two are what open is compiled to with fortified headers.
CORVEL_INTERPOSED int openFile(const char *path, int flags, mode_t mode) __asm__("open");
CORVEL_INTERPOSED int openFile64(const char *path, int flags, mode_t mode) __asm__("open64");
CORVEL_INTERPOSED int openFileAt(int folder, const char *path, int flags, mode_t mode) __asm__("openat");
CORVEL_INTERPOSED int openFileAt64(int folder, const char *path, int flags, mode_t mode) __asm__("openat64");
CORVEL_INTERPOSED int fortifiedOpen(const char *path, int flags) __asm__("__open_2");
CORVEL_INTERPOSED int fortifiedOpen64(const char *path, int flags) __asm__("__open64_2");

int openFile(const char *path, int flags, mode_t mode)
{
    return openPath("open", path, flags, mode);
}

int openFile64(const char *path, int flags, mode_t mode)
{
    return openPath("open64", path, flags, mode);
}

int openFileAt(int folder, const char *path, int flags, mode_t mode)
{
    return openAt("openat", folder, path, flags, mode);
}

int openFileAt64(int folder, const char *path, int flags, mode_t mode)
{
    return openAt("openat64", folder, path, flags, mode);
}

int fortifiedOpen(const char *path, int flags)
{
    return openPath("open", path, flags, 0);
}

int fortifiedOpen64(const char *path, int flags)
{
    return openPath("open64", path, flags, 0);
}

CORVEL_INTERPOSED ssize_t read(int descriptor, void *place, size_t size)
{
    return fails("read", descriptor) ? -1 : real(&read, "read")(descriptor, place, size);
}

// A write that finds no space puts down the half that fits first.
CORVEL_INTERPOSED ssize_t write(int descriptor, const void *data, size_t size)
{
    if (!fails("write", descriptor))
        return real(&write, "write")(descriptor, data, size);
    if (plan.error != EINTR && size > 1)
        real(&write, "write")(descriptor, data, size / 2);
    errno = plan.error;
    return -1;
}

CORVEL_INTERPOSED int close(int descriptor)
{
    const bool isFailing = fails("close", descriptor);
    const int result = real(&close, "close")(descriptor);
    if (!isFailing)
        return result;
    errno = plan.error;
    return -1;
}

CORVEL_INTERPOSED int fsync(int descriptor)
{
    return fails("fsync", descriptor) ? -1 : real(&fsync, "fsync")(descriptor);
}

CORVEL_INTERPOSED int fchmod(int descriptor, mode_t mode)
{
    return fails("fchmod", descriptor) ? -1 : real(&fchmod, "fchmod")(descriptor, mode);
}

CORVEL_INTERPOSED int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return fails("linkat", toFolder, to) ? -1
                                         : real(&linkat, "linkat")(fromFolder, from, toFolder, to, flags);
}

CORVEL_INTERPOSED int rename(const char *from, const char *to)
{
    return fails("rename", to) ? -1 : real(&rename, "rename")(from, to);
}

CORVEL_INTERPOSED int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{
    return fails("rename", toFolder, to) ? -1 : real(&renameat, "renameat")(fromFolder, from, toFolder, to);
}

CORVEL_INTERPOSED int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                                unsigned int flags)
{
    return fails("renameat2", toFolder, to)
               ? -1
               : real(&renameat2, "renameat2")(fromFolder, from, toFolder, to, flags);
}

CORVEL_INTERPOSED int mkdir(const char *path, mode_t mode)
{
    return fails("mkdir", path) ? -1 : real(&mkdir, "mkdir")(path, mode);
}

CORVEL_INTERPOSED int pipe2(int ends[2], int flags)
{
    return fails("pipe2") ? -1 : real(&pipe2, "pipe2")(ends, flags);
}

CORVEL_INTERPOSED int socket(int domain, int type, int protocol)
{
    return fails("socket") ? -1 : real(&socket, "socket")(domain, type, protocol);
}

CORVEL_INTERPOSED int posix_spawn(pid_t *pid, const char *path, const posix_spawn_file_actions_t *actions,
                                  const posix_spawnattr_t *attributes, char *const arguments[],
                                  char *const environment[])
{
    if (fails("posix_spawn"))
        return plan.error;
    return real(&posix_spawn, "posix_spawn")(pid, path, actions, attributes, arguments, environment);
}
