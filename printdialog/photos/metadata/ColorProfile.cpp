// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ColorProfile.h"

#include "LcmsObjects.h"

#include <QtGui/QColorSpace>

#include <algorithm>
#include <deque>
#include <mutex>

namespace printdialog {
namespace {

using lcms::Profile;
using lcms::Transform;

constexpr qsizetype largestProfile = 16 << 20; // bytes; the largest printer profiles have a few megabytes

Profile opened(const QByteArray &icc)
{
    if (icc.isEmpty() || icc.size() > largestProfile)
        return {};
    return Profile(cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size())));
}

int componentsOf(cmsHPROFILE profile)
{
    switch (cmsGetDeviceClass(profile)) {
    case cmsSigInputClass:
    case cmsSigDisplayClass:
    case cmsSigOutputClass:
    case cmsSigColorSpaceClass:
        break;
    default:
        return 0; // links between devices, named colors
    }
    switch (cmsGetColorSpace(profile)) {
    case cmsSigGrayData:
        return 1;
    case cmsSigRgbData:
        return 3;
    case cmsSigCmykData:
        return 4;
    default:
        return 0;
    }
}

} // namespace

/// Thousands of photos mostly have one of a few profiles, which need not be in memory for each of them.
ColorProfile ColorProfile::fromIcc(const QByteArray &icc)
{
    constexpr std::size_t most = 8;
    static std::mutex mutex;
    static std::deque<ColorProfile> recent;
    const std::lock_guard lock(mutex);
    const auto known = std::find_if(recent.cbegin(), recent.cend(),
                                    [&icc](const ColorProfile &profile) { return profile.icc_ == icc; });
    if (known != recent.cend() && !icc.isEmpty())
        return *known;
    const Profile profile = opened(icc);
    ColorProfile result;
    if (!profile || (result.components_ = componentsOf(profile.get())) == 0)
        return {};
    result.icc_ = icc;
    recent.push_back(result);
    if (recent.size() > most)
        recent.pop_front();
    return result;
}

bool ColorProfile::isSrgb() const
{
    return QColorSpace::fromIccProfile(icc_) == QColorSpace(QColorSpace::SRgb);
}

QImage ColorProfile::toScreen(const QImage &image) const
{
    const bool isGrey = image.format() == QImage::Format_Grayscale8;
    if (image.isNull() || components_ != (isGrey ? 1 : 3))
        return image;
    const Profile source = opened(icc_);
    const Profile screen(cmsCreate_sRGBProfile());
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage pixels = isGrey     ? image
                          : hasAlpha ? image.convertToFormat(QImage::Format_ARGB32)
                                     : image.convertToFormat(QImage::Format_RGB32);
    QImage result(image.size(), hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const Transform transform(cmsCreateTransform(source.get(), isGrey ? TYPE_GRAY_8 : TYPE_BGRA_8,
                                                 screen.get(), TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC,
                                                 cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA));
    if (!transform || result.isNull())
        return image;
    result.fill(Qt::white);
    for (int y = 0; y < pixels.height(); ++y)
        cmsDoTransform(transform.get(), pixels.constScanLine(y), result.scanLine(y),
                       static_cast<cmsUInt32Number>(pixels.width()));
    return result;
}

} // namespace printdialog
