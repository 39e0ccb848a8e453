// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QNativeGestureEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPinchGesture>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace printdialog {

namespace {

constexpr double step = 8; ///< of an arrow key, in widget pixels; a quarter with Shift
constexpr double panStep = 64;
constexpr double dividerStep = 0.02;
constexpr double dividerReach = 6; ///< how far from the divider a mouse still takes it, in widget pixels
constexpr double least = 1e-6;     ///< by which two zooms differ

} // namespace

// Zooming

void PreviewWidget::setView(const PageView &view)
{
    zoom_ = view.zoom;
    center_ = view.center;
    if (drag_ == Drag::Photo || drag_ == Drag::View)
        drag_ = zoom_ ? Drag::View : Drag::None; // what is dragged goes on being what is seen
    describe();
    update();
    Q_EMIT viewChanged();
}

void PreviewWidget::zoomTo(std::optional<double> zoom)
{
    const PageView seen = view();
    if (!seen.placement)
        return;
    setView(zoom ? seen.zoomed(*zoom, rect().toRectF().center()) : seen.whole());
}

void PreviewWidget::zoomBy(double factor, const QPointF &kept)
{
    const PageView seen = view();
    const double from = seen.zoom.value_or(seen.zoomOfPage());
    const double to = std::min(from * factor, std::max(mostZoom, from));
    setView(to > seen.zoomOfPage() ? seen.zoomed(to, kept) : seen.whole());
}

/// Nothing: there is none, or it is the entire page.
std::optional<double> PreviewWidget::nextZoom(bool larger) const
{
    const PageView seen = view();
    const double now = seen.zoom.value_or(seen.zoomOfPage());
    std::optional<double> next;
    for (const double zoom : {dotForDot, mostZoom}) {
        if (larger && zoom > now + least && !next)
            next = zoom;
        if (!larger && zoom < now - least && zoom > seen.zoomOfPage())
            next = zoom;
    }
    return next;
}

void PreviewWidget::zoomIn()
{
    if (const auto zoom = nextZoom(true))
        zoomTo(zoom);
}

void PreviewWidget::zoomOut()
{
    zoomTo(nextZoom(false));
}

void PreviewWidget::wheelEvent(QWheelEvent *event)
{
    constexpr double perDoubling = 480; // eighths of a degree: four notches of a usual wheel
    if (!placement() || event->angleDelta().y() == 0)
        return QWidget::wheelEvent(event);
    zoomBy(std::exp2(event->angleDelta().y() / perDoubling), event->position());
    event->accept();
}

/// Two fingers on a touch screen, or on a touch pad.
bool PreviewWidget::pinched(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto *gesture = static_cast<QNativeGestureEvent *>(event);
        if (gesture->gestureType() != Qt::ZoomNativeGesture)
            return false;
        zoomBy(1 + gesture->value(), gesture->position());
        return true;
    }
    if (event->type() != QEvent::Gesture)
        return false;
    const auto *pinch =
        static_cast<QPinchGesture *>(static_cast<QGestureEvent *>(event)->gesture(Qt::PinchGesture));
    if (!pinch)
        return false;
    pressed_.reset();
    if (pinch->state() == Qt::GestureStarted && drag_ == Drag::Photo) {
        drag_ = Drag::None; // the first finger was no mouse
        change(choiceAtPress_);
    }
    if (pinch->changeFlags() & QPinchGesture::ScaleFactorChanged)
        zoomBy(pinch->scaleFactor(), mapFromGlobal(pinch->centerPoint()));
    return true;
}

bool PreviewWidget::event(QEvent *event)
{
    return (placement() && pinched(event)) || QWidget::event(event);
}

/// The page may have become smaller, or the room for it larger: less than the entire page is never meant, but
/// for the dots of the print.
void PreviewWidget::limitZoom()
{
    if (zoom_ && *zoom_ < dotForDot && *zoom_ <= view().zoomOfPage())
        zoomTo(std::nullopt);
}

void PreviewWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    limitZoom();
}

void PreviewWidget::panBy(const QPointF &widgetDistance)
{
    setView(view().panned(widgetDistance));
}

// The divider

/// Where it is, across the widget.
std::optional<double> PreviewWidget::dividerAt() const
{
    const QRectF photo = PagePainter::seenPhoto(view());
    if (!isDivided_ || photo.isEmpty() || painter_.isEmpty())
        return std::nullopt;
    return photo.left() + look_.divider * photo.width();
}

bool PreviewWidget::isOnDivider(const QPointF &position) const
{
    const auto divider = dividerAt();
    return divider && std::abs(position.x() - *divider) <= dividerReach;
}

void PreviewWidget::moveDivider(double share)
{
    look_.divider = std::clamp(share, 0.0, 1.0);
    update();
}

// Moving the photo

bool PreviewWidget::isMovable() const
{
    constexpr double leastRoom = 0.5; // points
    const auto place = placement();
    return place && !choice_.isCentered() &&
           std::max(std::abs(place->slack().x()), std::abs(place->slack().y())) > leastRoom;
}

