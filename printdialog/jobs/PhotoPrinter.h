// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "BuiltInPrinter.h"
#include "JobSubmission.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <variant>

namespace printdialog {

/// Where photos are printed to: a queue of the print server, or the built-in printer.
struct PrintTarget
{
    QString queue;       ///< the queue's id; empty for the built-in printer
    OutputFolder folder; ///< only for the built-in printer
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
    /// Why a photo was not printed, in one of the user's sentences. The reasons lie in too many places for
    /// one enumeration to be of use.
    struct Fault
    {
        std::optional<QueueFault> queue; ///< The queue's own reason.
        bool isPhotos =
            false; ///< The photo is damaged, or needs too much memory; another one may be printed.
    };

    explicit PhotoPrinter(const PrintTarget &target, const JobControl &control = {});

    /// Prints the photo with the job's settings: sends it to the queue, or leaves it as files.
    Result<PrintedPhoto, Fault> print(const Photo &photo, const PrintJob &job);

    /// What print() sends to the queue.
    static Result<JobRequest, Fault> request(const Photo &photo, const QString &queue, const PrintJob &job);

private:
    PrintTarget target_;
    JobControl control_;
    PrintedNames names_;
};

} // namespace printdialog
