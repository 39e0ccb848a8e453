// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoTable.h"

#include "ArrangementModel.h"
#include "ArrangementText.h"
#include "PhotoTableDelegate.h"
#include "PhotoTableModel.h"
#include "PhotoThumbnails.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace printdialog {

PhotoTable::PhotoTable(ArrangementModel *photos, QWidget *parent)
    : QListView(parent)
    , photos_(photos)
    , rows_(new PhotoTableModel(photos, this))
    , thumbnails_(new PhotoThumbnails(this))
{
    setModel(rows_);
    setItemDelegate(new PhotoTableDelegate(thumbnails_, this));
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragEnabled(true);
    viewport()->setAcceptDrops(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAccessibleDescription(tr("Delete removes the selected photos; Alt with an arrow key moves them."));
    fitCells();
    connect(thumbnails_, &PhotoThumbnails::made, viewport(), qOverload<>(&QWidget::update));
    connect(photos, &ArrangementModel::selectionChanged, this, &PhotoTable::showSelection);
    connect(photos, &ArrangementModel::photosChanged, this, [this] {
        setAccessibleName(
            tr("%1 of this job", "such as: 3 photos and 12 pages").arg(contentText(photos_->arrangement())));
        updateGeometry();
        showSelection();
    });
}

void PhotoTable::fitCells()
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    setGridSize(itemDelegate()->sizeHint(option, {}));
    thumbnails_->setSize((QSizeF(PhotoTableDelegate::pictureSize) * devicePixelRatioF()).toSize());
    updateGeometry();
}

bool PhotoTable::isReady()
{
    for (int row = 0; isVisible() && row < rows_->rowCount(); ++row) {
        const QModelIndex index = rows_->index(row);
        if (visualRect(index).intersects(viewport()->rect()))
            thumbnails_->of(rows_->photo(index)->photo);
    }
    return thumbnails_->isReady();
}

// Its size

int PhotoTable::columns() const
{
    return std::max(1, viewport()->width() / gridSize().width());
}

int PhotoTable::heightOf(int rows) const
{
    return rows * gridSize().height() + 2 * frameWidth();
}

void PhotoTable::setWantedHeight(int height)
{
    const int rows = (photos_->count() + columns() - 1) / columns();
    wantedHeight_ = std::clamp(height, heightOf(1), heightOf(std::max(rows, 1)));
    updateGeometry();
}

QSize PhotoTable::sizeHint() const
{
    const int usual = photos_->count() > columns() ? heightOf(2) : heightOf(1);
    return {200, wantedHeight_ > 0 ? wantedHeight_ : usual};
}

QSize PhotoTable::minimumSizeHint() const
{
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {gridSize().width() + bar + 2 * frameWidth(), heightOf(1)};
}

void PhotoTable::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    updateGeometry();
}

// What is selected. The view changes the selection and the current photo one after the other, so both are
// reported when the event is over.

bool PhotoTable::event(QEvent *event)
{
    ++eventDepth_;
    const bool isDone = QListView::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::ScreenChangeInternal)
        fitCells();
    handled();
    return isDone;
}

bool PhotoTable::viewportEvent(QEvent *event)
{
    ++eventDepth_;
    const bool isDone = QListView::viewportEvent(event);
    handled();
    return isDone;
}

void PhotoTable::handled()
{
    if (--eventDepth_ == 0 && isSelectionNew_)
        reportSelection();
}

void PhotoTable::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    noteSelection();
}

void PhotoTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    noteSelection();
}

void PhotoTable::noteSelection()
{
    if (isShowing_)
        return;
    isSelectionNew_ = true;
    if (eventDepth_ == 0) // by a screen reader
        QMetaObject::invokeMethod(this, &PhotoTable::reportSelection, Qt::QueuedConnection);
}

void PhotoTable::reportSelection()
{
    if (!std::exchange(isSelectionNew_, false))
        return;
    QList<int> selected;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected.append(row);
    }
    if (selected.isEmpty()) // one photo is always shown
        return showSelection();
    std::ranges::sort(selected);
    const auto isSelected = [&selected](int row) {
        return std::ranges::binary_search(selected, row);
    };
    int current = currentIndex().row();
    if (!isSelected(current))
        current = isSelected(photos_->current()) ? photos_->current() : selected.constFirst();
    // The keyboard may be at a photo that is not selected; the view stays there.
    isShowing_ = true;
    photos_->select(selected, current);
    isShowing_ = false;
}

