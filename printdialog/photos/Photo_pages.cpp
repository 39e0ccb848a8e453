// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Photo.h"

#include <algorithm>
#include <unistd.h>

// Pages of documents.

namespace printdialog {
namespace {

constexpr qint64 documentHeadSize = 4096; // bytes
constexpr double pointsOfInch = 72;

/// Nothing when it cannot be read.
std::optional<QByteArray> contentOf(int descriptor)
{
    const off_t size = lseek(descriptor, 0, SEEK_END);
    QByteArray bytes(std::max<off_t>(size, 0), Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            pread(descriptor, bytes.data() + done, static_cast<std::size_t>(bytes.size() - done), done);
        if (count <= 0)
            return std::nullopt;
        done += count;
    }
    return bytes;
}

PhotoFault faultOf(DocumentFault fault)
{
    switch (fault) {
    case DocumentFault::NotFound:
        return PhotoFault::NotFound;
    case DocumentFault::NotReadable:
        return PhotoFault::NotReadable;
    case DocumentFault::Empty:
        return PhotoFault::Empty;
    case DocumentFault::TooLarge:
    case DocumentFault::TooCostly:
        return PhotoFault::TooLarge;
    case DocumentFault::NotADocument:
        return PhotoFault::UnknownType;
    case DocumentFault::NeedsPassword:
    case DocumentFault::WrongPassword:
        return PhotoFault::NeedsPassword;
    case DocumentFault::Changed:
        return PhotoFault::Changed;
    case DocumentFault::Unavailable:
        return PhotoFault::NeedsPackage;
    case DocumentFault::Broken:
        break;
    }
    return PhotoFault::Broken;
}

} // namespace

Photo Photo::ofPage(const Document &document, int page)
{
    Photo photo;
    photo.path_ = document.path();
    photo.document_ = document;
    photo.page_ = page;
    photo.format_ = "pdf";
    photo.resolution_ = pageResolution;
    const QSizeF pixels = document.pageSize(page) * (pageResolution / pointsOfInch);
    photo.storedSize_ = pixels.toSize().expandedTo(QSize(1, 1));
    return photo;
}

Result<QList<Photo>, PhotoFault> Photo::openAll(const QString &path, const QString &password)
{
    const auto file = PhotoFile::open(path);
    if (!file)
        return file.failure();
    if (!Document::isDocument(file->part(0, documentHeadSize))) {
        auto photo = open(path);
        if (!photo)
            return photo.failure();
        return QList<Photo>{*std::move(photo)};
    }
    const auto document = Document::open(path, password);
    if (!document)
        return Failure<PhotoFault>{faultOf(document.failure().reason), document.failure().text,
                                   document.failure().detail};
    QList<Photo> pages;
    pages.reserve(document->pageCount());
    for (int page = 0; page < document->pageCount(); ++page)
        pages += ofPage(*document, page);
    return pages;
}

/// Of the whole document, without a password.
Result<PhotoContent::Bytes, PhotoFault> Photo::documentBytes() const
{
    const auto file = document_.content();
    if (!file)
        return Failure<PhotoFault>{faultOf(file.failure().reason), file.failure().text,
                                   file.failure().detail};
    auto bytes = contentOf(*file);
    if (!bytes)
        return PhotoFile::changed(path_);
    return std::make_shared<const QByteArray>(*std::move(bytes));
}

QString Photo::name() const
{
    if (!document() || document_.pageCount() == 1)
        return fileName();
    return tr("%1, page %2", "a page of a document").arg(fileName(), QString::number(page_ + 1));
}

} // namespace printdialog
