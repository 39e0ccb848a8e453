// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPrinter.h"

#include <QtCore/QStringList>

#include <functional>

namespace printdialog {

/// What has become of the photos of one run.
struct PrintOutcome
{
    QStringList printed;      ///< A sentence for each photo that was printed, or just sent (isFollowed).
    QStringList names;        ///< The names of those photos' files, in the same order.
    QList<int> jobs;          ///< The ids of the jobs that `printed` names; none from the built-in printer.
    QStringList skipped;      ///< A sentence for each photo that cannot be printed; the others were.
    QStringList waiting;      ///< A sentence for each whose job stands still at the print server.
    QString failure;          ///< What stopped the rest; empty when nothing did.
    int total = 0;            ///< How many photos were to be printed.
    int done = 0;             ///< How many the printer has printed, also of a run that was stopped.
    bool wasStopped = false;  ///< By the user, and nothing of it failed.
    bool isFollowed = false;  ///< The jobs were followed to their end.
    bool hasDamaged = false;  ///< Nothing was printed, since a photo is damaged that nobody has accepted.
    bool hasOtherPpd = false; ///< The queue's PPD is not the one any more from which the options were chosen.
};

/// How a run is given up. The flags are raised by another thread or a signal handler (libcups looks at them
/// as plain numbers), outlive the run, and may be null.
struct PrintRunFlags
{
    int *cancel = nullptr; ///< Send nothing more, and take back the jobs that are not over.
    int *keep = nullptr;   ///< With `cancel`: leave alone what was sent.
    int *leave = nullptr;  ///< Follow no longer.
};

/// Hears how a run goes on, on the thread of the run.
class PrintRunListener
{
public:
    virtual ~PrintRunListener() = default;
    /// A photo (from 0) is written or sent; total is 0 when it is not known how much that is, in bytes.
    virtual void sending(qsizetype photo, const QString &name, qint64 sent, qint64 total) = 0;
    /// A photo is printed, or the print server has it: one sentence.
    virtual void printed(const QString &sentence) = 0;
    /// A photo cannot be printed, and is left out: one sentence.
    virtual void skipped(const QString &sentence) = 0;
    /// What becomes of a photo's job, in words, counted among those that were sent.
    virtual void following(qsizetype sentPhoto, const QString &name, const QString &state) = 0;
};

/// Prints photos one after the other, and follows a queue's jobs to their end: the one way, for the window
/// and the command line. Blocking.
class PrintRun
{
public:
    /// The photo of the index, asked for when its turn comes.
    using PhotoSource = std::function<Result<PlacedPhoto, PhotoFault>(qsizetype index)>;

    /// @param listener outlives the run
    PrintRun(const PrintJob &job, PrintRunListener &listener, const PrintRunFlags &flags = {},
             const FollowLimits &limits = {});
    Q_DISABLE_COPY_MOVE(PrintRun)

    /// May be called once. Jobs are not followed when the limit of all is 0.
    PrintOutcome print(qsizetype count, const PhotoSource &photos);

private:
    static bool isRaised(int *flag);

    bool printOne(const PlacedPhoto &placed);
    void follow();
    void takeBack();

    PrintRunListener &listener_;
    PrintRunFlags flags_;
    FollowLimits limits_;
    PrintOutcome outcome_;
    qsizetype index_ = 0;  ///< of the photo that is being sent
    QString name_;         ///< its file's
    PhotoPrinter printer_; ///< after what its news are made of
};

} // namespace printdialog
