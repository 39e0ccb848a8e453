// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalFrontEnd.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr int versionPatience = 5000; ///< milliseconds

QString dataFile(const char *name)
{
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation, QString::fromLatin1(name));
}

/// The program that the session bus starts for the portal's name: distributions keep it in different folders.
QString programOf(const QString &service)
{
    QFile file(service);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression exec(QStringLiteral("^\\s*Exec\\s*=\\s*(\\S.*)$"),
                                         QRegularExpression::MultilineOption);
    constexpr qsizetype largest = 65536;
    const QString text = QString::fromUtf8(file.read(largest));
    return QProcess::splitCommand(exec.match(text).captured(1)).value(0);
}

/// Versions before 1.15 may not know the option, and fail.
QVersionNumber versionOf(const QString &program)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, {QStringLiteral("--version")}, QIODevice::ReadOnly);
    if (!process.waitForFinished(versionPatience)) {
        process.kill();
        process.waitForFinished(versionPatience);
        return {};
    }
    static const QRegularExpression said(QStringLiteral("^xdg-desktop-portal ([0-9]+(?:\\.[0-9]+)+)\\s*$"));
    return QVersionNumber::fromString(
        said.match(QString::fromLatin1(process.readAllStandardOutput())).captured(1));
}

} // namespace

PortalFrontEnd PortalFrontEnd::find()
{
    PortalFrontEnd result;
    result.knowsThisDialog = !dataFile("xdg-desktop-portal/portals/corvel.portal").isEmpty();
    const QString service = dataFile("dbus-1/services/org.freedesktop.portal.Desktop.service");
    result.isInstalled = !service.isEmpty();
    if (const QString program = programOf(service); !program.isEmpty())
        result.version = versionOf(program);
    result.readsPortalsConf =
        result.version.isNull()
            ? !(dataFile("man/man5/portals.conf.5.gz") + dataFile("man/man5/portals.conf.5")).isEmpty()
            : result.version >= QVersionNumber(1, 17);
    return result;
}

} // namespace printdialog
