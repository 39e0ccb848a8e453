// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// corvel-screen-profile SCREEN: writes the path of the screen's ICC profile to its standard output, as the
// system's color manager (colord) knows it; nothing when there is none. A separate program, since a system
// bus that hangs blocks its caller.

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>

#include <cstdio>
#include <unistd.h>

namespace {

const QString colord = QStringLiteral("org.freedesktop.ColorManager");

/// The first value of the answer; invalid when there is none.
QVariant ask(const QString &path, const QString &interface, const QString &method,
             const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(colord, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDBusMessage answer = QDBusConnection::systemBus().call(message);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
}

QVariant property(const QString &path, const QString &interface, const QString &name)
{
    return ask(path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
               {interface, name})
        .value<QDBusVariant>()
        .variant();
}

QString profileOf(const QString &screen)
{
    const QDBusConnection bus = QDBusConnection::systemBus();
    // Where colord does not run, nobody has told it about a screen.
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(colord))
        return {};
    const QVariant device =
        ask(QStringLiteral("/org/freedesktop/ColorManager"), colord, QStringLiteral("FindDeviceByProperty"),
            {QStringLiteral("XRANDR_name"), screen});
    if (!device.isValid())
        return {};
    const QString path = device.value<QDBusObjectPath>().path();
    const QString interface = colord + QStringLiteral(".Device");
    // The user can turn the color management of a device off.
    if (property(path, interface, QStringLiteral("Enabled")) == QVariant(false))
        return {};
    const auto profiles =
        qdbus_cast<QList<QDBusObjectPath>>(property(path, interface, QStringLiteral("Profiles")));
    if (profiles.isEmpty())
        return {};
    // The first one is the default.
    return property(profiles.constFirst().path(), colord + QStringLiteral(".Profile"),
                    QStringLiteral("Filename"))
        .toString();
}

} // namespace

int main(int argc, char *argv[])
{
    alarm(10); // seconds; the caller has given up by then
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: corvel-screen-profile SCREEN\n", stderr);
        return 2;
    }
    std::fputs(QFile::encodeName(profileOf(arguments.at(1))).constData(), stdout);
    return 0;
}
