// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueSettings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

namespace printdialog {

namespace {

constexpr qint64 largestFile = 1024 * 1024;
constexpr int version = 1;

} // namespace

QString QueueSettings::fileFor(const QString &printer)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QByteArray name = QUrl::toPercentEncoding(printer, {}, ".");
    return QStringLiteral("%1/corvel-print/queues/%2.json").arg(folder, QString::fromLatin1(name));
}

QMap<QString, QString> QueueSettings::load(const QString &printer)
{
    QFile file(fileFor(printer));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject content = QJsonDocument::fromJson(file.read(largestFile)).object();
    if (content[QLatin1String("version")].toInt() != version)
        return {};
    QMap<QString, QString> options;
    const QJsonObject saved = content[QLatin1String("options")].toObject();
    for (auto entry = saved.begin(); entry != saved.end(); ++entry) {
        if (entry->isString())
            options.insert(entry.key(), entry->toString());
    }
    return options;
}

Result<QString, SettingsFault> QueueSettings::save(const QString &printer,
                                                   const QMap<QString, QString> &options)
{
    QJsonObject saved;
    for (auto entry = options.cbegin(); entry != options.cend(); ++entry)
        saved.insert(entry.key(), entry.value());
    const QJsonObject content = {{QStringLiteral("version"), version}, {QStringLiteral("options"), saved}};

    const QString path = fileFor(printer);
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(content).toJson()) < 0 ||
        !file.commit()) {
        return Failure<SettingsFault>{
            SettingsFault::NotWritable,
            tr("The settings for \"%1\" could not be saved in %2: %3. Make room there, or make it writable.")
                .arg(printer, path, file.errorString()),
            {}};
    }
    return path;
}

} // namespace printdialog
