// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace testing_support {

/// A display and a session bus of the program's own. They have to be there before the application.
class PrivateDesktop
{
public:
    PrivateDesktop() = default;
    ~PrivateDesktop()
    {
        for (QProcess *process : {&session_, &display_}) {
            process->terminate();
            process->waitForFinished(3000);
        }
    }
    Q_DISABLE_COPY_MOVE(PrivateDesktop)

    /// Empty, or what is missing. The environment names them then. @param arguments more of Xvfb's
    QString start(const QStringList &arguments = {})
    {
        const QString display = firstLineOf(display_, QStringLiteral("Xvfb"),
                                            QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                        QStringLiteral("-nolisten"), QStringLiteral("tcp")} +
                                                arguments);
        if (display.isEmpty())
            return QStringLiteral("Xvfb is missing; apt-get install xvfb.");
        const QString session = firstLineOf(
            session_, QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
        if (session.isEmpty())
            return QStringLiteral("dbus-daemon is missing; apt-get install dbus.");
        qputenv("DISPLAY", ":" + display.toLatin1());
        qputenv("DBUS_SESSION_BUS_ADDRESS", session.toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
        return {};
    }

private:
    static QString firstLineOf(QProcess &process, const QString &program, const QStringList &arguments)
    {
        process.start(program, arguments, QIODevice::ReadOnly);
        while (process.state() != QProcess::NotRunning && !process.canReadLine() &&
               process.waitForReadyRead(10000))
            ;
        return QString::fromLatin1(process.readLine()).trimmed();
    }

    QProcess display_;
    QProcess session_;
};

} // namespace testing_support
