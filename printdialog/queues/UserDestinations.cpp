// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "UserDestinations.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace printdialog {

namespace {

constexpr qint64 largestFile = qint64(1024) * 1024;

/// Reads lines of the form "Dest name/instance option=value..." and "Default name/instance ...".
void readFile(const QString &path, UserDestinations &destinations)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QList<QByteArray> lines = file.read(largestFile).split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() < 2)
            continue;
        const QByteArray keyword = words.at(0).toLower();
        const bool isDefault = keyword == "default";
        if (!isDefault && keyword != "dest")
            continue;
        const Destination destination(QString::fromUtf8(words.at(1)));
        if (isDefault)
            destinations.defaultPrinter = destination;
        if (!destination.instance.isEmpty() && !destinations.instances.contains(destination))
            destinations.instances.append(destination);
    }
}

} // namespace

UserDestinations UserDestinations::read()
{
    UserDestinations destinations;
    const QString systemFolder = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    readFile(systemFolder + QStringLiteral("/lpoptions"), destinations);
    readFile(QDir::homePath() + QStringLiteral("/.cups/lpoptions"), destinations);
    // Like lp(1), ignore PRINTER=lp, since many shells set it.
    const QString printer = qEnvironmentVariable("PRINTER");
    if (const QString destination = qEnvironmentVariable("LPDEST"); !destination.isEmpty())
        destinations.defaultPrinter = destination;
    else if (!printer.isEmpty() && printer != QLatin1String("lp"))
        destinations.defaultPrinter = printer;
    return destinations;
}

} // namespace printdialog
