// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoTableDelegate.h"

#include "Arrangement.h"
#include "PhotoTableModel.h"
#include "PhotoThumbnails.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace printdialog {

namespace {

constexpr double leftOut = 0.4; // the opacity of a page that is not printed

/// Two sheets of different sizes.
void paintSizeMark(QPainter &painter, const QRect &rect)
{
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.drawRect(
        QRect(rect.left(), rect.bottom() - rect.height() / 2, rect.width() / 2, rect.height() / 2));
}

} // namespace

PhotoTableDelegate::PhotoTableDelegate(PhotoThumbnails *thumbnails, QObject *parent)
    : QStyledItemDelegate(parent)
    , thumbnails_(thumbnails)
{
}

QSize PhotoTableDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(index)
    return pictureSize + QSize(2 * padding, 2 * padding + option.fontMetrics.height());
}

void PhotoTableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const auto *rows = static_cast<const PhotoTableModel *>(index.model());
    const PlacedPhoto *placed = rows->photo(index);
    if (!placed)
        return;
    QStyleOptionViewItem cell = option;
    cell.backgroundBrush = {};
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);

    const QRect inner = option.rect.adjusted(padding, padding, -padding, -padding / 2);
    const QRect picture(inner.topLeft(), QSize(inner.width(), pictureSize.height()));
    QPixmap pixmap = thumbnails_->of(placed->photo);
    painter->save();
    if (!rows->isPrinted(*placed))
        painter->setOpacity(leftOut);
    if (!pixmap.isNull()) {
        pixmap.setDevicePixelRatio(painter->device()->devicePixelRatioF());
        style->drawItemPixmap(painter, picture, Qt::AlignCenter, pixmap);
    }
    const bool isSelected = option.state & QStyle::State_Selected;
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    const QRect line(inner.left(), picture.bottom() + 1, inner.width(), option.fontMetrics.height());
    painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, QLocale().toString(index.row() + 1));
    QRect rest = line;
    if (rows->hasOwnSize(*placed)) {
        const int side = option.fontMetrics.ascent();
        paintSizeMark(*painter, QRect(line.right() - side, line.center().y() - side / 2, side, side));
        rest.setRight(line.right() - side - padding);
    }
    if (placed->copies > 1)
        painter->drawText(rest, Qt::AlignRight | Qt::AlignVCenter,
                          QStringLiteral("\u00d7%1").arg(QLocale().toString(placed->copies)));
    if (PhotoTableModel::isDamaged(*placed)) {
        const int side = style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, option.widget);
        style->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, option.widget)
            .paint(painter, QRect(picture.right() - side, picture.top(), side, side));
    }
    if (rows->isCurrent(index)) {
        constexpr int frame = 2;
        painter->setPen(QPen(painter->pen().color(), frame));
        painter->drawRect(option.rect.adjusted(frame / 2, frame / 2, -frame, -frame));
    }
    painter->restore();
    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.backgroundColor = option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    }
}

} // namespace printdialog
