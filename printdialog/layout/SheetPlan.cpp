// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetPlan.h"

#include "PagePlaces.h"
#include "SheetPlaces.h"

#include <algorithm>

namespace printdialog {

namespace {

using Kind = SheetLayout::Kind;

/// How many places the layout has on a sheet; 0: as many as there is room for.
qsizetype expectedPlaces(const SheetLayout &layout)
{
    switch (layout.kind) {
    case Kind::Grid:
    case Kind::Contact:
        return qsizetype(layout.rows) * layout.columns;
    case Kind::Strips:
        return qsizetype(2) * layout.stripPhotos;
    case Kind::Pages:
        return layout.pagesPerSheet;
    case Kind::Booklet:
        return 2;
    case Kind::Single:
    case Kind::ManyOfSize:
        break;
    }
    return 0;
}

} // namespace

/// Fills sheet after sheet.
class SheetPlan::Maker
{
public:
    Maker(SheetPlan &plan, const QList<LayoutItem> &items, const SheetLayout &layout,
          const PageGeometry &page)
        : plan_(plan)
        , items_(items)
        , layout_(layout)
        , page_(page)
    {
    }

    void make()
    {
        if (layout_.kind == Kind::Booklet)
            makeBooklet();
        else
            fillSheets();
    }

private:
    void fillSheets()
    {
        qsizetype prints = 0;
        for (qsizetype i = 0; i < items_.size() && prints <= mostPrints; ++i) {
            usePlacesFor(i);
            const bool fillsSheets = layout_.kind == Kind::Single || isFilledByOne();
            const int copies = std::max(1, items_.at(i).copies);
            prints += fillsSheets ? places_.size() : copies;
            if (prints > mostPrints)
                failAsTooMany(i);
            else if (fillsSheets)
                fillSheet(i, copies);
            else
                for (int copy = 0; copy < copies; ++copy)
                    append(i);
        }
        finishSheet();
    }

    void makeBooklet()
    {
        QList<qsizetype> pages;
        for (qsizetype i = 0; i < items_.size(); ++i) {
            if (pages.size() + items_.at(i).copies > mostPrints)
                return failAsTooMany(i);
            pages.insert(pages.size(), std::max(1, items_.at(i).copies), i);
        }
        if (pages.isEmpty())
            return;
        usePlacesFor(0);
        const QList<qsizetype> order = bookletOrder(pages.size());
        for (qsizetype place = 0; place < order.size(); ++place) {
            if (order.at(place) >= 0)
                put(pages.at(order.at(place)), places_.at(std::min(place % 2, places_.size() - 1)));
            if (place % 2 != 0)
                finishSheet();
        }
    }

    bool isFilledByOne() const { return layout_.isRepeated && layout_.kind != Kind::Strips; }

    void fail(LayoutFault::Kind kind, qsizetype item, const QString &text)
    {
        if (!plan_.failure_)
            plan_.failure_ = Failure<LayoutFault>{{kind, item}, text, {}};
    }

    void failAsTooMany(qsizetype item)
    {
        fail(LayoutFault::Kind::TooMany, item,
             tr("More than %1 prints are too many for one job. Print the photos in several parts.")
                 .arg(mostPrints));
    }

    QList<SheetPlace> placesWith(qsizetype item, const std::optional<PrintSize> &size) const
    {
        QList<SheetPlace> places;
        if (layout_.kind == Kind::Pages)
            places = pagePlaces(layout_.pagesPerSheet, layout_.gap, page_, items_.at(item).seenSize);
        else if (layout_.kind == Kind::Booklet)
            places = bookletPlaces(page_);
        return places.isEmpty() ? sheetPlaces(layout_, page_, size) : places;
    }

    /// The places depend on the item only when as many of its size as fit are wanted, and on a sheet's first
    /// page.
    void usePlacesFor(qsizetype item)
    {
        if (layout_.kind == Kind::Pages && used_ == 0)
            places_.clear();
        const auto size = layout_.kind == Kind::ManyOfSize ? items_.at(item).placement.size : std::nullopt;
        if (!places_.isEmpty() && size == placesFor_)
            return;
        finishSheet();
        placesFor_ = size;
        places_ = placesWith(item, size);
        if (layout_.kind == Kind::ManyOfSize && !size)
            fail(LayoutFault::Kind::SizeMissing, item,
                 tr("As many prints of a size as fit need that size. Choose a print size."));
        const qsizetype expected = expectedPlaces(layout_);
        if (expected != 0 && places_.size() != expected)
            fail(LayoutFault::Kind::PlacesTooSmall, item,
                 tr("So many photos with these gaps leave no room for themselves on the paper's printable "
                    "area of %1. "
                    "Choose fewer, a smaller gap or a larger paper.")
                     .arg(localSizeText(page_.printed().size())));
    }

    void fillSheet(qsizetype item, int copies)
    {
        const qsizetype count = layout_.kind == Kind::Single ? 1 : places_.size();
        for (qsizetype i = 0; i < count; ++i)
            put(item, places_.at(i));
        sheet_.copies = copies;
        finishSheet();
    }

