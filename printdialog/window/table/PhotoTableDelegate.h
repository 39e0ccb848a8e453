// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace printdialog {

class PhotoThumbnails;

/// Paints a photo of the table: its picture, below it its number and how often it is printed, marks for a
/// size of its own and for damage, and a frame around the one that the preview shows.
class PhotoTableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr QSize pictureSize{72, 54};
    static constexpr int padding = 6;

    PhotoTableDelegate(PhotoThumbnails *thumbnails, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    PhotoThumbnails *thumbnails_;
};

} // namespace printdialog
