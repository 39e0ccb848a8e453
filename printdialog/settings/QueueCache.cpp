// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueCache.h"

#include "PlainText.h"
#include "QueueRecord.h"
#include "SettingsFile.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

#include <array>
#include <sys/stat.h>
#include <unistd.h>

namespace printdialog {

namespace {

constexpr int cacheVersion = 1;
/// The largest PPD that is stored, in bytes: as JSON it briefly needs ten times the memory.
constexpr qsizetype ppdLimit = qsizetype(3) * 1024 * 1024;

struct TextField
{
    const char *name;
    QString Queue::*member;
};

constexpr std::array textFields = {
    TextField{"name", &Queue::name},
    TextField{"instance", &Queue::instance},
    TextField{"info", &Queue::info},
    TextField{"location", &Queue::location},
    TextField{"model", &Queue::makeAndModel},
    TextField{"device", &Queue::deviceUri},
    TextField{"uri", &Queue::uri},
};

/// Whether the file belongs to the user and nobody else can write to it.
bool isPrivate(const QString &path)
{
    struct stat found = {};
    return stat(QFile::encodeName(path).constData(), &found) == 0 && S_ISREG(found.st_mode) &&
           found.st_uid == geteuid() && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

QString QueueCache::file()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    const QByteArray server = QUrl::toPercentEncoding(qEnvironmentVariable("CUPS_SERVER", {}), {}, ".");
    return QStringLiteral("%1/corvel-print/last-queue%2%3.json")
        .arg(folder, QLatin1String(server.isEmpty() ? "" : "-"), QString::fromLatin1(server));
}

std::optional<RememberedQueue> QueueCache::load()
{
    const QString path = file();
    QFile file(path);
    // In base64, the PPD is a third larger.
    if (!isPrivate(path) || file.size() > ppdLimit * 3 / 2 || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject content = QJsonDocument::fromJson(file.readAll()).object();
    if (content[QLatin1String("version")].toInt() != cacheVersion)
        return std::nullopt;
    RememberedQueue remembered;
    const auto text = [&content](const char *name) {
        return content[QLatin1String(name)].toString();
    };
    for (const TextField &field : textFields)
        remembered.queue.*field.member = plainText(text(field.name), shownTextLimit);
    // A name that needs cleaning would afterwards be another queue's.
    if (!isQueueName(text("name")) || remembered.queue.instance != text("instance"))
        return std::nullopt;
    remembered.queue.isClass = content[QLatin1String("isClass")].toBool();
    remembered.queue.isAnnounced = content[QLatin1String("isAnnounced")].toBool();
    if (content[QLatin1String("isBuiltIn")].toBool())
        remembered.queue = Queue::builtIn();
    remembered.ppd = QByteArray::fromBase64(content[QLatin1String("ppd")].toString().toLatin1());
    remembered.wasChosen = content[QLatin1String("wasChosen")].toBool();
    return remembered;
}

void QueueCache::save(const RememberedQueue &remembered)
{
    if (remembered.ppd.size() > ppdLimit) {
        QFile::remove(file()); // it may be of another printer
        return;
    }
    QJsonObject content = {{QStringLiteral("version"), cacheVersion},
                           {QStringLiteral("isClass"), remembered.queue.isClass},
                           {QStringLiteral("isAnnounced"), remembered.queue.isAnnounced},
                           {QStringLiteral("isBuiltIn"), remembered.queue.isBuiltIn},
                           {QStringLiteral("wasChosen"), remembered.wasChosen},
                           {QStringLiteral("ppd"), QString::fromLatin1(remembered.ppd.toBase64())}};
    for (const TextField &field : textFields)
        content.insert(QLatin1String(field.name), remembered.queue.*field.member);

    const QString path = file();
    const QByteArray bytes = QJsonDocument(content).toJson(QJsonDocument::Compact);
    QFile before(path);
    if (isPrivate(path) && before.open(QIODevice::ReadOnly) && before.readAll() == bytes)
        return;
    if (!isPrivate(path))
        QFile::remove(path);            // since replacing keeps the old permissions
    SettingsFile::replace(path, bytes); // on failure, the next window waits for the server
}

} // namespace printdialog
