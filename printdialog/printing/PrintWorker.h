// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPrinter.h"
#include "PlacedPhoto.h"

#include <QtCore/QObject>
#include <QtCore/QThread>

namespace printdialog {

/// What has become of the photos of one run.
struct PrintOutcome
{
    QStringList printed;     ///< A sentence for each photo that was printed, or just sent (isFollowed).
    QList<int> jobs;         ///< The ids of the jobs that `printed` tells of; none from the built-in printer.
    QStringList waiting;     ///< A sentence for each whose job stands still at the print server.
    QString failure;         ///< What stopped the rest; empty when nothing did.
    int total = 0;           ///< How many photos were to be printed.
    int done = 0;            ///< How many the printer has printed, also of a run that was stopped.
    bool wasStopped = false; ///< By the user, and nothing of it failed.
    bool isFollowed = false; ///< The jobs were followed to their end.
    bool hasDamaged = false; ///< Nothing was printed, since a photo is damaged that nobody has accepted.
    bool hasOtherPpd = false; ///< The queue's PPD is no more that from which the options were chosen.
};

/// Prints photos on a thread of its own and follows a queue's jobs to their end. Signals come on the thread
/// of this object.
class PrintWorker : public QObject
{
    Q_OBJECT

public:
    explicit PrintWorker(QObject *parent = nullptr);
    /// As giveUp().
    ~PrintWorker() override;

    bool isBusy() const { return thread_ != nullptr; }
    /// Whether the print server or the folder has everything.
    bool isFollowing() const;
    /// How many photos the print server or the folder has.
    int sent() const;
    /// Prints the photos, each where it is placed, with the job's settings, one after the other. Not while
    /// busy.
    void print(const QList<PlacedPhoto> &photos, const PrintTarget &target, const PrintJob &job);
    /// Sends nothing more, and takes back the jobs that are not over.
    void cancel();
    /// Sends nothing more, takes back what is being sent, and follows no longer what the print server has:
    /// that goes on.
    void giveUp();

Q_SIGNALS:
    /// What is being done, in words, and how much of the whole run; total is 0 when that is not known.
    void progress(const QString &text, qint64 done, qint64 total);
    void finished(const printdialog::PrintOutcome &outcome);

private:
    struct Flags;

    std::unique_ptr<QThread> thread_;
    std::shared_ptr<Flags> flags_; ///< of the run under way; shared with its thread
};

} // namespace printdialog
