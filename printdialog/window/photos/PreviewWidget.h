// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"

#include <QtGui/QImage>
#include <QtGui/QTransform>
#include <QtWidgets/QWidget>

namespace printdialog {

/// The page as it will be printed: the paper with the photo placed as in the PDF; the cut-off parts are
/// dimmed. The user moves the photo with the mouse or the arrow keys. It is decoded on a worker thread, as
/// large as it is shown.
class PreviewWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewWidget(QWidget *parent = nullptr);

    /// The photo is decoded again only when it differs from the previous one.
    void setPhoto(const Photo &photo);
    void setPage(const PageGeometry &page);
    void setPlacement(const PlacementChoice &choice);
    /// The photo's placement; nothing without a photo or a page.
    std::optional<PhotoPlacement> placement() const;
    /// Whether the photo is decoded, or has turned out to be unreadable.
    bool isReady() const { return !image_.isNull() || isUnreadable_; }
    /// Maps the page in points to this widget. A page that is turned for the photo lies on its side.
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
    void showImage(quint64 number, int detail, const QImage &image);
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
    QImage scaledImage_; ///< image_ at the size on the screen; null when that is not much smaller
    QPointF lastPosition_;
    bool isDragging_ = false;
    bool isUnreadable_ = false;
    int detail_ = 0;     ///< pixels of the longer side of image_, or of the decoding under way
    quint64 number_ = 0; ///< identifies the current photo; results for another one are dropped
};

} // namespace printdialog
