// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JpegHeader.h"
#include "Photo.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

/// What the Exif block of a test says. An empty text: no entry.
struct Exif
{
    QByteArray changed = {};
    QByteArray original = {};
    QByteArray thumbnail = {};
    int orientation = 1;
    quint32 compression = 6;
    quint32 offsetBy = 0; ///< the thumbnail's place is wrong by this, and so is its size
    quint32 sizeBy = 0;
};

QByteArray tiffOf(const Exif &exif, bool isBigEndian = false)
{
    const auto number = [isBigEndian](auto value) {
        QByteArray bytes(sizeof(value), '\0');
        isBigEndian ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
        return bytes;
    };
    const auto entry = [&](quint16 tag, quint16 type, quint32 count, const QByteArray &value) {
        return number(tag) + number(type) + number(count) + value.leftJustified(4, '\0');
    };
    constexpr quint32 firstSize = 2 + 3 * 12 + 4;
    constexpr quint32 originalSize = 2 + 12 + 4;
    constexpr quint32 first = 8;
    constexpr quint32 second = first + firstSize;
    constexpr quint32 third = second + originalSize;
    constexpr quint32 texts = third + firstSize;
    const auto changedEnd = texts + static_cast<quint32>(exif.changed.size());
    const auto originalEnd = changedEnd + static_cast<quint32>(exif.original.size());
    const auto text = [&](quint16 tag, const QByteArray &value, quint32 offset) {
        return entry(value.isEmpty() ? 0 : tag, 2, static_cast<quint32>(value.size()), number(offset));
    };
    return (isBigEndian ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4)) + number(first) +
           number(quint16(3)) + entry(0x112, 3, 1, number(static_cast<quint16>(exif.orientation))) +
           text(0x132, exif.changed, texts) + entry(0x8769, 4, 1, number(second)) +
           number(exif.thumbnail.isEmpty() ? 0U : third) + number(quint16(1)) +
           text(0x9003, exif.original, changedEnd) + number(0U) + number(quint16(3)) +
           entry(0x103, 3, 1, number(static_cast<quint16>(exif.compression))) +
           entry(0x201, 4, 1, number(originalEnd + exif.offsetBy)) +
           entry(0x202, 4, 1, number(static_cast<quint32>(exif.thumbnail.size()) + exif.sizeBy)) +
           number(0U) + exif.changed + exif.original + exif.thumbnail;
}

QByteArray jpegOf(const QSize &size, bool isMirrored = false)
{
    return samples::encoded(samples::quarters(size).mirrored(isMirrored, false), "jpeg");
}

} // namespace

class ExifTest : public QObject
{
    Q_OBJECT

private:
    Photo photoOf(const QByteArray &content) const
    {
        samples::store(folder_.filePath(u"photo.jpg"_s), content);
        return *Photo::open(folder_.filePath(u"photo.jpg"_s));
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void dates_data()
    {
        const QByteArray one("2024:02:29 08:15:59", 20);
        const QByteArray other("2025:01:02 03:04:05", 20);
        addRows<QByteArray, QByteArray, QString>({
            {"taken before it was changed", other, one, u"2024-02-29T08:15:59"_s},
            {"changed only", other, {}, u"2025-01-02T03:04:05"_s},
            {"none", {}, {}, {}},
            {"a camera without a clock", other, QByteArray("0000:00:00 00:00:00", 20),
             u"2025-01-02T03:04:05"_s},
            {"spaces", {}, QByteArray("    :  :     :  :  ", 20), {}},
            {"a day that does not exist", {}, QByteArray("2025:02:29 08:15:59", 20), {}},
            {"too short", {}, QByteArray("2024:02:29 08:15", 17), {}},
        });
    }

    void dates()
    {
        const auto [changed, original, taken] = row<QByteArray, QByteArray, QString>();
        for (const bool isBigEndian : {false, true}) {
            const QByteArray tiff = tiffOf({.changed = changed, .original = original}, isBigEndian);
            const auto time = photoOf(samples::withExif(jpegOf(QSize(30, 20)), tiff)).taken();
            QCOMPARE(time ? time->toString(Qt::ISODate) : QString(), taken);
        }
    }

    void thumbnails_data()
    {
        const QByteArray small = jpegOf(QSize(150, 100), true);
        const QSize usual(72, 54);
        addRows<Exif, QSize, bool>({
            {"of the photo's shape", {.thumbnail = small}, usual, true},
            {"turned", {.thumbnail = small, .orientation = 6}, usual, true},
            {"turned and mirrored", {.thumbnail = small, .orientation = 7}, usual, true},
            {"rounded to whole pixels", {.thumbnail = jpegOf(QSize(160, 107), true)}, usual, true},
            {"with black bars", {.thumbnail = jpegOf(QSize(160, 120), true)}, usual, false},
            {"smaller than wanted", {.thumbnail = small}, QSize(200, 200), false},
            {"uncompressed", {.thumbnail = small, .compression = 1}, usual, false},
            {"no picture", {.thumbnail = QByteArray(500, 'x')}, usual, false},
            {"beside it", {.thumbnail = small, .offsetBy = 1}, usual, false},
            {"far behind the block", {.thumbnail = small, .offsetBy = 0xffffff00}, usual, false},
            {"longer than the block", {.thumbnail = small, .sizeBy = 1}, usual, false},
            {"none", {}, usual, false},
        });
    }

    /// The file's own small copy is mirrored here, so that it shows which one is seen.
    void thumbnails()
    {
        const auto [exif, bound, isUsed] = row<Exif, QSize, bool>();
        for (const bool hasProfile : {false, true}) {
            const QByteArray jpeg = samples::withExif(jpegOf(QSize(300, 200)), tiffOf(exif));
            const Photo photo =
                photoOf(hasProfile ? samples::withProfile(jpeg, samples::swappedProfile()) : jpeg);
            const QImage thumbnail = photo.thumbnail(bound);
            QCOMPARE(thumbnail.size(), photo.orientedSize().scaled(bound, Qt::KeepAspectRatio));
            QString corners = samples::seenCorners[std::size_t(exif.orientation)];
            const auto exchange = [&corners](QChar one, QChar other) {
                corners.replace(one, u'?').replace(other, one).replace(u'?', other);
            };
            if (isUsed) {
                exchange(u'R', u'G');
                exchange(u'B', u'Y');
            }
            if (hasProfile)
                exchange(u'R', u'G');
            QCOMPARE(samples::cornersOf(thumbnail, thumbnail.rect(), 6), corners);
        }
    }

    /// Each byte replaced by values that make counts and offsets extreme.
    void damagedBlocksAreSafe()
    {
        const QByteArray whole = samples::withExif(jpegOf(QSize(16, 16)),
                                                   tiffOf({.changed = QByteArray("2025:01:02 03:04:05", 20),
                                                           .original = QByteArray("2024:02:29 08:15:59", 20),
                                                           .thumbnail = QByteArray(40, 'x')}));
        QVERIFY(JpegHeader::read(whole).thumbnail && JpegHeader::read(whole).taken);
        for (qsizetype i = whole.indexOf("Exif"); i < whole.indexOf("xxxx"); ++i) {
            for (const char value : {'\0', '\x01', '\x7f', '\x80', '\xff'}) {
                QByteArray damaged = whole;
                damaged[i] = value;
                const auto thumbnail = JpegHeader::read(damaged).thumbnail;
                QVERIFY(!thumbnail || (thumbnail->offset > 0 && thumbnail->size > 0 &&
                                       thumbnail->offset + thumbnail->size <= whole.size()));
            }
        }
    }
};

CORVEL_TEST(ExifTest)
#include "ExifTest.moc"
