// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramCost.h"

#include "BenchTable.h"

#include <QtCore/QFile>

#include <csignal>
#include <fcntl.h>
#include <optional>
#include <spawn.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

double peakMemory(pid_t id)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(id));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QByteArray rest = text.mid(text.indexOf("VmHWM:") + 6);
    return rest.left(rest.indexOf("kB")).trimmed().toDouble() / 1024;
}

namespace {

/// 0 when there is no such program.
pid_t start(const QStringList &command)
{
    std::vector<QByteArray> words;
    words.reserve(static_cast<std::size_t>(command.size()));
    for (const QString &word : command)
        words.push_back(QFile::encodeName(word));
    std::vector<char *> arguments;
    arguments.reserve(words.size() + 1);
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t id = 0;
    const int error = posix_spawnp(&id, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? id : 0;
}

/// Read when the program is about to end: what the system reports afterwards counts in the memory of the
/// program that has started it.
std::optional<double> runForPeakMemory(const QStringList &command)
{
    const pid_t id = start(command);
    if (id == 0)
        return std::nullopt;
    double peak = 0.0;
    int status = 0;
    ptrace(PTRACE_SEIZE, id, nullptr, PTRACE_O_TRACEEXIT);
    while (waitpid(id, &status, 0) == id && WIFSTOPPED(status)) {
        if (status >> 8 == (SIGTRAP | (PTRACE_EVENT_EXIT << 8)))
            peak = peakMemory(id);
        const bool isSignal = status >> 16 == 0 && WSTOPSIG(status) != SIGTRAP;
        ptrace(PTRACE_CONT, id, nullptr, isSignal ? WSTOPSIG(status) : 0);
    }
    return status == 0 ? std::optional(peak) : std::nullopt;
}

} // namespace

bool addRun(const QStringList &command, ProgramCost &cost)
{
    int status = -1;
    const double time = millisecondsOf([&] {
        const pid_t id = start(command);
        if (id != 0)
            waitpid(id, &status, 0);
    });
    const std::optional<double> memory = status == 0 ? runForPeakMemory(command) : std::nullopt;
    if (!memory)
        return false;
    cost.milliseconds.push_back(time);
    cost.mebibytes.push_back(*memory);
    return true;
}
