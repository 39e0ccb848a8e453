// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoContent.h"

#include <algorithm>
#include <deque>

namespace printdialog {
namespace {

constexpr qsizetype mostKept = qsizetype(32) << 20; // bytes

/// Keeps the contents used last in memory, as many as fit.
class RecentContents
{
public:
    void use(const PhotoContent::Bytes &bytes)
    {
        constexpr std::size_t most = 64; // so that small photos are found quickly
        const std::lock_guard lock(mutex_);
        if (const auto known = std::find(kept_.begin(), kept_.end(), bytes); known != kept_.end()) {
            std::rotate(known, known + 1, kept_.end());
            return;
        }
        if (bytes->size() > mostKept)
            return;
        kept_.push_back(bytes);
        size_ += bytes->size();
        while (size_ > mostKept || kept_.size() > most) {
            size_ -= kept_.front()->size();
            kept_.pop_front();
        }
    }

private:
    std::mutex mutex_;
    std::deque<PhotoContent::Bytes> kept_; ///< The one used last is the last one.
    qsizetype size_ = 0;
};

RecentContents &recentContents()
{
    static RecentContents contents;
    return contents;
}

} // namespace

Result<PhotoFile, PhotoFault> PhotoContent::open() const
{
    auto file = PhotoFile::open(path_);
    if (file && file->identity() != identity_)
        return PhotoFile::changed(path_);
    return file;
}

Result<PhotoContent::Bytes, PhotoFault> PhotoContent::read()
{
    const std::lock_guard lock(mutex_);
    // Also when the bytes are in memory: whether a photo that has changed is printed must not depend on that.
    const auto file = open();
    if (!file)
        return file.failure();
    Bytes bytes = bytes_.lock();
    if (!bytes) {
        auto content = file->content();
        if (!content)
            return content.failure();
        bytes = std::make_shared<const QByteArray>(*std::move(content));
        bytes_ = bytes;
    }
    recentContents().use(bytes);
    return bytes;
}

Result<QByteArray, PhotoFault> PhotoContent::read(qint64 offset, qint64 size) const
{
    const auto file = open();
    if (!file)
        return file.failure();
    return file->part(offset, size);
}

} // namespace printdialog
