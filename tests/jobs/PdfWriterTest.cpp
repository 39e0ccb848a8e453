// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfWriter.h"
#include "PhotoPlacement.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QDateTime>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>
#include <QtGui/QColorSpace>
#include <QtGui/QImageWriter>
#include <QtTest/QTest>

#include <zlib.h>

#include <cstdlib>
#include <limits>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

const PageGeometry portraitPage{QSizeF(288, 432), QRectF(20, 10, 250, 400)};
const PageGeometry landscapePage{QSizeF(432, 288), QRectF(20, 10, 400, 250)};

QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s of poppler-utils failed", qPrintable(program));
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class PdfWriterTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_.filePath(name); }

    Photo photoOf(const QByteArray &content, const QString &name = u"photo"_s)
    {
        samples::store(pathOf(name), content);
        return *Photo::open(pathOf(name));
    }

    QByteArray pdfOf(const Photo &photo, const PageGeometry &page, PdfWriter::Embedding expected,
                     const PlacementChoice &choice = {})
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const auto embedding = PdfWriter::write(photo, page, buffer, choice);
        if (!embedding || *embedding != expected)
            QTest::qFail("not embedded as expected", __FILE__, __LINE__);
        samples::store(pathOf(u"photo.pdf"_s), buffer.data());
        return buffer.data();
    }

    /// The page as pixels, one for each point.
    QImage rendered()
    {
        run(u"pdftoppm"_s,
            {u"-r"_s, u"72"_s, u"-png"_s, u"-singlefile"_s, pathOf(u"photo.pdf"_s), pathOf(u"page"_s)});
        return QImage(pathOf(u"page.png"_s));
    }

    /// The only image in the PDF, as it is stored there.
    QByteArray embedded(const QString &suffix)
    {
        run(u"pdfimages"_s, {u"-all"_s, pathOf(u"photo.pdf"_s), pathOf(u"image"_s)});
        if (QDir(folder_.path()).entryList({u"image-*"_s}).size() != 1)
            QTest::qFail("not one image", __FILE__, __LINE__);
        QByteArray content = samples::load(pathOf(u"image-000."_s + suffix));
        QFile::remove(pathOf(u"image-000."_s + suffix));
        return content;
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void jpegGoesInUntouchedAndUpright_data()
    {
        const auto add = rows<int, bool>();
        for (int i = 1; i <= 8; ++i) {
            add(qPrintable(u"Exif orientation %1 on a portrait page"_s.arg(i)), i, true);
            add(qPrintable(u"Exif orientation %1 on a landscape page"_s.arg(i)), i, false);
        }
    }

    void jpegGoesInUntouchedAndUpright()
    {
        const auto [orientation, isPortrait] = row<int, bool>();
        const QByteArray jpeg = samples::withOrientation(
            samples::encoded(samples::quarters(QSize(300, 200)), "jpeg"), orientation);
        const PageGeometry &page = isPortrait ? portraitPage : landscapePage;
        pdfOf(photoOf(jpeg), page, PdfWriter::Embedding::OriginalJpeg);
        QVERIFY(embedded(u"jpg"_s) == jpeg);

        QString corners = samples::seenCorners[std::size_t(orientation)];
        const bool isTurned = (orientation >= 5) != isPortrait;
        if (isTurned) // a quarter clockwise: the left side is the top
            corners = u"%1%2%3%4"_s.arg(corners[2], corners[0], corners[3], corners[1]);
        // 2:3 within 250 x 400 points at (20, 10)
        const QRectF target = isPortrait ? QRectF(20, 22.5, 250, 375) : QRectF(32.5, 10, 375, 250);
        const QImage pixels = rendered();
        QCOMPARE(pixels.size(), page.size.toSize());
        QCOMPARE(samples::cornersOf(pixels, target, 3), corners);
        QCOMPARE(samples::cornersOf(pixels, target, -3), u"WWWW"_s);
    }

    /// One in CMYK, and a panorama, wider than image readers and painters go.
    void oddJpegsGoInUntouched()
    {
        for (const QByteArray &jpeg :
             {samples::encoded(samples::quarters(QSize(40000, 40)), "jpeg"), samples::redCmykJpeg()}) {
            pdfOf(photoOf(jpeg), portraitPage, PdfWriter::Embedding::OriginalJpeg);
            QVERIFY(embedded(u"jpg"_s) == jpeg);
        }
        QCOMPARE(samples::cornersOf(rendered(), QRectF(20, 85, 250, 250), 5), u"RRRR"_s);
    }

    /// The compressed pixels of a PNG go in as they are, where a PDF knows the kind, and look alike either
    /// way.
    void pngsOfAllKinds_data()
    {
        const auto add = rows<QImage, bool>();
        const QImage picture = samples::quarters(QSize(301, 201));
        const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
        QImage half = picture.convertToFormat(QImage::Format_ARGB32);
        half.setAlphaChannel(QImage(half.size(), QImage::Format_Alpha8));
        add("color", picture, true);
        add("color of 16 bits", picture.convertToFormat(QImage::Format_RGBX64), true);
        add("grey", grey, true);
        add("grey of 16 bits", picture.convertToFormat(QImage::Format_Grayscale16), true);
        add("palette", picture.convertToFormat(QImage::Format_Indexed8), true);
        add("black and white", grey.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither), true);
        add("opaque alpha", picture.convertToFormat(QImage::Format_ARGB32), false);
    }

    void pngsOfAllKinds()
    {
        const auto [picture, goesInUntouched] = row<QImage, bool>();
        const QByteArray png = samples::encoded(picture, "png");
        const QByteArray pdf =
            pdfOf(photoOf(png), landscapePage,
                  goesInUntouched ? PdfWriter::Embedding::OriginalPng : PdfWriter::Embedding::Pixels);
        const QImage pixels = rendered();
        const QImage expected = QImage::fromData(png).convertToFormat(QImage::Format_RGB32);
        const QRectF target(33, 11, 374, 248);
        for (const QPoint corner :
             {QPoint(1, 1), QPoint(9, 1), QPoint(1, 9), QPoint(9, 9)}) { // tenths of each side
            const QColor found = pixels.pixelColor(int(target.x() + corner.x() * target.width() / 10),
                                                   int(target.y() + corner.y() * target.height() / 10));
            const QColor wanted = expected.pixelColor(corner.x() * 30, corner.y() * 20);
            for (const int difference :
                 {found.red() - wanted.red(), found.green() - wanted.green(), found.blue() - wanted.blue()})
                QVERIFY2(std::abs(difference) < 4, qPrintable(found.name() + wanted.name()));
        }
        QVERIFY(pdf.size() < png.size() + 4000); // with a whole palette
    }

    void impossiblePngs_data()
    {
        // Bits, type of colors, methods of compression and filtering; rows; bytes behind the data.
        const auto add = rows<QByteArray, int, bool, QByteArray>();
        add("grey", "\x08", 20, true, {});
        add("palette that lacks colors", "\4\3", 20, true, {});
        add("rows missing", "\x08", 19, false, {});
        add("rows missing, with alpha", "\x08\x06", 19, false, {});
        add("a row too many", "\x08", 21, true, {});
        add("a row too many, with alpha", "\x08\x06", 21, true, {});
        add("bytes behind the rows", "\x08", 20, true, "more");
        add("bytes behind the rows, with alpha", "\x08\x06", 20, true, "more");
        add("no bits", "", 20, false, {});
        add("grey of 3 bits", "\3", 20, false, {});
        add("colors of 1 bit", "\1\2", 20, false, {});
        add("palette of 16 bits", "\x10\3", 20, false, {});
        add("unknown filters", QByteArray("\x08\0\0\x40", 4), 20, false, {});
    }

    /// Damage that the checksums do not show is found out; what is there beside the picture is not damage.
    void impossiblePngs()
    {
        const auto [bytes, rows, isPossible, behind] = row<QByteArray, int, bool, QByteArray>();
        const QByteArray kind = bytes.leftJustified(5, '\0');
        const int bits = kind[0] * (kind[1] == 6 ? 4 : kind[1] == 2 ? 3 : 1);
        const QByteArray row = '\0' + QByteArray((30 * bits + 7) / 8, '\x77');
        samples::store(
            pathOf(u"photo.png"_s),
            samples::pngOf(samples::pngHeader(QSize(30, 20), 0).first(8) + kind, row.repeated(rows), behind));
        const auto photo = Photo::open(pathOf(u"photo.png"_s));
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QCOMPARE(photo && PdfWriter::write(*photo, portraitPage, buffer), isPossible);
        if (!isPossible)
            return;
        samples::store(pathOf(u"photo.pdf"_s), buffer.data());
        QVERIFY(!rendered().isNull());
    }

    void transparentPngsLieOnWhite_data()
    {
        const auto add = rows<char, bool>();
        add("color", '\6', false);
        add("color, interlaced", '\6', true);
        add("grey", '\4', false);
        add("grey, interlaced", '\4', true);
    }

    void transparentPngsLieOnWhite()
    {
        const auto [colorType, isInterlaced] = row<char, bool>();
        const QSize size(19, 11);
        const int colors = colorType == 4 ? 1 : 3;
        const auto numberAt = [](int x, int y, int index) {
            return (x * 13 + y * 7 + index * 50) % 256;
        };
        QList<QRect> passes{QRect(0, 0, 1, 1)}; // where each begins, and its steps
        if (isInterlaced)
            passes = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                      {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
        QByteArray rows;
        for (const QRect &pass : std::as_const(passes)) {
            for (int y = pass.y(); y < size.height(); y += pass.height()) {
                rows += '\0';
                for (int x = pass.x(); x < size.width(); x += pass.width()) {
                    for (int i = 0; i <= colors; ++i)
                        rows += static_cast<char>(numberAt(x, y, i));
                }
            }
        }
        const Photo photo = photoOf(samples::pngOf(samples::pngHeader(size, colorType, isInterlaced), rows));
        pdfOf(photo, portraitPage, PdfWriter::Embedding::Pixels);
        const QImage printed = QImage::fromData(embedded(u"png"_s)).convertToFormat(QImage::Format_RGB888);
        QCOMPARE(printed.size(), size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const double opacity = numberAt(x, y, colors) / 255.0;
                const QRgb pixel = printed.pixel(x, y);
                for (int i = 0; i < 3; ++i) {
                    const double wanted = numberAt(x, y, i % colors) * opacity + 255 * (1 - opacity);
                    QVERIFY(std::abs((pixel >> (16 - 8 * i) & 0xff) - wanted) < 1);
                }
            }
        }
        QCOMPARE(photo.preview(size).convertToFormat(printed.format()), printed);
    }

    /// By a profile that swaps red and green: applied once, whichever way the photo goes in, and in the
    /// preview.
    void profileIsAppliedOnce_data()
    {
        const auto add = rows<QByteArray, QString>();
        const QImage picture = samples::quarters(QSize(300, 200));
        QImage tagged = picture;
        tagged.setColorSpace(QColorSpace::fromIccProfile(samples::swappedProfile()));
        const QByteArray jpeg = samples::encoded(picture, "jpeg");
        const QByteArray png = samples::encoded(tagged, "png");
        const QByteArray cmyk = samples::redCmykJpeg();
        const QByteArray grey = samples::encoded(picture.convertToFormat(QImage::Format_Grayscale8), "jpeg");
        add("JPEG", samples::withProfile(jpeg, samples::swappedProfile()), u"GRBY"_s);
        add("PNG", png, u"GRBY"_s);
        add("PNG with alpha", samples::encoded(tagged.convertToFormat(QImage::Format_ARGB32), "png"),
            u"GRBY"_s);
        add("JPEG that is decoded",
            samples::withProfile(jpeg.first(2) + "\xff\xff" + jpeg.sliced(2), samples::swappedProfile()),
            u"GRBY"_s);
        add("JPEG, profile damaged", samples::withProfile(jpeg, QByteArray(400, 'x')), u"RGBY"_s);
        add("CMYK with a profile of RGB", samples::withProfile(cmyk, samples::swappedProfile()), u"RRRR"_s);
    }

    void profileIsAppliedOnce()
    {
        const auto [content, corners] = row<QByteArray, QString>();
        const Photo photo = photoOf(content);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(PdfWriter::write(photo, landscapePage, buffer));
        samples::store(pathOf(u"photo.pdf"_s), buffer.data());
        const QImage preview = photo.preview(QSize(300, 300));
        const QRectF target =
            preview.width() == preview.height() ? QRectF(95, 10, 250, 250) : QRectF(32.5, 10, 375, 250);
        QCOMPARE(samples::cornersOf(rendered(), target, 10), corners);
        QCOMPARE(samples::cornersOf(preview, preview.rect(), 5), corners);
    }

    void tiffIsTurnedOnce()
    {
        QByteArray tiff;
        QBuffer buffer(&tiff);
        QImageWriter writer(&buffer, "tiff");
        if (!writer.canWrite())
            QSKIP("no image plug-in for TIFF here");
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        QVERIFY(writer.write(samples::quarters(QSize(300, 200))));
        const Photo photo = photoOf(tiff);
        QCOMPARE(photo.orientation().value(), 6);
        pdfOf(photo, portraitPage, PdfWriter::Embedding::Pixels);
        QCOMPARE(samples::cornersOf(rendered(), QRectF(20, 22.5, 250, 375), 3), samples::seenCorners[6]);
    }

    void metadata()
    {
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(30, 20)), "jpeg");
        const Photo photo = photoOf(jpeg, u"Zo\u00eb\n\u202e(1).jpg"_s);
        const QByteArray pdf = pdfOf(photo, portraitPage, PdfWriter::Embedding::OriginalJpeg);
        const QString information = run(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, pathOf(u"photo.pdf"_s)});
        for (const QString &line : {u"Title: +Zo\u00eb \\(1\\)\\.jpg"_s, u"Creator: +corvel-print"_s,
                                    u"Pages: +1"_s, u"Page size: +288 x 432 pts.*"_s})
            QVERIFY2(information.contains(
                         QRegularExpression(u"^%1$"_s.arg(line), QRegularExpression::MultilineOption)),
                     qPrintable(information));
        const qint64 second = QDateTime::currentSecsSinceEpoch(); // which must not get into the file
        QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() > second);
        QVERIFY(pdfOf(photo, portraitPage, PdfWriter::Embedding::OriginalJpeg) == pdf);
    }

    void faults_data()
    {
        const auto add = rows<QSizeF, QRectF, QString, int>();
        const QSizeF size(288, 432);
        const QRectF whole(QPointF(0, 0), size);
        const int page = int(PdfFault::PageUnusable);
        const QString null = u"/dev/null"_s;
        add("page without a size", QSizeF(), whole, null, page);
        add("page of no number", QSizeF(std::numeric_limits<double>::quiet_NaN(), 432), whole, null, page);
        add("page beyond what a PDF has", QSizeF(288, 1e9), whole, null, page);
        add("nothing imageable", size, QRectF(10, 10, 0, 400), null, page);
        add("full disk", size, whole, u"/dev/full"_s, int(PdfFault::WriteFailed));
        add("pixels that cannot be decoded", size, whole, null, int(PdfFault::PhotoUnusable));
    }

    void faults()
    {
        const auto [size, imageable, device, fault] = row<QSizeF, QRectF, QString, int>();
        const QByteArray content = fault == int(PdfFault::PhotoUnusable)
                                       ? samples::undecodableJpeg()
                                       : samples::encoded(samples::quarters(QSize(30, 20)), "jpeg");
        QFile file(device);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const auto written = PdfWriter::write(photoOf(content), {size, imageable}, file);
        QVERIFY(!written);
        QCOMPARE(int(written.failure().reason), fault);
        QVERIFY(!written.failure().text.isEmpty());
    }
};

CORVEL_TEST(PdfWriterTest)
#include "PdfWriterTest.moc"
