// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ReadyMedia.h"

#include "IppAttributes.h"
#include "IppNames.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

constexpr double hundredthsPerPoint = 2540.0 / 72;
constexpr double sameSize = 50; // hundredths of a millimeter

std::pair<int, int> rangeOf(const IppAttributes &size, const QString &name)
{
    const IppValue value = size.values(name).value(0);
    return {value.number, value.kind == IppValue::Kind::Range ? value.upper : value.number};
}

bool isAbout(double length, int least, int most)
{
    return length >= least - sameSize && length <= most + sameSize;
}

} // namespace

ReadyMedia::ReadyMedia(const IppAttributes &printer)
{
    const QList<IppValue> entries = printer.values(QStringLiteral("media-col-ready"));
    for (const IppValue &entry : entries) {
        const IppValue size =
            entry.members ? entry.members->values(ippnames::mediaSize).value(0) : IppValue();
        if (!size.members)
            continue;
        const auto [leastWidth, mostWidth] = rangeOf(*size.members, QStringLiteral("x-dimension"));
        const auto [leastLength, mostLength] = rangeOf(*size.members, QStringLiteral("y-dimension"));
        if (mostWidth > 0 && mostLength > 0)
            loaded_.append({leastWidth, mostWidth, leastLength, mostLength});
    }
    if (isKnown())
        return;
    const QStringList names = printer.texts(QStringLiteral("media-ready"));
    for (const QString &name : names) {
        const pwg_media_t *media = pwgMediaForPWG(name.toUtf8().constData());
        if (media && media->width > 0 && media->length > 0)
            loaded_.append({media->width, media->width, media->length, media->length});
    }
}

bool ReadyMedia::has(const QSizeF &points) const
{
    const QSizeF size = points * hundredthsPerPoint;
    return std::ranges::any_of(loaded_, [&size](const Sides &sides) {
        const auto fits = [&sides](double width, double length) {
            return isAbout(width, sides.leastWidth, sides.mostWidth) &&
                   isAbout(length, sides.leastLength, sides.mostLength);
        };
        return fits(size.width(), size.height()) || fits(size.height(), size.width());
    });
}

} // namespace printdialog
