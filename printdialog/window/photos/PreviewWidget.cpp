// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include "PhotoThreads.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFocusRect>

#include <algorithm>
#include <cmath>
#include <utility>

namespace printdialog {

namespace {

constexpr int paperMargin = 16;

/// A widget that paints itself has no role for screen readers; this one gets that of a picture.
QAccessibleInterface *accessiblePicture(const QString & /*className*/, QObject *object)
{
    auto *preview = qobject_cast<PreviewWidget *>(object);
    return preview ? new QAccessibleWidget(preview, QAccessible::Graphic) : nullptr;
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
    setAttribute(Qt::WA_OpaquePaintEvent);
    grabGesture(Qt::PinchGesture);
    connect(&detail_, &PhotoDetail::changed, this, &PreviewWidget::updatePhoto);
    describe();
}

// What is shown

void PreviewWidget::setPhoto(const Photo &photo)
{
    if (detail_.setPhoto(photo)) {
        drag_ = Drag::None;
        painter_.setPhoto({});
        if (photo.storedSize().isEmpty())
            zoom_.reset();
        updateLookup();
        update();
    }
    describe();
    Q_EMIT viewChanged();
}

void PreviewWidget::updatePhoto()
{
    const bool wasEmpty = painter_.isEmpty();
    if (lookupOf_.photo != way_.photo && !detail_.isUnreadable())
        return; // the table for this photo's colors is on its way
    painter_.setPhoto(detail_.pixels());
    update();
    if (wasEmpty && isReady())
        Q_EMIT ready();
}

void PreviewWidget::setPage(const PageGeometry &page)
{
    page_ = page;
    limitZoom();
    describe();
    update();
    Q_EMIT viewChanged();
}

void PreviewWidget::setPlacement(const PlacementChoice &choice)
{
    choice_ = choice;
    limitZoom();
    describe();
    update();
}

void PreviewWidget::setAdjustment(const PictureAdjustment &adjustment)
{
    if (adjustment == painter_.adjuster().adjustment())
        return;
    painter_.adjuster().setAdjustment(adjustment);
    update(PagePainter::seenPhoto(view()).toAlignedRect());
}

void PreviewWidget::setDotsPerInch(double dots)
{
    if (std::exchange(dotsPerInch_, dots) == dots)
        return;
    setView(view());
    limitZoom();
}

void PreviewWidget::setProfiles(const QByteArray &screen, const QByteArray &paper)
{
    screenProfile_ = screen;
    paperProfile_ = paper;
    updateLookup();
}

/// Makes the table for the screen's colors on a worker thread. The previous one stays until it is there, and
/// a photo with a profile of its own waits for it.
void PreviewWidget::updateLookup()
{
    const ColorLookup::Way way = {detail_.photo().pixelProfile(), screenProfile_, paperProfile_};
    if (way == way_)
        return;
    way_ = way;
    if (way == ColorLookup::Way()) {
        lookupOf_ = way;
        painter_.adjuster().setLookup(nullptr);
        return update();
    }
    ++lookupsUnderWay_;
    startPhotoTask(
        [way, self = QPointer<PreviewWidget>(this)] {
            const auto lookup = ColorLookup::make(way);
            QMetaObject::invokeMethod(qApp, [self, way, lookup] {
                if (!self)
                    return;
                --self->lookupsUnderWay_;
                if (way != self->way_)
                    return;
                self->lookupOf_ = way;
                self->painter_.adjuster().setLookup(lookup);
                self->updatePhoto();
                if (self->isReady())
                    Q_EMIT self->ready();
            });
        },
        ShownPhoto);
}

std::optional<PhotoPlacement> PreviewWidget::placement() const
{
    const Photo &photo = detail_.photo();
    if (page_.printed().isEmpty() || photo.storedSize().isEmpty())
        return std::nullopt;
    return PhotoPlacement::place(photo.orientedSize(), photo.printedResolution(), page_, choice_);
}

PageView PreviewWidget::view() const
{
    const PageView view = {page_,        placement(), size(), paperMargin, devicePixelRatioF(),
                           dotsPerInch_, zoom_,       center_};
    return view.panned({0, 0}); // no farther than there is something to see
}

bool PreviewWidget::hidesSharpening() const
{
    return painter_.adjuster().hidesSharpening();
}

void PreviewWidget::setCompared(bool isCompared)
{
    if (std::exchange(isCompared_, isCompared) == isCompared)
        return;
    update();
}

void PreviewWidget::setDivided(bool isDivided)
{
    if (std::exchange(isDivided_, isDivided) == isDivided)
        return;
    describe();
    update();
}

void PreviewWidget::setMarksClipped(bool marks)
{
    if (std::exchange(look_.marksClipped, marks) == marks)
        return;
    update();
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
    if (detail_.photo().storedSize().isEmpty())
        return tr("No photo. Drop photos here, or press Add.");
    return detail_.isUnreadable() ? tr("This photo cannot be shown") : QString();
}

/// Updates the texts for screen readers.
void PreviewWidget::describe()
{
    const Photo &photo = detail_.photo();
    setAccessibleName(photo.storedSize().isEmpty() ? tr("Preview of the page")
                                                   : tr("Preview of %1").arg(plainText(photo.fileName())));
    const auto place = placement();
    const double cutOff = place ? place->cutOff(page_) : 0;
    QStringList sentences;
    if (place)
        sentences += cutOff < 0.001 ? tr("The whole photo is printed.")
                                    : tr("%1 % of the photo is cut off.").arg(std::ceil(cutOff * 100));
    const QString hint =
        zoom_ && place ? tr("Drag it, or press the arrow keys, to see another part; 0 shows the entire page.")
        : isMovable() ? tr("Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.")
                      : QString();
    if (!hint.isEmpty())
        sentences += hint;
    if (isDivided_ && place)
        sentences +=
            tr("Left of the divider, the photo is shown without the adjustments. Drag the divider, or "
               "press Ctrl and an arrow key, to move it.");
    setAccessibleDescription(sentences.join(u' '));
    setToolTip(hint);
    updateCursor(mapFromGlobal(QCursor::pos()));
}

// Painting

void PreviewWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    const PageView seen = view();
    if (!page_.size.isEmpty()) {
        using Side = PagePainter::Side;
        look_.side = isCompared_ ? Side::Unadjusted : isDivided_ ? Side::Divided : Side::Adjusted;
        painter_.paint(painter, seen, look_);
        detail_.want(PagePainter::photoPixels(seen), PagePainter::seenPart(seen));
    }
    if (const auto divider = isCompared_ ? std::nullopt : dividerAt()) {
        const QRectF photo = PagePainter::seenPhoto(seen);
        for (const auto &[color, width] : {std::pair(Qt::black, 3), std::pair(Qt::white, 1)}) {
            painter.setPen(QPen(color, width));
            painter.drawLine(QPointF(*divider, photo.top()), QPointF(*divider, photo.bottom()));
        }
    }
    if (const QString words = text(); !words.isEmpty()) {
        painter.setPen(page_.size.isEmpty() ? palette().color(QPalette::WindowText) : QColor(Qt::darkGray));
        const QRectF paper =
            page_.size.isEmpty() ? rect() : seen.toRoom().mapRect(QRectF(QPointF(0, 0), page_.size)) & rect();
        painter.drawText(paper.adjusted(paperMargin, paperMargin, -paperMargin, -paperMargin),
                         Qt::AlignCenter | Qt::TextWordWrap, words);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
    noteSeen();
}

/// What is only known after painting.
void PreviewWidget::noteSeen()
{
    const bool isOther = std::exchange(clippedShare_, painter_.clippedShare()) != painter_.clippedShare();
    const bool hides = hidesSharpening();
    if (std::exchange(hidSharpening_, hides) != hides || isOther)
        QMetaObject::invokeMethod(this, &PreviewWidget::viewChanged, Qt::QueuedConnection);
}

} // namespace printdialog
