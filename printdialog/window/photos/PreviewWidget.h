// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageGeometry.h"
#include "Photo.h"
#include "PhotoPlacement.h"

#include <QtGui/QImage>
#include <QtGui/QTransform>
#include <QtWidgets/QWidget>

namespace printdialog {

/// The page as it will be printed: the paper with the photo on it, placed as the PDF places it, and what is
/// cut off, dimmed. The photo is moved with the mouse or the arrow keys. It is decoded on a worker thread,
/// with the detail that is shown.
class PreviewWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewWidget(QWidget *parent = nullptr);

    /// The photo is decoded anew only when it is another one than before.
    void setPhoto(const Photo &photo);
    void setPage(const PageGeometry &page);
    void setPlacement(const PlacementChoice &choice);
    /// Where the photo lies; nothing without a photo or a page.
    std::optional<PhotoPlacement> placement() const;
    /// Whether the photo's pixels are here.
    bool isReady() const { return !image_.isNull() || isUnreadable_; }
    /// From the page in points to this widget. A page that is turned for the photo lies on its side.
    QTransform pageToWidget() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void ready();
    /// The user has moved the photo.
    void placementChanged(const printdialog::PlacementChoice &choice);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void decode(int detail);
    void take(quint64 number, int detail, const QImage &image);
    void paintPage(QPainter &painter);
    void paintPhoto(QPainter &painter, const PhotoPlacement &placement);
    const QImage &imageFor(const QSizeF &devicePixels);
    void moveBy(const QPointF &widgetDistance);
    void change(const PlacementChoice &choice);
    bool isMovable() const;
    void describe();
    QString text() const;

    Photo photo_;
    PageGeometry page_;
    PlacementChoice choice_;
    QImage image_;
    QImage scaledImage_; ///< of image_, for the size on the screen; null when that is not much smaller
    QPointF lastPosition_;
    bool isDragging_ = false;
    bool isUnreadable_ = false;
    int detail_ = 0;     ///< of the photo's longer side, in pixels, that image_ has or will soon have
    quint64 number_ = 0; ///< of the photo that is shown; an answer for another one is dropped
};

} // namespace printdialog
