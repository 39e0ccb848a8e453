// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoDetail.h"

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

PhotoDetail::~PhotoDetail()
{
    if (isGone_)
        *isGone_ = true;
    dropPart();
}

bool PhotoDetail::setPhoto(const Photo &photo, int detail)
{
    const bool isSame = photo.path() == photo_.path() && photo.key() == photo_.key();
    photo_ = photo;
    if (isSame)
        return false;
    pixels_ = {};
    isUnreadable_ = false;
    detail_ = decodedDetail_ = 0;
    dropPart();
    partUnderWay_.reset();
    failedWhole_ = {};
    ++number_;
    if (isGone_)
        *isGone_ = true;
    isGone_ = std::make_shared<std::atomic<bool>>(false);
    least_ = detail;
    if (!photo.storedSize().isEmpty())
        decode(detail);
    return true;
}

void PhotoDetail::decode(int detail)
{
    detail_ = detail;
    startPhotoTask(
        [photo = photo_, number = number_, detail, isGone = isGone_, self = QPointer<PhotoDetail>(this)] {
            if (*isGone)
                return; // the user has gone on before its turn came
            const QImage image = photo.pixels({detail, detail});
            QMetaObject::invokeMethod(qApp, [self, number, detail, image] {
                if (self)
                    self->show(number, detail, image);
            });
        },
        priority_);
}

void PhotoDetail::show(quint64 number, int detail, const QImage &image)
{
    if (number != number_ || detail != detail_)
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
    if (const int detail = PagePhoto::detailFor({useful, useful}, least_); detail > detail_)
        decode(detail);
    if (!PagePhoto::needsPart(whole, stored)) {
        dropPart();
        if (!pixels_.part.isNull()) {
            pixels_.part = {};
            Q_EMIT changed();
        }
        return;
    }
    if (whole == failedWhole_)
        return; // it cannot be decoded: what is there stays
    if (partWhole_ == whole && pixels_.partCovers.contains(seen))
        return;
    wholeWanted_ = whole;
    partWanted_ = seen;
    if (!partUnderWay_)
        decodePart();
    else if (partUnderWay_->whole != whole || !partUnderWay_->covers.contains(seen))
        *partUnderWay_->isGivenUp = true; // and this one is next
}

void PhotoDetail::rest()
{
    if (!isReady() || isUnreadable_)
        return;
    dropPart();
    pixels_.part = {};
    if (detail_ > std::max(least_, PagePhoto::usualDetail))
        decode(least_);
}

/// No part is wanted any more.
void PhotoDetail::dropPart()
{
    wholeWanted_ = partWhole_ = {};
    if (partUnderWay_)
        *partUnderWay_->isGivenUp = true;
}

/// One at a time: while the user pans, only the latest part is decoded next.
void PhotoDetail::decodePart()
{
    const QSizeF more(partWanted_.width() * around, partWanted_.height() * around);
    const QRectF covers =
        partWanted_.adjusted(-more.width(), -more.height(), more.width(), more.height()) & QRectF(0, 0, 1, 1);
    partUnderWay_ = {wholeWanted_, covers, std::make_shared<std::atomic<bool>>(false)};
    startPhotoTask(
        [photo = photo_, number = number_, asked = *partUnderWay_, self = QPointer<PhotoDetail>(this)] {
            const PhotoPart part = photo.part(asked.covers, asked.whole, asked.isGivenUp.get());
            QMetaObject::invokeMethod(qApp, [self, number, asked, part] {
                if (self)
                    self->showPart(number, asked, part);
            });
        },
        priority_);
}

void PhotoDetail::showPart(quint64 number, const WantedPart &asked, const PhotoPart &part)
{
    if (number != number_)
        return;
    partUnderWay_.reset();
    if (wholeWanted_.isEmpty())
        return;
    const bool isWanted = asked.whole == wholeWanted_ && asked.covers.contains(partWanted_);
    if (!part.image.isNull()) {
        pixels_.part = part.image;
        pixels_.partCovers = part.area;
        partWhole_ = asked.whole;
    }
    if (isWanted && part.image.isNull() && !*asked.isGivenUp)
        failedWhole_ = wholeWanted_;
    else if (!isWanted || part.image.isNull())
        decodePart(); // what was given up may be wanted again
    if (!part.image.isNull())
        Q_EMIT changed();
}

} // namespace printdialog
