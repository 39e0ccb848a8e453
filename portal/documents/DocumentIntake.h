// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Document.h"
#include "FileDescriptor.h"
#include "Result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QObject>

#include <atomic>
#include <chrono>
#include <memory>

namespace printdialog {

/// Why a program's document cannot be read.
enum class IntakeFault {
    NotReadable, ///< Not a file, pipe or socket that is open for reading; or a read error.
    Stuck,       ///< Nothing has come for too long.
    Empty,
    TooLarge,
    NotADocument, ///< Neither PDF nor PostScript.
    NoConverter,  ///< PostScript, and Ghostscript is not installed.
    Unconverted,  ///< PostScript that Ghostscript cannot convert.
    Canceled,
    NoMemory,
};

struct IntakeLimits
{
    qint64 largest = Document::largestFile;                     ///< In bytes.
    std::chrono::milliseconds quiet = std::chrono::seconds(30); ///< Without a byte.
    std::chrono::milliseconds conversion = std::chrono::minutes(2);
    QString ghostscript = QStringLiteral("/usr/bin/gs");
};

/// A sealed memfd with a PDF, open for reading.
using TakenDocument = Result<pdekit::FileDescriptor, IntakeFault>;

/// Copies a program's document, from its begin when it is a file, so that nobody else can change it any more.
/// PostScript is converted. Blocks: for a worker. The text of a failure is a sentence for people.
/// @param name of the document, for people
/// @param isCanceled give up; may be null
TakenDocument takeDocument(pdekit::FileDescriptor source, const QString &name,
                           const IntakeLimits &limits = {}, const std::atomic<bool> *isCanceled = nullptr);

/// A program's document that has arrived.
struct ArrivedDocument
{
    pdekit::FileDescriptor content; ///< Sealed.
    Result<Document, DocumentFault> document;
};
using Arrival = Result<ArrivedDocument, IntakeFault>;

/// Takes a document, and reads its pages, on a thread of its own.
class DocumentIntake : public QObject
{
    Q_OBJECT

public:
    DocumentIntake(pdekit::FileDescriptor source, const QString &name, const IntakeLimits &limits,
                   QObject *parent);
    /// Gives up. A read that hangs in the kernel is left to itself.
    ~DocumentIntake() override;

    /// The document, once; after taken().
    Arrival result();

Q_SIGNALS:
    void taken();

private:
    struct State;

    std::shared_ptr<State> state_;
};

} // namespace printdialog
