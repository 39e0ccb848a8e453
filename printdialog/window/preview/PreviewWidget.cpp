// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include "SheetRuler.h"

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
    connect(&detail_, &SheetDetail::changed, this, &PreviewWidget::updatePhotos);
    connect(&colors_, &ScreenColors::changed, this, &PreviewWidget::updateColors);
    describe();
}

// What is shown

void PreviewWidget::setSheet(const PrintSheet &sheet, qsizetype current, const PlacementChoice &choice)
{
    const PictureKey before = photo().key();
    sheet_ = sheet;
    current_ = current;
    choice_ = choice;
    QList<QByteArray> profiles;
    for (const SheetPhoto &laid : sheet.photos)
        profiles += laid.photo.pixelProfile();
    painter_.setSheet(sheet, current);
    detail_.setSheet(sheet, current, view());
    colors_.setPhotoProfiles(profiles);
    if (photo().key() != before && drag_ == Drag::Photo)
        drag_ = Drag::None;
    if (sheet.photos.isEmpty())
        zoom_.reset();
    wasReady_ = isReady();
    updateColors();
    limitZoom();
    describe();
    update();
    Q_EMIT viewChanged();
}

void PreviewWidget::setSheetNumber(int number, int count)
{
    if (std::exchange(sheetNumber_, number) == number && sheetCount_ == count)
        return;
    sheetCount_ = count;
    describe();
    Q_EMIT sheetNumberChanged();
}

void PreviewWidget::setExpectedPages(const QList<ExpectedPage> &pages)
{
    expected_ = pages;
    describe();
    update();
}

void PreviewWidget::turnSheets(int count)
{
    const int wanted = std::clamp(sheetNumber_ + count, 0, std::max(0, sheetCount_ - 1));
    if (wanted != sheetNumber_)
        Q_EMIT sheetWanted(wanted);
}

/// The current photo; a null one without photos.
const Photo &PreviewWidget::photo() const
{
    static const Photo none;
    return current_ < 0 ? none : sheet_.photos.at(current_).photo;
}

/// Those of this key, or all, have other pixels.
void PreviewWidget::updatePhotos(const std::optional<PictureKey> &key)
{
    for (qsizetype i = 0; i < sheet_.photos.size(); ++i) {
        const Photo &shown = sheet_.photos.at(i).photo;
        if (key && shown.key() != *key)
            continue;
        // A photo waits for the table of its colors.
        const auto lookup = colors_.lookupFor(shown.pixelProfile());
        PagePhoto pixels = lookup ? detail_.at(i).pixels() : PagePhoto();
        pixels.lookup = lookup.value_or(nullptr);
        painter_.setPhoto(i, pixels);
    }
    update();
    if (!std::exchange(wasReady_, isReady()) && wasReady_)
        Q_EMIT ready();
}

void PreviewWidget::updateColors()
{
    updatePhotos();
}

void PreviewWidget::setPage(const PageGeometry &page)
{
    page_ = page;
    limitZoom();
    describe();
    update();
    Q_EMIT viewChanged();
}

void PreviewWidget::setAdjustment(const PictureAdjustment &adjustment)
{
    if (adjustment == painter_.adjustment())
        return;
    painter_.setAdjustment(adjustment);
    update(isShared() ? rect() : PagePainter::seenPhoto(view()).toAlignedRect());
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
    colors_.setProfiles(screen, paper);
}

std::optional<PhotoPlacement> PreviewWidget::placement() const
{
    if (page_.printed().isEmpty() || photo().storedSize().isEmpty())
        return std::nullopt;
    const PhotoPlacement &placement = sheet_.photos.at(current_).placement;
    return placement.target.isEmpty() ? std::nullopt : std::optional(placement);
}

PageView PreviewWidget::view() const
{
    PageView view;
    view.page = page_;
    view.placement = placement();
    view.isShared = isShared();
    view.isReadTurned = sheet_.isReadTurned() || areExpectedTurned();
    view.room = size();
    view.margin = paperMargin + (isRuled_ ? rulerWidth(font()) : 0);
    view.ratio = devicePixelRatioF();
    view.dotsPerInch = dotsPerInch_;
    view.zoom = zoom_;
    view.center = center_;
    return view.panned({0, 0}); // no farther than there is something to see
}

