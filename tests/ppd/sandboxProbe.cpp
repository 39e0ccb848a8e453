// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// sandboxProbe FILE WITH: enters the sandbox with "opening" or with "output", the right to write to
// descriptor 3, and tries what is forbidden in it. Exit status: 0 when nothing of it works and what is
// allowed does; else the number of the first thing that went wrong.

#include "Sandbox.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

int main(int argc, char *argv[])
{
    if (argc != 3)
        _exit(1);
    constexpr int output = 3;
    const bool canOpen = std::string_view(argv[2]) == "opening";
    printdialog::SandboxRights rights = {.memory = std::uint64_t(1) << 30, .processorTime = 5};
    rights.canOpenFiles = canOpen;
    if (!canOpen) {
        rights.writable = {output};
        rights.largestOutput = 2;
    }
    if (dup2(memfd_create("output", 0), output) != output || !printdialog::enterSandbox(rights))
        _exit(1);
    char byte = 0;
    if (canOpen != (open("/dev/null", O_RDONLY) >= 0) || canOpen != (access("/", F_OK) == 0) ||
        read(STDIN_FILENO, &byte, 1) != 1 || canOpen != (write(output, "12", 2) != 2))
        _exit(2);
    // cppcheck-suppress leakReturnValNotUsed
    if (open(argv[1], O_WRONLY | O_CREAT, 0600) >= 0 || open(argv[1], O_RDWR | O_CREAT, 0600) >= 0 ||
        open("/dev/null", O_RDONLY | O_TRUNC) >= 0)
        _exit(3);
    if (write(STDOUT_FILENO, &byte, 1) >= 0)
        _exit(4);
    // cppcheck-suppress leakReturnValNotUsed
    if (socket(AF_INET, SOCK_STREAM, 0) >= 0 || socket(AF_UNIX, SOCK_STREAM, 0) >= 0)
        _exit(5);
    if (fork() >= 0)
        _exit(6);
    execl("/bin/true", "/bin/true", nullptr);
    if (unlink(argv[1]) == 0 || kill(getppid(), 0) == 0 || tgkill(getppid(), getppid(), 0) == 0 ||
        fcntl(STDIN_FILENO, F_SETOWN, getppid()) == 0 || tgkill(getpid(), gettid(), 0) != 0)
        _exit(7);
    std::signal(SIGXFSZ, SIG_IGN);
    if (write(output, &byte, 1) >= 0)
        _exit(10);
    rlimit limit = {};
    limit.rlim_cur = limit.rlim_max = RLIM_INFINITY;
    if (setrlimit(RLIMIT_AS, &limit) == 0)
        _exit(8);
#ifndef __SANITIZE_ADDRESS__
    if (void *memory = std::malloc(std::size_t(2) << 30)) {
        static_cast<volatile char *>(memory)[0] = 1;
        _exit(9);
    }
#endif
    _exit(0);
}
