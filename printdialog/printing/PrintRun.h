// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPrinter.h"

#include <QtCore/QStringList>

#include <functional>

namespace printdialog {

/// The outcome of one run.
struct PrintOutcome
{
    QStringList printed;      ///< A sentence for each photo that was printed, or only sent (see isFollowed).
    QStringList names;        ///< The names of these photos' files, in the same order.
    QList<int> jobs;          ///< The ids of the jobs that `printed` names; none from the built-in printer.
    QStringList skipped;      ///< A sentence for each photo that cannot be printed; the others were.
    QStringList waiting;      ///< A sentence for each photo whose job waits at the print server.
    QString failure;          ///< Why the rest was not printed; empty when nothing stopped the run.
    int total = 0;            ///< The number of photos to print.
    int done = 0;             ///< The number of photos printed, also in a run that was stopped.
    bool wasStopped = false;  ///< Stopped by the user, without any failure.
    bool isFollowed = false;  ///< The jobs were followed to their end.
    bool hasDamaged = false;  ///< Nothing was printed: a photo is damaged and was not accepted.
    bool hasOtherPpd = false; ///< The queue's PPD has changed since the options were chosen.
};

/// Flags that stop a run. They are raised by another thread or a signal handler. They are plain ints, since
/// libcups reads them. They must outlive the run, and may be null.
struct PrintRunFlags
{
    int *cancel = nullptr; ///< Send nothing more, and cancel the jobs that are not over.
    int *keep = nullptr;   ///< With `cancel`: do not cancel jobs that were sent.
    int *leave = nullptr;  ///< Stop following.
};

/// Receives the progress of a run, on the run's thread.
class PrintRunListener
{
public:
    virtual ~PrintRunListener() = default;
    /// The photo of that index is being written or sent; `sent` and `total` are in bytes, and total is 0 when
    /// it is unknown.
    virtual void sending(qsizetype photo, const QString &name, qint64 sent, qint64 total) = 0;
    /// A photo was printed, or sent to the print server: one sentence.
    virtual void printed(const QString &sentence) = 0;
    /// A photo cannot be printed and is left out: one sentence.
    virtual void skipped(const QString &sentence) = 0;
    /// The state of a photo's job, in words; `sentPhoto` is the photo's index among those that were sent.
    virtual void following(qsizetype sentPhoto, const QString &name, const QString &state) = 0;
};

/// Prints photos one after the other, and follows a queue's jobs to their end. The window and the command
/// line both print through it. Blocking.
class PrintRun
{
public:
    /// Returns the photo of the index; called shortly before it is printed.
    using PhotoSource = std::function<Result<PlacedPhoto, PhotoFault>(qsizetype index)>;

    /// @param listener outlives the run
    PrintRun(const PrintJob &job, PrintRunListener &listener, const PrintRunFlags &flags = {},
             const FollowLimits &limits = {});
    Q_DISABLE_COPY_MOVE(PrintRun)

    /// Call at most once. Jobs are not followed when FollowLimits::total is 0.
    PrintOutcome print(qsizetype count, const PhotoSource &photos);

private:
    static bool isRaised(int *flag);

    bool printOne(const PlacedPhoto &placed);
    void follow();
    void cancelJobs();

    PrintRunListener &listener_;
    PrintRunFlags flags_;
    FollowLimits limits_;
    PrintOutcome outcome_;
    qsizetype index_ = 0;  ///< of the photo being sent
    QString name_;         ///< that photo's file name
    PhotoPrinter printer_; ///< last, since its callbacks use the members above
};

} // namespace printdialog
