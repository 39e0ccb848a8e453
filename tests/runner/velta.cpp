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
#include <map>
#include <sstream>
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

/// Acts that follow each other, separated by bars.
const std::map<std::string, std::string> scripts = {
    {"reads", "input"},
    {"both streams", "input|print ignored|note INFO: ready\n"},
    {"does not read", "sleep 100"},
    {"closes its input", "close 0|sleep 100"},
    {"offline", "note INFO: one\nSTATE: +offline-error\nINFO: two\n|pause"},
    {"offline in lower case", "note state: +offline-error\n|sleep 50"},
    {"offline in two pieces", "note STATE: +off|sleep 200|note line-error\n"},
    {"offline in a longer line", "note INFO: one, STATE: +offline-error, media-low\n|pause"},
    {"offline for ever", "ignore|note STATE: +offline-error\n|pause"},
    {"silent after one line", "note INFO: one\n|pause"},
    {"ignores interrupts", "ignore|note INFO: one\n|pause"},
    {"lives on", "close 0|close 1|close 2|sleep 600"},
    {"silent", "sleep 300"},
    {"closes standard output first", "close 1|sleep 200|note INFO: late\n"},
    {"closes standard error first", "close 2|sleep 300|print late"},
};

void perform(const std::string &act)
{
    const std::string word = act.substr(0, act.find(' '));
    const std::string rest = act.substr(std::min(act.size(), word.size() + 1));
    if (word == "note")
        note(rest.c_str());
    else if (word == "print")
        std::puts(rest.c_str());
    else if (word == "sleep")
        usleep(1000 * static_cast<useconds_t>(std::stoi(rest)));
    else if (word == "close")
        close(std::stoi(rest));
    else if (word == "ignore")
        std::signal(SIGINT, SIG_IGN);
    else if (word == "input")
        keepInput();
    else if (word == "pause")
        pause();
}

} // namespace

int main(int argc, char *argv[])
{
    const std::string behaviour = environment("VELTA_BEHAVIOUR");
    std::setvbuf(stderr, nullptr, _IONBF, 0);
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    if (const auto script = scripts.find(behaviour); script != scripts.end()) {
        std::istringstream acts(script->second);
        for (std::string act; std::getline(acts, act, '|');)
            perform(act);
    } else if (behaviour == "arguments") {
        std::string report;
        for (int i = 1; i < argc; ++i)
            report += '[' + std::string(argv[i]) + ']';
        note(report.c_str());
    } else if (behaviour == "tells its input") {
        std::string target(4096, '\0');
        const ssize_t length = readlink("/proc/self/fd/0", target.data(), target.size());
        note(target.substr(0, static_cast<std::size_t>(std::max<ssize_t>(length, 0))).c_str());
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
    } else if (behaviour == "writes 9000 bytes") {
        note(std::string(9000, 'x').c_str());
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