bool PreviewWidget::hidesSharpening() const
{
    return painter_.hidesSharpening();
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

void PreviewWidget::setRuled(bool isRuled)
{
    if (std::exchange(isRuled_, isRuled) == isRuled)
        return;
    limitZoom();
    describe();
    update();
    Q_EMIT viewChanged();
}

QSize PreviewWidget::sizeHint() const
{
    return {360, 380};
}

QSize PreviewWidget::minimumSizeHint() const
{
    return {200, 200};
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
        look_.showsCutOff = drag_ == Drag::Photo;
        painter_.paint(painter, seen, look_);
        detail_.want(sheet_, seen);
        paintBleed(painter, seen);
        paintFrame(painter, seen);
    }
    paintDivider(painter, seen);
    if (isRuled_ && !page_.size.isEmpty())
        paintRulers(painter, seen, seen.placement ? seen.placement->outline : QRectF(), palette());
    if (photo().storedSize().isEmpty() && !page_.size.isEmpty())
        paintExpectedPages(painter, seen);
    paintText(painter, seen);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
    noteSeen();
}

/// Around the current one of several photos.
void PreviewWidget::paintFrame(QPainter &painter, const PageView &seen) const
{
    if (!isShared() || !seen.placement)
        return;
    constexpr double width = 2;
    const QRectF print = seen.toRoom().mapRect(seen.placement->outline & page_.printed());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), width));
    painter.drawRect(print.adjusted(-width, -width, width, width));
}

void PreviewWidget::paintDivider(QPainter &painter, const PageView &seen) const
{
    const auto divider = isCompared_ ? std::nullopt : dividerAt();
    if (!divider)
        return;
    const QRectF photo = PagePainter::seenPhoto(seen);
    for (const auto &[color, width] : {std::pair(Qt::black, 3), std::pair(Qt::white, 1)}) {
        painter.setPen(QPen(color, width));
        painter.drawLine(QPointF(*divider, photo.top()), QPointF(*divider, photo.bottom()));
    }
}

void PreviewWidget::paintText(QPainter &painter, const PageView &seen) const
{
    const QString words = text();
    if (words.isEmpty())
        return;
    painter.setPen(page_.size.isEmpty() ? palette().color(QPalette::WindowText) : QColor(Qt::darkGray));
    const QRectF place =
        isShared() && seen.placement ? seen.placement->outline : QRectF(QPointF(0, 0), page_.size);
    const QRectF paper = page_.size.isEmpty() ? rect() : seen.toRoom().mapRect(place) & rect();
    const int margin = isShared() ? 0 : paperMargin;
    painter.drawText(paper.adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap,
                     words);
}

bool PreviewWidget::areExpectedTurned() const
{
    return photo().storedSize().isEmpty() && !expected_.isEmpty() &&
           std::ranges::all_of(expected_,
                               [](const ExpectedPage &page) { return page.placement.pageTurns == 1; });
}

/// Their outlines and numbers, which lie as the pages do.
void PreviewWidget::paintExpectedPages(QPainter &painter, const PageView &seen) const
{
    constexpr double share = 0.3; // of the page's shorter side, for its number
    constexpr int quarter = 90;
    const QTransform toRoom = seen.toRoom();
    for (const ExpectedPage &page : expected_) {
        const QRectF outline = toRoom.mapRect(page.placement.target & page.placement.clip);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::lightGray, 1));
        painter.drawRect(outline);
        QFont number = font();
        number.setPixelSize(
            std::max(1, static_cast<int>(share * std::min(outline.width(), outline.height()))));
        painter.save();
        painter.setFont(number);
        painter.translate(outline.center());
        painter.rotate((page.placement.quarterTurns - (seen.isReadTurned ? 1 : 0)) * quarter);
        const double reach = outline.width() + outline.height();
        painter.drawText(QRectF(-reach, -reach, 2 * reach, 2 * reach), Qt::AlignCenter,
                         locale().toString(page.number));
        painter.restore();
    }
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