void PhotoTable::showSelection()
{
    if (isShowing_)
        return;
    isShowing_ = true;
    const auto done = qScopeGuard([this] { isShowing_ = false; });
    isSelectionNew_ = false;
    const QList<int> &rows = photos_->selection();
    QItemSelection selection;
    for (qsizetype i = 0; i < rows.size();) {
        qsizetype last = i;
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        selection.append(QItemSelectionRange(rows_->index(rows.at(i)), rows_->index(rows.at(last))));
        i = last + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    const QModelIndex current = rows_->index(photos_->current());
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    scrollTo(current);
}

// Keys

void PhotoTable::keyPressEvent(QKeyEvent *event)
{
    const bool moves = event->modifiers() == Qt::AltModifier;
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT removalWanted();
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
        moves ? Q_EMIT stepWanted(-1) : QListView::keyPressEvent(event);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        moves ? Q_EMIT stepWanted(1) : QListView::keyPressEvent(event);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore(); // for the dialog, which prints
        break;
    default:
        QListView::keyPressEvent(event);
    }
}

// To the sides, the rows follow each other.
QModelIndex PhotoTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int row = currentIndex().row();
    const bool isAhead = action == MoveRight || action == MoveNext;
    if (row < 0 || !(isAhead || action == MoveLeft || action == MovePrevious))
        return QListView::moveCursor(action, modifiers);
    return rows_->index(std::clamp(row + (isAhead ? 1 : -1), 0, rows_->rowCount() - 1));
}

void PhotoTable::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint place = visualRect(currentIndex()).center();
    Q_EMIT menuWanted(isByKey ? viewport()->mapToGlobal(place) : event->globalPos());
}

// Dragging photos within the table moves them; other drags are for the parent widget.

void PhotoTable::startDrag(Qt::DropActions actions)
{
    QListView::startDrag(actions);
    showDrop(-1);
}

/// The photo that those dropped there come before.
int PhotoTable::placeAt(const QPoint &position) const
{
    const QSize cell = gridSize();
    const int row = std::max(0, position.y() + verticalOffset()) / cell.height();
    const int column = std::clamp((position.x() + cell.width() / 2) / cell.width(), 0, columns());
    return std::min(row * columns() + column, rows_->rowCount());
}

void PhotoTable::showDrop(int before)
{
    dropBefore_ = before;
    viewport()->update();
}

void PhotoTable::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (dropBefore_ < 0)
        return;
    constexpr int thickness = 3;
    const bool isAtEnd = dropBefore_ == rows_->rowCount();
    const QRect cell = visualRect(rows_->index(isAtEnd ? dropBefore_ - 1 : dropBefore_));
    const int x = isAtEnd ? cell.right() - thickness + 1 : cell.left();
    QPainter(viewport()).fillRect(QRect(x, cell.top(), thickness, cell.height()), palette().highlight());
}

void PhotoTable::dragEnterEvent(QDragEnterEvent *event)
{
    if (PhotoTableModel::isOwnDrag(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void PhotoTable::dragMoveEvent(QDragMoveEvent *event)
{
    if (!PhotoTableModel::isOwnDrag(event->mimeData()))
        return event->ignore();
    event->acceptProposedAction();
    const QPoint position = event->position().toPoint();
    showDrop(placeAt(position));
    const int margin = autoScrollMargin();
    if (!viewport()->rect().adjusted(0, margin, 0, -margin).contains(position))
        startAutoScroll();
}

void PhotoTable::dragLeaveEvent(QDragLeaveEvent *event)
{
    QListView::dragLeaveEvent(event);
    showDrop(-1);
}

void PhotoTable::dropEvent(QDropEvent *event)
{
    if (!PhotoTableModel::isOwnDrag(event->mimeData()))
        return event->ignore();
    event->acceptProposedAction();
    stopAutoScroll();
    // Once the drag is over, which the view's state belongs to.
    QMetaObject::invokeMethod(
        this, [this, before = placeAt(event->position().toPoint())] { Q_EMIT moveWanted(before); },
        Qt::QueuedConnection);
}

} // namespace printdialog
