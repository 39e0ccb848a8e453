// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include "PlainText.h"
#include "PrintSize.h"
#include "SheetRuler.h"

#include <cmath>

namespace printdialog {

// What is said about the sheet.

QString PreviewWidget::text() const
{
    if (photo().storedSize().isEmpty())
        return emptyText_.isEmpty() ? tr("No photo. Drop photos here, or press Add.") : emptyText_;
    return detail_.at(current_).isUnreadable() ? tr("This photo cannot be shown") : QString();
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
    setAccessibleName(photo().storedSize().isEmpty()
                          ? tr("Preview of the page")
                          : tr("Preview of %1").arg(plainText(photo().fileName())));
    const auto place = placement();
    const double cutOff = place ? place->cutOff(page_) : 0;
    QStringList sentences;
    if (sheetCount_ > 1)
        sentences += tr("Sheet %1 of %2.").arg(sheetNumber_ + 1).arg(sheetCount_);
    if (isShared() && place)
        sentences += tr("Photo %1 of %2 on the sheet.").arg(current_ + 1).arg(sheet_.photos.size());
    if (place)
        sentences += cutOff < 0.001 ? tr("The whole photo is printed.")
                                    : tr("%1 % of the photo is cut off.").arg(std::ceil(cutOff * 100));
    const QString hint =
        zoom_ && place ? tr("Drag it, or press the arrow keys, to see another part; 0 shows the entire page.")
        : isMovable() ? tr("Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.")
        : isShared()  ? tr("Click on a photo to change how it is printed.")
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
