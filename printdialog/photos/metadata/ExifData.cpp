// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ExifData.h"

#include "TiffNumbers.h"

#include <cmath>

namespace printdialog {
namespace {

enum Tag : quint32 {
    NewSubfileType = 0x00fe,
    Orientation = 0x0112,
    XResolution = 0x011a,
    YResolution = 0x011b,
    ResolutionUnit = 0x0128,
    InterColorProfile = 0x8773,
};

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
};

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
    const qsizetype directory = numbers.at(4, 4);
    const auto count = static_cast<qsizetype>(numbers.at(directory, 2));
    for (qsizetype i = 0; i < count; ++i) {
        const Entry entry{numbers, directory + 2 + i * entrySize};
        switch (numbers.at(entry.offset, 2)) {
        case NewSubfileType:
            data.isReduced = (entry.longNumber() & 1) != 0;
            break;
        case Orientation:
            data.orientation = ExifOrientation::fromValue(entry.shortNumber());
            break;
        case XResolution:
            horizontal = entry.rational();
            break;
        case YResolution:
            vertical = entry.rational();
            break;
        case ResolutionUnit:
            unit = entry.shortNumber();
            break;
        case InterColorProfile:
            data.iccProfile = entry.bytes();
            break;
        default:
            break;
        }
    }
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
