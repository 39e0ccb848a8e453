// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorWay.h"

#include "ColorProfile.h"

#include <lcms2.h>

#include <algorithm>

namespace printdialog {
namespace {

struct ProfileCloser
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
struct TransformDeleter
{
    void operator()(void *transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;
using Transform = std::unique_ptr<void, TransformDeleter>;

constexpr qsizetype largestProfile = 4 << 20; // bytes

Profile opened(const QByteArray &icc)
{
    if (icc.size() > largestProfile)
        return {};
    return Profile(icc.isEmpty()
                       ? cmsCreate_sRGBProfile()
                       : cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size())));
}

bool isOneOf(std::uint32_t value, std::initializer_list<std::uint32_t> values)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

bool isPhotos(const Profile &profile)
{
    // Some photos have been converted for a printer, and say so.
    return profile && cmsGetColorSpace(profile.get()) == cmsSigRgbData &&
           isOneOf(cmsGetDeviceClass(profile.get()),
                   {cmsSigInputClass, cmsSigDisplayClass, cmsSigColorSpaceClass, cmsSigOutputClass});
}

bool isScreens(const Profile &profile)
{
    return profile && cmsGetColorSpace(profile.get()) == cmsSigRgbData &&
           cmsGetDeviceClass(profile.get()) == cmsSigDisplayClass;
}

bool isPapers(const Profile &profile)
{
    return profile &&
           isOneOf(cmsGetColorSpace(profile.get()), {cmsSigRgbData, cmsSigCmykData, cmsSigGrayData}) &&
           isOneOf(cmsGetDeviceClass(profile.get()), {cmsSigOutputClass, cmsSigDisplayClass});
}

bool isSrgb(const QByteArray &icc)
{
    return icc.isEmpty() || (icc.size() <= largestProfile && ColorProfile::fromIcc(icc).isSrgb());
}

Transform transformFor(const ColorLookup::Way &way)
{
    constexpr cmsUInt32Number intent = INTENT_RELATIVE_COLORIMETRIC;
    // Each color is converted only once: working out a quicker way would take longer.
    constexpr cmsUInt32Number flags =
        cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE;
    const Profile photo = opened(way.photo);
    const Profile screen = opened(way.screen);
    if (!isPhotos(photo) || !isScreens(screen))
        return {};
    if (way.proof.isEmpty())
        return Transform(
            cmsCreateTransform(photo.get(), TYPE_RGB_16, screen.get(), TYPE_RGB_16, intent, flags));
    const Profile proof = opened(way.proof);
    if (!isPapers(proof))
        return {};
    return Transform(cmsCreateProofingTransform(photo.get(), TYPE_RGB_16, screen.get(), TYPE_RGB_16,
                                                proof.get(), intent, intent, flags | cmsFLAGS_SOFTPROOFING));
}

} // namespace

std::vector<WideColor> converted(const ColorLookup::Way &way, const std::vector<WideColor> &colors)
{
    if (way.proof.isEmpty() && (way.photo == way.screen || (isSrgb(way.photo) && isSrgb(way.screen))))
        return {};
    const Transform transform = transformFor(way);
    if (!transform)
        return {};
    std::vector<WideColor> result(colors.size());
    cmsDoTransform(transform.get(), colors.data(), result.data(),
                   static_cast<cmsUInt32Number>(colors.size()));
    return result;
}

} // namespace printdialog
