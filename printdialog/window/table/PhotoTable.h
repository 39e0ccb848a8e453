// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QListView>

namespace printdialog {

class ArrangementModel;
class PhotoTableModel;
class PhotoThumbnails;

/// The photos of a job as a table of numbered pictures, in the order in which they are printed. They are
/// selected with the mouse and the keyboard as in a file manager, and moved by dragging, or with Alt and an
/// arrow key. It shows an ArrangementModel and selects in it; what else the user wants, it reports.
class PhotoTable : public QListView
{
    Q_OBJECT

public:
    explicit PhotoTable(ArrangementModel *photos, QWidget *parent = nullptr);

    /// Whether all pictures in sight are made.
    bool isReady();
    const PhotoThumbnails &thumbnails() const { return *thumbnails_; }
    /// The height that the user wants, as far as there is room for it; at least one row is shown.
    void setWantedHeight(int height);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void removalWanted();
    /// The selected photos before this one, or to the end.
    void moveWanted(int before);
    /// The selected photos by one place: -1 or 1.
    void stepWanted(int direction);
    void menuWanted(const QPoint &globalPosition);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void fitCells();
    void showSelection();
    void noteSelection();
    void reportSelection();
    void handled();
    int columns() const;
    int heightOf(int rows) const;
    int placeAt(const QPoint &position) const;
    void showDrop(int before);

    // First, since the children's constructors send events already.
    int eventDepth_ = 0;          ///< an event may cause others
    bool isSelectionNew_ = false; ///< the user has selected, and it is not reported yet
    bool isShowing_ = false;
    int dropBefore_ = -1;  ///< where dragged photos would go; -1: nowhere
    int wantedHeight_ = 0; ///< 0: as few rows as suit the number of photos
    ArrangementModel *photos_;
    PhotoTableModel *rows_;
    PhotoThumbnails *thumbnails_;
};

} // namespace printdialog
