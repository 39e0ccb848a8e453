// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PagePainter.h"
#include "ScreenColors.h"
#include "SheetDetail.h"

#include <QtWidgets/QWidget>

namespace printdialog {

/// A sheet as it will be printed: the paper with its photos placed as in the PDF and with the printer's
/// adjustments. One of them is the current one: its cut-off parts are dimmed, and among several it has a
/// frame. The user moves it in its place with the mouse or the arrow keys, and picks another one by a click.
/// When the page is zoomed to the dots of the print, mouse and keys move what is seen instead.
class PreviewWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr double dotForDot = 1; ///< the zoom with a device pixel for each dot of the print
    static constexpr double mostZoom = 2;

    explicit PreviewWidget(QWidget *parent = nullptr);

    /// Shows the sheet, which was laid out for the page. Photos are decoded only when they were not on the
    /// previous one. Without a page, the sheet's photos are decoded already.
    /// @param current the index of the current photo; -1 without photos
    /// @param choice how the current photo is wanted in its place
    void setSheet(const PrintSheet &sheet, qsizetype current, const PlacementChoice &choice = {});
    /// Which of the job's sheets it is, from 0 on.
    void setSheetNumber(int number, int count);
    /// A page that is still to come.
    struct ExpectedPage
    {
        PhotoPlacement placement;
        int number; ///< From 1 on.

        bool operator==(const ExpectedPage &) const = default;
    };

    /// Shows where pages will lie, as long as there is no photo, in place of the usual hint.
    void setExpectedPages(const QList<ExpectedPage> &pages);
    int sheetNumber() const { return sheetNumber_; }
    int sheetCount() const { return sheetCount_; }
    void setPage(const PageGeometry &page);
    /// What the printer's own options do to the photos.
    void setAdjustment(const PictureAdjustment &adjustment);
    void setDotsPerInch(double dots);
    /// The ICC profiles of the screen and of a paper whose colors are shown; empty for sRGB and for none.
    void setProfiles(const QByteArray &screen, const QByteArray &paper);

    /// The current photo's placement; nothing without a photo or a page.
    std::optional<PhotoPlacement> placement() const;
    /// Whether the photos are decoded and their colors are converted, or have turned out to be unreadable.
    bool isReady() const { return detail_.isReady() && colors_.isReady(); }
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
    /// Shows rulers along the sheet's edges.
    void setRuled(bool isRuled);
    /// How far beyond the sheet's edges is printed, for people; empty when nothing is.
    QString bleedText() const;
    /// Asks for another sheet, that many farther.
    void turnSheets(int count);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void ready();
    /// The user has moved the photo. The sheet stays as it is until it is set.
    void placementChanged(const printdialog::PlacementChoice &choice);
    /// The user has clicked on another photo of the sheet.
    void photoPicked(qsizetype index);
    /// The user asks for another sheet of the job; there is one with this number.
    void sheetWanted(int number);
    /// It shows another one of the job's sheets, or there are more or fewer.
    void sheetNumberChanged();
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
    void updatePhotos(const std::optional<PictureKey> &key = std::nullopt);
    void updateColors();
    const Photo &photo() const;
    bool isShared() const { return sheet_.photos.size() > 1; }
    void paintFrame(QPainter &painter, const PageView &seen) const;
    void paintDivider(QPainter &painter, const PageView &seen) const;
    bool areExpectedTurned() const;
    void paintExpectedPages(QPainter &painter, const PageView &seen) const;
    void paintText(QPainter &painter, const PageView &seen) const;
    std::optional<qsizetype> photoAt(const QPointF &position) const;
    QString rulerText() const;
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

    SheetDetail detail_;
    ScreenColors colors_;
    PagePainter painter_;
    PagePainter::Look look_;
    PrintSheet sheet_ = {};
    qsizetype current_ = -1;
    PlacementChoice choice_;
    int sheetNumber_ = 0;
    int sheetCount_ = 0;
    QList<ExpectedPage> expected_;
    PageGeometry page_;
    bool isRuled_ = false;
    bool wasReady_ = true;
    double dotsPerInch_ = 300;
    std::optional<double> zoom_;
    QPointF center_; ///< see PageView
    bool isDivided_ = false;
    bool isCompared_ = false;
    double clippedShare_ = 0; ///< as painted last
    bool hidSharpening_ = false;
    QPointF pressPosition_;
    QPointF lastPosition_;
    std::optional<qsizetype> pressed_; ///< another photo on which the mouse was pressed
    PlacementChoice choiceAtPress_;
    Drag drag_ = Drag::None;
};

} // namespace printdialog
