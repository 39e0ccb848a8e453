// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"
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
    void damagedPixels_data();
    void damagedPixels();
    void damagedTiffs_data();
    void damagedTiffs();
};

/// What lies behind sound headers.
void PhotoDamageTest::damagedPixels_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isDamaged");

    const auto withBytes = [](QByteArray content, qsizetype position, const QByteArray &bytes) {
        return content.replace(position, bytes.size(), bytes);
    };
    const QByteArray zeros(2048, '\0');
    const QByteArray noise = samples::noise(2048);
    for (const bool isProgressive : {false, true}) {
        const char *kind = isProgressive ? "progressive JPEG" : "JPEG";
        const QByteArray jpeg = samples::encoded(samples::grain(QSize(640, 400)), "jpeg", isProgressive);
        const qsizetype middle = jpeg.size() / 2;
        QTest::addRow("%s", kind) << jpeg << false;
        QTest::addRow("%s, padded to a round size", kind)
            << jpeg.chopped(2) + QByteArray(7, '\0') + jpeg.last(2) << false;
        QTest::addRow("%s with a zeroed sector", kind) << withBytes(jpeg, middle, zeros) << true;
        QTest::addRow("%s with another file's sector", kind) << withBytes(jpeg, middle, noise) << true;
        QTest::addRow("%s, half of it, then its end", kind) << jpeg.first(middle) + jpeg.last(2) << true;
        QTest::addRow("%s, half of it zeros, then its end", kind)
            << withBytes(jpeg, middle, QByteArray(jpeg.size() - middle - 2, '\0')) << true;
    }
    QTest::newRow("grey JPEG")
        << samples::encoded(samples::grain(QSize(99, 99)).convertToFormat(QImage::Format_Grayscale8), "jpeg")
        << false;
    QTest::newRow("CMYK JPEG") << samples::redCmykJpeg() << false;
    QByteArray large = samples::encoded(samples::quarters(QSize(64, 64)), "jpeg"); // its steps are immense
    const QByteArray steps(64, '\xff');
    large.replace(large.indexOf("\xff\xdb") + 5, 64, steps);
    QTest::newRow("JPEG of impossible contrast") << large << true;
    const QByteArray png = samples::encoded(samples::grain(QSize(64, 64)), "png");
    QTest::newRow("PNG") << png << false;
    QTest::newRow("PNG with a changed pixel") << withBytes(png, png.indexOf("IDAT") + 300, "?") << true;
    if (!QImageWriter::supportedImageFormats().contains("webp"))
        return;
    const QByteArray webp = samples::encoded(samples::grain(QSize(640, 400)), "webp");
    QTest::newRow("WebP") << webp << false;
    QTest::newRow("small WebP") << samples::encoded(samples::quarters(QSize(8, 8)), "webp") << false;
    QTest::newRow("WebP with a zeroed sector") << withBytes(webp, webp.size() / 2, zeros) << true;
}

void PhotoDamageTest::damagedPixels()
{
    QFETCH(const QByteArray, content);
    QFETCH(const bool, isDamaged);
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
void PhotoDamageTest::damagedTiffs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isDamaged");
    const auto withZeros = [](QByteArray content) {
        return content.replace(content.size() / 2, 2048, QByteArray(2048, '\0'));
    };
    const QByteArray jpeg = samples::encoded(samples::grain(QSize(640, 400)), "jpeg");
    const qsizetype tables = jpeg.indexOf("\xff\xdb");
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    const QByteArray shared = "\xff\xd8" + jpeg.sliced(tables, frame - tables) + "\xff\xd9";
    const QByteArray abbreviated = "\xff\xd8" + jpeg.sliced(frame);
    QTest::newRow("JPEG") << tiffOf(7, jpeg) << false;
    QTest::newRow("JPEG, zeroed") << tiffOf(7, withZeros(jpeg)) << true;
    QTest::newRow("JPEG with shared tables") << tiffOf(7, abbreviated, shared) << false;
    QTest::newRow("JPEG with shared tables, zeroed") << tiffOf(7, withZeros(abbreviated), shared) << true;
    const QByteArray zlib = qCompress(samples::noise(8192)).sliced(4);
    QTest::newRow("zlib") << tiffOf(8, zlib) << false;
    QTest::newRow("zlib, zeroed") << tiffOf(8, withZeros(zlib)) << true;
    QTest::newRow("not compressed") << tiffOf(1, withZeros(jpeg)) << false;
    QTest::newRow("a strip behind the end") << tiffOf(7, withZeros(jpeg)).chopped(1) << false;
}

void PhotoDamageTest::damagedTiffs()
{
    QFETCH(const QByteArray, content);
    QFETCH(const bool, isDamaged);
    const auto damage = tiffDamage(content);
    QVERIFY2(damage.has_value() == isDamaged, damage ? qPrintable(*damage) : "");
}

CORVEL_TEST(PhotoDamageTest)
#include "PhotoDamageTest.moc"
