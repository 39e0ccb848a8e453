// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobFollowing.h"
#include "JobSubmission.h"
#include "PrintJob.h"
#include "PrintSheet.h"
#include "PrintedNames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

namespace printdialog {

class BuiltInDocument;

/// Prints one job's sheets after the other's, on a queue, or the built-in printer, which gives each job's
/// files different names. The jobs of a queue can be followed to their end, or canceled. Blocking, for a
/// worker thread or the command line; one thread at a time.
class SheetPrinter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::SheetPrinter)

public:
    /// Why a sheet was not printed; the failure's text is a sentence for people. The reasons come from too
    /// many parts for one useful enumeration.
    struct Fault
    {
        std::optional<QueueFault> queue; ///< The queue's reason, if it is one.
        /// One of its photos is damaged or needs too much memory; other sheets may still print.
        bool isPhotoFault = false;
        /// The queue may have the job nevertheless, see JobSubmission::mayHaveMadeJob().
        bool mayBePrinted = false;
    };

    /// @param sent, cancel see JobSubmission
    explicit SheetPrinter(const PrintJob &job, const JobSubmission::Progress &sent = {},
                          int *cancel = nullptr);

    ~SheetPrinter();
    Q_DISABLE_COPY_MOVE(SheetPrinter)

    /// See JobSubmission::onBeginning(); with the built-in printer, called before the sheet's files are made.
    void onBeginning(const JobSubmission::Beginning &beginning);

    /// Sends the sheets to the queue as one job, or writes their files, or adds pages to the one document of
    /// all sheets, which is not there before finishDocument(). Returns a sentence for people.
    Result<QString, Fault> print(const JobSheets &sheets);

    /// Whether pages wait for finishDocument(); without it, they are dropped with this object.
    bool hasDocument() const { return document_ != nullptr; }
    /// Puts the document into its folder. Returns its path.
    Result<QString, Fault> finishDocument();

    /// Call before the first print(): pages of documents lie on the sheets.
    void expectPages() { hasPages_ = true; }
    /// Whether the sheets' copies and the job's are more together than a queue's job can have.
    static std::optional<Failure<Fault>> whyTooMany(const JobSheets &sheets, const PrintJob &job);
    /// The document that print() sends to a queue.
    static Result<JobDocument, Fault> documentOf(const JobSheets &sheets, const PrintJob &job);

    /// The ids of the jobs sent to the queue; empty for the built-in printer.
    QList<int> sentJobs() const;

    /// What has become of a job that was sent to the queue.
    struct JobEnd
    {
        enum class Fate {
            Printed,    ///< Completed, as the server reports.
            Waiting,    ///< The server keeps it, and may still print it.
            NotPrinted, ///< Over without being printed.
            Canceled,   ///< By cancelJobs().
            Unknown     ///< The server does not say.
        };

        Fate fate = Fate::Unknown;
        QString sentence; ///< For people, with the reason.
        int id = 0;
    };

    /// The outcome of the jobs sent to the queue.
    struct Outcome
    {
        QList<JobEnd> jobs;             ///< In the order in which they were sent.
        std::optional<QString> failure; ///< Why a job was not printed; a sentence about the first one.
    };

    /// Follows one job after the other. The limit for waiting counts from the first job's start, since all of
    /// them wait for the same printer.
    /// @param news called with the sheet's index among those that were sent, and its job's state in words
    /// @param cancel non-zero: stop following; may be null
    Outcome follow(const FollowLimits &limits, const std::function<void(int sheet, const QString &)> &news,
                   int *cancel);

    enum class Canceling {
        All,
        AllButCurrent ///< The first that is not over stays, and what has begun to print.
    };

    /// Cancels the jobs that are not over, the last one first. The failure is about those that could not be
    /// canceled, a sentence for each; a server that does not answer is not asked again. Those that stay can
    /// be followed.
    Outcome cancelJobs(Canceling which);

private:
    struct SentJob
    {
        QString sheet; ///< Its name.
        int id;
        std::optional<JobEnd> end; ///< Once it is known.
    };

    Result<QString, Fault> addPages(const JobSheets &sheets);
    Result<QString, Fault> send(const JobSheets &sheets);
    JobEnd endOf(const SentJob &job, const JobStatus &status) const;
    Outcome outcome() const;
    std::optional<JobStatus> look(SentJob &job);
    std::optional<Failure<QueueFault>> cancel(SentJob &job);

    PrintJob job_;
    JobSubmission submission_;
    JobSubmission::Beginning beginning_;
    PrintedNames names_;
    QList<SentJob> sent_;
    std::unique_ptr<BuiltInDocument> document_;
    QString documentName_; ///< without suffix
    int pages_ = 0;
    bool hasPages_ = false;      ///< of documents
    bool hasBacksFirst_ = false; ///< of the one document
};

} // namespace printdialog
