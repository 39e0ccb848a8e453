// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include "PagePlaces.h"
#include "PlainText.h"
#include "PrintSize.h"
#include "SheetRuler.h"

#include <cmath>

namespace printdialog {

// What is said about the sheet.

QString PreviewWidget::text() const
{
    if (photo().storedSize().isEmpty())
        return expected_.isEmpty() ? tr("Nothing to print. Drop photos or PDF documents here, or press Add.")
                                   : QString();
    if (!detail_.at(current_).isUnreadable())
        return {};
    return photo().document() ? tr("This page cannot be shown") : tr("This photo cannot be shown");
}

QString PreviewWidget::bleedText() const
{
    const QString width = bleedWidthText(page_);
    return width.isEmpty() ? QString()
                           : tr("Prints %1 beyond the edges of the paper", "borderless").arg(width);
}

/// What the ruler shows, in words.
QString PreviewWidget::rulerText() const
{
    const PageView seen = view();
    if (!isRuled_ || !seen.placement)
        return {};
    const double perPoint = seen.pixelsPerInch() / seen.ratio / pointsPerInch;
    const QTransform toRoom = seen.toRoom();
    const QRectF print = toRoom.mapRect(seen.placement->outline);
    const QPointF corner =
        (print.topLeft() - toRoom.mapRect(QRectF(QPointF(), page_.size)).topLeft()) / perPoint;
    return tr("The print is %1, %2 from the left edge of the sheet and %3 from its top.")
        .arg(localSizeText(print.size() / perPoint), localLengthText(corner.x()),
             localLengthText(corner.y()));
}

/// Updates the texts for screen readers.
void PreviewWidget::describe()
{
    setAccessibleName(photo().storedSize().isEmpty() ? tr("Preview of the page")
                                                     : tr("Preview of %1").arg(plainText(photo().name())));
    const auto place = placement();
    const bool isPage = photo().document();
    const double cutOff = place ? cutOffShare(isPage, *place, page_) : 0;
    QStringList sentences;
    if (sheetCount_ > 1)
        sentences += tr("Sheet %1 of %2.").arg(sheetNumber_ + 1).arg(sheetCount_);
    if (isShared() && place)
        sentences += (isPage ? tr("Page %1 of %2 on the sheet.") : tr("Photo %1 of %2 on the sheet."))
                         .arg(current_ + 1)
                         .arg(sheet_.photos.size());
    if (place && cutOff < 0.001)
        sentences += isPage ? tr("The whole page is printed.") : tr("The whole photo is printed.");
    else if (place)
        sentences += (isPage ? tr("%1 % of the page is cut off.") : tr("%1 % of the photo is cut off."))
                         .arg(std::ceil(cutOff * 100));
    const QString hint =
        zoom_ && place ? tr("Drag it, or press the arrow keys, to see another part; 0 shows the entire page.")
        : isMovable()
            ? (isPage
                   ? tr("Drag the page, or press the arrow keys, to move it; Home puts it in the middle.")
                   : tr("Drag the photo, or press the arrow keys, to move it; Home puts it in the middle."))
        : isShared() ? (isPage ? tr("Click on a page to change how it is printed.")
                               : tr("Click on a photo to change how it is printed."))
                     : QString();
    if (!hint.isEmpty())
        sentences += hint;
    if (isDivided_ && place)
        sentences +=
            tr("Left of the divider, the photo is shown without the adjustments. Drag the divider, or "
               "press Ctrl and an arrow key, to move it.");
    sentences += {rulerText(), bleedText()};
    sentences.removeAll(QString());
    setAccessibleDescription(sentences.join(u' '));
    setToolTip(hint);
    updateCursor(mapFromGlobal(QCursor::pos()));
}

} // namespace printdialog