void PreviewWidget::moveBy(const QPointF &widgetDistance)
{
    const auto place = placement();
    if (!place)
        return;
    const QTransform toPage = pageToWidget().inverted();
    change(place->moved(choice_, toPage.map(widgetDistance) - toPage.map(QPointF(0, 0))));
}

void PreviewWidget::change(const PlacementChoice &choice)
{
    if (choice != choice_)
        Q_EMIT placementChanged(choice);
}

/// The index of the photo whose print is there; the current one's before others that overlap it.
std::optional<qsizetype> PreviewWidget::photoAt(const QPointF &position) const
{
    if (page_.printed().isEmpty())
        return std::nullopt;
    const QPointF point = pageToWidget().inverted().map(position);
    std::optional<qsizetype> found;
    for (qsizetype i = 0; i < sheet_.photos.size(); ++i) {
        if (sheet_.photos.at(i).placement.outline.contains(point) && found != current_)
            found = i;
    }
    return found;
}

// The mouse and the keys

void PreviewWidget::updateCursor(const QPointF &position)
{
    if (drag_ == Drag::Divider || (drag_ == Drag::None && isOnDivider(position)))
        setCursor(Qt::SplitHCursor);
    else if (zoom_ || isMovable())
        setCursor(drag_ == Drag::None ? Qt::OpenHandCursor : Qt::ClosedHandCursor);
    else
        unsetCursor();
}

void PreviewWidget::mousePressEvent(QMouseEvent *event)
{
    drag_ = event->button() != Qt::LeftButton ? Drag::None
            : isOnDivider(event->position())  ? Drag::Divider
            : zoom_                           ? Drag::View
            : isMovable()                     ? Drag::Photo
                                              : Drag::None;
    pressed_ = event->button() == Qt::LeftButton && drag_ != Drag::Divider ? photoAt(event->position())
                                                                           : std::nullopt;
    if (pressed_ == current_)
        pressed_.reset();
    if (pressed_ && drag_ == Drag::Photo)
        drag_ = Drag::None; // not of the photo that is pressed
    pressPosition_ = lastPosition_ = event->position();
    choiceAtPress_ = choice_;
    if (drag_ == Drag::None)
        return QWidget::mousePressEvent(event);
    updateCursor(event->position());
}

void PreviewWidget::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF distance = event->position() - lastPosition_;
    lastPosition_ = event->position();
    switch (drag_) {
    case Drag::None:
        updateCursor(event->position());
        return QWidget::mouseMoveEvent(event);
    case Drag::Photo:
        return moveBy(distance);
    case Drag::View:
        return panBy(distance);
    case Drag::Divider:
        break;
    }
    const QRectF photo = PagePainter::seenPhoto(view());
    if (photo.isEmpty())
        return;
    moveDivider((event->position().x() - photo.left()) / photo.width());
}

void PreviewWidget::mouseReleaseEvent(QMouseEvent *event)
{
    const bool wasMoved = std::exchange(drag_, Drag::None) == Drag::Photo;
    updateCursor(event->position());
    const auto picked = std::exchange(pressed_, std::nullopt);
    const bool isClick =
        (event->position() - pressPosition_).manhattanLength() < QApplication::startDragDistance();
    if (picked && isClick && photoAt(event->position()) == picked)
        Q_EMIT photoPicked(*picked);
    if (wasMoved)
        update(); // its neighbors are seen again
    QWidget::mouseReleaseEvent(event);
}

void PreviewWidget::keyPressEvent(QKeyEvent *event)
{
    using Direction = std::pair<Qt::Key, QPointF>;
    static const std::array<Direction, 4> directions = {{{Qt::Key_Left, QPointF(-1, 0)},
                                                         {Qt::Key_Right, QPointF(1, 0)},
                                                         {Qt::Key_Up, QPointF(0, -1)},
                                                         {Qt::Key_Down, QPointF(0, 1)}}};
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const double part = modifiers & Qt::ShiftModifier ? 0.25 : 1;
    const auto direction =
        std::ranges::find(directions, static_cast<Qt::Key>(event->key()), &Direction::first);
    const bool isArrow = direction != directions.end();
    if (isArrow && isDivided_ && modifiers & Qt::ControlModifier)
        return moveDivider(look_.divider + direction->second.x() * dividerStep);
    if (modifiers == Qt::NoModifier && sheetCount_ > 1 &&
        (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown))
        return turnSheets(event->key() == Qt::Key_PageUp ? -1 : 1);
    if (modifiers & ~Qt::ShiftModifier || !placement())
        return QWidget::keyPressEvent(event);
    if (isArrow && zoom_)
        return panBy(-direction->second * panStep * part);
    if (isArrow && isMovable())
        return moveBy(direction->second * step * part);
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_0:
        return zoomTo(std::nullopt);
    case Qt::Key_1:
        return zoomTo(dotForDot);
    case Qt::Key_2:
        return zoomTo(mostZoom);
    case Qt::Key_Home:
        if (isMovable() && !zoom_) {
            PlacementChoice middle = choice_;
            middle.crop = PlacementChoice().crop;
            return change(middle);
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

} // namespace printdialog
