// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PagePhoto.h"
#include "Photo.h"
#include "PhotoThreads.h"

#include <QtCore/QObject>

#include <atomic>
#include <memory>
#include <optional>

namespace printdialog {

/// A photo's pixels for the preview, in the photo's own colors (Photo::pixels): the entire photo about as
/// large as it is seen and, when it is seen larger than memory allows, the seen part of it. Decoded on worker
/// threads.
class PhotoDetail : public QObject
{
    Q_OBJECT

public:
    explicit PhotoDetail(QObject *parent = nullptr);
    ~PhotoDetail() override;

    /// Decodes a photo that differs from the previous one. False: it is the same.
    /// @param detail how many pixels its longer side gets first
    bool setPhoto(const Photo &photo, int detail = PagePhoto::usualDetail);
    /// Of what is decoded from now on.
    void setPriority(PhotoPriority priority) { priority_ = priority; }
    const Photo &photo() const { return photo_; }
    /// Whether the photo is decoded, or has turned out to be unreadable.
    bool isReady() const { return !pixels_.whole.isNull() || isUnreadable_; }
    bool isUnreadable() const { return isUnreadable_; }
    const PagePhoto &pixels() const { return pixels_; }

    /// The photo is seen with this many pixels (upright), and this part of its unit square. Decodes what is
    /// missing for that.
    void want(const QSize &whole, const QRectF &seen);
    /// The photo is not seen. Gives the memory for much detail back.
    void rest();
    /// Whether what is wanted is there.
    bool isComplete() const { return isReady() && !partUnderWay_ && detail_ <= decodedDetail_; }

Q_SIGNALS:
    /// pixels() are others, or the photo is unreadable.
    void changed();

private:
    struct WantedPart
    {
        QSize whole;
        QRectF covers;
        std::shared_ptr<std::atomic<bool>> isGivenUp;
    };

    void decode(int detail);
    void show(quint64 number, int detail, const QImage &image);
    void decodePart();
    void showPart(quint64 number, const WantedPart &asked, const PhotoPart &part);
    void dropPart();

    Photo photo_;
    PagePhoto pixels_;
    PhotoPriority priority_ = ShownPhoto;
    int least_ = PagePhoto::usualDetail; ///< pixels of the longer side that it has at least
    bool isUnreadable_ = false;
    int detail_ = 0;        ///< pixels of the photo's longer side that are asked for
    int decodedDetail_ = 0; ///< those of the last answer
    QSize wholeWanted_;     ///< for which a part is wanted; empty when none is
    QRectF partWanted_;
    QSize failedWhole_; ///< for which a part could not be decoded
    QSize partWhole_;   ///< for which pixels_.part was decoded
    std::optional<WantedPart> partUnderWay_;
    quint64 number_ = 0; ///< identifies the current photo; results for another one are dropped
    std::shared_ptr<std::atomic<bool>> isGone_; ///< whether the current photo is no longer asked for
};

} // namespace printdialog
