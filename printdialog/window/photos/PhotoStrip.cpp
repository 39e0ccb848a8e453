// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoStrip.h"

#include "PhotoThreads.h"
#include "PlainText.h"
#include "ViewTexts.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtCore/QThreadPool>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace printdialog {

namespace {

constexpr QSize thumbnailSize(72, 54);
constexpr int photoPadding = 6;
constexpr qsizetype nameLimit = 60;

constexpr int thumbnailsKept = 12 << 20; // bytes
constexpr int margin = 4;                // photos on each side of those that are seen

} // namespace

/// A photo whose thumbnail is made when the view asks for it.
class PhotoStrip::Item : public QListWidgetItem
{
public:
    Item(const Photo &photo, PhotoStrip *strip)
        : QListWidgetItem(strip)
        , strip_(strip)
        , photo_(photo)
    {
        setToolTip(pdekit::plainToolTip(name()));
        setSizeHint(strip->gridSize()); // without a thumbnail, an item would have no size
        setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
    }

    const Photo &photo() const { return photo_; }
    bool shows(const Photo &photo) const
    {
        return photo.identity() == photo_.identity() && photo.path() == photo_.path();
    }

    QVariant data(int role) const override
    {
        if (role == Qt::AccessibleTextRole)
            return PhotoStrip::tr("%1, photo %2 of %3")
                .arg(name())
                .arg(strip_->row(this) + 1)
                .arg(strip_->count());
        if (role != Qt::DecorationRole)
            return QListWidgetItem::data(role);
        if (const QPixmap *known = strip_->thumbnails_.object(photo_.identity()))
            return QIcon(*known);
        strip_->want(strip_->row(this));
        return {};
    }

private:
    QString name() const { return plainText(photo_.fileName(), nameLimit); }

    PhotoStrip *strip_;
    Photo photo_;
};

PhotoStrip::PhotoStrip(QWidget *parent)
    : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setFlow(QListView::LeftToRight);
    setWrapping(false);
    setUniformItemSizes(true);
    setMovement(QListView::Snap);
    setIconSize(thumbnailSize);
    setGridSize(thumbnailSize + QSize(2 * photoPadding, 2 * photoPadding));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    thumbnails_.setMaxCost(thumbnailsKept);
    setAccessibleDescription(tr("Delete removes a photo; Alt with an arrow key moves it."));
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            Q_EMIT picked(row);
    });
}

void PhotoStrip::setPhotos(const QList<Photo> &photos, int current)
{
    setAccessibleName(tr("%n photo(s) of this job", nullptr, static_cast<int>(photos.size())));
    const QSignalBlocker blocker(this);
    int same = 0;
    while (same < qMin(count(), static_cast<int>(photos.size())) && itemAt(same)->shows(photos.at(same)))
        ++same;
    if (same < count()) {
        clear();
        wanted_.clear();
        same = 0;
    }
    for (; same < static_cast<int>(photos.size()); ++same)
        new Item(photos.at(same), this);
    setCurrentRow(current); // also in the middle of changing the current item
}

PhotoStrip::Item *PhotoStrip::itemAt(int row) const
{
    return static_cast<Item *>(item(row));
}

bool PhotoStrip::isReady() const
{
    bool isReady = true;
    for (int row = 0; row < count(); ++row) {
        if (visualItemRect(item(row)).intersects(viewport()->rect()))
            isReady = !item(row)->data(Qt::DecorationRole).isNull() && isReady;
    }
    return isReady;
}

bool PhotoStrip::isNearlySeen(const Item &item) const
{
    const int around = margin * gridSize().width();
    return visualItemRect(&item).intersects(viewport()->rect().adjusted(-around, -around, around, around));
}

