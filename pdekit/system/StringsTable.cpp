// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StringsTable.h"

#include "SystemLog.h"

#include <QtCore/QBitArray>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QtEndian>

#include <algorithm>
#include <optional>
#include <tuple>

namespace pdekit {

namespace {

constexpr qint64 largestTable = qint64(16) * 1024 * 1024;

// The layout is that of Qt Linguist's release tool; numbers are big-endian.
constexpr QByteArrayView magic("\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd", 16);

enum Block : quint8 {
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
    Dependencies = 0x96,
};

enum MessagePart : quint8 { Translation = 3, Obsolete = 5, SourceText = 6, Context = 7, Comment = 8 };

/// Takes numbers and bytes one after the other; nothing once they would reach beyond the end.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes, qsizetype place = 0)
        : bytes_(bytes)
        , place_(place)
    {
    }

    qsizetype place() const { return place_; }
    bool atEnd() const { return place_ == bytes_.size(); }

    template <typename Number>
    std::optional<Number> number()
    {
        const auto bytes = take(sizeof(Number));
        if (!bytes)
            return std::nullopt;
        return qFromBigEndian<Number>(bytes->data());
    }

    std::optional<QByteArrayView> take(quint32 length)
    {
        if (bytes_.size() - place_ < qsizetype(length))
            return std::nullopt;
        const QByteArrayView taken = bytes_.sliced(place_, length);
        place_ += length;
        return taken;
    }

private:
    QByteArrayView bytes_;
    qsizetype place_;
};

/// Lists of parts in one block, which may share their ends. A place that was passed once is not gone through
/// again, however many lists lead to it.
class PartLists
{
public:
    explicit PartLists(QByteArrayView block)
        : block_(block)
        , passed_(block.size() + 1)
    {
    }

    /// Whether the list that begins at `place` ends within the block. `skip` takes one part and tells whether
    /// it is whole, and nothing behind the last one.
    template <typename Skip>
    bool endsWithin(qsizetype place, Skip &&skip)
    {
        if (place > block_.size())
            return false;
        for (Reader reader(block_, place); !passed_.testBit(reader.place());) {
            passed_.setBit(reader.place());
            const std::optional<bool> isWhole = skip(reader);
            if (!isWhole)
                return true;
            if (!*isWhole)
                return false;
        }
        return true;
    }

private:
    QByteArrayView block_;
    QBitArray passed_;
};

std::optional<bool> skipMessagePart(Reader &reader)
{
    switch (reader.number<quint8>().value_or(0)) {
    case Translation: {
        const auto length = reader.number<quint32>();
        if (length && *length % 2 != 0)
            return std::nullopt; // no text (its length is then ~0): QTranslator stops here as well
        return length && reader.take(*length);
    }
    case SourceText:
    case Context:
    case Comment: {
        const auto length = reader.number<quint32>();
        return length && reader.take(*length);
    }
    case Obsolete:
        return reader.number<quint32>().has_value();
    default:
        return std::nullopt;
    }
}

std::optional<bool> skipContextName(Reader &reader)
{
    const auto length = reader.number<quint8>();
    if (length == 0)
        return std::nullopt;
    return length && reader.take(*length);
}

/// Pairs of a hash and the place of its message.
bool areSoundHashes(QByteArrayView hashes, QByteArrayView messages)
{
    PartLists lists(messages);
    Reader reader(hashes);
    while (!reader.atEnd()) {
        const auto hash = reader.number<quint32>();
        const auto place = reader.number<quint32>();
        if (!hash || !place || *place >= messages.size() || !lists.endsWithin(*place, skipMessagePart))
            return false;
    }
    return true;
}

/// A hash table of the places, in steps of two bytes, of lists of names, each with its length before it.
bool areSoundContexts(QByteArrayView contexts)
{
    if (contexts.isEmpty())
        return true;
    PartLists lists(contexts);
    Reader slots_(contexts);
    const auto size = slots_.number<quint16>();
    if (!size || *size == 0)
        return false;
    const qsizetype pool = 2 + qsizetype(*size) * 2;
    for (int slot = 0; slot < *size; ++slot) {
        const auto place = slots_.number<quint16>();
        if (!place || (*place != 0 && !lists.endsWithin(pool + qsizetype(*place) * 2, skipContextName)))
            return false;
    }
    return true;
}

QString pathOf(const QString &folder, const QString &language)
{
    return QStringLiteral("%1/Localizable_%2.qm").arg(folder, language);
}

/// The path of the table of the first of the languages that the folder has, each with its territory before
/// it is without; empty where there is none.
QString tableIn(const QString &folder, const QStringList &languages)
{
    for (QString language : languages) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        while (!language.isEmpty()) {
            const QString path = pathOf(folder, language);
            if (QFileInfo(path).isFile())
                return path;
            language.truncate(std::max<qsizetype>(language.lastIndexOf(QLatin1Char('_')), 0));
        }
    }
    return {};
}

} // namespace

bool StringsTable::isSound(QByteArrayView qm)
{
    Reader reader(qm);
    if (reader.take(magic.size()) != magic)
        return false;
    QByteArrayView contexts;
    QByteArrayView hashes;
    QByteArrayView messages;
    while (!reader.atEnd()) {
        const auto block = reader.number<quint8>();
        const auto length = reader.number<quint32>();
        if (block == 0 || length == 0U)
            break; // so does QTranslator
        const auto content = reader.take(length.value_or(0));
        if (!length || !content)
            return false;
        switch (*block) {
        case Contexts:
            contexts = *content;
            break;
        case Hashes:
            hashes = *content;
            break;
        case Messages:
            messages = *content;
            break;
        case Dependencies:
            return false;
        default: // looked over by QTranslator
            break;
        }
    }
    return areSoundContexts(contexts) && areSoundHashes(hashes, messages);
}

void StringsTable::load(const QLocale &locale, const QString &folder)
{
    const QString path = tableIn(folder, locale.uiLanguages());
    if (path.isEmpty() || !take(path))
        take(pathOf(folder, QStringLiteral("en")));
}

bool StringsTable::take(const QString &path)
{
    std::ignore = translator_.load(nullptr, 0); // lets go of the content
    content_.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QByteArray content = file.read(largestTable + 1);
    if (content.size() > largestTable || !isSound(content)) {
        systemLog(QStringLiteral("%1 is damaged and not used; install the bundle anew").arg(path));
        return false;
    }
    content_ = std::move(content);
    return translator_.load(reinterpret_cast<const uchar *>(content_.constData()), int(content_.size()));
}

QString StringsTable::text(const QString &key) const
{
    return translator_.translate("Localizable", key.toUtf8().constData());
}

} // namespace pdekit
