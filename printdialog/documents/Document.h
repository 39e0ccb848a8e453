// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "FileIdentity.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QSizeF>
#include <QtCore/QString>

#include <memory>

namespace printdialog {

/// Why a document cannot be printed.
enum class DocumentFault {
    NotFound,      ///< No such file.
    NotReadable,   ///< A folder, a pipe, a device, or a file without permission or with a read error.
    Empty,         ///< A file without content, or a document without pages.
    TooLarge,      ///< More bytes or pages than a document may have.
    NotADocument,  ///< Not a PDF, whatever the name says.
    NeedsPassword, ///< Encrypted, and no password was given.
    WrongPassword, ///< Encrypted, and the password does not open it.
    Broken,        ///< A PDF that cannot be read even after a repair.
    TooCostly,     ///< Reading it would take too much time or memory.
    Changed,       ///< The file is not the one that was opened, or was written to since.
    Unavailable,   ///< The helper program is missing, or the system does not support its sandbox.
};

/// A PDF that can be printed: which file it is, and how large its pages are. It was read by a process without
/// rights (corvel-pdf-pages), never by this one. A value; copies share the content. Several threads may use
/// it, each with its own copy.
class Document
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Document)

public:
    static constexpr qint64 largestFile = qint64(512) << 20; ///< In bytes.
    static constexpr int mostPages = 10'000;

    /// A null document.
    Document() = default;

    /// Whether a file that begins with these bytes (a thousand) is taken for a PDF (PDF 1.7, appendix
    /// H.3.4.1).
    static bool isDocument(const QByteArray &head);
    /// Opens a file, takes its password off, and repairs it where it has to be. Blocks for some milliseconds,
    /// at most for seconds: for a worker, or the command line. The text of a failure is a sentence for
    /// people.
    static Result<Document, DocumentFault> open(const QString &path, const QString &password = {});
    /// The same for content without a path of the user's: a regular file or a memfd, open for reading, which
    /// nobody else writes to.
    /// @param name for people, such as the file name that it would have
    static Result<Document, DocumentFault> open(pdekit::FileDescriptor content, const QString &name,
                                                const QString &password = {});

    bool isNull() const { return !file_; }
    QString path() const;  ///< As given to open(); empty for one that has no file.
    QString name() const;  ///< For people: the file's name, or the one given to open().
    QString title() const; ///< The document's own title, fit to be shown; mostly empty.
    FileIdentity identity() const;
    int pageCount() const;
    /// As the page is seen, turned by its own rotation and cropped to its crop box, in points. Finite, and
    /// from 1 to 14,400 points long.
    QSizeF pageSize(int page) const;

    /// The content to read pages from: without a password and repaired. A descriptor for reading at any
    /// offset (pread, mmap), valid as long as any copy of this document. Fault: Changed.
    Result<int, DocumentFault> content() const;
    /// The same for a reader that refuses content(): written again from what can be read. Made when it is
    /// asked for the first time, which blocks; content() returns it from then on.
    Result<int, DocumentFault> rewrittenContent() const;

private:
    struct File;

    static Result<Document, DocumentFault> read(std::shared_ptr<File> file, const QString &password);

    std::shared_ptr<const File> file_; ///< Null for a null document.
};

} // namespace printdialog
