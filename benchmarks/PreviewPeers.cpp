// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewPeers.h"

#include "BenchPicture.h"
#include "BenchTable.h"
#include "LcmsObjects.h"

#include <array>
#include <cmath>
#include <memory>

#ifdef CORVEL_BENCH_VIPS
#include <vips/vips.h>
#endif

namespace {

using printdialog::lcms::Profile;
using printdialog::lcms::Transform;

constexpr cmsUInt32Number noCache = cmsFLAGS_NOCACHE;

double medianOf(const std::function<void()> &work)
{
    std::vector<double> times;
    work(); // warms up
    for (int run = 0; run < benchRuns; ++run)
        times.push_back(millisecondsOf(work));
    return median(times);
}

/// An RGB profile whose green has this place in the chromaticity diagram.
Profile profileWith(double gamma, double greenX, double greenY)
{
    const cmsCIExyY white{0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1}, {greenX, greenY, 1}, {0.15, 0.06, 1}};
    cmsToneCurve *curve = cmsBuildGamma(nullptr, gamma);
    const std::array<cmsToneCurve *, 3> curves{curve, curve, curve};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves.data()));
    cmsFreeToneCurve(curve);
    return profile;
}

/// From sRGB to a space of a higher gamma, as a link.
Profile deviceLink()
{
    const Profile srgb(cmsCreate_sRGBProfile());
    const Profile other = profileWith(2.4, 0.21, 0.71);
    const cmsUInt32Number flags = cmsFLAGS_GRIDPOINTS(33) | cmsFLAGS_FORCE_CLUT | noCache;
    const Transform transform(cmsCreateTransform(srgb.get(), TYPE_RGB_8, other.get(), TYPE_RGB_8,
                                                 INTENT_RELATIVE_COLORIMETRIC, flags));
    constexpr double version = 4.3;
    return Profile(cmsTransform2DeviceLink(transform.get(), version, flags));
}

} // namespace

QByteArray benchProfile(double gamma, double greenX, double greenY)
{
    const Profile profile = profileWith(gamma, greenX, greenY);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    QByteArray bytes(size, '\0');
    cmsSaveProfileToMem(profile.get(), bytes.data(), &size);
    return bytes;
}

double lcmsMilliseconds(const QSize &size)
{
    const QImage from = picture(size).convertToFormat(QImage::Format_RGB32);
    QImage to(size, QImage::Format_RGB32);
    const Profile link = deviceLink();
    cmsHPROFILE profile = link.get();
    const Transform transform(
        cmsCreateMultiprofileTransform(&profile, 1, TYPE_BGRA_8, TYPE_BGRA_8, INTENT_PERCEPTUAL, noCache));
    if (!transform)
        qFatal("lcms2 makes no transform of its link");
    const auto pixels = static_cast<cmsUInt32Number>(size.width() * size.height());
    uchar *out = to.bits();
    return medianOf([&] { cmsDoTransform(transform.get(), from.constBits(), out, pixels); });
}

#ifdef CORVEL_BENCH_VIPS
namespace {

using Image = std::unique_ptr<VipsImage, decltype(&g_object_unref)>;

/// The result of an operation, which has to succeed.
template <class Operation>
Image made(const Operation &operation)
{
    VipsImage *image = nullptr;
    if (operation(&image) != 0)
        qFatal("libvips: %s", vips_error_buffer());
    return {image, g_object_unref};
}

/// Writes the adjusted pixels to memory.
void adjust(VipsImage *picture, VipsImage *curves, VipsImage *matrix)
{
    constexpr double radius = 3;
    const Image toned = made([&](VipsImage **out) { return vips_maplut(picture, out, curves, nullptr); });
    const Image colored =
        made([&](VipsImage **out) { return vips_recomb(toned.get(), out, matrix, nullptr); });
    const Image rounded = made([&](VipsImage **out) { return vips_cast_uchar(colored.get(), out, nullptr); });
    const Image blurred =
        made([&](VipsImage **out) { return vips_gaussblur(rounded.get(), out, radius, nullptr); });
    const Image detail =
        made([&](VipsImage **out) { return vips_subtract(rounded.get(), blurred.get(), out, nullptr); });
    const Image sharp =
        made([&](VipsImage **out) { return vips_add(rounded.get(), detail.get(), out, nullptr); });
    const Image result = made([&](VipsImage **out) { return vips_cast_uchar(sharp.get(), out, nullptr); });
    std::size_t size = 0;
    g_free(vips_image_write_to_memory(result.get(), &size));
}

} // namespace

std::optional<double> vipsMilliseconds(const QSize &size)
{
    if (VIPS_INIT("corvel-bench") != 0)
        return std::nullopt;
    vips_cache_set_max(0); // each step has other curves
    const QImage from = picture(size).convertToFormat(QImage::Format_RGB888);
    std::vector<uchar> pixels;
    for (int y = 0; y < size.height(); ++y)
        pixels.insert(pixels.end(), from.constScanLine(y),
                      from.constScanLine(y) + std::ptrdiff_t(size.width()) * 3);
    std::array<uchar, 768> tones = {};
    for (std::size_t i = 0; i < tones.size(); ++i)
        tones[i] = static_cast<uchar>(std::lround(255 * std::pow(static_cast<double>(i / 3) / 255, 0.9)));
    const Image picture(vips_image_new_from_memory(pixels.data(), pixels.size(), size.width(), size.height(),
                                                   3, VIPS_FORMAT_UCHAR),
                        g_object_unref);
    const Image curves(vips_image_new_from_memory(tones.data(), tones.size(), 256, 1, 3, VIPS_FORMAT_UCHAR),
                       g_object_unref);
    const Image matrix(vips_image_new_matrixv(3, 3, 1.1, -0.05, -0.05, -0.05, 1.1, -0.05, -0.05, -0.05, 1.1),
                       g_object_unref);
    return medianOf([&] { adjust(picture.get(), curves.get(), matrix.get()); });
}
#else
std::optional<double> vipsMilliseconds(const QSize & /*size*/)
{
    return std::nullopt;
}
#endif
