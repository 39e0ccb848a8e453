// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QList>
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

    /// Thumbnails arrive later, from worker threads.
    void setPhotos(const QList<Photo> &photos, int current);

    /// Whether all thumbnails are made.
    bool isReady() const { return pending_ == 0; }

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
    void addPhoto(const Photo &photo, int number, int count);
    void makeThumbnail(const Photo &photo);
    bool isOwnDrag(const QDropEvent &event) const;

    QHash<QString, QPixmap> thumbnails_; ///< by path and time; null while one is being made
    int pending_ = 0;
};

} // namespace printdialog
