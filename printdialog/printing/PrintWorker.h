// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintRun.h"

#include <QtCore/QObject>
#include <QtCore/QThread>

namespace printdialog {

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
    void print(const QList<PlacedPhoto> &photos, const PrintJob &job);
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
