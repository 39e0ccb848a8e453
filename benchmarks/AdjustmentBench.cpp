// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchPicture.h"
#include "BenchTable.h"
#include "Benches.h"
#include "PictureAdjuster.h"

#include <QtGui/QColorSpace>

#include <lcms2.h>

#include <cmath>

namespace {

using namespace printdialog;

/// The median of several runs. Each gets another picture, since a result is kept.
template <class Work>
double timeOf(const QImage &image, const Work &work)
{
    const QImage pictures[] = {image, image.mirrored()};
    std::vector<double> times;
    for (int run = 0; run <= benchRuns; ++run) {
        const double time = millisecondsOf([&] { work(pictures[run % 2]); });
        if (run > 0)
            times.push_back(time);
    }
    return median(times);
}

double timeOf(const QImage &image, const pdekit::Adjustment &adjustment,
              const std::shared_ptr<const ColorLookup> &lookup = nullptr)
{
    PictureAdjuster adjuster;
    adjuster.setAdjustment(PictureAdjustment::of({adjustment}));
    adjuster.setLookup(lookup);
    return timeOf(image, [&adjuster](const QImage &picture) { (void)adjuster.adjusted(picture); });
}

pdekit::Adjustment colors()
{
    pdekit::Adjustment adjustment;
    for (auto &curve : adjustment.curves) {
        for (int i = 0; i < pdekit::Adjustment::curvePoints; ++i)
            curve.push_back(std::pow(i / 255.0, 0.9));
    }
    adjustment.matrix = {{{1.2, -0.1, -0.1}, {-0.1, 1.2, -0.1}, {-0.1, -0.1, 1.2}}};
    return adjustment;
}

pdekit::Adjustment sharpening(double radius)
{
    pdekit::Adjustment adjustment;
    adjustment.sharpeningRadius = radius;
    adjustment.sharpeningAmount = 1.5;
    return adjustment;
}

/// What a slider would wait for if lcms2 made each picture: a table of the same size, without making it.
double lcmsTime(const QImage &image, const QByteArray &icc)
{
    constexpr cmsUInt32Number flags = cmsFLAGS_BLACKPOINTCOMPENSATION;
    const cmsHPROFILE photo =
        cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size()));
    const cmsHPROFILE screen = cmsCreate_sRGBProfile();
    const cmsHTRANSFORM way =
        cmsCreateTransform(photo, TYPE_BGRA_8, screen, TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC, flags);
    const cmsHPROFILE link = cmsTransform2DeviceLink(way, 4.3, cmsFLAGS_FORCE_CLUT | cmsFLAGS_GRIDPOINTS(33));
    const cmsHTRANSFORM table =
        cmsCreateTransform(link, TYPE_BGRA_8, nullptr, TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC, 0);
    QImage result(image.size(), image.format());
    const double time = timeOf(image, [&](const QImage &picture) {
        cmsDoTransform(table, picture.constBits(), result.bits(),
                       static_cast<cmsUInt32Number>(picture.width() * picture.height()));
    });
    cmsDeleteTransform(table);
    cmsDeleteTransform(way);
    for (const cmsHPROFILE profile : {link, screen, photo})
        cmsCloseProfile(profile);
    return time;
}

} // namespace

void benchAdjustments()
{
    const QByteArray icc = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    const auto lookup = ColorLookup::make({icc, {}, {}});
    const struct
    {
        QSize size;
        double mostForColors;
        double mostForMask; ///< of the radius that is seen at most, 3 dots
        double largestRadius;
        double mostForLookup;
    } sizes[] = {{{900, 600}, 0.5, 3.5, 3.0, 2.7},
                 {{1800, 1200}, 2.0, 12.0, 6.0, 9.0}}; // the second one on a fine screen
    for (const auto &[size, mostForColors, mostForMask, largestRadius, mostForLookup] : sizes) {
        const QImage image = picture(size).convertToFormat(QImage::Format_RGB32);
        const auto what = [&area = size](const QString &step) {
            return QStringLiteral("preview of %1 x %2 pixels, %3")
                .arg(area.width())
                .arg(area.height())
                .arg(step);
        };
        printRow(
            {what(QStringLiteral("curves and matrix")), timeOf(image, colors()), {}, {}, {}, mostForColors});
        for (const double radius : {2.0, 3.0, 6.0})
            printRow({what(QStringLiteral("sharpened, radius %1").arg(radius)),
                      timeOf(image, sharpening(radius)),
                      {},
                      {},
                      {},
                      radius <= largestRadius ? std::optional(mostForMask) : std::nullopt});
        printRow({what(QStringLiteral("photo's profile to the screen's")),
                  timeOf(image, {}, lookup),
                  QStringLiteral("lcms2, 33^3"),
                  lcmsTime(image, icc),
                  {},
                  mostForLookup});
        PictureAdjuster adjuster;
        adjuster.setAdjustment(PictureAdjustment::of({colors()}));
        printRow({what(QStringLiteral("clipped tones")),
                  timeOf(image, [&](const QImage &each) { (void)adjuster.clippedTones(each, each.rect()); }),
                  {},
                  {},
                  {},
                  2.0 * mostForColors});
    }
}
