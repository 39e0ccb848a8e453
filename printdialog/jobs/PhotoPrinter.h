// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "BuiltInPrinter.h"
#include "QueueFault.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <variant>

namespace printdialog {

/// Where photos are printed to: a queue of the print server, or the built-in printer.
struct PrintTarget
{
    QString queue;        ///< the queue's id; empty for the built-in printer
    QString outputFolder; ///< where the built-in printer leaves its files
};

/// What has become of one photo: the files that the built-in printer has left, or the id of the queue's job.
using PrintedPhoto = std::variant<PrintedFiles, int>;

/// One sentence for people about a photo that was printed.
QString printedText(const Photo &photo, const PrintTarget &target, const PrintedPhoto &printed);

/// Prints photos one after the other; the names of their files are kept apart. Blocking, for a worker thread
/// or the command line; one thread at a time.
class PhotoPrinter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoPrinter)

public:
    explicit PhotoPrinter(const PrintTarget &target);

    /// Prints the photo with the job's settings. The failure's reason is one of the user's sentences only:
    /// what went wrong lies in too many places for one enumeration to be of use.
    Result<PrintedPhoto, std::monostate> print(const Photo &photo, const PrintJob &job);

private:
    Result<PrintedPhoto, std::monostate> submit(const Photo &photo, const PrintJob &job);

    PrintTarget target_;
    PrintedNames names_;
};

} // namespace printdialog
