// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// Linked into a test program, where its functions replace the C library's. Built without the project's
// settings.

#include "FailingCalls.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using testing_support::Among;

thread_local const char *failingCall = "";
thread_local int failure = 0;
thread_local int left = 0; // calls until the one that fails; 0: none fails
thread_local Among descriptors = Among::Files;

bool counts(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return false;
    return descriptors == Among::Pipes ? S_ISFIFO(status.st_mode)
                                       : S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
}

bool failsAtAll(const char *call)
{
    if (left <= 0 || std::strcmp(call, failingCall) != 0 || --left > 0)
        return false;
    if (failure == 0)
        kill(getpid(), SIGKILL);
    errno = failure;
    return true;
}

bool fails(const char *call, int descriptor)
{
    return left > 0 && std::strcmp(call, failingCall) == 0 && counts(descriptor) && failsAtAll(call);
}

template <class Result, class... Parameters>
Result pass(const char *name, Parameters... parameters)
{
    return reinterpret_cast<Result (*)(Parameters...)>(dlsym(RTLD_NEXT, name))(parameters...);
}

} // namespace

namespace testing_support {

void armFault(const char *call, int error, int number, Among among)
{
    failingCall = call;
    failure = error;
    descriptors = among;
    left = number;
}

bool disarmFault()
{
    const bool hasFailed = left == 0;
    left = 0;
    return hasFailed;
}

} // namespace testing_support

#pragma GCC visibility push(default)
extern "C" {

int openFileAt(int folder, const char *path, int flags, mode_t mode) __asm__("openat");
int openFileAt64(int folder, const char *path, int flags, mode_t mode) __asm__("openat64");

int openFileAt(int folder, const char *path, int flags, mode_t mode)
{
    return fails("openat", folder) ? -1 : pass<int>("openat", folder, path, flags, mode);
}

int openFileAt64(int folder, const char *path, int flags, mode_t mode)
{
    return fails("openat", folder) ? -1 : pass<int>("openat64", folder, path, flags, mode);
}

ssize_t read(int descriptor, void *place, size_t size)
{
    return fails("read", descriptor) ? -1 : pass<ssize_t>("read", descriptor, place, size);
}

// A write that finds no space puts down the half that fits first.
ssize_t write(int descriptor, const void *data, size_t size)
{
    const bool isFailing = fails("write", descriptor);
    if (!isFailing || failure == ENOSPC)
        size = pass<ssize_t>("write", descriptor, data, isFailing ? size / 2 : size);
    if (isFailing)
        errno = failure;
    return isFailing ? -1 : static_cast<ssize_t>(size);
}

int close(int descriptor)
{
    const bool isFailing = fails("close", descriptor);
    const int result = pass<int>("close", descriptor);
    if (isFailing)
        errno = failure;
    return isFailing ? -1 : result;
}

int fsync(int descriptor)
{
    return fails("fsync", descriptor) ? -1 : pass<int>("fsync", descriptor);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return fails("linkat", toFolder) ? -1 : pass<int>("linkat", fromFolder, from, toFolder, to, flags);
}

int rename(const char *from, const char *to)
{
    return failsAtAll("rename") ? -1 : pass<int>("rename", from, to);
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to)
{
    return fails("renameat", toFolder) ? -1 : pass<int>("renameat", fromFolder, from, toFolder, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned int flags)
{
    return fails("renameat2", toFolder) ? -1 : pass<int>("renameat2", fromFolder, from, toFolder, to, flags);
}

int pipe2(int ends[2], int flags)
{
    return failsAtAll("pipe2") ? -1 : pass<int>("pipe2", ends, flags);
}

int posix_spawn(pid_t *pid, const char *path, const posix_spawn_file_actions_t *actions,
                const posix_spawnattr_t *attributes, char *const arguments[], char *const environment[])
{
    return failsAtAll("posix_spawn")
               ? failure
               : pass<int>("posix_spawn", pid, path, actions, attributes, arguments, environment);
}
}
#pragma GCC visibility pop
