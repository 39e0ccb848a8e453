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
};

CORVEL_TEST(PhotoPixelsTest)
#include "PhotoPixelsTest.moc"
