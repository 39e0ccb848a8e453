// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MediaName.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <cmath>

namespace printdialog {

QString mediaName(const QSizeF &points)
{
    constexpr double hundredthsPerPoint = 2540.0 / 72;
    const auto hundredths = [](double length) {
        return static_cast<int>(std::lround(length * hundredthsPerPoint));
    };
    const pwg_media_t *media = pwgMediaForSize(hundredths(points.width()), hundredths(points.height()));
    return media && media->pwg ? QString::fromLatin1(media->pwg) : QString();
}

} // namespace printdialog
