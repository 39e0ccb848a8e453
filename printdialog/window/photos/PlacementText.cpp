// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlacementText.h"

#include "PagePlaces.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace {

constexpr double centimetresPerInch = 2.54;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PlacementText)
};

QString sizeText(const QSizeF &points)
{
    const QLocale locale;
    const bool usesInches = locale.measurementSystem() == QLocale::ImperialUSSystem;
    const QSizeF size = points / pointsPerInch * (usesInches ? 1 : centimetresPerInch);
    const QString width = locale.toString(size.width(), 'f', usesInches ? 2 : 1);
    const QString height = locale.toString(size.height(), 'f', usesInches ? 2 : 1);
    return usesInches ? Text::tr("%1 × %2 in").arg(width, height) : Text::tr("%1 × %2 cm").arg(width, height);
}

/// The size of the page itself, and how much larger it is printed.
QStringList pageParts(const Document &document, int page, const PhotoPlacement &placement)
{
    constexpr double percent = 100;
    const QSizeF size = document.pageSize(page);
    const auto longer = [](const QSizeF &sides) {
        return std::max(sides.width(), sides.height());
    };
    const double scale = longer(placement.target.size()) / longer(size);
    return {Text::tr("Page of %1", "and its size").arg(sizeText(size)),
            Text::tr("printed at %1 %").arg(QLocale().toString(scale * percent, 'f', 0))};
}

QStringList photoParts(const Photo &photo, const PhotoPlacement &placement, const PlacementChoice &choice)
{
    // A print with a size of its own, or else the photo, of which a part may be cut off.
    QSizeF points = choice.size ? placement.outline.size() : placement.target.size();
    if (placement.pageTurns != 0) // the page is shown on its side
        points.transpose();
    const QSize seen = photo.orientedSize();
    const int shorter = std::min(seen.width(), seen.height());
    const double shorterSide = std::min(placement.target.width(), placement.target.height());
    const int perInch = qRound(shorter / shorterSide * pointsPerInch);
    return {sizeText(points), choice.scaling == Scaling::ActualSize && !photo.resolution()
                                  ? Text::tr("%1 pixels per inch (the file names none)").arg(perInch)
                                  : Text::tr("%1 pixels per inch").arg(perInch)};
}

} // namespace

QString placementText(const Photo &photo, const PhotoPlacement &placement, const PlacementChoice &choice,
                      const PageGeometry &page)
{
    QStringList parts = photo.document() ? pageParts(*photo.document(), photo.page(), placement)
                                         : photoParts(photo, placement, choice);
    if (const double cutOff = cutOffShare(photo.document(), placement, page); cutOff >= 0.001)
        parts += Text::tr("%1 % cut off").arg(std::ceil(cutOff * 100));
    for (QString &part : parts)
        part.replace(u' ', QChar(QChar::Nbsp)); // so that lines break between the parts only
    return parts.join(QStringLiteral(" · "));
}

} // namespace printdialog
