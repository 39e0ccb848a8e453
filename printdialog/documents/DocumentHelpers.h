// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Document.h"
#include "FileDescriptor.h"
#include "PagesMessages.h"

#include <chrono>
#include <vector>

namespace printdialog {

/// The path of a helper program, found relative to this program.
QString documentHelper(const char *name);
/// Lets the helpers be looked for in another folder; for tests.
void useDocumentHelpers(const QString &folder);

/// Memory with a content that nobody can change any more, to be given to a helper. Not open when there is
/// none.
pdekit::FileDescriptor memoryWith(QByteArrayView content);
/// Memory that a helper fills, of a size that nobody can change; of no fixed size when it is 0.
pdekit::FileDescriptor memoryToFill(qint64 size = 0);
/// The entire content of memory or a file; nothing when it is larger, or cannot be read.
std::optional<QByteArray> bytesOf(const pdekit::FileDescriptor &memory, qint64 most);

/// What corvel-pdf-pages has done.
struct PagesResult
{
    PagesAnswer answer;
    pdekit::FileDescriptor output; ///< The PDF that it has made; nobody can change it any more.
};

/// Runs corvel-pdf-pages. A failure's text names the document that it is about.
/// @param documents descriptors for reading
/// @param names of the documents, for people
/// @param size of all documents, in bytes
Result<PagesResult, DocumentFault> runPages(const PagesRequest &request, const std::vector<int> &documents,
                                            const QStringList &names, qint64 size);

} // namespace printdialog
