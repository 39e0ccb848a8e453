// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StringsTable.h"

#include "SystemLog.h"

#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QtEndian>

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

/// Takes numbers and bytes from the front of what is left; nothing once they would reach beyond its end.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes)
        : left_(bytes)
    {
    }

    bool atEnd() const { return left_.isEmpty(); }

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
        if (left_.size() < qsizetype(length))
            return std::nullopt;
        const QByteArrayView taken = left_.first(length);
        left_ = left_.sliced(length);
        return taken;
    }

private:
    QByteArrayView left_;
};

bool isSoundMessage(QByteArrayView message)
{
    Reader reader(message);
    while (const auto part = reader.number<quint8>()) {
        switch (*part) {
        case Translation: {
            const auto length = reader.number<quint32>();
            if (length && *length % 2 != 0)
                return true; // no text (its length is then ~0): QTranslator stops here as well
            if (!length || !reader.take(*length))
                return false;
            break;
        }
        case SourceText:
        case Context:
        case Comment: {
            const auto length = reader.number<quint32>();
            if (!length || !reader.take(*length))
                return false;
            break;
        }
        case Obsolete:
            if (!reader.number<quint32>())
                return false;
            break;
        default:
            return true; // its end
        }
    }
    return true;
}

/// Pairs of a hash and the place of its message.
bool areSoundHashes(QByteArrayView hashes, QByteArrayView messages)
{
    Reader reader(hashes);
    while (!reader.atEnd()) {
        const auto hash = reader.number<quint32>();
        const auto place = reader.number<quint32>();
        if (!hash || !place || *place >= messages.size() || !isSoundMessage(messages.sliced(*place)))
            return false;
    }
    return true;
}

/// A hash table of the places, in steps of two bytes, of lists of names, each with its length before it.
bool areSoundContexts(QByteArrayView contexts)
{
    if (contexts.isEmpty())
        return true;
    Reader slots_(contexts);
    const auto size = slots_.number<quint16>();
    if (!size || *size == 0)
        return false;
    const qsizetype pool = 2 + qsizetype(*size) * 2;
    for (int slot = 0; slot < *size; ++slot) {
        const auto place = slots_.number<quint16>();
        if (!place || pool + qsizetype(*place) * 2 > contexts.size())
            return false;
        Reader names(contexts.sliced(pool + qsizetype(*place) * 2));
        std::optional<quint8> length;
        while (*place != 0 && (length = names.number<quint8>()) != 0) {
            if (!length || !names.take(*length))
                return false;
        }
    }
    return true;
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
    const QString name = QStringLiteral("Localizable");
    QTranslator search;
    if (search.load(locale, name, QStringLiteral("_"), folder) && take(search.filePath()))
        return;
    take(folder + QLatin1Char('/') + name + QLatin1String("_en.qm"));
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
