// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TiffDamage.h"

#include "JpegDamage.h"
#include "TiffNumbers.h"

#include <zlib.h>

#include <algorithm>
#include <map>
#include <vector>

namespace printdialog {
namespace {

enum TiffTag : quint32 {
    Compression = 259,
    StripOffsets = 273,
    StripByteCounts = 279,
    TileOffsets = 324,
    TileByteCounts = 325,
    JpegTables = 347,
};
enum Method : quint32 { Jpeg = 7, AdobeDeflate = 8, Deflate = 32946 };

constexpr QByteArrayView startOfImage("\xff\xd8", 2);
constexpr QByteArrayView endOfImage("\xff\xd9", 2);

/// The directory of the first picture.
class Directory
{
public:
    explicit Directory(QByteArrayView tiff)
        : tiff_(tiff)
        , numbers_(tiff)
    {
        constexpr qsizetype entrySize = 12;
        const qsizetype begin = numbers_.at(4, 4);
        const auto count = static_cast<qsizetype>(numbers_.at(begin, 2));
        for (qsizetype i = 0; i < count && numbers_.isTiff(); ++i) {
            const qsizetype entry = begin + 2 + i * entrySize;
            entries_.emplace(numbers_.at(entry, 2), entry);
        }
    }

    quint32 number(TiffTag tag) const
    {
        const std::vector<quint32> all = numbers(tag);
        return all.size() == 1 ? all.front() : 0;
    }

    /// The integers of an entry; empty when they extend beyond the file.
    std::vector<quint32> numbers(TiffTag tag) const
    {
        constexpr quint32 typeShort = 3;
        constexpr quint32 typeLong = 4;
        const quint32 type = this->type(tag);
        if (type != typeShort && type != typeLong)
            return {};
        const int size = type == typeShort ? 2 : 4;
        const qsizetype count = this->count(tag);
        const qsizetype begin = placeOf(tag, count * size);
        if (begin + count * size > tiff_.size())
            return {};
        std::vector<quint32> numbers(static_cast<std::size_t>(count));
        for (qsizetype i = 0; i < count; ++i)
            numbers[static_cast<std::size_t>(i)] = numbers_.at(begin + i * size, size);
        return numbers;
    }

    QByteArray bytes(TiffTag tag) const
    {
        const qsizetype count = this->count(tag);
        return numbers_.bytes(placeOf(tag, count), count);
    }

    /// The compressed strips or tiles; empty when they extend beyond the file or overlap.
    std::vector<QByteArrayView> parts() const
    {
        const bool isTiled = entries_.contains(TileOffsets);
        const std::vector<quint32> offsets = numbers(isTiled ? TileOffsets : StripOffsets);
        const std::vector<quint32> sizes = numbers(isTiled ? TileByteCounts : StripByteCounts);
        if (offsets.size() != sizes.size())
            return {};
        std::vector<QByteArrayView> parts;
        qsizetype total = 0;
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            total += sizes[i];
            if (qsizetype(offsets[i]) + sizes[i] > tiff_.size() || total > tiff_.size())
                return {};
            parts.push_back(tiff_.sliced(offsets[i], sizes[i]));
        }
        return parts;
    }

private:
    quint32 type(TiffTag tag) const
    {
        const auto entry = entries_.find(tag);
        return entry == entries_.end() ? 0 : numbers_.at(entry->second + 2, 2);
    }
    qsizetype count(TiffTag tag) const
    {
        const auto entry = entries_.find(tag);
        return entry == entries_.end() ? 0 : numbers_.at(entry->second + 4, 4);
    }
    /// The offset of an entry's value, which is inside the entry if it fits.
    qsizetype placeOf(TiffTag tag, qsizetype size) const
    {
        const auto entry = entries_.find(tag);
        if (entry == entries_.end())
            return 0;
        return size <= 4 ? entry->second + 8 : numbers_.at(entry->second + 8, 4);
    }

    QByteArrayView tiff_;
    TiffNumbers numbers_;
    std::map<quint32, qsizetype> entries_; ///< The offset of each entry, by tag.
};

/// Lowers `limit` by the bytes that the part expands to; anything beyond the limit is not checked.
std::optional<QString> zlibDamage(QByteArrayView part, qint64 &limit)
{
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return std::nullopt;
    std::vector<Bytef> buffer(std::size_t(64) << 10);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(part.data()));
    stream.avail_in = static_cast<uInt>(part.size());
    int status = Z_OK;
    while (status == Z_OK && limit > 0) {
        stream.next_out = buffer.data();
        stream.avail_out = static_cast<uInt>(buffer.size());
        status = inflate(&stream, Z_NO_FLUSH);
        limit -= qint64(buffer.size()) - stream.avail_out;
    }
    inflateEnd(&stream);
    if (status != Z_DATA_ERROR)
        return std::nullopt; // a missing end is accepted, since decoders do not need it
    return QStringLiteral("zlib data of a TIFF file are damaged");
}

} // namespace

std::optional<QString> tiffDamage(QByteArrayView tiff)
{
    const Directory directory(tiff);
    const quint32 method = directory.number(Compression);
    if (method != Jpeg && method != AdobeDeflate && method != Deflate)
        return std::nullopt;
    QByteArray tables = directory.bytes(JpegTables);
    if (tables.startsWith(startOfImage) && tables.endsWith(endOfImage))
        tables.chop(endOfImage.size());
    else
        tables = startOfImage.toByteArray();
    constexpr qint64 mostExpanded = qint64(8) << 30;
    qint64 limit = mostExpanded;
    for (const QByteArrayView part : directory.parts()) {
        if (method == Jpeg && !part.startsWith(startOfImage))
            continue;
        const auto damage = method == Jpeg
                                ? jpegDamage(tables + part.sliced(startOfImage.size()).toByteArray())
                                : zlibDamage(part, limit);
        if (damage)
            return damage;
    }
    return std::nullopt;
}

} // namespace printdialog
