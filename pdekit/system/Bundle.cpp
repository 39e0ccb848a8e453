// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Bundle.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLocale>
#include <QtCore/QMetaObject>
#include <QtCore/QTranslator>

#include <dlfcn.h>

namespace pdekit {

struct Bundle::Content
{
    QString path;
    QJsonObject info;
    QTranslator table;
    QString tableLocale; ///< the languages that the table was chosen for
};

namespace {

constexpr qint64 largestInfo = qint64(64) * 1024;

bool isPlainFileName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/')) &&
           !name.contains(QChar::Null);
}

/// The file of the module or program that contains `address`.
QString moduleOf(const void *address)
{
    Dl_info module = {};
    if (dladdr(address, &module) == 0 || !module.dli_fname)
        return {};
    const QString file = QFile::decodeName(module.dli_fname);
    // For the program itself, the dynamic linker only has the name that it was started with.
    return QDir::isAbsolutePath(file) ? file : QCoreApplication::applicationFilePath();
}

std::optional<QJsonObject> readInfo(const QString &bundlePath, BundleFault &fault)
{
    QFile file(bundlePath + QLatin1String("/Contents/Info.json"));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        fault = BundleFault::NoInfo;
        return std::nullopt;
    }
    const QByteArray text = file.read(largestInfo + 1);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (text.size() > largestInfo)
        fault = BundleFault::InfoTooLarge;
    else if (!document.isObject())
        fault = BundleFault::BrokenInfo;
    else if (document[QLatin1String("CFBundleIdentifier")].toString().isEmpty())
        fault = BundleFault::NoIdentifier;
    else if (!isPlainFileName(document[QLatin1String("CFBundleExecutable")].toString()))
        fault = BundleFault::BadExecutable;
    else
        return document.object();
    return std::nullopt;
}

/// Loads the first table that exists; each language is tried with its territory first.
void loadTable(QTranslator &table, const QString &folder)
{
    const QStringList languages = QLocale().uiLanguages() << QStringLiteral("en");
    for (QString language : languages) {
        const QString name =
            QLatin1String("Localizable_") + language.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (table.load(name, folder, QStringLiteral("_"), QStringLiteral(".qm")))
            return;
    }
}

} // namespace

Bundle::Bundle(std::shared_ptr<Content> content)
    : content_(std::move(content))
{
}

std::optional<Bundle> Bundle::open(const QString &path, BundleFault *fault)
{
    BundleFault reason = BundleFault::NotFound;
    const QFileInfo folder(path);
    std::optional<QJsonObject> info;
    if (folder.isDir())
        info = readInfo(path, reason);
    if (!info) {
        if (fault)
            *fault = reason;
        return std::nullopt;
    }
    auto content = std::make_shared<Content>();
    content->path = QDir::cleanPath(folder.absoluteFilePath());
    content->info = *info;
    return Bundle(std::move(content));
}

Bundle Bundle::bundleForClass(const QMetaObject &metaObject)
{
    // NAME.bundle/Contents/Linux/module
    const QDir folder = QFileInfo(moduleOf(&metaObject)).absoluteDir();
    if (auto bundle = open(QDir::cleanPath(folder.absoluteFilePath(QStringLiteral("../..")))))
        return *std::move(bundle);
    auto content = std::make_shared<Content>();
    content->path = folder.absolutePath();
    return Bundle(std::move(content));
}

QString Bundle::path() const
{
    return content_->path;
}

QString Bundle::identifier() const
{
    return infoValue(QStringLiteral("CFBundleIdentifier")).toString();
}

QJsonValue Bundle::infoValue(const QString &key) const
{
    return content_->info.value(key);
}

QString Bundle::executablePath() const
{
    return content_->path + QLatin1String("/Contents/Linux/") +
           infoValue(QStringLiteral("CFBundleExecutable")).toString();
}

std::optional<QString> Bundle::pathForAuxiliaryExecutable(const QString &name) const
{
    const QFileInfo file(content_->path + QLatin1String("/Contents/Linux/") + name);
    if (!isPlainFileName(name) || !file.isFile())
        return std::nullopt;
    return file.absoluteFilePath();
}

std::optional<QString> Bundle::pathForResource(const QString &name, const QString &type) const
{
    const QString file =
        content_->path + QLatin1String("/Contents/Resources/") + name + QLatin1Char('.') + type;
    if (!QFileInfo(file).isFile())
        return std::nullopt;
    return file;
}

QString Bundle::localizedString(const QString &key, const QString &value) const
{
    const QString locale = QLocale().uiLanguages().join(QLatin1Char(' '));
    if (content_->tableLocale != locale) {
        content_->tableLocale = locale;
        loadTable(content_->table, content_->path + QLatin1String("/Contents/Resources"));
    }
    if (const QString text = content_->table.translate("Localizable", key.toUtf8().constData());
        !text.isNull())
        return text;
    return value.isEmpty() ? key : value;
}

} // namespace pdekit
