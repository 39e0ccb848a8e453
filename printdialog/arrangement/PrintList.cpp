// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintList.h"

#include "PlainText.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>

#include <cmath>

namespace printdialog {

namespace {

const QString formatName = QStringLiteral("corvel-print-list");
constexpr int version = 1;
constexpr double perCent = 100;

const QString photosKey = QStringLiteral("photos");
const QString pagesKey = QStringLiteral("pages");
const QString setKey = QStringLiteral("pageSet");
const QString reverseKey = QStringLiteral("reverse");
const QStringList listKeys = {QStringLiteral("format"),
                              QStringLiteral("version"),
                              QStringLiteral("layout"),
                              photosKey,
                              pagesKey,
                              setKey,
                              reverseKey};

using Fault = PrintListFault;

Failure<Fault> notAList(const QString &path, const QString &detail)
{
    return {
        Fault::NotAList,
        PrintList::tr("\"%1\" is not a print list. Save it again in the print window.").arg(plainText(path)),
        detail};
}

Failure<Fault> badValue(const QString &path, const QString &key, const QJsonValue &value)
{
    const QString written =
        QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    return {
        Fault::BadValue,
        PrintList::tr("The print list \"%1\" cannot be used: \"%2\" cannot be %3. Correct it, or save the "
                      "list again in the print window.")
            .arg(plainText(path), plainText(key, shownTextLimit),
                 plainText(written.mid(1, written.size() - 2), shownTextLimit)),
        {}};
}

std::optional<int> wholeNumber(const QJsonValue &value, int least, int most)
{
    const double number = value.toDouble(least - 1.0);
    return number >= least && number <= most && number == std::floor(number)
               ? std::optional(static_cast<int>(number))
               : std::nullopt;
}

std::optional<QPointF> cropFrom(const QJsonArray &numbers)
{
    const auto isShare = [](double number) {
        return number >= 0 && number <= perCent;
    };
    const double left = numbers.at(0).toDouble(-1);
    const double top = numbers.at(1).toDouble(-1);
    if (numbers.size() != 2 || !isShare(left) || !isShare(top))
        return std::nullopt;
    return QPointF(left, top) / perCent;
}

/// Takes a value over. False: it cannot have that value.
template <class Value>
bool take(const std::optional<Value> &from, Value &to)
{
    if (from)
        to = *from;
    return from.has_value();
}

/// Reads one value of a photo. False: the key is unknown, or cannot have this value.
bool readValue(const QString &key, const QJsonValue &value, PrintList::Entry &entry)
{
    PlacementChoice &choice = entry.placement;
    if (key == QLatin1String("file")) {
        entry.path = value.toString();
        return !entry.path.isEmpty() && !entry.path.contains(QChar::Null);
    }
    if (key == QLatin1String("page")) {
        entry.page = wholeNumber(value, 1, Document::mostPages);
        if (entry.page)
            --*entry.page;
        return entry.page.has_value();
    }
    if (key == QLatin1String("copies"))
        return take(wholeNumber(value, 1, mostPhotoCopies), entry.copies);
    if (key == QLatin1String("scaling"))
        return take(scalingFromWord(value.toString()), choice.scaling);
    if (key == QLatin1String("turns"))
        return take(wholeNumber(value, 0, 3), choice.turns);
    if (key == QLatin1String("crop"))
        return take(cropFrom(value.toArray()), choice.crop);
    if (key == QLatin1String("scale"))
        return take(
            PlacementChoice::scaleFromText(value.isDouble() ? QString::number(value.toDouble()) : QString()),
            choice.scale);
    if (key == QLatin1String("border"))
        return take(PhotoBorder::fromText(value.toString()), choice.border);
    if (key == QLatin1String("size")) {
        choice.size = PrintSize::fromText(value.toString());
        return choice.size.has_value();
    }
    return false;
}

QJsonObject jsonOf(const PrintList::Entry &entry, const QDir &folder)
{
    const PlacementChoice &choice = entry.placement;
    const PlacementChoice usual;
    const QString relative = folder.relativeFilePath(entry.path);
    QJsonObject object{
        {QStringLiteral("file"), relative.startsWith(QLatin1String("../")) ? entry.path : relative},
        {QStringLiteral("scaling"), scalingWord(choice.scaling)}};
    if (entry.page)
        object.insert(QStringLiteral("page"), *entry.page + 1);
    if (entry.copies != 1)
        object.insert(QStringLiteral("copies"), entry.copies);
    if (choice.turns != usual.turns)
        object.insert(QStringLiteral("turns"), choice.turns);
    if (choice.crop != usual.crop)
        object.insert(QStringLiteral("crop"),
                      QJsonArray{choice.crop.x() * perCent, choice.crop.y() * perCent});
    if (choice.size)
        object.insert(QStringLiteral("size"), choice.size->toText());
    if (choice.scale != usual.scale)
        object.insert(QStringLiteral("scale"), choice.scale * perCent);
    if (choice.border.isThere())
        object.insert(QStringLiteral("border"), choice.border.toText());
    return object;
}

/// Reads the choice of pages. The key of a value that is not possible; empty: it is read.
QString readPages(const QJsonObject &object, PageChoice &pages)
{
    const auto isThere = [&object](const QString &key) {
        return object.contains(key);
    };
    if (isThere(pagesKey)) {
        pages.which = PageChoice::Which::Ranges;
        if (!take(PageRanges::fromText(object.value(pagesKey).toString()), pages.ranges))
            return pagesKey;
    }
    if (isThere(setKey) && !take(pageSetFromWord(object.value(setKey).toString()), pages.set))
        return setKey;
    if (isThere(reverseKey) && !object.value(reverseKey).isBool())
        return reverseKey;
    pages.isReversed = object.value(reverseKey).toBool();
    return {};
}

void insertPages(const PageChoice &pages, QJsonObject &object)
{
    if (!pages.ranges.isEmpty() && pages.which != PageChoice::Which::All)
        object.insert(pagesKey, pages.ranges.toText());
    if (pages.set != PageChoice::Set::All)
        object.insert(setKey, pageSetWord(pages.set));
    if (pages.isReversed)
        object.insert(reverseKey, true);
}

/// The list's own folder, which relative paths count from: a link to the list may be anywhere.
QDir folderOf(const QString &path)
{
    const QFileInfo info(path);
    const QString linked = info.isSymLink() ? info.canonicalFilePath() : QString();
    return linked.isEmpty() ? info.absoluteDir() : QFileInfo(linked).absoluteDir();
}

Failure<Fault> notReadable(const QString &path, const QString &reason)
{
    return {Fault::NotReadable,
            PrintList::tr("The print list \"%1\" could not be read: %2.").arg(plainText(path), reason),
            {}};
}

} // namespace

PrintList PrintList::of(const Arrangement &arrangement)
{
    PrintList list{arrangement.layout, {}, arrangement.pages};
    for (const PlacedPhoto &placed : arrangement.photos) {
        list.photos +=
            Entry{QFileInfo(placed.photo.path()).absoluteFilePath(), placed.placement, placed.copies};
        if (placed.photo.document())
            list.photos.last().page = placed.photo.page();
    }
    return list;
}

bool PrintList::isListName(const QString &path)
{
    return path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

Result<PrintList, PrintListFault> PrintList::load(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return notReadable(path, tr("it is not a file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return notReadable(path, file.errorString());
    const QByteArray content = file.read(largestFile + 1);
    if (content.size() > largestFile)
        return notReadable(path, tr("it is too large"));
    QJsonParseError error = {};
    const QJsonObject object = QJsonDocument::fromJson(content, &error).object();
    if (error.error != QJsonParseError::NoError)
        return notAList(path, error.errorString());
    if (object.value(QLatin1String("format")).toString() != formatName)
        return notAList(path, QStringLiteral("another format"));
    const QJsonValue written = object.value(QLatin1String("version"));
    const auto number = wholeNumber(written, 1, INT_MAX);
    if (!number)
        return badValue(path, QStringLiteral("version"), written);
    if (*number > version)
        return Failure<Fault>{
            Fault::NotAList,
            tr("The print list \"%1\" is from a later version of this program. Update the program, or save "
               "the list again with this one.")
                .arg(plainText(path)),
            {}};
    for (auto value = object.begin(); value != object.end(); ++value) {
        if (!listKeys.contains(value.key()))
            return badValue(path, value.key(), value.value());
    }

    PrintList list;
    const QJsonValue layout = object.value(QLatin1String("layout"));
    if (!layout.isUndefined() && !take(SheetLayout::fromText(layout.toString()), list.layout))
        return badValue(path, QStringLiteral("layout"), layout);
    if (const QString key = readPages(object, list.pages); !key.isEmpty())
        return badValue(path, key, object.value(key));
    const QJsonArray photos = object.value(photosKey).toArray();
    if (photos.isEmpty() || photos.size() > mostEntries)
        return badValue(path, photosKey, object.value(photosKey));
    const QDir folder = folderOf(path);
    for (const QJsonValue &photo : photos) {
        if (!photo.isObject())
            return badValue(path, photosKey, photo);
        const QJsonObject values = photo.toObject();
        Entry entry;
        for (auto value = values.begin(); value != values.end(); ++value) {
            if (!readValue(value.key(), value.value(), entry))
                return badValue(path, value.key(), value.value());
        }
        if (entry.path.isEmpty())
            return badValue(path, QStringLiteral("file"), values.value(QLatin1String("file")));
        entry.path = QDir::cleanPath(folder.absoluteFilePath(entry.path));
        list.photos += entry;
    }
    return list;
}

std::optional<Failure<PrintListFault>> PrintList::save(const QString &path) const
{
    const QDir folder = folderOf(path);
    QJsonArray entries;
    for (const Entry &entry : photos)
        entries += jsonOf(entry, folder);
    QJsonObject object{{QStringLiteral("format"), formatName},
                       {QStringLiteral("version"), version},
                       {QStringLiteral("layout"), layout.toText()},
                       {photosKey, entries}};
    insertPages(pages, object);
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) >= 0;
    if (isWritten && file.commit())
        return std::nullopt;
    return Failure<Fault>{Fault::NotWritable,
                          tr("The print list \"%1\" could not be saved: %2. Choose another folder.")
                              .arg(plainText(path), file.errorString()),
                          {}};
}

} // namespace printdialog
