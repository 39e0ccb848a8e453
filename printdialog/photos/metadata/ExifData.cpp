// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ExifData.h"

#include "TiffNumbers.h"

#include <cmath>

namespace printdialog {
namespace {

enum class ExifTag : quint32 {
    NewSubfileType = 0x00fe,
    Compression = 0x0103,
    Orientation = 0x0112,
    XResolution = 0x011a,
    YResolution = 0x011b,
    ResolutionUnit = 0x0128,
    DateTime = 0x0132,
    JpegInterchangeFormat = 0x0201,
    JpegInterchangeFormatLength = 0x0202,
    ExifDirectory = 0x8769,
    InterColorProfile = 0x8773,
    DateTimeOriginal = 0x9003,
};

constexpr quint32 typeAscii = 2;
constexpr quint32 typeShort = 3;
constexpr quint32 typeLong = 4;
constexpr quint32 typeRational = 5;
constexpr quint32 typeUndefined = 7;
constexpr qsizetype entrySize = 12;

/// One entry of a directory.
struct Entry
{
    const TiffNumbers &numbers;
    qsizetype offset;

    ExifTag tag() const { return ExifTag(numbers.at(offset, 2)); }
    quint32 type() const { return numbers.at(offset + 2, 2); }
    quint32 count() const { return numbers.at(offset + 4, 4); }
    qsizetype valueOffset() const { return numbers.at(offset + 8, 4); }

    int shortNumber() const
    {
        return type() == typeShort && count() == 1 ? static_cast<int>(numbers.at(offset + 8, 2)) : 0;
    }
    quint32 longNumber() const { return type() == typeLong && count() == 1 ? numbers.at(offset + 8, 4) : 0; }
    double rational() const
    {
        if (type() != typeRational || count() != 1)
            return 0;
        const double denominator = numbers.at(valueOffset() + 4, 4);
        return denominator > 0 ? numbers.at(valueOffset(), 4) / denominator : 0;
    }
    QByteArray bytes() const
    {
        return type() == typeUndefined ? numbers.bytes(valueOffset(), count()) : QByteArray();
    }
    /// "2026:11:26 12:45:00" and a null byte. Cameras whose clock is not set write zeros or spaces.
    std::optional<QDateTime> time() const
    {
        constexpr quint32 length = 20;
        if (type() != typeAscii || count() != length)
            return std::nullopt;
        const QByteArray text = numbers.bytes(valueOffset(), length - 1);
        const QDateTime time =
            QDateTime::fromString(QString::fromLatin1(text), QStringLiteral("yyyy:MM:dd HH:mm:ss"));
        return time.isValid() ? std::optional(time) : std::nullopt;
    }
};

/// The entries of one directory.
class EntryList
{
public:
    EntryList(const TiffNumbers &numbers, qsizetype offset)
        : numbers_(numbers)
        , offset_(offset)
        , count_(offset == 0 ? 0 : static_cast<qsizetype>(numbers.at(offset, 2)))
    {
    }

    qsizetype count() const { return count_; }
    Entry at(qsizetype index) const { return {numbers_, offset_ + 2 + index * entrySize}; }
    qsizetype next() const { return numbers_.at(offset_ + 2 + count_ * entrySize, 4); }

private:
    const TiffNumbers &numbers_;
    qsizetype offset_;
    qsizetype count_;
};

std::optional<QDateTime> originalTime(const EntryList &exif)
{
    for (qsizetype i = 0; i < exif.count(); ++i) {
        if (exif.at(i).tag() == ExifTag::DateTimeOriginal)
            return exif.at(i).time();
    }
    return std::nullopt;
}

std::optional<ExifData::Range> thumbnailOf(const EntryList &directory, qsizetype size)
{
    constexpr int jpeg = 6;
    ExifData::Range range;
    bool isJpeg = false;
    for (qsizetype i = 0; i < directory.count(); ++i) {
        const Entry entry = directory.at(i);
        if (entry.tag() == ExifTag::Compression)
            isJpeg = entry.shortNumber() == jpeg;
        else if (entry.tag() == ExifTag::JpegInterchangeFormat)
            range.offset = entry.longNumber();
        else if (entry.tag() == ExifTag::JpegInterchangeFormatLength)
            range.size = entry.longNumber();
    }
    if (!isJpeg || range.offset == 0 || range.size == 0 || range.size > size - range.offset)
        return std::nullopt;
    return range;
}

} // namespace

ExifData ExifData::fromTiff(QByteArrayView tiff)
{
    constexpr int inch = 2;
    constexpr int centimetre = 3;
    constexpr double centimetresPerInch = 2.54;
    const TiffNumbers numbers(tiff);
    ExifData data;
    if (!numbers.isTiff())
        return data;
    double horizontal = 0;
    double vertical = 0;
    int unit = inch;
    std::optional<QDateTime> original;
    const EntryList first(numbers, numbers.at(4, 4));
    for (qsizetype i = 0; i < first.count(); ++i) {
        const Entry entry = first.at(i);
        switch (entry.tag()) {
        case ExifTag::NewSubfileType:
            data.isReduced = (entry.longNumber() & 1) != 0;
            break;
        case ExifTag::Orientation:
            data.orientation = ExifOrientation::fromValue(entry.shortNumber());
            break;
        case ExifTag::XResolution:
            horizontal = entry.rational();
            break;
        case ExifTag::YResolution:
            vertical = entry.rational();
            break;
        case ExifTag::ResolutionUnit:
            unit = entry.shortNumber();
            break;
        case ExifTag::DateTime:
            data.taken = entry.time();
            break;
        case ExifTag::ExifDirectory:
            original = originalTime({numbers, entry.longNumber()});
            break;
        case ExifTag::InterColorProfile:
            data.iccProfile = entry.bytes();
            break;
        default:
            break;
        }
    }
    if (original)
        data.taken = original;
    data.thumbnail = thumbnailOf({numbers, first.next()}, tiff.size());
    const double perInch = unit == centimetre ? centimetresPerInch : 1;
    if (unit == inch || unit == centimetre)
        data.resolution = plausibleResolution(horizontal * perInch, vertical * perInch);
    if (data.resolution == unknownResolution)
        data.resolution.reset();
    return data;
}

std::optional<double> plausibleResolution(double horizontal, double vertical)
{
    constexpr double least = 10;
    constexpr double most = 10000;
    constexpr double largestDifference = 0.01; // from rounding to whole pixels per metre
    if (!(horizontal >= least) || horizontal > most ||
        !(std::abs(vertical - horizontal) <= horizontal * largestDifference))
        return std::nullopt;
    return horizontal;
}

} // namespace printdialog
