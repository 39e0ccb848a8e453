// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"

#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "PrivateCupsd.h"

namespace {

struct ProgramCost
{
    std::vector<double> milliseconds;
    std::vector<double> mebibytes; ///< At its peak.
};

/// A program that has been started and prints nothing here.
class Program
{
public:
    explicit Program(const QStringList &command)
    {
        std::vector<QByteArray> words;
        for (const QString &word : command)
            words.push_back(QFile::encodeName(word));
        std::vector<char *> arguments;
        for (QByteArray &word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        if (posix_spawn(&id_, arguments.front(), &actions, nullptr, arguments.data(), environ) != 0)
            qFatal("%s cannot be started", arguments.front());
        posix_spawn_file_actions_destroy(&actions);
    }

    void wait() const
    {
        int status = 0;
        if (waitpid(id_, &status, 0) != id_ || status != 0)
            qFatal("a program did not print");
    }

    /// In MiB. Read when the program is about to end: what the system tells afterwards counts in the memory
    /// of the program that has started it.
    double waitForPeakMemory() const
    {
        double peak = 0.0;
        int status = 0;
        ptrace(PTRACE_SEIZE, id_, nullptr, PTRACE_O_TRACEEXIT);
        while (waitpid(id_, &status, 0) == id_ && WIFSTOPPED(status)) {
            const bool isExit = status >> 8 == (SIGTRAP | (PTRACE_EVENT_EXIT << 8));
            if (isExit)
                peak = peakMemory();
            const bool isSignal = status >> 16 == 0 && WSTOPSIG(status) != SIGTRAP;
            ptrace(PTRACE_CONT, id_, nullptr, isSignal ? WSTOPSIG(status) : 0);
        }
        return peak;
    }

private:
    double peakMemory() const
    {
        QFile file(QStringLiteral("/proc/%1/status").arg(id_));
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const QByteArray rest = text.mid(text.indexOf("VmHWM:") + 6);
        return rest.left(rest.indexOf("kB")).trimmed().toDouble() / 1024;
    }

    pid_t id_ = 0;
};

void measure(const QStringList &command, ProgramCost &cost)
{
    cost.milliseconds.push_back(millisecondsOf([&] { Program(command).wait(); }));
    cost.mebibytes.push_back(Program(command).waitForPeakMemory());
}

void saveLargePhoto(const QString &path, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb((x * 7 + y * 3) % 256, (x ^ y) % 256, (y * 5) % 256);
    }
    image.save(path, "JPEG", 90);
}

} // namespace
#endif

void benchJobs()
{
#ifdef CORVEL_BENCH_HAS_CUPSD
    testing_support::PrivateCupsd server;
    QFile ppd(QStringLiteral(CORVEL_BENCH_PPD_DIR "/Corvel9031.ppd"));
    const QString lp = QStandardPaths::findExecutable(QStringLiteral("lp"));
    if (!ppd.open(QIODevice::ReadOnly) || lp.isEmpty() || !server.start().isEmpty() ||
        !server.addQueue(QStringLiteral("photo"), ppd.readAll())) {
        std::printf("no private cupsd: printing to a queue is not measured\n");
        return;
    }
    const QTemporaryDir folder;
    struct Shape
    {
        QString what;
        QSize size;
    };
    const std::vector<Shape> shapes = {{QStringLiteral("nothing to place"), QSize(4000, 6000)},
                                       {QStringLiteral("placed, as a PDF"), QSize(6000, 4000)}};
    for (const Shape &shape : shapes) {
        const QString photo = folder.filePath(QStringLiteral("large.jpg"));
        saveLargePhoto(photo, shape.size);
        const QStringList options = {QStringLiteral("-o"), QStringLiteral("PageSize=4x6.Fullbleed"),
                                     QStringLiteral("-o"), QStringLiteral("Red=12")};
        ProgramCost ours;
        ProgramCost peer;
        for (int run = 0; run < 12; ++run) {
            // Neither waits for the printer.
            measure(QStringList{QStringLiteral(CORVEL_PRINT_PROGRAM), QStringLiteral("--batch"),
                                QStringLiteral("--wait"), QStringLiteral("0"), QStringLiteral("--printer"),
                                QStringLiteral("photo"), photo} +
                        options,
                    ours);
            measure(QStringList{lp, QStringLiteral("-d"), QStringLiteral("photo")} + options +
                        QStringList{photo},
                    peer);
        }
        const QString what = QStringLiteral("24-megapixel JPEG to a queue, %1 (peer: lp)").arg(shape.what);
        printRow({what, median(ours.milliseconds), median(peer.milliseconds), 1.5, {}});
        printRow({what + QStringLiteral(": memory"),
                  median(ours.mebibytes),
                  median(peer.mebibytes),
                  {},
                  {},
                  QStringLiteral("MiB")});
    }
#endif
}
