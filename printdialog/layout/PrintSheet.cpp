// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintSheet.h"

#include "PagePlaces.h"
#include "SheetPlan.h"

namespace printdialog {

namespace {

void addToCheck(QList<Photo> &checked, const PrintSheet &sheet)
{
    for (const SheetPhoto &laid : sheet.photos) {
        const auto isSame = [&laid](const Photo &photo) {
            return photo.path() == laid.photo.path();
        };
        if (!laid.isAccepted && !laid.photo.document() && std::ranges::none_of(checked, isSame))
            checked += laid.photo;
    }
}

} // namespace

PrintSheet PrintSheet::of(const Photo &photo, const PageGeometry &page, const PlacementChoice &choice,
                          bool isAccepted)
{
    const LayoutItem item = LayoutItem::of(photo, choice);
    PageFrame framed = {PhotoFrame::of(page), choice};
    if (item.isPage)
        framed = PageFrame::of(item.points(), choice, page);
    const auto placement =
        PhotoPlacement::place(item.seenSize, item.pixelsPerInch, framed.frame, framed.placement);
    return {photo.fileName(), {{photo, placement, isAccepted}}};
}

QList<Photo> PrintSheet::photosToCheck() const
{
    QList<Photo> checked;
    addToCheck(checked, *this);
    return checked;
}

bool PrintSheet::isPlain() const
{
    return photos.size() == 1 && cutMarks.isEmpty() && photos.constFirst().caption.isEmpty() &&
           !photos.constFirst().placement.border.isThere();
}

bool PrintSheet::hasPages() const
{
    return std::ranges::any_of(photos, [](const SheetPhoto &laid) { return laid.photo.document(); });
}

bool PrintSheet::isReadTurned() const
{
    return photos.size() > 1 && std::ranges::all_of(photos, [](const SheetPhoto &laid) {
               return laid.photo.document() && laid.placement.pageTurns == 1;
           });
}

QList<Photo> JobSheets::photosToCheck() const
{
    QList<Photo> checked;
    for (const PrintSheet &sheet : sheets)
        addToCheck(checked, sheet);
    return checked;
}

} // namespace printdialog
