// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Document.h"
#include "HelperRun.h"

namespace printdialog {

/// Sentences about documents that cannot be used.
class DocumentTexts
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::Document)

public:
    /// A fault of the document itself.
    static Failure<DocumentFault> of(DocumentFault reason, const QString &name);
    /// Why its file could not be opened or read.
    static Failure<DocumentFault> ofSystem(int error, const QString &path);
    /// What was to be opened is a folder or a device.
    static Failure<DocumentFault> notAFile(bool isFolder, const QString &name);
    static Failure<DocumentFault> tooLarge(qint64 size, const QString &name);
    static Failure<DocumentFault> tooManyPages(const QString &name);
    /// A page that cannot be shown, whatever becomes of it when it is printed.
    /// @param page from 0 on
    static Failure<DocumentFault> ofPage(DocumentFault reason, int page, const QString &name);
    /// A helper program cannot be used.
    static Failure<DocumentFault> unavailable(const QString &reason, const QString &name);
    static Failure<DocumentFault> unavailable(const HelperEnd &end, const QString &program,
                                              const QString &name);
};

/// What the end of a helper says; nothing when it has done its work.
std::optional<DocumentFault> faultOf(const HelperEnd &end);

} // namespace printdialog