/// Called while painting, so the work begins later: first with this photo, and with its neighbours at the
/// end.
void PhotoStrip::want(int row)
{
    if (underWay_.contains(itemAt(row)->photo().identity()))
        return;
    if (wanted_.isEmpty())
        QMetaObject::invokeMethod(this, &PhotoStrip::makeThumbnails, Qt::QueuedConnection);
    wanted_.removeOne(row);
    wanted_.append(row);
    for (int next = qMax(0, row - margin); next <= qMin(row + margin, count() - 1); ++next) {
        if (!wanted_.contains(next))
            wanted_.prepend(next);
    }
}

/// Only as many as there are threads are under way, so that what comes into view waits for nothing that is
/// out of it again.
void PhotoStrip::makeThumbnails()
{
    const int most = photoThreads().maxThreadCount();
    while (!wanted_.isEmpty() && underWay_.size() < most) {
        const Item *item = itemAt(wanted_.takeLast());
        if (item && isNearlySeen(*item) && !thumbnails_.contains(item->photo().identity()) &&
            !underWay_.contains(item->photo().identity()))
            makeThumbnail(item->photo());
    }
}

void PhotoStrip::makeThumbnail(const Photo &photo)
{
    underWay_.insert(photo.identity());
    const double ratio = devicePixelRatioF();
    const auto make = [photo, ratio, self = QPointer<PhotoStrip>(this)] {
        QImage image = photo.thumbnail((QSizeF(thumbnailSize) * ratio).toSize());
        image.setDevicePixelRatio(ratio);
        QMetaObject::invokeMethod(qApp, [self, identity = photo.identity(), image] {
            if (self)
                self->showThumbnail(identity, image);
        });
    };
    startPhotoTask(make, ThumbnailPhoto);
}

void PhotoStrip::showThumbnail(const FileIdentity &identity, const QImage &image)
{
    underWay_.remove(identity);
    thumbnails_.insert(identity, new QPixmap(QPixmap::fromImage(image)),
                       static_cast<qsizetype>(image.sizeInBytes()) + 1);
    viewport()->update();
    makeThumbnails();
}

QSize PhotoStrip::sizeHint() const
{
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {200, gridSize().height() + bar + 2 * frameWidth()};
}

QSize PhotoStrip::minimumSizeHint() const
{
    return {gridSize().width() + 2 * frameWidth(), sizeHint().height()};
}

void PhotoStrip::keyPressEvent(QKeyEvent *event)
{
    const int row = currentRow();
    const bool moves = event->modifiers() == Qt::AltModifier;
    if (row >= 0 && (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace))
        Q_EMIT removalWanted(row);
    else if (row > 0 && moves && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Up))
        Q_EMIT moveWanted(row, row - 1);
    else if (row >= 0 && row + 1 < count() && moves &&
             (event->key() == Qt::Key_Right || event->key() == Qt::Key_Down))
        Q_EMIT moveWanted(row, row + 1);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore(); // for the dialog, which prints
    else
        QListWidget::keyPressEvent(event);
}

// Dragging a thumbnail within the strip moves its photo; other drags are for the parent widget.

bool PhotoStrip::isOwnDrag(const QDropEvent &event) const
{
    return event.source() == this;
}

void PhotoStrip::dragEnterEvent(QDragEnterEvent *event)
{
    if (isOwnDrag(*event))
        event->acceptProposedAction();
    else
        event->ignore();
}

void PhotoStrip::dragMoveEvent(QDragMoveEvent *event)
{
    if (isOwnDrag(*event))
        event->acceptProposedAction();
    else
        event->ignore();
}

void PhotoStrip::dropEvent(QDropEvent *event)
{
    if (!isOwnDrag(*event))
        return event->ignore();
    const int from = currentRow();
    const int x = static_cast<int>(event->position().x()) + horizontalOffset();
    const int to = std::clamp(x / gridSize().width(), 0, count() - 1);
    // A copy, so that the view does not move items itself: it would leave the photos behind.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (from >= 0 && from != to)
        QMetaObject::invokeMethod(
            this, [this, from, to] { Q_EMIT moveWanted(from, to); }, Qt::QueuedConnection);
}

} // namespace printdialog
