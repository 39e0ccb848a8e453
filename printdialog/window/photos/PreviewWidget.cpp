// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include "PhotoThreads.h"
#include "PlainText.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFocusRect>

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace {

constexpr int paperMargin = 16;
/// Pixels of the photo's longer side: the first decoding, which is enough for the window as it opens, and the
/// most.
constexpr int firstDetail = 800;
constexpr int mostDetail = 3200;
/// How far beyond the sheet the photo is shown on either side, at most, as a share of the longer side.
constexpr double shownCutOff = 0.15;
constexpr double dimmed = 0.3;
constexpr double step = 8; ///< of an arrow key, in widget pixels; a quarter with Shift

/// A widget that paints itself has no role for screen readers; this one gets that of a picture.
QAccessibleInterface *accessiblePicture(const QString & /*className*/, QObject *object)
{
    auto *preview = qobject_cast<PreviewWidget *>(object);
    return preview ? new QAccessibleWidget(preview, QAccessible::Graphic) : nullptr;
}

QRectF sheetOf(const PageGeometry &page)
{
    return {QPointF(0, 0), page.size};
}

} // namespace

PreviewWidget::PreviewWidget(QWidget *parent)
    : QWidget(parent)
{
    static const bool isInstalled = (QAccessible::installFactory(accessiblePicture), true);
    Q_UNUSED(isInstalled)
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    describe();
}

void PreviewWidget::setPhoto(const Photo &photo)
{
    const bool isSame = photo.path() == photo_.path() && photo.modified() == photo_.modified();
    photo_ = photo;
    if (isSame)
        return describe();
    image_ = {};
    scaledImage_ = {};
    isUnreadable_ = false;
    isDragging_ = false;
    ++number_;
    describe();
    update();
    if (!photo.storedSize().isEmpty())
        decode(firstDetail);
}

void PreviewWidget::decode(int detail)
{
    detail_ = detail;
    startPhotoTask(
        [photo = photo_, number = number_, detail, self = QPointer<PreviewWidget>(this)] {
            const QImage image = photo.preview({detail, detail});
            QMetaObject::invokeMethod(qApp, [self, number, detail, image] {
                if (self)
                    self->showImage(number, detail, image);
            });
        },
        ShownPhoto);
}

void PreviewWidget::showImage(quint64 number, int detail, const QImage &image)
{
    const bool isLate = number != number_ || detail < detail_;
    if (isLate || (image.isNull() && !image_.isNull()))
        return;
    image_ = image;
    scaledImage_ = {};
    isUnreadable_ = image.isNull();
    update();
    Q_EMIT ready();
}

void PreviewWidget::setPage(const PageGeometry &page)
{
    page_ = page;
    describe();
    update();
}

void PreviewWidget::setPlacement(const PlacementChoice &choice)
{
    choice_ = choice;
    describe();
    update();
}

std::optional<PhotoPlacement> PreviewWidget::placement() const
{
    if (page_.printed().isEmpty() || photo_.storedSize().isEmpty())
        return std::nullopt;
    return PhotoPlacement::place(photo_.orientedSize(), photo_.printedResolution(), page_, choice_);
}

QSize PreviewWidget::sizeHint() const
{
    return {360, 380};
}

QSize PreviewWidget::minimumSizeHint() const
{
    return {200, 200};
}

QString PreviewWidget::text() const
{
    if (photo_.storedSize().isEmpty())
        return tr("No photo. Drop photos here, or press Add.");
    return isUnreadable_ ? tr("This photo cannot be shown") : QString();
}

