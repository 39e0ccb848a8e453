// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorWay.h"

#include "ColorProfile.h"
#include "LcmsObjects.h"

#include <algorithm>
#include <cstdint>

namespace printdialog {
namespace {

using lcms::Profile;
using lcms::Transform;

constexpr qsizetype largestProfile = 16 << 20; // bytes, as for photos

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

Transform transformOf(const Profile &from, cmsUInt32Number fromFormat, const Profile &to,
                      cmsUInt32Number toFormat, cmsUInt32Number more = 0)
{
    // Each color is converted only once: working out a quicker way would take longer.
    return Transform(cmsCreateTransform(from.get(), fromFormat, to.get(), toFormat,
                                        INTENT_RELATIVE_COLORIMETRIC,
                                        cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE | more));
}

bool convert(const Transform &transform, const void *from, void *to, std::size_t count)
{
    if (transform)
        cmsDoTransform(transform.get(), from, to, static_cast<cmsUInt32Number>(count));
    return transform != nullptr;
}

/// Numbers without a limit would pass the paper as if it could show all colors, so there they have 16 bits.
cmsUInt32Number paperFormat(const Profile &paper)
{
    switch (cmsGetColorSpace(paper.get())) {
    case cmsSigGrayData:
        return TYPE_GRAY_16;
    case cmsSigCmykData:
        return TYPE_CMYK_16;
    default:
        return TYPE_RGB_16;
    }
}

} // namespace

bool needsNoConversion(const ColorLookup::Way &way)
{
    return way.proof.isEmpty() && (way.photo == way.screen || (isSrgb(way.photo) && isSrgb(way.screen)));
}

std::vector<WideColor> converted(const ColorLookup::Way &way, std::vector<WideColor> colors)
{
    const Profile photo = opened(way.photo);
    const Profile screen = opened(way.screen);
    if (!isPhotos(photo) || !isScreens(screen))
        return {};
    constexpr cmsUInt32Number compensated = cmsFLAGS_BLACKPOINTCOMPENSATION;
    bool isDone = false;
    if (way.proof.isEmpty()) {
        isDone = convert(transformOf(photo, TYPE_RGB_FLT, screen, TYPE_RGB_FLT, compensated), colors.data(),
                         colors.data(), colors.size());
    } else if (const Profile paper = opened(way.proof); isPapers(paper)) {
        const cmsUInt32Number format = paperFormat(paper);
        std::vector<std::uint16_t> inks(colors.size() * T_CHANNELS(format));
        // The screen shows the paper's black as light as it is.
        isDone = convert(transformOf(photo, TYPE_RGB_FLT, paper, format, compensated), colors.data(),
                         inks.data(), colors.size()) &&
                 convert(transformOf(paper, format, screen, TYPE_RGB_FLT), inks.data(), colors.data(),
                         colors.size());
    }
    return isDone ? colors : std::vector<WideColor>();
}

} // namespace printdialog
