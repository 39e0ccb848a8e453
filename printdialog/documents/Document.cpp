// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Document.h"

#include "DocumentHelpers.h"
#include "DocumentTexts.h"
#include "PlainText.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <mutex>

using pdekit::FileDescriptor;

namespace printdialog {

struct Document::File
{
    QString path;
    QString name;
    QString title;
    FileIdentity identity;
    QList<QSizeF> sizes;
    FileDescriptor original; ///< For reading.
    mutable std::mutex mutex;
    mutable FileDescriptor copy; ///< What is read in its place, once it is open; guarded.
};

namespace {

constexpr qint64 headSize = 1024; // bytes

FileIdentity identityOf(const struct stat &status)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    return {status.st_dev, status.st_ino, status.st_size,
            status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

/// A descriptor that only reads, since a helper could write through another one.
FileDescriptor forReading(FileDescriptor descriptor)
{
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(descriptor.number());
    FileDescriptor reading(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    return reading.isOpen() ? std::move(reading) : std::move(descriptor);
}

QList<QSizeF> sizesOf(const PagesAnswer &answer)
{
    QList<QSizeF> sizes;
    sizes.reserve(static_cast<qsizetype>(answer.pages.size()));
    for (const PagesAnswer::Size &size : answer.pages)
        sizes += QSizeF(size.width, size.height);
    return sizes;
}

} // namespace

bool Document::isDocument(const QByteArray &head)
{
    return head.first(qMin(headSize, head.size())).contains("%PDF-");
}

Result<Document, DocumentFault> Document::open(const QString &path, const QString &password)
{
    const QByteArray encoded = QFile::encodeName(path);
    struct stat status = {};
    // Check before opening, since opening alone disturbs some devices.
    if (::stat(encoded.constData(), &status) != 0)
        return DocumentTexts::ofSystem(errno, path);
    if (!S_ISREG(status.st_mode))
        return DocumentTexts::notAFile(S_ISDIR(status.st_mode), path);
    FileDescriptor content(::open(encoded.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!content.isOpen())
        return DocumentTexts::ofSystem(errno, path);
    auto file = std::make_shared<File>();
    file->path = path;
    file->name = QFileInfo(path).fileName();
    file->original = std::move(content);
    return read(std::move(file), password);
}

Result<Document, DocumentFault> Document::open(FileDescriptor content, const QString &name,
                                               const QString &password)
{
    auto file = std::make_shared<File>();
    file->name = name;
    file->original = forReading(std::move(content));
    return read(std::move(file), password);
}

Result<Document, DocumentFault> Document::read(std::shared_ptr<File> file, const QString &password)
{
    const QString &shown = file->path.isEmpty() ? file->name : file->path;
    struct stat status = {};
    if (::fstat(file->original.number(), &status) != 0)
        return DocumentTexts::ofSystem(errno, shown);
    if (!S_ISREG(status.st_mode))
        return DocumentTexts::notAFile(S_ISDIR(status.st_mode), shown);
    file->identity = identityOf(status);
    if (status.st_size > largestFile)
        return DocumentTexts::tooLarge(status.st_size, shown);
    QByteArray head(headSize, Qt::Uninitialized);
    const ssize_t count = ::pread(file->original.number(), head.data(), headSize, 0);
    if (count < 0)
        return DocumentTexts::ofSystem(errno, shown);
    head.truncate(count);
    if (head.isEmpty())
        return DocumentTexts::of(DocumentFault::Empty, shown);
    if (!isDocument(head))
        return DocumentTexts::of(DocumentFault::NotADocument, shown);

    PagesRequest request;
    request.text = password.left(PagesLimits::longestText / 4).toStdString();
    auto result = runPages(request, {file->original.number()}, {shown}, status.st_size);
    if (::fstat(file->original.number(), &status) != 0 || identityOf(status) != file->identity)
        return DocumentTexts::of(DocumentFault::Changed, shown);
    if (!result)
        return result.failure();
    file->title = plainText(QString::fromStdString(result->answer.title), shownTextLimit);
    file->sizes = sizesOf(result->answer);
    if (file->sizes.isEmpty())
        return DocumentTexts::of(DocumentFault::Empty, shown);
    if (result->answer.isCopied)
        file->copy = std::move(result->output);
    Document document;
    document.file_ = std::move(file);
    return document;
}

QString Document::path() const
{
    return file_ ? file_->path : QString();
}

QString Document::name() const
{
    return file_ ? file_->name : QString();
}

QString Document::title() const
{
    return file_ ? file_->title : QString();
}

FileIdentity Document::identity() const
{
    return file_ ? file_->identity : FileIdentity();
}

int Document::pageCount() const
{
    return file_ ? static_cast<int>(file_->sizes.size()) : 0;
}

QSizeF Document::pageSize(int page) const
{
    return file_ ? file_->sizes.value(page) : QSizeF();
}

Result<int, DocumentFault> Document::content() const
{
    if (!file_)
        return DocumentTexts::of(DocumentFault::NotFound, {});
    struct stat status = {};
    const bool isSame =
        ::fstat(file_->original.number(), &status) == 0 && identityOf(status) == file_->identity;
    // A file that was removed can still be read, but not one that another has replaced: nobody means the old
    // one.
    const bool isReplaced = !file_->path.isEmpty() &&
                            ::stat(QFile::encodeName(file_->path).constData(), &status) == 0 &&
                            identityOf(status) != file_->identity;
    if (!isSame || isReplaced)
        return DocumentTexts::of(DocumentFault::Changed, file_->path.isEmpty() ? file_->name : file_->path);
    const std::lock_guard lock(file_->mutex);
    return file_->copy.isOpen() ? file_->copy.number() : file_->original.number();
}

Result<int, DocumentFault> Document::rewrittenContent() const
{
    const auto present = content();
    if (!present)
        return present;
    const std::lock_guard lock(file_->mutex);
    if (file_->copy.isOpen())
        return file_->copy.number();
    PagesRequest request;
    request.wantsCopy = true;
    auto result = runPages(request, {*present}, {file_->name}, file_->identity.size);
    if (!result)
        return result.failure();
    file_->copy = std::move(result->output);
    return file_->copy.number();
}

} // namespace printdialog
