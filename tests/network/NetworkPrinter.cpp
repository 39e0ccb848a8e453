// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "NetworkPrinter.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QThread>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace testing_support {

namespace {

QByteArray contentOfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isAccepting(int port)
{
    const int probe = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    const bool isOpen = connect(probe, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    close(probe);
    return isOpen;
}

} // namespace

NetworkPrinter::NetworkPrinter(const QString &name, int port)
    : name_(name)
    , port_(port)
{
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

NetworkPrinter::~NetworkPrinter()
{
    thaw();
    stop();
}

QString NetworkPrinter::start()
{
    // The environment of a job appears last and whole.
    const QString recorder = folder_.filePath(QStringLiteral("recorder"));
    const QByteArray root = QFile::encodeName(folder_.path());
    QFile script(recorder);
    if (!QDir(folder_.path()).mkpath(QStringLiteral("spool")) || !script.open(QIODevice::WriteOnly))
        return folder_.errorString();
    script.write("#!/bin/sh\nn=$(ls " + root + " | grep -c environment)\ncp \"$1\" " + root +
                 "/$n.document\nenv > " + root + "/.e\nmv " + root + "/.e " + root + "/$n.environment\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(folder_.filePath(QStringLiteral("log")));
    // Under another name than the host's it would want IPv6.
    process_.start(QStringLiteral("ippeveprinter"),
                   {QStringLiteral("-a"), QStringLiteral(CORVEL_NETWORK_PRINTER), QStringLiteral("-c"),
                    recorder, QStringLiteral("-d"), folder_.filePath(QStringLiteral("spool")),
                    QStringLiteral("-p"), QString::number(port_), QStringLiteral("-n"),
                    QStringLiteral("localhost"), QStringLiteral("-v"), QStringLiteral("-v"), name_});
    if (!process_.waitForStarted())
        return process_.errorString();
    for (const QDeadlineTimer deadline(10000); !deadline.hasExpired(); QThread::msleep(5)) {
        if (process_.waitForFinished(0) || process_.state() == QProcess::NotRunning)
            break;
        if (isAccepting(port_))
            return {};
    }
    return QStringLiteral("ippeveprinter does not come up: ") +
           QString::fromLocal8Bit(contentOfFile(folder_.filePath(QStringLiteral("log"))));
}

void NetworkPrinter::stop()
{
    process_.terminate();
    if (!process_.waitForFinished(3000)) {
        process_.kill();
        process_.waitForFinished(3000);
    }
}

void NetworkPrinter::freeze()
{
    kill(static_cast<pid_t>(process_.processId()), SIGSTOP);
}

void NetworkPrinter::thaw()
{
    if (process_.state() == QProcess::Running)
        kill(static_cast<pid_t>(process_.processId()), SIGCONT);
}

QByteArray NetworkPrinter::kept(const QString &name) const
{
    return contentOfFile(folder_.filePath(name));
}

int NetworkPrinter::jobs() const
{
    return static_cast<int>(
        QDir(folder_.path()).entryList({QStringLiteral("*.environment")}, QDir::Files).size());
}

QByteArray NetworkPrinter::document(int job) const
{
    const QString done = folder_.filePath(QStringLiteral("%1.environment").arg(job));
    for (const QDeadlineTimer deadline(10000); !deadline.hasExpired(); QThread::msleep(5)) {
        if (QFile::exists(done))
            return kept(QStringLiteral("%1.document").arg(job));
    }
    return {};
}

QByteArrayList NetworkPrinter::attributes(int job) const
{
    return kept(QStringLiteral("%1.environment").arg(job)).split('\n');
}

} // namespace testing_support
