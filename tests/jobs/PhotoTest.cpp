// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"
#include "JpegHeader.h"
#include "PdfWriter.h"
#include "PhotoFormat.h"
#include "QuietDecoding.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cmath>

using namespace printdialog;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(printdialog::PhotoFault)

class PhotoTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return QDir(folder_.path()).filePath(name); }

    QTemporaryDir folder_;

private Q_SLOTS:
    void faults_data()
    {
        const auto add = rows<QString, PhotoFault, QByteArray>();
        const QImage picture = samples::quarters(QSize(120, 80));
        const QByteArray jpeg = samples::encoded(picture, "jpeg");
        const QByteArray progressive = samples::encoded(picture, "jpeg", true);
        const QByteArray png = samples::encoded(picture, "png");
        const qsizetype frame = jpeg.indexOf("\xff\xc0");
        const auto withBytes = [](QByteArray content, qsizetype position, const QByteArray &bytes) {
            return content.replace(position, bytes.size(), bytes);
        };
        QByteArray commented = progressive; // a comment between scans that holds an end marker
        commented.insert(commented.lastIndexOf("\xff\xda"), QByteArray("\xff\xfe\0\x04\xff\xd9", 6));

        add("missing", u"missing.jpg"_s, PhotoFault::NotFound, {});
        add("below a file", u"text.jpg/photo.jpg"_s, PhotoFault::NotFound, {});
        add("folder", u"folder.jpg"_s, PhotoFault::NotReadable, {});
        add("pipe that nobody writes to", u"pipe.jpg"_s, PhotoFault::NotReadable, {});
        add("device", u"/dev/zero"_s, PhotoFault::NotReadable, {});
        add("no permission", u"locked.jpg"_s, PhotoFault::NotReadable, {});
        add("empty", u"empty.jpg"_s, PhotoFault::Empty, {});
        add("too many bytes", u"long.jpg"_s, PhotoFault::TooLarge, {});
        add("JPEG of too many pixels", u"p"_s, PhotoFault::TooLarge,
            withBytes(jpeg, frame + 5, "\xea\x60\xea\x60"));
        add("PNG too wide", u"p"_s, PhotoFault::TooLarge,
            samples::encoded(QImage(40000, 1, QImage::Format_ARGB32), "png"));
        add("interlaced PNG of too many pixels", u"p"_s, PhotoFault::TooLarge,
            samples::pngOf(samples::pngHeader(QSize(12000, 12000), 6, true), ""));
        add("text named .jpg", u"text.jpg"_s, PhotoFault::UnknownType, "Dear all,");
        add("drawing", u"d.svg"_s, PhotoFault::UnknownType, "<?xml version='1.0'?><svg/>");
        add("JPEG without its last half", u"p"_s, PhotoFault::Truncated, jpeg.first(jpeg.size() / 2));
        add("JPEG without its last byte", u"p"_s, PhotoFault::Truncated, jpeg.chopped(1));
        add("JPEG half copied, the rest zeros", u"p"_s, PhotoFault::Truncated,
            jpeg.first(jpeg.size() / 2) + QByteArray(jpeg.size(), '\0'));
        add("progressive JPEG without its last scans", u"p"_s, PhotoFault::Truncated,
            progressive.first(progressive.size() * 3 / 4));
        add("JPEG cut in its headers", u"p"_s, PhotoFault::Truncated, jpeg.first(100));
        add("JPEG with an end marker in a comment", u"p"_s, PhotoFault::Truncated, commented.chopped(1));
        add("BMP without its last row", u"p"_s, PhotoFault::Truncated,
            samples::encoded(picture, "bmp").chopped(360));
        add("GIF without its trailer", u"p"_s, PhotoFault::Truncated,
            QByteArray("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\1\0\1\0\0\2\2D\1\0", 34));
        add("GIF with a canvas far larger than its frame", u"p"_s, PhotoFault::Broken,
            QByteArray("GIF89a\2&\2\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\2\0\2\0\0\2\3D\2\5\0;", 36));
        add("PNG without its end", u"p"_s, PhotoFault::Truncated, png.chopped(12));
        add("JPEG without a picture", u"p"_s, PhotoFault::Broken, jpeg.first(20) + "\xff\xd9");
        add("JPEG of 12 bits", u"p"_s, PhotoFault::UnknownType, withBytes(jpeg, frame + 4, "\x0c"));
        add("lossless JPEG", u"p"_s, PhotoFault::UnknownType, withBytes(jpeg, frame + 1, "\xc3"));
        const qsizetype header = png.indexOf("IHDR") + 6;
        add("PNG with a changed header", u"p"_s, PhotoFault::Broken,
            withBytes(png, header, QByteArray(1, char(png[header] ^ 1))));
    }

    void faults()
    {
        const auto [name, fault, content] = row<QString, PhotoFault, QByteArray>();
        const QString path = pathOf(name);
        if (name == u"folder.jpg")
            QVERIFY(QDir().mkdir(path));
        else if (name == u"pipe.jpg")
            QCOMPARE(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
        else if (fault != PhotoFault::NotFound && !name.startsWith(u'/'))
            samples::store(path, content);
        if (name == u"long.jpg") {
            samples::store(path, samples::encoded(samples::quarters(QSize(8, 8)), "jpeg"));
            QVERIFY(QFile::resize(path, Photo::maximumFileSize + 1));
        }
        std::optional<samples::OrdinaryRights> rights;
        if (name == u"locked.jpg") {
            QVERIFY(QFile::setPermissions(path, {}));
            rights.emplace();
        }
        const auto photo = Photo::open(path);
        QVERIFY(!photo);
        QCOMPARE(photo.failure().reason, fault);
        QVERIFY2(photo.failure().text.contains(QFileInfo(path).fileName()), qPrintable(photo.failure().text));
        QVERIFY2(photo.failure().text.endsWith(u'.'), qPrintable(photo.failure().text));
    }

    void zerosAreNotRead()
    {
        samples::store(pathOf(u"zeros.jpg"_s), {});
        QVERIFY(QFile::resize(pathOf(u"zeros.jpg"_s), qint64(1) << 30));
        rusage before = {};
        rusage after = {};
        getrusage(RUSAGE_SELF, &before);
        const auto photo = Photo::open(pathOf(u"zeros.jpg"_s));
        getrusage(RUSAGE_SELF, &after);
        QVERIFY(!photo);
        QCOMPARE(photo.failure().reason, PhotoFault::UnknownType);
        QVERIFY(after.ru_maxrss - before.ru_maxrss < 50'000); // kilobytes
    }

    // The photo is not to blame. A PNG is printed and shown all the same, row by row.
    void memoryRunsShort()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("AddressSanitizer's own memory leaves no room for a limit.");
#endif
        const QSize size(3000, 3000);
        const QByteArray row(1 + qsizetype(size.width()) * 4, '\0');
        samples::store(pathOf(u"large.png"_s),
                       samples::pngOf(samples::pngHeader(size, 6), row.repeated(size.height())));
        QFile nowhere(u"/dev/null"_s);
        QVERIFY(nowhere.open(QFile::WriteOnly));
        const auto photo = Photo::open(pathOf(u"large.png"_s));
        QVERIFY(photo);
        QVERIFY(
            !photo->preview(QSize(200, 200)).isNull()); // Qt scales with threads, and hangs when it gets none
        std::optional<samples::MemoryLimit> limit(std::in_place, 16 << 20);
        const auto decoded = photo->decoded();
        const QImage preview = photo->preview(QSize(200, 200));
        const bool written(PdfWriter::write(*photo, {QSizeF(300, 300), QRectF(0, 0, 300, 300)}, nowhere));
        limit.reset();
        QVERIFY(!decoded);
        QCOMPARE(decoded.failure().reason, PhotoFault::TooLarge);
        QCOMPARE(preview.size(), QSize(200, 200));
        QVERIFY(written);
        QVERIFY(photo->decoded());
    }

    // Even one that does not stop to write.
    void librariesWriteToTheLog()
    {
        QTemporaryFile shown;
        QVERIFY(shown.open());
        const int before = dup(STDERR_FILENO);
        const auto restore = qScopeGuard([before] {
            dup2(before, STDERR_FILENO);
            close(before);
        });
        const auto say = [](const QByteArray &text) {
            return ::write(STDERR_FILENO, text.constData(), std::size_t(text.size())) == text.size();
        };
        dup2(shown.handle(), STDERR_FILENO);
        QuietDecoding::enable();
        QTest::ignoreMessage(QtWarningMsg, "from a library");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^x+$"_s));
        {
            const QuietDecoding quiet;
            QVERIFY(say("from a library\n"));
            for (int i = 0; i < 200; ++i)
                say(QByteArray(1024, 'x'));
        }
        QVERIFY(say("from the program"));
        QCOMPARE(samples::load(shown.fileName()), "from the program");
    }

    void wholeJpegs_data()
    {
        const auto add = rows<QByteArray, bool>();

        const QImage picture = samples::quarters(QSize(120, 80));
        const QByteArray jpeg = samples::encoded(picture, "jpeg");
        const QByteArray progressive = samples::encoded(picture, "jpeg", true);
        QByteArray arithmetic = jpeg;
        arithmetic[jpeg.indexOf("\xff\xc0") + 1] = '\xc9';
        QByteArray rgb = jpeg.first(2) + jpeg.sliced(20); // without the JFIF segment, which tells the colors
        const qsizetype frame = rgb.indexOf("\xff\xc0");
        rgb[frame + 10] = 'R';
        rgb[frame + 13] = 'G';
        rgb[frame + 16] = 'B';

        add("baseline", jpeg, true);
        add("progressive", progressive, true);
        add("grey", samples::encoded(picture.convertToFormat(QImage::Format_Grayscale8), "jpeg"), true);
        add("with a film behind the picture", jpeg + QByteArray("\0\0\0\x18", 4) + "ftypmp42", true);
        add("progressive, with zeros behind it", progressive + QByteArray(5000, '\0'), true);
        add("padding before a segment", jpeg.first(2) + "\xff\xff" + jpeg.sliced(2), false);
        add("arithmetic coding", arithmetic, false);
        add("RGB by its components' names alone", rgb, false);
        add("CMYK", samples::redCmykJpeg(), true);
    }

    void wholeJpegs()
    {
        const auto [content, isEmbeddable] = row<QByteArray, bool>();
        samples::store(pathOf(u"photo"_s), content);
        const auto photo = Photo::open(pathOf(u"photo"_s));
        QVERIFY2(photo, photo ? "" : qPrintable(photo.failure().text));
        QCOMPARE(photo->format(), "jpeg");
        QCOMPARE(photo->isEmbeddable(), isEmbeddable);
        QVERIFY(*photo->content() == content);
    }

    /// Each byte of the headers replaced by values that make lengths, counts and offsets extreme.
    void damagedHeadersAreSafe()
    {
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(16, 16)), "jpeg");
        for (const bool bigEndian : {false, true}) {
            const QByteArray whole = samples::withOrientation(jpeg, 6, bigEndian);
            QCOMPARE(JpegHeader::read(whole).orientation.value(), 6);
            for (qsizetype i = 2; i < whole.size(); ++i) {
                for (const char value : {'\0', '\x01', '\x7f', '\xda', '\xff'}) {
                    QByteArray damaged = whole;
                    damaged[i] = value;
                    const int orientation = JpegHeader::read(damaged).orientation.value();
                    QVERIFY(orientation >= 1 && orientation <= 8);
                }
                // The heap block ends with the bytes, so that a sanitizer sees the first one read behind
                // them.
                QVERIFY(JpegHeader::read(std::vector<char>(whole.begin(), whole.begin() + i)).state !=
                        JpegHeader::State::Complete);
            }
        }
    }

    void orientations_data()
    {
        const auto add = rows<int, int, bool>();
        for (int i = 1; i <= 8; ++i)
            add(qPrintable(u"Exif orientation %1"_s.arg(i)), i, i, i % 2 == 0);
        add("Exif orientation 0, which does not exist", 0, 1, false);
        add("Exif orientation 9, which does not exist", 9, 1, true);
    }

    void orientations()
    {
        const auto [orientation, seenAs, bigEndian] = row<int, int, bool>();
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(300, 200)), "jpeg");
        samples::store(pathOf(u"photo.jpg"_s), samples::withOrientation(jpeg, orientation, bigEndian));
        const auto photo = Photo::open(pathOf(u"photo.jpg"_s));
        QVERIFY(photo);
        QCOMPARE(photo->orientation().value(), seenAs);
        const QSize seen = seenAs >= 5 ? QSize(200, 300) : QSize(300, 200);
        QCOMPARE(photo->orientedSize(), seen);

        const QImage large = photo->preview(QSize(1000, 1000));
        QCOMPARE(large.size(), seen);
        QCOMPARE(samples::cornersOf(large, large.rect(), 20), samples::seenCorners[std::size_t(seenAs)]);
        const QImage small = photo->preview(QSize(60, 1000));
        QCOMPARE(small.size(), seen.scaled(60, 1000, Qt::KeepAspectRatio));
        QCOMPARE(samples::cornersOf(small, small.rect(), 10), samples::seenCorners[std::size_t(seenAs)]);
    }

    // Its height is negative.
    void bitmapFromTheTopDown()
    {
        QByteArray bitmap = samples::encoded(samples::quarters(QSize(300, 200)), "bmp");
        qToLittleEndian<qint32>(-200, bitmap.data() + 22);
        samples::store(pathOf(u"photo.bmp"_s), bitmap);
        const auto photo = Photo::open(pathOf(u"photo.bmp"_s));
        QVERIFY(photo);
        const QImage preview = photo->preview(QSize(60, 40));
        QCOMPARE(samples::cornersOf(preview, preview.rect(), 8), u"BYRG"_s);
        QVERIFY(photo->decoded());
        qToLittleEndian<qint32>(INT_MIN, bitmap.data() + 22);
        samples::store(pathOf(u"photo.bmp"_s), bitmap);
        QVERIFY(!Photo::open(pathOf(u"photo.bmp"_s)));
    }

    void resolutions_data()
    {
        const auto add = rows<QByteArray, double>(); // 0: no resolution
        QImage picture = samples::quarters(QSize(60, 40));
        picture.setDotsPerMeterX(7874); // 200 per inch
        picture.setDotsPerMeterY(7874);
        const QByteArray jpeg = samples::encoded(picture, "jpeg");
        const auto exif = [&jpeg](int perInch) {
            return samples::withExif(jpeg, samples::tiffWithResolution(perInch));
        };
        const auto jfif = [](QByteArray content, qsizetype at, char value) {
            content[content.indexOf("JFIF") + at] = value;
            return content;
        };
        add("JFIF", jpeg, 200.0);
        add("JFIF, per centimetre", jfif(jpeg, 7, 2), 508.0);
        add("JFIF of a ratio only", jfif(jpeg, 7, 0), 0.0);
        add("two directions that differ", jfif(jpeg, 11, 100), 0.0);
        add("Exif before JFIF", exif(250), 250.0);
        add("no number", exif(0), 200.0);
        add("a camera that says twice that it does not know", jfif(jfif(exif(72), 9, 72), 11, 72), 0.0);
        add("PNG", samples::encoded(picture, "png"), 200.0);
    }

    void resolutions()
    {
        const auto [content, resolution] = row<QByteArray, double>();
        samples::store(pathOf(u"photo"_s), content);
        const auto photo = Photo::open(pathOf(u"photo"_s));
        QVERIFY(photo);
        QCOMPARE(photo->resolution().has_value(), resolution > 0);
        QVERIFY(std::abs(photo->printedResolution() - (resolution > 0 ? resolution : 300)) < 0.1);
    }

    /// What cannot be read is called by its name, with what would help.
    void unreadableFormats_data()
    {
        const auto add = rows<QByteArray, QString>();
        const QByteArray raw("II*\0\x10\0\0\0CR\2\0", 12);
        const QByteArray boxes = QByteArray("\0\0\0\x18", 4) + "ftypcrx ";
        const QByteArray webp("RIFF\0\0\0\0WEBP", 12);
        add("raw by its letters", raw, u"camera raw"_s);
        add("raw by its kind", "WRITER00CCD-RAW 0201", u"camera raw"_s);
        add("raw in boxes", boxes, u"camera raw"_s);
        add("JPEG XL", QByteArray("\xff\x0a"), u"JPEG XL"_s);
        add("PDF", QByteArray("%PDF-1.7"), u"PDF"_s);
        if (!PhotoFormat::of(webp).isReadable())
            add("WebP", webp, u"qt6-image-formats-plugins"_s);
    }

    void unreadableFormats()
    {
        const auto [content, named] = row<QByteArray, QString>();
        samples::store(pathOf(u"photo"_s), content + QByteArray(64, '\0'));
        const auto photo = Photo::open(pathOf(u"photo"_s));
        QVERIFY(!photo);
        QVERIFY2(photo.failure().text.contains(named), qPrintable(photo.failure().text));
        QCOMPARE(photo.failure().reason,
                 named.contains(u"plugins") ? PhotoFault::NeedsPackage : PhotoFault::UnknownType);
    }
};

CORVEL_TEST(PhotoTest)
#include "PhotoTest.moc"
