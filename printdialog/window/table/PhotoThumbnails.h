// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QCache>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtGui/QPixmap>

namespace printdialog {

/// Small pictures of photos, made on worker threads when they are first asked for. Those asked for last come
/// first, and only so many are kept: of thousands of photos, the user sees a few.
class PhotoThumbnails : public QObject
{
    Q_OBJECT

public:
    explicit PhotoThumbnails(QObject *parent = nullptr);

    /// The bound in device pixels; a change forgets the pictures.
    void setSize(const QSize &size);
    /// The photo's picture within the bound. Null while it is being made, and for a photo that cannot be
    /// decoded.
    QPixmap of(const Photo &photo);
    /// Whether it is made, and kept.
    bool has(const Photo &photo) const { return pictures_.contains(photo.key()); }
    /// Whether everything that was asked for is there.
    bool isReady() const { return underWay_.isEmpty() && wanted_.isEmpty(); }

Q_SIGNALS:
    /// Another picture is there.
    void made();

private:
    void startNext();
    void keep(const PictureKey &key, const QSize &size, const QImage &image);

    QSize size_;
    QCache<PictureKey, QPixmap> pictures_;
    QList<Photo> wanted_; ///< The last one comes first.
    QSet<PictureKey> underWay_;
};

} // namespace printdialog
