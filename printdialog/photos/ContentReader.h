// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QBuffer>
#include <QtCore/QByteArray>
#include <QtCore/QSize>
#include <QtGui/QImageReader>

namespace printdialog {

/// A reader of a photo's content that does not detect the format again and does not apply the orientation.
class ContentReader
{
public:
    ContentReader(const QByteArray &content, const QByteArray &format);

    /// Lets all readers allocate the memory for a picture of this size (in pixels), up to what the largest
    /// photo needs. Any thread.
    static void allow(const QSize &size);

    QImageReader *operator->() { return &reader_; }

private:
    QByteArray content_;
    QBuffer buffer_;
    QImageReader reader_;
};

} // namespace printdialog
