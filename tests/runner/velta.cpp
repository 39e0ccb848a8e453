// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// A backend that behaves as the environment variable VELTA_BEHAVIOUR says; its input goes to the file
// VELTA_INPUT.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t interrupts = 0;

void note(const char *text)
{
    std::fputs(text, stderr);
    std::fflush(stderr);
}

std::string environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

void keepInput()
{
    const std::string input{std::istreambuf_iterator<char>(std::cin), {}};
    std::ofstream(environment("VELTA_INPUT"), std::ios::binary) << input;
}

} // namespace

int main(int argc, char *argv[])
{
    const std::string behaviour = environment("VELTA_BEHAVIOUR");
    std::setvbuf(stderr, nullptr, _IONBF, 0);
    if (behaviour == "reads") {
        keepInput();
    } else if (behaviour == "arguments") {
        std::string report;
        for (int i = 1; i < argc; ++i)
            report += '[' + std::string(argv[i]) + ']';
        note(report.c_str());
    } else if (behaviour == "both streams") {
        keepInput();
        std::printf("ignored\n");
        std::fflush(stdout);
        note("INFO: ready\n");
    } else if (behaviour == "ends at once") {
        return 0;
    } else if (behaviour == "does not read") {
        usleep(100'000);
    } else if (behaviour == "tells its input") {
        std::string target(4096, '\0');
        const ssize_t length = readlink("/proc/self/fd/0", target.data(), target.size());
        note(target.substr(0, static_cast<std::size_t>(std::max<ssize_t>(length, 0))).c_str());
    } else if (behaviour == "closes its input") {
        close(STDIN_FILENO);
        usleep(100'000);
    } else if (behaviour == "offline") {
        note("INFO: one\nSTATE: +offline-error\nINFO: two\n");
        pause();
    } else if (behaviour == "offline in lower case") {
        note("state: +offline-error\n");
        usleep(50'000);
    } else if (behaviour == "offline in two pieces") {
        note("STATE: +off");
        usleep(200'000);
        note("line-error\n");
    } else if (behaviour == "offline in a longer line") {
        note("INFO: one, STATE: +offline-error, media-low\n");
        pause();
    } else if (behaviour == "offline until the 20th interrupt") {
        std::signal(SIGINT, [](int) { interrupts = interrupts + 1; });
        note("STATE: +offline-error\n");
        while (interrupts < 1)
            pause();
        const auto first = std::chrono::steady_clock::now();
        while (interrupts < 20)
            pause();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - first;
        std::ofstream(environment("VELTA_INPUT")) << time.count();
    } else if (behaviour == "offline for ever") {
        std::signal(SIGINT, SIG_IGN);
        note("STATE: +offline-error\n");
        for (;;)
            pause();
    } else if (behaviour == "silent after one line") {
        note("INFO: one\n");
        pause();
    } else if (behaviour == "ignores interrupts") {
        std::signal(SIGINT, SIG_IGN);
        note("INFO: one\n");
        pause();
    } else if (behaviour == "lives on") {
        for (int i = 0; i < 3; ++i)
            close(i);
        usleep(600'000);
    } else if (behaviour == "writes 9000 bytes") {
        note(std::string(9000, 'x').c_str());
    } else if (behaviour == "silent") {
        usleep(300'000);
    } else if (behaviour == "floods standard output") {
        const std::string line(1023, 'x');
        for (int i = 0; i < 20'000; ++i)
            std::puts(line.c_str());
    } else if (behaviour == "floods standard error") {
        for (int i = 0; i < 1'000'000; ++i)
            note("x\n");
    } else if (behaviour == "floods until interrupted") {
        for (;;)
            note("x\n");
    } else if (behaviour == "closes standard output first") {
        close(STDOUT_FILENO);
        usleep(200'000);
        note("INFO: late\n");
    } else if (behaviour == "closes standard error first") {
        close(STDERR_FILENO);
        usleep(300'000);
        std::puts("late");
    } else if (behaviour == "descriptors") {
        std::string report;
        for (int i = 0; i < 64; ++i) {
            if (fcntl(i, F_GETFD) >= 0)
                report += std::to_string(i) + ' ';
        }
        sigset_t mask;
        sigprocmask(SIG_SETMASK, nullptr, &mask);
        bool isClean = true;
        for (int signal = 1; signal < NSIG; ++signal) {
            struct sigaction action = {};
            if (sigaction(signal, nullptr, &action) == 0)
                isClean &= action.sa_handler == SIG_DFL && sigismember(&mask, signal) == 0;
        }
        note((report + (isClean ? "clean" : "unclean")).c_str());
    }
    return 0;
}
