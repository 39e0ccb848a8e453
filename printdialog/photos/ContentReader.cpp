// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ContentReader.h"

#include <QtCore/QMutex>

namespace printdialog {

ContentReader::ContentReader(const QByteArray &content, const QByteArray &format)
    : content_(content)
    , buffer_(&content_)
{
    buffer_.open(QIODevice::ReadOnly);
    reader_.setAutoDetectImageFormat(false);
    reader_.setFormat(format);
    reader_.setDevice(&buffer_);
    reader_.setAutoTransform(false);
}

/// The limit is global and other threads may be decoding, so it only ever grows.
void ContentReader::allow(const QSize &size)
{
    constexpr qint64 bytesPerPixel = 8;
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    const auto mebibytes = static_cast<int>((qint64(size.width()) * size.height() * bytesPerPixel >> 20) + 1);
    if (const int limit = QImageReader::allocationLimit(); limit != 0 && limit < mebibytes)
        QImageReader::setAllocationLimit(mebibytes);
}

} // namespace printdialog