    void append(qsizetype item)
    {
        const bool repeatsStrip = layout_.kind == Kind::Strips && layout_.isRepeated;
        const qsizetype room = repeatsStrip ? places_.size() / 2 : places_.size();
        put(item, places_.at(used_));
        if (++used_ == std::max<qsizetype>(room, 1))
            finishSheet();
    }

    void put(qsizetype item, const SheetPlace &place)
    {
        const LayoutItem &wanted = items_.at(item);
        PageFrame framed = {place.frame, wanted.placement};
        if (wanted.isPage && layout_.kind == Kind::Single)
            framed = PageFrame::of(wanted.points(), wanted.placement, page_);
        const auto placement =
            PhotoPlacement::place(wanted.seenSize, wanted.pixelsPerInch, framed.frame, framed.placement);
        check(item, framed.frame, placement);
        sheet_.photos += LaidPhoto{item, placement, place.caption};
    }

    void check(qsizetype item, const PhotoFrame &frame, const PhotoPlacement &placement)
    {
        const PlacementChoice &choice = items_.at(item).placement;
        const QRectF room =
            frame.area.adjusted(-layoutTolerance, -layoutTolerance, layoutTolerance, layoutTolerance);
        if (choice.size && !room.contains(placement.outline)) {
            const bool isAlone = layout_.kind == Kind::Single || layout_.kind == Kind::ManyOfSize;
            fail(LayoutFault::Kind::SizeTooLarge, item,
                 (isAlone ? tr("A print of %1 has no room on the paper's printable area of %2. Choose a "
                               "smaller size or "
                               "a larger paper.")
                          : tr("A print of %1 has no room in its place of %2 on the sheet. Choose a smaller "
                               "size, or "
                               "fewer rows and columns."))
                     .arg(choice.size->localText(), localSizeText(frame.area.size())));
        }
        const QSizeF print = choice.size ? placement.outline.size() : frame.area.size();
        constexpr double leastPhoto = 1 * pointsPerMillimeter;
        if (choice.border.isThere() &&
            std::min(print.width(), print.height()) - 2 * choice.border.width < leastPhoto)
            fail(LayoutFault::Kind::BorderTooWide, item,
                 tr("A border of %1 leaves nothing of a print of %2. Choose a narrower one.")
                     .arg(localLengthText(choice.border.width), localSizeText(print)));
    }

    void finishSheet()
    {
        used_ = 0;
        if (sheet_.photos.isEmpty())
            return;
        if (layout_.kind == Kind::Strips && layout_.isRepeated)
            repeatStrip();
        if (layout_.hasCutMarks)
            addCutMarks();
        plan_.sheets_ += std::exchange(sheet_, {});
    }

    void repeatStrip()
    {
        const qsizetype count = sheet_.photos.size();
        const qsizetype second = places_.size() / 2;
        for (qsizetype i = 0; i < count && second + i < places_.size() && second > 0; ++i)
            put(sheet_.photos.at(i).item, places_.at(second + i));
    }

    void addCutMarks()
    {
        if (layout_.kind == Kind::Strips) {
            sheet_.cutMarks = cutMarksOfStrips(layout_, page_.printed());
            return;
        }
        QList<QRectF> prints;
        for (const LaidPhoto &photo : std::as_const(sheet_.photos))
            prints += photo.placement.outline;
        sheet_.cutMarks = cutMarksAround(prints, page_.printed());
    }

    SheetPlan &plan_;
    const QList<LayoutItem> &items_;
    const SheetLayout &layout_;
    const PageGeometry &page_;
    QList<SheetPlace> places_;
    std::optional<PrintSize> placesFor_;
    LaidSheet sheet_;    ///< that is being filled
    qsizetype used_ = 0; ///< places of it
};

LayoutItem LayoutItem::of(const Photo &photo, const PlacementChoice &placement, int copies)
{
    if (const Document *document = photo.document())
        return {document->pageSize(photo.page()), pointsPerInch, placement, copies, true};
    return {QSizeF(photo.orientedSize()), photo.printedResolution(), placement, copies};
}

SheetPlan SheetPlan::make(const QList<LayoutItem> &items, const SheetLayout &layout, const PageGeometry &page)
{
    SheetPlan plan;
    Maker(plan, items, layout, page).make();
    return plan;
}

void SheetPlan::reverse()
{
    std::ranges::reverse(sheets_);
}

void SheetPlan::renumber(const QList<qsizetype> &items, const std::optional<Failure<LayoutFault>> &failure)
{
    for (LaidSheet &sheet : sheets_) {
        for (LaidPhoto &photo : sheet.photos)
            photo.item = items.at(photo.item);
    }
    if (failure)
        failure_ = failure;
    else if (failure_)
        failure_->reason.item = items.at(failure_->reason.item);
}

qsizetype SheetPlan::sheetWith(qsizetype item) const
{
    const auto sheet = std::ranges::find_if(sheets_, [item](const LaidSheet &laid) {
        return std::ranges::find(laid.photos, item, &LaidPhoto::item) != laid.photos.end();
    });
    return sheet == sheets_.end() ? -1 : sheet - sheets_.begin();
}

qsizetype SheetPlan::paperCount() const
{
    qsizetype count = 0;
    for (const LaidSheet &sheet : sheets_)
        count += sheet.copies;
    return count;
}

} // namespace printdialog
