// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

namespace testing_support {

/// What the recorder backend was started with.
struct RecordedJob
{
    QByteArray title;
    QByteArray copies;
    QByteArray options; ///< The fifth argument, with the scheduler's quoting.
    QByteArray environment;
    QByteArray document;
};

/// A private print server for a test: a folder under /tmp, a socket in it, its own queues, no network unless
/// asked for. Works for root and for an ordinary user. Ends with the object, or with the test program. While
/// it lives CUPS_SERVER points to it.
class PrivateCupsd
{
public:
    PrivateCupsd() = default;
    ~PrivateCupsd();
    Q_DISABLE_COPY_MOVE(PrivateCupsd)

    enum class Reach { Socket, Network };

    /// Lays out the folder, starts the scheduler and waits for it. Empty, or one line that says why it does
    /// not start.
    QString start(Reach reach = Reach::Socket);
    void stop();
    /// Stops the scheduler's process, with its connections open, and lets it run again.
    void freeze();
    void thaw();
    /// Ends the scheduler, and starts it again, with its queues and jobs.
    bool goDown();
    bool comeBack();

    QString socketPath() const;
    /// "127.0.0.1:port", with Reach::Network.
    QString networkAddress() const { return networkAddress_; }
    /// What the backend "scripted:/" does with a job: shell commands, with a backend's arguments.
    bool setBackendScript(const QByteArray &commands);
    /// Adds a queue, or replaces it, on the recorder backend. Without a PPD it is a raw queue.
    bool addQueue(const QString &name, const QByteArray &ppd = {}, const QStringList &lpadminArguments = {});
    bool deleteQueue(const QString &name);
    /// The server's copy of the queue's PPD.
    QString ppdPath(const QString &queue) const { return path("etc/ppd/") + queue + QStringLiteral(".ppd"); }
    /// Runs a program of CUPS against this server (lpadmin, cupsreject, cupsdisable, lpoptions...).
    bool run(const QString &program, const QStringList &arguments);

    /// Waits for the backend to have finished the job.
    bool waitForJob(int id, int milliseconds = 10000) const;
    RecordedJob job(int id) const;
    /// The ids of the jobs that the scheduler has not finished, as lpstat shows them.
    QByteArray activeJobs();
    /// How many requests began like this: "GET /printers/photo.ppd".
    qsizetype requests(const QByteArray &line) const;

private:
    QString path(const char *name) const;
    bool layOut();
    bool waitForAnswer();

    QTemporaryDir folder_{QStringLiteral("/tmp/private-cupsd-XXXXXX")};
    QProcess scheduler_; // killed by its destructor, and by the kernel when the test program dies
    QByteArray serverBefore_;
    QString networkAddress_;
    bool started_ = false;
};

/// A small PPD in which only the last lines differ from case to case: takes JPEG and PDF, one page size.
QByteArray smallPpd(const QByteArray &moreLines = {});

} // namespace testing_support
