// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ExifOrientation.h"
#include "PhotoFile.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QSize>
#include <QtGui/QImage>

namespace printdialog {

/// A photo that can be printed: its file's content and what was found in it. A value; copies share the
/// content. Safe to use from several threads, each with its own copy.
class Photo
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Photo)

public:
    static constexpr qint64 maximumFileSize = qint64(512) << 20; ///< In bytes.
    static constexpr qint64 maximumPixels = 400'000'000;

    /// No photo.
    Photo() = default;

    /// Reads the file and its headers, and makes sure that a JPEG, PNG, BMP, GIF or WebP file is whole.
    /// Nothing is decoded, and of a file that is no picture only the first bytes are read. Formats: whichever
    /// pixel formats the image reader has a plug-in for; what they are is told by the content and not by the
    /// name. Every fault of PhotoFault can come of it.
    static Result<Photo, PhotoFault> open(const QString &path);

    QString path() const { return path_; } ///< As given to open().
    QString fileName() const;
    QByteArray format() const { return format_; } ///< As the image reader names it: "jpeg", "png", ...
    QByteArray content() const { return content_; }
    QDateTime modified() const { return modified_; }
    QSize storedSize() const { return storedSize_; } ///< In pixels.
    ExifOrientation orientation() const { return orientation_; }
    QSize orientedSize() const { return orientation_.seenSize(storedSize_); } ///< In pixels, as seen.
    /// Whether content() can go into a PDF as it is, as a JPEG stream.
    bool isEmbeddable() const { return isEmbeddable_; }

    /// The pixels as stored, not turned by orientation(). Takes seconds and gigabytes for the largest photos.
    /// Faults: Broken, and TooLarge when memory is short.
    Result<QImage, PhotoFault> decoded() const;
    /// The photo upright, within the bound (in pixels) and never enlarged; a null image when it cannot be
    /// decoded. Takes a fraction of a second, so call it on a worker thread.
    QImage preview(const QSize &bound) const;

private:
    std::optional<Failure<PhotoFault>> inspectJpeg();
    std::optional<Failure<PhotoFault>> inspectOther();
    std::optional<Failure<PhotoFault>> checkPixels() const;
    Failure<PhotoFault> truncated() const;
    Failure<PhotoFault> broken(const QString &detail) const;

    QString path_;
    QByteArray format_;
    QByteArray content_;
    QDateTime modified_;
    QSize storedSize_;
    ExifOrientation orientation_;
    bool isEmbeddable_ = false;
};

} // namespace printdialog
