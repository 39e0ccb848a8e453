// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PagePainter.h"
#include "PhotoDetail.h"

#include <QtWidgets/QWidget>

namespace printdialog {

/// The page as it will be printed: the paper with the photo placed as in the PDF and with the printer's
/// adjustments; the cut-off parts are dimmed. The user moves the photo with the mouse or the arrow keys. When
/// it is zoomed to the dots of the print, these move what is seen instead.
class PreviewWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr double dotForDot = 1; ///< the zoom with a device pixel for each dot of the print
    static constexpr double mostZoom = 2;

    explicit PreviewWidget(QWidget *parent = nullptr);

    /// The photo is decoded again only when it differs from the previous one.
    void setPhoto(const Photo &photo);
    void setPage(const PageGeometry &page);
    void setPlacement(const PlacementChoice &choice);
    /// What the printer's own options do to the photo.
    void setAdjustment(const PictureAdjustment &adjustment);
    void setDotsPerInch(double dots);
    /// The ICC profiles of the screen and of a paper whose colors are shown; empty for sRGB and for none.
    void setProfiles(const QByteArray &screen, const QByteArray &paper);

    /// The photo's placement; nothing without a photo or a page.
    std::optional<PhotoPlacement> placement() const;
    /// Whether the photo is decoded and its colors are converted, or it has turned out to be unreadable.
    bool isReady() const { return detail_.isReady() && lookupsUnderWay_ == 0; }
    /// Whether it is ready with all the detail that is seen.
    bool isComplete() const { return isReady() && detail_.isComplete(); }
    PageView view() const;
    /// Maps the page in points to this widget. A page that is turned for the photo lies on its side.
    QTransform pageToWidget() const { return view().toRoom(); }

    /// Device pixels to a dot of the print; nothing: the entire page is seen.
    std::optional<double> zoom() const { return zoom_; }
    void zoomTo(std::optional<double> zoom);
    /// To the next of the entire page, 100 % and 200 %.
    void zoomIn();
    void zoomOut();

    /// Shows the photo without the adjustments for as long as it is compared.
    void setCompared(bool isCompared);
    /// Shows it without them on one side of a divider that the user can drag.
    void setDivided(bool isDivided);
    /// Marks the tones that the adjustments clip.
    void setMarksClipped(bool marks);
    /// The share of what is seen, from 0 to 1.
    double clippedShare() const { return clippedShare_; }
    /// Whether a sharpening is too fine to be seen at this zoom.
    bool hidesSharpening() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void ready();
    /// The user has moved the photo.
    void placementChanged(const printdialog::PlacementChoice &choice);
    /// The zoom, the clipped share or what is hidden may be others.
    void viewChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Drag { None, Photo, View, Divider };

    void setView(const PageView &view);
    void limitZoom();
    void noteSeen();
    void updatePhoto();
    void updateLookup();
    bool pinched(QEvent *event);
    void zoomBy(double factor, const QPointF &kept);
    std::optional<double> nextZoom(bool larger) const;
    void moveBy(const QPointF &widgetDistance);
    void panBy(const QPointF &widgetDistance);
    void change(const PlacementChoice &choice);
    bool isMovable() const;
    std::optional<double> dividerAt() const;
    bool isOnDivider(const QPointF &position) const;
    void moveDivider(double share);
    void updateCursor(const QPointF &position);
    void describe();
    QString text() const;

    PhotoDetail detail_;
    PagePainter painter_;
    PagePainter::Look look_;
    PageGeometry page_;
    PlacementChoice choice_;
    double dotsPerInch_ = 300;
    std::optional<double> zoom_;
    QPointF center_; ///< see PageView
    bool isDivided_ = false;
    bool isCompared_ = false;
    double clippedShare_ = 0; ///< as painted last
    bool hidSharpening_ = false;
    QByteArray screenProfile_;
    QByteArray paperProfile_;
    ColorLookup::Way way_;      ///< that is wanted
    ColorLookup::Way lookupOf_; ///< of the table in use
    int lookupsUnderWay_ = 0;
    QPointF lastPosition_;
    PlacementChoice choiceAtPress_;
    Drag drag_ = Drag::None;
};

} // namespace printdialog
