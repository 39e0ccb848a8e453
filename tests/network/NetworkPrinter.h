// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace testing_support {

/// A photo printer on the network that announces itself and keeps what it is sent. Lives in surroundings.sh.
class NetworkPrinter
{
public:
    NetworkPrinter(const QString &name, int port);
    ~NetworkPrinter();
    Q_DISABLE_COPY_MOVE(NetworkPrinter)

    /// Starts it, and waits until it answers. Empty, or one line that says why it does not.
    QString start();
    /// Ends it; it says good-bye on the network.
    void stop();
    /// Stops the process, with its port open, and lets it run again.
    void freeze();
    void thaw();

    /// How many it has kept.
    int jobs() const;
    /// The document of the job, counted from 0; waits for it. Empty when it does not come.
    QByteArray document(int job) const;
    /// The job's attributes in the printer's words, each "IPP_NAME=value".
    QByteArrayList attributes(int job) const;

private:
    QByteArray kept(const QString &name) const;

    QString name_;
    int port_;
    QTemporaryDir folder_{QStringLiteral("/tmp/network-printer-XXXXXX")};
    QProcess process_;
};

} // namespace testing_support
