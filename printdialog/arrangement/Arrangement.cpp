// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Arrangement.h"

#include "PlainText.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QSet>

namespace printdialog {

SheetPlan Arrangement::plan(const PageGeometry &page) const
{
    QList<LayoutItem> items;
    items.reserve(photos.size());
    for (const PlacedPhoto &placed : photos)
        items += LayoutItem{placed.photo.orientedSize(), placed.photo.printedResolution(), placed.placement,
                            placed.copies};
    return SheetPlan::make(items, layout, page);
}

PrintSheet Arrangement::sheet(const LaidSheet &laid) const
{
    PrintSheet sheet;
    sheet.cutMarks = laid.cutMarks;
    sheet.copies = laid.copies;
    for (const LaidPhoto &photo : laid.photos) {
        const PlacedPhoto &placed = photos.at(photo.item);
        sheet.photos += SheetPhoto{placed.photo, photo.placement, placed.isAccepted, {}, photo.caption};
        if (!photo.caption.isEmpty())
            sheet.photos.last().caption = captionOf(placed.photo, layout.caption);
    }
    sheet.name = sheet.photos.constFirst().photo.fileName();
    QSet<qsizetype> items;
    for (const LaidPhoto &photo : laid.photos)
        items.insert(photo.item);
    const qsizetype others = items.size() - 1;
    if (others > 0)
        sheet.name = tr("%1 and %2 more", "the name of a sheet with several photos")
                         .arg(sheet.name, QString::number(others));
    return sheet;
}

void Arrangement::setStyle(const ArrangementStyle &style)
{
    layout = style.layout;
    for (PlacedPhoto &placed : photos)
        placed.placement = style.placement;
}

QStringList Arrangement::paths() const
{
    QStringList paths;
    for (const PlacedPhoto &placed : photos)
        paths += QFileInfo(placed.photo.path()).absoluteFilePath();
    return paths;
}

QList<PlacementChoice> Arrangement::placements() const
{
    QList<PlacementChoice> placements;
    for (const PlacedPhoto &placed : photos)
        placements += placed.placement;
    return placements;
}

Arrangement Arrangement::unplaced() const
{
    Arrangement plain{photos, {}};
    for (PlacedPhoto &placed : plain.photos)
        placed.placement = {};
    return plain;
}

QStringList Arrangement::captionOf(const Photo &photo, Caption caption)
{
    QStringList lines;
    if (caption == Caption::FileName || caption == Caption::Both)
        lines += plainText(photo.fileName());
    if (caption == Caption::Date || caption == Caption::Both)
        lines += QLocale().toString(photo.taken().value_or(photo.modified().toLocalTime()).date(),
                                    QLocale::ShortFormat);
    return lines;
}

} // namespace printdialog
