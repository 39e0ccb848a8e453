// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QCache>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtGui/QPixmap>
#include <QtWidgets/QListWidget>

namespace printdialog {

/// The photos of a job as a strip of thumbnails, in the order in which they are printed. The current one is
/// picked with the mouse or the arrow keys, removed with Delete, and moved with Alt and an arrow key or by
/// dragging. It only shows and reports: the owner of the photos makes the requested change and sets them
/// again.
class PhotoStrip : public QListWidget
{
    Q_OBJECT

public:
    explicit PhotoStrip(QWidget *parent = nullptr);

    /// Thumbnails arrive later, from worker threads: those of photos that are seen, or nearly, and no others.
    void setPhotos(const QList<Photo> &photos, int current);

    /// Whether the thumbnails of all photos that are seen are made.
    bool isReady() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void picked(int index);
    void removalWanted(int index);
    void moveWanted(int from, int to);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;

private:
    class Item;

    Item *itemAt(int row) const;
    bool isNearlySeen(const Item &item) const;
    void want(int row);
    void makeThumbnails();
    void makeThumbnail(const Photo &photo);
    void showThumbnail(const FileIdentity &identity, const QImage &image);
    bool isOwnDrag(const QDropEvent &event) const;

    QCache<FileIdentity, QPixmap> thumbnails_; ///< those used last; null where a photo has none
    QList<int> wanted_;                        ///< rows; the last one is made first
    QSet<FileIdentity> underWay_;
};

} // namespace printdialog
