// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QProcess>
#include <QtCore/QStringList>

namespace testing_support {

/// A bus of the test's own.
class PrivateBus
{
public:
    /// Its address; empty when dbus-daemon is missing.
    QString start()
    {
        daemon_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                      QStringLiteral("--print-address=1")});
        while (daemon_.state() != QProcess::NotRunning && !daemon_.canReadLine() &&
               daemon_.waitForReadyRead(10000))
            ;
        return QString::fromLatin1(daemon_.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        daemon_.terminate();
        daemon_.waitForFinished(3000);
    }

private:
    QProcess daemon_;
};

} // namespace testing_support
