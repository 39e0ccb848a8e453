// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetDetail.h"

#include "PrintPicture.h"

#include <QtCore/QHash>

#include <algorithm>
#include <utility>

namespace printdialog {

void SheetDetail::setSheet(const PrintSheet &sheet, qsizetype current, const PageView &view)
{
    const bool isShared = sheet.photos.size() > 1;
    QHash<PictureKey, std::shared_ptr<PhotoDetail>> known;
    for (const auto &detail : std::as_const(details_))
        known.insert(detail->photo().key(), detail);
    details_.assign(static_cast<std::size_t>(sheet.photos.size()), nullptr);
    QHash<PictureKey, std::shared_ptr<PhotoDetail>> used;
    const auto use = [&](qsizetype index) {
        const SheetPhoto &laid = sheet.photos.at(index);
        std::shared_ptr<PhotoDetail> &detail = used[laid.photo.key()];
        if (!detail) {
            detail = known.value(laid.photo.key());
            if (!detail) {
                detail = std::make_shared<PhotoDetail>();
                connect(detail.get(), &PhotoDetail::changed, this,
                        [this, key = laid.photo.key()] { Q_EMIT changed(key); });
            }
            detail->setPriority(index == current ? ShownPhoto : NeighborPhoto);
            const bool isPlaced = isShared && !laid.placement.target.isEmpty();
            detail->setPhoto(laid.photo, isPlaced ? PagePhoto::detailFor(photoPixels(view, laid.placement),
                                                                         PagePhoto::leastDetail)
                                                  : PagePhoto::usualDetail);
        }
        details_.at(static_cast<std::size_t>(index)) = detail;
    };
    if (current >= 0)
        use(current); // which is decoded first
    for (qsizetype i = 0; i < sheet.photos.size(); ++i)
        use(i);
}

void SheetDetail::want(const PrintSheet &sheet, const PageView &view)
{
    struct Wanted
    {
        QSize size;
        QRectF seen;
    };
    QHash<PhotoDetail *, Wanted> wanted;
    for (std::size_t i = 0; i < details_.size(); ++i) {
        const PhotoPlacement &placement = sheet.photos.at(static_cast<qsizetype>(i)).placement;
        const QRectF seen =
            seenPart(view, placement, view.isShared ? placement.seen(view.page) : placement.target);
        Wanted &most = wanted[details_[i].get()];
        if (seen.isEmpty())
            continue;
        most.size = most.size.expandedTo(photoPixels(view, placement));
        most.seen |= seen;
    }
    for (auto each = wanted.cbegin(); each != wanted.cend(); ++each) {
        if (each->seen.isEmpty() && view.isShared)
            each.key()->rest();
        else
            each.key()->want(each->size, each->seen);
    }
}

bool SheetDetail::isReady() const
{
    return std::ranges::all_of(details_, [](const auto &detail) { return detail->isReady(); });
}

bool SheetDetail::isComplete() const
{
    return std::ranges::all_of(details_, [](const auto &detail) { return detail->isComplete(); });
}

} // namespace printdialog
