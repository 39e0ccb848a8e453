// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SheetPrinter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <functional>

namespace printdialog {

/// A sheet that was not printed, and that no job at the print server holds either.
struct UnprintedSheet
{
    qsizetype index = 0; ///< among the run's sheets
    QString sentence;    ///< Why; empty for a sheet that the run did not get to.
};

/// The outcome of one run. Each sheet is in exactly one of `printed`, `skipped`, `waiting`, `unknown` and
/// `unprinted`.
struct PrintOutcome
{
    QStringList printed; ///< A sentence for each sheet that was printed, or only sent (see isFollowed).
    QStringList names;   ///< The names of the sheets that were printed or sent.
    QList<int> jobs;     ///< The ids of the jobs that `printed` names; none from the built-in printer.
    QStringList skipped; ///< A sentence for each sheet that cannot be printed; the others were.
    QStringList waiting; ///< A sentence for each sheet whose job waits at the print server.
    QStringList unknown; ///< A sentence for each sheet that may be printed, or not: the server does not say.
    QList<UnprintedSheet> unprinted; ///< In the order of the sheets.
    QString document;                ///< The path of the one PDF of all sheets; mostly empty.
    QString failure;                 ///< Why the rest was not printed; empty when nothing stopped the run.
    int total = 0;                   ///< The number of sheets to print.
    int done = 0;                    ///< The number of sheets printed, also in a run that was stopped.
    bool wasStopped = false;         ///< Stopped by the user, without any failure.
    bool isFollowed = false;         ///< The jobs were followed to their end.
    bool hasDamaged = false;         ///< Nothing was printed: a photo is damaged and was not accepted.
    bool hasOtherPpd = false;        ///< The queue's PPD has changed since the options were chosen.
};

/// Flags that stop a run. They are raised by another thread or a signal handler. They are plain ints, since
/// libcups reads them. They must outlive the run, and may be null.
struct PrintRunFlags
{
    int *cancel = nullptr; ///< Send nothing more, and cancel the jobs that are not over.
    int *keep = nullptr;   ///< With `cancel`: do not cancel jobs that were sent.
    int *leave = nullptr;  ///< Stop following.
    /// With `leave`: send nothing more after the sheet being sent, cancel the jobs behind the one that is
    /// being printed, and follow that one to its end.
    int *finish = nullptr;
};

/// Receives the progress of a run, on the run's thread.
class PrintRunListener
{
public:
    virtual ~PrintRunListener() = default;
    /// The sheet of that index is being written or sent; `sent` and `total` are in bytes, and total is 0 when
    /// it is unknown.
    virtual void sending(qsizetype sheet, const QString &name, qint64 sent, qint64 total) = 0;
    /// A sheet was printed, or sent to the print server: one sentence.
    virtual void printed(const QString &sentence) = 0;
    /// A sheet cannot be printed and is left out: one sentence.
    virtual void skipped(const QString &sentence) = 0;
    /// The state of a sheet's job, in words; `sentSheet` is the sheet's index among those that were sent.
    virtual void following(qsizetype sentSheet, const QString &name, const QString &state) = 0;
};

/// Prints sheets one after the other, and follows a queue's jobs to their end. The window and the command
/// line both print through it. Blocking.
class PrintRun
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PrintRun)

public:
    /// Returns the sheets of the job of the index; called before the run and shortly before they are printed.
    using JobSource = std::function<JobSheets(qsizetype index)>;

    /// @param listener outlives the run
    PrintRun(const PrintJob &job, PrintRunListener &listener, const PrintRunFlags &flags = {},
             const FollowLimits &limits = {});
    Q_DISABLE_COPY_MOVE(PrintRun)

    /// Call at most once. Jobs are not followed when FollowLimits::total is 0.
    PrintOutcome print(qsizetype count, const JobSource &jobs);

    /// What is said of a sheet that is left out: which photo is to blame, and that the sheet's other photos
    /// are not printed either.
    /// @param why a sentence about the photo
    static QString leftOutText(const JobSheets &sheets, const QString &why);

private:
    static bool isRaised(int *flag);

    bool printOne(const JobSheets &sheets);
    /// @param leave non-zero: stop
    void follow(int *leave);
    void cancelJobs(SheetPrinter::Canceling which);
    void note(const SheetPrinter::Outcome &found);
    void noteUnsent();
    void finishDocument();

    PrintJob job_;
    PrintRunListener &listener_;
    PrintRunFlags flags_;
    FollowLimits limits_;
    PrintOutcome outcome_;
    qsizetype index_ = 0;    ///< of the sheet being sent
    QList<qsizetype> pages_; ///< the sheets of the one document, before it is finished
    QList<qsizetype> sent_;  ///< the sheets whose jobs were sent
    QString whyUnsent_;      ///< why the run did not get to all sheets; empty without a failure
    QStringList unanswered_; ///< a sentence when the server did not say whether it has got the last one
    QString name_;           ///< that sheet's name
    SheetPrinter printer_;   ///< last, since its callbacks use the members above
};

} // namespace printdialog
