// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoStrip.h"

#include "PhotoThreads.h"
#include "PlainText.h"
#include "ViewTexts.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
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

/// The key of a photo's thumbnail. Includes the time, since a file may be replaced under the same name.
QString keyOf(const Photo &photo)
{
    return photo.path() + u'\n' + QString::number(photo.modified().toMSecsSinceEpoch());
}

} // namespace

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
    bool isShown = count() == photos.size();
    for (int row = 0; isShown && row < count(); ++row)
        isShown = item(row)->data(Qt::UserRole).toString() == keyOf(photos.at(row));
    if (isShown) // the view may be in the middle of changing the current item
        return setCurrentRow(current);
    clear();
    QHash<QString, QPixmap> kept;
    for (const Photo &photo : photos) {
        if (const auto known = thumbnails_.constFind(keyOf(photo)); known != thumbnails_.constEnd())
            kept.insert(known.key(), known.value());
    }
    thumbnails_ = kept;
    for (qsizetype i = 0; i < photos.size(); ++i)
        addPhoto(photos.at(i), static_cast<int>(i) + 1, static_cast<int>(photos.size()));
    setCurrentRow(current);
}

void PhotoStrip::addPhoto(const Photo &photo, int number, int count)
{
    const QString name = plainText(photo.fileName(), nameLimit);
    auto *item = new QListWidgetItem(this);
    item->setData(Qt::UserRole, keyOf(photo));
    item->setData(Qt::AccessibleTextRole, tr("%1, photo %2 of %3").arg(name).arg(number).arg(count));
    item->setToolTip(pdekit::plainToolTip(name));
    item->setSizeHint(gridSize()); // without a thumbnail, an item would have no size
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
    if (const auto known = thumbnails_.constFind(keyOf(photo)); known != thumbnails_.constEnd())
        item->setIcon(QIcon(known.value()));
    else
        makeThumbnail(photo);
}

void PhotoStrip::makeThumbnail(const Photo &photo)
{
    const QString key = keyOf(photo);
    thumbnails_.insert(key, QPixmap());
    ++pending_;
    const double ratio = devicePixelRatioF();
    const auto make = [photo, key, ratio, self = QPointer<PhotoStrip>(this)] {
        QImage image = photo.preview((QSizeF(thumbnailSize) * ratio).toSize());
        image.setDevicePixelRatio(ratio);
        QMetaObject::invokeMethod(qApp, [self, key, image] {
            if (!self)
                return;
            --self->pending_;
            if (!self->thumbnails_.contains(key))
                return;
            const QPixmap pixmap = QPixmap::fromImage(image);
            self->thumbnails_.insert(key, pixmap);
            for (int row = 0; row < self->count(); ++row) {
                if (self->item(row)->data(Qt::UserRole).toString() == key)
                    self->item(row)->setIcon(QIcon(pixmap));
            }
        });
    };
    startPhotoTask(make, ThumbnailPhoto);
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