/// Updates the texts for screen readers.
void PreviewWidget::describe()
{
    setAccessibleName(photo_.storedSize().isEmpty() ? tr("Preview of the page")
                                                    : tr("Preview of %1").arg(plainText(photo_.fileName())));
    const auto place = placement();
    const double cutOff = place ? place->cutOff(page_) : 0;
    QStringList sentences;
    if (place)
        sentences += cutOff < 0.001 ? tr("The whole photo is printed.")
                                    : tr("%1 % of the photo is cut off.").arg(std::ceil(cutOff * 100));
    if (isMovable())
        sentences += tr("Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.");
    setAccessibleDescription(sentences.join(u' '));
    setToolTip(isMovable() ? sentences.constLast() : QString());
    setCursor(!isMovable() ? Qt::ArrowCursor : isDragging_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

// Where things are

bool PreviewWidget::isMovable() const
{
    constexpr double leastRoom = 0.5; // points
    const auto place = placement();
    return place && choice_.scaling != Scaling::Fit &&
           std::max(std::abs(place->slack().x()), std::abs(place->slack().y())) > leastRoom;
}

/// The only transformation between the page and the screen. A photo that lies on its side on the page is
/// shown upright, and the page is turned instead.
QTransform PreviewWidget::pageToWidget() const
{
    const QRectF sheet = sheetOf(page_);
    const auto place = placement();
    QRectF shown = sheet;
    if (place) {
        // The same on both sides, so that the page does not move while the photo is moved.
        const double most = std::max(sheet.width(), sheet.height()) * shownCutOff;
        const double across = std::clamp((place->target.width() - sheet.width()) / 2, 0.0, most);
        const double along = std::clamp((place->target.height() - sheet.height()) / 2, 0.0, most);
        shown.adjust(-across, -along, across, along);
    }
    const bool isTurned = place && place->pageTurns != 0;
    const QSizeF seen = isTurned ? shown.size().transposed() : shown.size();
    const QRectF room = QRectF(rect()).adjusted(paperMargin, paperMargin, -paperMargin, -paperMargin);
    const double scale = std::min(room.width() / seen.width(), room.height() / seen.height());
    QTransform transform;
    if (!(scale > 0) || !std::isfinite(scale))
        return transform;
    transform.translate(room.center().x(), room.center().y());
    transform.scale(scale, scale);
    if (isTurned)
        transform.rotate(-90);
    transform.translate(-shown.center().x(), -shown.center().y());
    return transform;
}

// Painting

void PreviewWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!page_.size.isEmpty())
        paintPage(painter);
    painter.resetTransform();
    if (const QString words = text(); !words.isEmpty()) {
        painter.setPen(page_.size.isEmpty() ? palette().color(QPalette::WindowText) : QColor(Qt::darkGray));
        const QRectF paper = page_.size.isEmpty() ? rect() : pageToWidget().mapRect(sheetOf(page_));
        painter.drawText(paper.adjusted(paperMargin, paperMargin, -paperMargin, -paperMargin),
                         Qt::AlignCenter | Qt::TextWordWrap, words);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void PreviewWidget::paintPage(QPainter &painter)
{
    const QTransform transform = pageToWidget();
    const QRectF sheet = sheetOf(page_);
    const double pixel = 1.0 / std::sqrt(std::abs(transform.determinant()));
    const auto place = image_.isNull() ? std::nullopt : placement();

    // The shadow falls downwards on the screen, however the page is turned.
    const QRectF onScreen = transform.mapRect(sheet);
    for (int i = 4; i > 0; --i)
        painter.fillRect(onScreen.adjusted(-i, -i, i, i + 2), QColor(0, 0, 0, 18));
    painter.setTransform(transform);
    painter.fillRect(sheet, Qt::white); // paper is white in every theme
    if (place)
        paintPhoto(painter, *place);
    painter.setTransform(transform);
    if (const QRectF printed = page_.printed(); printed != sheet) {
        painter.setPen(QPen(QColor(120, 120, 120, 160), 0, Qt::DashLine));
        painter.drawRect(printed);
    }
    if (place && !sheet.contains(place->target)) {
        painter.setPen(QPen(QColor(90, 90, 90), pixel));
        painter.drawRect(sheet);
    }
}

/// Paints the printed part as it is, and dims what is cut off, on the paper and around it.
void PreviewWidget::paintPhoto(QPainter &painter, const PhotoPlacement &placement)
{
    const QTransform toWidget = painter.transform();
    const QTransform photoToWidget = placement.toPage() * toWidget;
    const QSizeF shown(std::hypot(photoToWidget.m11(), photoToWidget.m12()),
                       std::hypot(photoToWidget.m21(), photoToWidget.m22()));
    const QImage &image = imageFor(shown * devicePixelRatioF());
    const QRectF printed = page_.printed();
    if (!printed.contains(placement.target)) {
        QPainterPath around;
        around.addRect(placement.target | printed);
        around.addRect(printed);
        painter.save();
        painter.setClipPath(around);
        painter.setOpacity(dimmed);
        painter.setTransform(photoToWidget);
        painter.drawImage(QRectF(0, 0, 1, 1), image);
        painter.restore();
    }
    painter.save();
    painter.setClipRect(printed);
    painter.setTransform(photoToWidget);
    painter.drawImage(QRectF(0, 0, 1, 1), image);
    painter.restore();
}

/// QPainter scales well down to one half; below that it skips pixels, and edges shimmer. A photo shown larger
/// than it was decoded stays as it is until it is decoded with more detail.
const QImage &PreviewWidget::imageFor(const QSizeF &devicePixels)
{
    constexpr double wellScaled = 0.6;
    const QSize wanted = devicePixels.toSize().expandedTo(QSize(1, 1));
    const QSize stored = photo_.storedSize();
    const int useful = std::min(
        {mostDetail, std::max(stored.width(), stored.height()), std::max(wanted.width(), wanted.height())});
    if (useful > detail_)
        decode(std::min(std::max(useful, 2 * detail_), mostDetail));
    if (wanted.width() > image_.width() * wellScaled)
        return image_;
    if (scaledImage_.size() != wanted)
        scaledImage_ = image_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return scaledImage_;
}

// Moving the photo

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
    if (choice == choice_)
        return;
    setPlacement(choice);
    Q_EMIT placementChanged(choice);
}

void PreviewWidget::mousePressEvent(QMouseEvent *event)
{
    isDragging_ = event->button() == Qt::LeftButton && isMovable();
    lastPosition_ = event->position();
    if (!isDragging_)
        return QWidget::mousePressEvent(event);
    describe();
}

void PreviewWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!isDragging_)
        return QWidget::mouseMoveEvent(event);
    moveBy(event->position() - lastPosition_);
    lastPosition_ = event->position();
}

void PreviewWidget::mouseReleaseEvent(QMouseEvent *event)
{
    isDragging_ = false;
    describe();
    QWidget::mouseReleaseEvent(event);
}

void PreviewWidget::keyPressEvent(QKeyEvent *event)
{
    const double distance = event->modifiers() & Qt::ShiftModifier ? step / 4 : step;
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (isPlain && isMovable()) {
        switch (event->key()) {
        case Qt::Key_Left:
            return moveBy({-distance, 0});
        case Qt::Key_Right:
            return moveBy({distance, 0});
        case Qt::Key_Up:
            return moveBy({0, -distance});
        case Qt::Key_Down:
            return moveBy({0, distance});
        case Qt::Key_Home: {
            PlacementChoice middle = choice_;
            middle.crop = PlacementChoice().crop;
            return change(middle);
        }
        default:
            break;
        }
    }
    QWidget::keyPressEvent(event);
}

} // namespace printdialog
