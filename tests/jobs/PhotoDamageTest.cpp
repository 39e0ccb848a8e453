// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"
#include "TiffDamage.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>
#include <QtGui/QImageWriter>
#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

/// One with one strip, compressed by that method; `tables` are what its JPEG strips share.
QByteArray tiffOf(int method, const QByteArray &strip, const QByteArray &tables = {})
{
    constexpr int directorySize = 2 + 4 * 12 + 4;
    constexpr qsizetype stripAt = 8 + directorySize;
    QByteArray tiff(stripAt, '\0');
    tiff.replace(0, 10, QByteArray("II*\0\x08\0\0\0\x04\0", 10));
    int i = 0;
    const auto entry = [&](quint16 tag, quint16 type, qsizetype count, qsizetype value) {
        char *const at = tiff.data() + 10 + 12 * i++;
        qToLittleEndian(tag, at);
        qToLittleEndian(type, at + 2);
        qToLittleEndian(quint32(count), at + 4);
        qToLittleEndian(quint32(value), at + 8);
    };
    entry(259, 3, 1, method);
    entry(273, 4, 1, stripAt);
    entry(279, 4, 1, strip.size());
    entry(347, 7, tables.size(), stripAt + strip.size());
    return tiff + strip + tables;
}

} // namespace

class PhotoDamageTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return QDir(folder_.path()).filePath(name); }

    QTemporaryDir folder_;

private Q_SLOTS:
    /// What lies behind sound headers.
    void damagedPixels_data()
    {
        const auto add = rows<QByteArray, bool>();
        const auto row = [&add](const QByteArray &test, const QByteArray &content, bool isDamaged) {
            add(test.constData(), content, isDamaged);
        };
        const auto withBytes = [](QByteArray content, qsizetype position, const QByteArray &bytes) {
            return content.replace(position, bytes.size(), bytes);
        };
        const QByteArray zeros(2048, '\0');
        const QByteArray noise = samples::noise(2048);
        for (const bool isProgressive : {false, true}) {
            const QByteArray kind = isProgressive ? "progressive JPEG" : "JPEG";
            const QByteArray jpeg = samples::encoded(samples::grain(QSize(640, 400)), "jpeg", isProgressive);
            const qsizetype middle = jpeg.size() / 2;
            row(kind, jpeg, false);
            row(kind + ", padded to a round size", jpeg.chopped(2) + QByteArray(7, '\0') + jpeg.last(2),
                false);
            row(kind + " with a zeroed sector", withBytes(jpeg, middle, zeros), true);
            row(kind + " with another file's sector", withBytes(jpeg, middle, noise), true);
            row(kind + ", half of it, then its end", jpeg.first(middle) + jpeg.last(2), true);
            row(kind + ", half of it zeros, then its end",
                withBytes(jpeg, middle, QByteArray(jpeg.size() - middle - 2, '\0')), true);
        }
        const QImage grain = samples::grain(QSize(99, 99));
        row("grey JPEG", samples::encoded(grain.convertToFormat(QImage::Format_Grayscale8), "jpeg"), false);
        row("CMYK JPEG", samples::redCmykJpeg(), false);
        const QByteArray large =
            samples::encoded(samples::quarters(QSize(64, 64)), "jpeg"); // its steps are immense
        row("JPEG of impossible contrast",
            withBytes(large, large.indexOf("\xff\xdb") + 5, QByteArray(64, '\xff')), true);
        const QByteArray png = samples::encoded(samples::grain(QSize(64, 64)), "png");
        row("PNG", png, false);
        row("PNG with a changed pixel", withBytes(png, png.indexOf("IDAT") + 300, "?"), true);
        if (!QImageWriter::supportedImageFormats().contains("webp"))
            return;
        const QByteArray webp = samples::encoded(samples::grain(QSize(640, 400)), "webp");
        row("WebP", webp, false);
        row("small WebP", samples::encoded(samples::quarters(QSize(8, 8)), "webp"), false);
        row("WebP with a zeroed sector", withBytes(webp, webp.size() / 2, zeros), true);
    }

    void damagedPixels()
    {
        const auto [content, isDamaged] = row<QByteArray, bool>();
        samples::store(pathOf(u"photo"_s), content);
        const auto photo = Photo::open(pathOf(u"photo"_s));
        QVERIFY2(photo, photo ? "" : qPrintable(photo.failure().text));
        const Photo copy = *photo;
        const auto damage = photo->damage();
        QVERIFY2(damage.has_value() == isDamaged, damage ? qPrintable(damage->detail) : "");
        QVERIFY(copy.isChecked());
        if (damage)
            QCOMPARE(damage->reason, PhotoFault::Damaged);
    }

    // Decoders of TIFF pass over what they cannot make out.
    void damagedTiffs()
    {
        const auto withZeros = [](QByteArray content) {
            return content.replace(content.size() / 2, 2048, QByteArray(2048, '\0'));
        };
        const QByteArray jpeg = samples::encoded(samples::grain(QSize(640, 400)), "jpeg");
        const qsizetype tables = jpeg.indexOf("\xff\xdb");
        const qsizetype frame = jpeg.indexOf("\xff\xc0");
        const QByteArray shared = "\xff\xd8" + jpeg.sliced(tables, frame - tables) + "\xff\xd9";
        const QByteArray abbreviated = "\xff\xd8" + jpeg.sliced(frame);
        const QByteArray zlib = qCompress(samples::noise(8192)).sliced(4);
        QVERIFY(!tiffDamage(tiffOf(7, jpeg)) && tiffDamage(tiffOf(7, withZeros(jpeg))));
        QVERIFY(!tiffDamage(tiffOf(7, abbreviated, shared)) &&
                tiffDamage(tiffOf(7, withZeros(abbreviated), shared)));
        QVERIFY(!tiffDamage(tiffOf(8, zlib)) && tiffDamage(tiffOf(8, withZeros(zlib))));
        QVERIFY(!tiffDamage(tiffOf(1, withZeros(jpeg))));            // not compressed
        QVERIFY(!tiffDamage(tiffOf(7, withZeros(jpeg)).chopped(1))); // a strip behind the end
    }
};

CORVEL_TEST(PhotoDamageTest)
#include "PhotoDamageTest.moc"
