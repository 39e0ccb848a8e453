// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QColorSpace>
#include <QtTest/QTest>

#include <lcms2.h>

#include <cmath>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

/// The ICC profile of grey values that are proportional to the light.
QByteArray linearGreyProfile()
{
    cmsToneCurve *curve = cmsBuildGamma(nullptr, 1);
    cmsHPROFILE profile = cmsCreateGrayProfile(cmsD50_xyY(), curve);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray icc(qsizetype(size), '\0');
    cmsSaveProfileToMem(profile, icc.data(), &size);
    cmsCloseProfile(profile);
    cmsFreeToneCurve(curve);
    return icc;
}

/// Of the color components; large when the sizes differ.
double meanDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size() || one.isNull())
        return 255;
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum +=
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

} // namespace

/// The pixels that adjustments are shown on.
class PhotoPixelsTest : public QObject
{
    Q_OBJECT

private:
    Photo photoOf(const QByteArray &content) const
    {
        samples::store(folder_.filePath(u"photo"_s), content);
        const auto photo = Photo::open(folder_.filePath(u"photo"_s));
        if (!photo)
            qFatal("%s", qPrintable(photo.failure().text));
        return *photo;
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    /// The profile swaps red and green: what is not converted keeps its corners.
    void colors_data()
    {
        const auto add = rows<QByteArray, QByteArray, QString>();
        const QByteArray swapped = samples::swappedProfile();
        const QImage picture = samples::quarters(QSize(300, 200));
        QImage tagged = picture;
        tagged.setColorSpace(QColorSpace::fromIccProfile(swapped));
        QImage holed = tagged.convertToFormat(QImage::Format_ARGB32);
        for (int y = 100; y < 200; ++y) {
            for (int x = 0; x < 150; ++x)
                holed.setPixel(x, y, 0);
        }
        const QByteArray jpeg = samples::encoded(picture, "jpeg");
        const QByteArray srgb = QColorSpace(QColorSpace::SRgb).iccProfile();
        add("JPEG", samples::withProfile(jpeg, swapped), swapped, u"RGBY"_s);
        add("JPEG without a profile", jpeg, {}, u"RGBY"_s);
        add("JPEG with the profile of sRGB", samples::withProfile(jpeg, srgb), {}, u"RGBY"_s);
        add("PNG", samples::encoded(tagged, "png"), swapped, u"RGBY"_s);
        add("PNG with transparent pixels", samples::encoded(holed, "png"), swapped, u"RGWY"_s);
        add("CMYK with a profile of RGB", samples::withProfile(samples::redCmykJpeg(), swapped), {},
            u"RRRR"_s);
    }

    void colors()
    {
        const auto [content, profile, corners] = row<QByteArray, QByteArray, QString>();
        const Photo photo = photoOf(content);
        QCOMPARE(photo.pixelProfile(), profile);
        for (const QSize &bound : {QSize(1000, 1000), QSize(100, 100)}) {
            const QImage pixels = photo.pixels(bound);
            QCOMPARE(pixels.size(), photo.preview(bound).size());
            QCOMPARE(pixels.format(), QImage::Format_RGB32);
            QCOMPARE(samples::cornersOf(pixels, pixels.rect(), 4), corners);
        }
    }

    /// A picture of grey pixels is converted to sRGB, also when it is scaled down.
    void greyProfile()
    {
        QImage grey(QSize(300, 200), QImage::Format_Grayscale8);
        grey.fill(QColor(128, 128, 128));
        const Photo photo =
            photoOf(samples::withProfile(samples::encoded(grey, "jpeg"), linearGreyProfile()));
        QVERIFY(photo.pixelProfile().isEmpty());
        for (const QSize &bound : {QSize(1000, 1000), QSize(100, 100)}) {
            for (const QImage &image : {photo.pixels(bound), photo.preview(bound)}) {
                const int shown = image.pixelColor(20, 20).green();
                QVERIFY2(qAbs(shown - 188) <= 1, qPrintable(QString::number(shown)));
            }
        }
    }

    void parts_data()
    {
        const auto add = rows<QByteArray>();
        const QImage picture = samples::grain(QSize(403, 287));
        const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
        const QByteArray jpeg = samples::encoded(picture, "jpeg");
        for (int orientation = 1; orientation <= 8; ++orientation)
            add(qPrintable(u"JPEG, orientation %1"_s.arg(orientation)),
                samples::withOrientation(jpeg, orientation));
        add("progressive JPEG with a profile",
            samples::withProfile(samples::encoded(picture, "jpeg", true), samples::swappedProfile()));
        add("grey JPEG with a profile",
            samples::withProfile(samples::encoded(grey, "jpeg"), linearGreyProfile()));
        add("CMYK", samples::redCmykJpeg());
        add("PNG", samples::encoded(picture, "png"));
        add("grey PNG", samples::encoded(grey, "png"));
        add("BMP", samples::encoded(picture, "bmp"));
    }

    /// Parts of a photo are what the scaled photo shows there.
    void parts()
    {
        const auto [content] = row<QByteArray>();
        const Photo photo = photoOf(content);
        const QRectF unit(0, 0, 1, 1);
        for (const double scale : {2.0, 1.0, 0.63, 0.29, 0.1, 0.001}) {
            const QSize whole = (QSizeF(photo.orientedSize()) * scale).toSize().expandedTo(QSize(1, 1));
            const QImage scaled = photo.pixels(whole);
            for (const QRectF &part :
                 {unit, QRectF(0.31, 0.47, 0.35, 0.29), QRectF(-0.5, -0.5, 0.6, 0.8), QRectF(0.8, 0.77, 9, 9),
                  QRectF(0.6, 0.3, 1e-9, 1e-9), QRectF(0.2, 0, 0.01, 1)}) {
                const PhotoPart found = photo.part(part, scaled.size());
                const QTransform toPixels = QTransform::fromScale(scaled.width(), scaled.height());
                const QRectF pixels = toPixels.mapRect(found.area);
                const QRectF wanted = toPixels.mapRect(part & unit);
                QVERIFY(pixels.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(wanted));
                QVERIFY(wanted.adjusted(-1, -1, 1, 1).contains(pixels));
                QCOMPARE(found.image.format(), QImage::Format_RGB32);
                const double difference = meanDifference(found.image, scaled.copy(pixels.toRect()));
                // Decoders scale in steps of their own.
                QVERIFY2(difference <= (scale < 1 ? 2 : 0),
                         qPrintable(u"%1 at %2"_s.arg(difference).arg(scale)));
            }
        }
        QVERIFY(photo.part(QRectF(1.01, 0, 1, 1), photo.orientedSize()).image.isNull());
    }

    void partsOfLargePhotosNeedLittleMemory_data()
    {
        const auto add = rows<QByteArray>();
        QImage picture(QSize(8000, 6000), QImage::Format_Grayscale8);
        picture.fill(Qt::white);
        add("JPEG", samples::encoded(picture, "jpeg"));
        add("PNG", samples::encoded(picture, "png"));
    }

    void partsOfLargePhotosNeedLittleMemory()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("AddressSanitizer's own memory leaves no room for a limit.");
#endif
        const auto [content] = row<QByteArray>();
        const Photo photo = photoOf(content);
        PhotoPart part;
        QImage whole;
        {
            const samples::MemoryLimit limit(16 << 20);
            part = photo.part(QRectF(0.5, 0.5, 0.1, 0.1), photo.orientedSize());
            whole = photo.pixels(photo.orientedSize());
        }
        QCOMPARE(part.image.size(), QSize(800, 600));
        QVERIFY(whole.isNull());
    }

    void partIsGivenUp()
    {
        const QImage picture = samples::grain(QSize(300, 200));
        const std::atomic<bool> isGivenUp = true;
        for (const char *format : {"jpeg", "png"}) {
            const Photo photo = photoOf(samples::encoded(picture, format));
            QVERIFY(photo.part(QRectF(0, 0, 1, 1), picture.size(), &isGivenUp).image.isNull());
        }
        const Photo undecodable = photoOf(samples::undecodableJpeg());
        QVERIFY(undecodable.part(QRectF(0, 0, 1, 1), picture.size()).image.isNull());
    }
};

CORVEL_TEST(PhotoPixelsTest)
#include "PhotoPixelsTest.moc"
