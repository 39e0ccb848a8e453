// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoThumbnails.h"

#include "PhotoThreads.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QThreadPool>

#include <algorithm>

namespace printdialog {

namespace {

constexpr qsizetype mostKept = qsizetype(32) << 20; // bytes
constexpr qsizetype mostWanted = 500;               // more than any screen shows

} // namespace

PhotoThumbnails::PhotoThumbnails(QObject *parent)
    : QObject(parent)
    , pictures_(mostKept)
{
}

void PhotoThumbnails::setSize(const QSize &size)
{
    if (size == size_)
        return;
    size_ = size;
    pictures_.clear();
    wanted_.clear();
    underWay_.clear();
}

QPixmap PhotoThumbnails::of(const Photo &photo)
{
    const PictureKey key = photo.key();
    if (const QPixmap *picture = pictures_.object(key))
        return *picture;
    if (underWay_.contains(key))
        return {};
    // Asked for again, it is in sight again.
    wanted_.removeIf([&photo](const Photo &wanted) { return wanted.key() == photo.key(); });
    wanted_.append(photo);
    if (wanted_.size() > mostWanted)
        wanted_.removeFirst();
    startNext();
    return {};
}

void PhotoThumbnails::startNext()
{
    while (!wanted_.isEmpty() && underWay_.size() < photoThreads().maxThreadCount()) {
        const Photo photo = wanted_.takeLast();
        const PictureKey key = photo.key();
        underWay_.insert(key);
        const auto make = [photo, key, size = size_, self = QPointer<PhotoThumbnails>(this)] {
            const QImage image = photo.thumbnail(size);
            QMetaObject::invokeMethod(qApp, [self, key, size, image] {
                if (self)
                    self->keep(key, size, image);
            });
        };
        startPhotoTask(make, ThumbnailPhoto);
    }
}

void PhotoThumbnails::keep(const PictureKey &key, const QSize &size, const QImage &image)
{
    if (size == size_ && underWay_.remove(key)) {
        const qsizetype cost = std::max<qsizetype>(image.sizeInBytes(), 1);
        pictures_.insert(key, new QPixmap(QPixmap::fromImage(image)), cost);
    }
    startNext();
    Q_EMIT made();
}

} // namespace printdialog
