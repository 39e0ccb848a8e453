// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorLookup.h"
#include "PictureAdjuster.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QColorSpace>

#include <lcms2.h>

using namespace printdialog;

namespace {

struct Profile
{
    explicit Profile(cmsHPROFILE handle)
        : profile(handle)
    {
    }
    Profile(const Profile &) = delete;
    Profile &operator=(const Profile &) = delete;
    ~Profile() { cmsCloseProfile(profile); }

    cmsHPROFILE profile;
};

QByteArray bytesOf(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(size, '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    return bytes;
}

QByteArray rgb(QColorSpace::NamedColorSpace space)
{
    return QColorSpace(space).iccProfile();
}

QByteArray grey(cmsProfileClassSignature profileClass)
{
    cmsToneCurve *curve = cmsBuildGamma(nullptr, 2.2);
    const Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    cmsSetDeviceClass(profile.profile, profileClass);
    return bytesOf(profile.profile);
}

/// Four inks whose lightness falls with their sum, without a hue.
QByteArray cmyk()
{
    const Profile profile(cmsCreateProfilePlaceholder(nullptr));
    cmsSetProfileVersion(profile.profile, 2.1);
    cmsSetDeviceClass(profile.profile, cmsSigOutputClass);
    cmsSetColorSpace(profile.profile, cmsSigCmykData);
    cmsSetPCS(profile.profile, cmsSigLabData);
    const auto write = [&profile](cmsTagSignature tag, cmsUInt32Number from, cmsUInt32Number to,
                                  auto sampler) {
        cmsPipeline *pipeline = cmsPipelineAlloc(nullptr, from, to);
        cmsStage *table = cmsStageAllocCLut16bit(nullptr, 9, from, to, nullptr);
        cmsStageSampleCLut16bit(table, sampler, nullptr, 0);
        cmsPipelineInsertStage(pipeline, cmsAT_END, table);
        cmsWriteTag(profile.profile, tag, pipeline);
        cmsPipelineFree(pipeline);
    };
    write(
        cmsSigAToB0Tag, 4, 3, +[](const cmsUInt16Number *in, cmsUInt16Number *out, void *) -> cmsInt32Number {
            const int ink = (in[0] + in[1] + in[2]) / 4 + in[3] / 4;
            out[0] = static_cast<cmsUInt16Number>(0xff00 - ink * 0.9);
            out[1] = out[2] = 0x8000;
            return 1;
        });
    write(
        cmsSigBToA0Tag, 3, 4, +[](const cmsUInt16Number *in, cmsUInt16Number *out, void *) -> cmsInt32Number {
            std::fill_n(out, 4, static_cast<cmsUInt16Number>(0xffff - in[0]));
            return 1;
        });
    return bytesOf(profile.profile);
}

/// What lcms2 makes of the pixels, without a table; with a paper, in two steps.
std::vector<QRgb> byLcms(const ColorLookup::Way &way, std::vector<QRgb> pixels)
{
    const auto opened = [](const QByteArray &icc) {
        return icc.isEmpty() ? cmsCreate_sRGBProfile()
                             : cmsOpenProfileFromMem(icc.constData(), cmsUInt32Number(icc.size()));
    };
    const auto convert = [&pixels](const Profile &from, cmsUInt32Number fromFormat, const Profile &to,
                                   cmsUInt32Number toFormat, const void *in, void *out,
                                   cmsUInt32Number flags) {
        cmsHTRANSFORM transform =
            cmsCreateTransform(from.profile, fromFormat, to.profile, toFormat, INTENT_RELATIVE_COLORIMETRIC,
                               flags | cmsFLAGS_NOOPTIMIZE);
        cmsDoTransform(transform, in, out, cmsUInt32Number(pixels.size()));
        cmsDeleteTransform(transform);
    };
    const Profile photo(opened(way.photo));
    const Profile screen(opened(way.screen));
    const Profile paper(opened(way.proof));
    if (way.proof.isEmpty()) {
        convert(photo, TYPE_BGRA_8, screen, TYPE_BGRA_8, pixels.data(), pixels.data(),
                cmsFLAGS_BLACKPOINTCOMPENSATION);
        return pixels;
    }
    const cmsUInt32Number inks = cmsChannelsOf(cmsGetColorSpace(paper.profile));
    const cmsUInt32Number format = CHANNELS_SH(inks) | BYTES_SH(2);
    std::vector<quint16> printed(pixels.size() * inks);
    convert(photo, TYPE_BGRA_8, paper, format, pixels.data(), printed.data(),
            cmsFLAGS_BLACKPOINTCOMPENSATION);
    convert(paper, format, screen, TYPE_BGRA_8, printed.data(), pixels.data(), 0);
    return pixels;
}

std::vector<QRgb> randomPixels(std::size_t count)
{
    QRandomGenerator random(5);
    std::vector<QRgb> pixels(count);
    for (QRgb &pixel : pixels)
        pixel = random.generate() | 0xff000000;
    return pixels;
}

} // namespace

class ColorLookupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithLcms_data()
    {
        addRows<ColorLookup::Way>({
            {"photo in Adobe RGB", {rgb(QColorSpace::AdobeRgb), {}, {}}},
            {"photo in ProPhoto RGB", {rgb(QColorSpace::ProPhotoRgb), {}, {}}},
            {"screen of P3", {{}, rgb(QColorSpace::DisplayP3), {}}},
            {"paper in RGB", {rgb(QColorSpace::AdobeRgb), {}, rgb(QColorSpace::DisplayP3)}},
            {"paper with inks", {{}, {}, cmyk()}},
            {"paper in greys", {{}, {}, grey(cmsSigOutputClass)}},
        });
    }
    void agreesWithLcms()
    {
        const auto [way] = row<ColorLookup::Way>();
        const auto lookup = ColorLookup::make(way);
        QVERIFY(lookup);
        std::vector<QRgb> pixels = randomPixels(4003);
        const std::vector<QRgb> expected = byLcms(way, pixels);
        lookup->apply(pixels.data(), pixels.data(), int(pixels.size()));
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const auto off = [&](int shift) {
                return std::abs(int(pixels[i] >> shift & 0xff) - int(expected[i] >> shift & 0xff));
            };
            QVERIFY(off(16) <= 3 && off(8) <= 3 && off(0) <= 3 && qAlpha(pixels[i]) == 255);
        }
    }

    void greysStayNeutral()
    {
        const auto lookup = ColorLookup::make({rgb(QColorSpace::AdobeRgb), {}, {}});
        QVERIFY(lookup);
        for (int level = 0; level < 256; ++level) {
            QRgb pixel = qRgb(level, level, level);
            lookup->apply(&pixel, &pixel, 1);
            QVERIFY(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
            QVERIFY(level > 0 || qRed(pixel) == 0);
            QVERIFY(level < 255 || qRed(pixel) == 255);
        }
    }

    void nothingToConvert_data()
    {
        const QByteArray adobe = rgb(QColorSpace::AdobeRgb);
        addRows<ColorLookup::Way>({
            {"no profile", {}},
            {"all sRGB", {rgb(QColorSpace::SRgb), rgb(QColorSpace::SRgb), {}}},
            {"the screen's own", {adobe, adobe, {}}},
            {"no profile at all", {QByteArray(5000, 'x'), {}, {}}},
            {"cut off", {adobe.first(200), {}, {}}},
            {"too large", {adobe + QByteArray(17 << 20, '\0'), {}, {}}},
            {"grey photo", {grey(cmsSigInputClass), {}, {}}},
            {"photo with inks", {cmyk(), {}, {}}},
            {"grey screen", {{}, grey(cmsSigDisplayClass), {}}},
            {"paper as a screen", {{}, cmyk(), {}}},
            {"camera as paper", {{}, {}, grey(cmsSigInputClass)}},
            {"paper, damaged", {{}, {}, cmyk().first(1000)}},
        });
    }
    void nothingToConvert()
    {
        const auto [way] = row<ColorLookup::Way>();
        QVERIFY(!ColorLookup::make(way));
    }

    // The photo's own profile is applied nonetheless.
    void unusableProfilesCountAsNone()
    {
        const QByteArray adobe = rgb(QColorSpace::AdobeRgb);
        const auto shown = [](const ColorLookup::Way &way) {
            QRgb pixel = qRgb(40, 200, 90);
            if (const auto lookup = ColorLookup::make(way))
                lookup->apply(&pixel, &pixel, 1);
            return pixel;
        };
        const QRgb onSrgb = shown({adobe, {}, {}});
        QVERIFY(onSrgb != qRgb(40, 200, 90));
        QCOMPARE(shown({adobe, cmyk(), {}}), onSrgb);
        QCOMPARE(shown({adobe, {}, cmyk().first(1000)}), onSrgb);
        QCOMPARE(shown({adobe, grey(cmsSigDisplayClass), grey(cmsSigInputClass)}), onSrgb);
    }

    /// Whatever is in it: no crash, with the sanitizers no fault, either.
    void damagedProfiles()
    {
        QRandomGenerator random(11);
        const QByteArray sound[] = {cmyk().first(4000), cmyk(), rgb(QColorSpace::AdobeRgb)};
        for (int run = 0; run < 30; ++run) {
            QByteArray icc = sound[run % 3];
            for (int i = 0; i < 6; ++i)
                icc[random.bounded(128, int(std::min<qsizetype>(icc.size(), 700)))] =
                    char(random.bounded(256));
            const auto lookup =
                ColorLookup::make({run % 3 == 2 ? icc : QByteArray(), {}, run % 3 == 2 ? QByteArray() : icc});
            QRgb pixel = qRgb(1, 200, 90);
            if (lookup)
                lookup->apply(&pixel, &pixel, 1);
        }
    }

    /// The adjusted picture and the unadjusted one go to the screen alike, in one thread or in two.
    void pictureIsConvertedLast()
    {
        QImage image(200, 150, QImage::Format_RGB32);
        image.fill(qRgb(10, 200, 90));
        const auto lookup = ColorLookup::make({rgb(QColorSpace::AdobeRgb), {}, {}});
        PictureAdjuster adjuster;
        adjuster.setLookup(lookup);
        QRgb expected = image.pixel(0, 0);
        lookup->apply(&expected, &expected, 1);
        for (const QImage &result : {adjuster.adjusted(image), adjuster.unadjusted(image)}) {
            QImage filled = image;
            filled.fill(expected);
            QCOMPARE(result, filled);
        }
        pdekit::Adjustment swapped;
        swapped.matrix = {{{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}};
        adjuster.setAdjustment(PictureAdjustment::of({swapped}));
        expected = qRgb(200, 10, 90);
        lookup->apply(&expected, &expected, 1);
        QCOMPARE(adjuster.adjusted(image).pixel(199, 149), expected);
    }
};

CORVEL_TEST(ColorLookupTest)
#include "ColorLookupTest.moc"
