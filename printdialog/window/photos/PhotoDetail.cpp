// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoDetail.h"

#include "PhotoThreads.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

#include <algorithm>

namespace printdialog {

namespace {

/// How much more than what is seen is decoded on each side, as a share of it: some way to pan.
constexpr double around = 0.3;

} // namespace

PhotoDetail::PhotoDetail(QObject *parent)
    : QObject(parent)
{
}

bool PhotoDetail::setPhoto(const Photo &photo)
{
    const bool isSame = photo.path() == photo_.path() && photo.modified() == photo_.modified();
    photo_ = photo;
    if (isSame)
        return false;
    pixels_ = {};
    isUnreadable_ = false;
    detail_ = decodedDetail_ = 0;
    wholeWanted_ = partWhole_ = {};
    isPartUnderWay_ = false;
    ++number_;
    if (!photo.storedSize().isEmpty())
        decode(PagePhoto::detailFor({}));
    return true;
}

void PhotoDetail::decode(int detail)
{
    detail_ = detail;
    startPhotoTask(
        [photo = photo_, number = number_, detail, self = QPointer<PhotoDetail>(this)] {
            const QImage image = photo.pixels({detail, detail});
            QMetaObject::invokeMethod(qApp, [self, number, detail, image] {
                if (self)
                    self->show(number, detail, image);
            });
        },
        ShownPhoto);
}

void PhotoDetail::show(quint64 number, int detail, const QImage &image)
{
    if (number != number_ || detail < detail_)
        return;
    decodedDetail_ = detail;
    if (image.isNull() && !pixels_.whole.isNull())
        return;
    pixels_.whole = image;
    isUnreadable_ = image.isNull();
    Q_EMIT changed();
}

// A photo seen larger than it was decoded stays as it is until there is more detail.
void PhotoDetail::want(const QSize &whole, const QRectF &seen)
{
    if (!isReady() || isUnreadable_ || whole.isEmpty() || seen.isEmpty())
        return;
    const QSize stored = photo_.storedSize();
    const int useful =
        std::min(std::max(stored.width(), stored.height()), std::max(whole.width(), whole.height()));
    if (const int detail = PagePhoto::detailFor({useful, useful}); detail > detail_)
        decode(detail);
    if (useful <= PagePhoto::mostDetail) {
        wholeWanted_ = partWhole_ = {};
        if (!pixels_.part.isNull()) {
            pixels_.part = {};
            Q_EMIT changed();
        }
        return;
    }
    if (partWhole_ == whole && pixels_.partCovers.contains(seen))
        return;
    wholeWanted_ = whole;
    partWanted_ = seen;
    if (!isPartUnderWay_)
        decodePart();
}

/// One at a time: while the user pans, only the latest part is decoded next.
void PhotoDetail::decodePart()
{
    isPartUnderWay_ = true;
    const QSizeF more(partWanted_.width() * around, partWanted_.height() * around);
    const QRectF wanted =
        partWanted_.adjusted(-more.width(), -more.height(), more.width(), more.height()) & QRectF(0, 0, 1, 1);
    startPhotoTask(
        [photo = photo_, number = number_, whole = wholeWanted_, wanted, self = QPointer<PhotoDetail>(this)] {
            const PhotoPart part = photo.part(wanted, whole);
            QMetaObject::invokeMethod(qApp, [self, number, whole, part] {
                if (self)
                    self->showPart(number, whole, part);
            });
        },
        ShownPhoto);
}

void PhotoDetail::showPart(quint64 number, const QSize &whole, const PhotoPart &part)
{
    if (number != number_)
        return;
    isPartUnderWay_ = false;
    if (wholeWanted_.isEmpty())
        return;
    if (part.image.isNull()) {
        wholeWanted_ = {}; // what is there stays
        return;
    }
    pixels_.part = part.image;
    pixels_.partCovers = part.area;
    partWhole_ = whole;
    if (whole != wholeWanted_ || !part.area.contains(partWanted_))
        decodePart();
    Q_EMIT changed();
}

} // namespace printdialog
