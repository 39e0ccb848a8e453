// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueSettings.h"

#include "SettingsFile.h"
#include "StoredChoices.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

namespace printdialog {

namespace {

constexpr int settingsVersion = 1;

} // namespace

QString QueueSettings::fileFor(const QString &printer)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QByteArray name = QUrl::toPercentEncoding(printer, {}, ".");
    return QStringLiteral("%1/corvel-print/queues/%2.json").arg(folder, QString::fromLatin1(name));
}

QMap<QString, QString> QueueSettings::load(const QString &printer)
{
    const auto text = SettingsFile::read(fileFor(printer));
    const QJsonObject content = QJsonDocument::fromJson(text ? *text : QByteArray()).object();
    if (content[QLatin1String("version")].toInt() != settingsVersion)
        return {};
    return choicesFromJson(content[QLatin1String("options")].toObject());
}

SettingsFailure QueueSettings::save(const QString &printer, const QMap<QString, QString> &options)
{
    const QJsonObject content = {{QStringLiteral("version"), settingsVersion},
                                 {QStringLiteral("options"), jsonOfChoices(options)}};
    return SettingsFile::change(
        fileFor(printer), [&content](const QByteArray & /*before*/) -> Result<QByteArray, SettingsFault> {
            return QJsonDocument(content).toJson();
        });
}

} // namespace printdialog
