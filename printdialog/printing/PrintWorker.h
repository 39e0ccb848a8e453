// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "PrintRun.h"

#include <QtCore/QObject>
#include <QtCore/QThread>

namespace printdialog {

/// Prints an arrangement on a separate thread and follows a queue's jobs to their end. Signals are emitted on
/// this object's thread.
class PrintWorker : public QObject
{
    Q_OBJECT

public:
    explicit PrintWorker(QObject *parent = nullptr);
    /// Calls giveUp().
    ~PrintWorker() override;

    bool isBusy() const { return thread_ != nullptr; }
    /// Whether everything was sent to the print server or written to the folder.
    bool isFollowing() const;
    /// The number of sheets sent or written.
    int sent() const;
    /// The number of sheets of the run; 0 when it is not known yet.
    int total() const;
    /// Prints the sheets one after the other with the job's settings. Not while busy.
    /// @param only the indexes of the jobs to print, among those of the arrangement; nothing: all
    void print(const Arrangement &arrangement, const PrintJob &job,
               const std::optional<QList<qsizetype>> &only = std::nullopt);
    /// Prints the sheet to its end that is being printed, and nothing after it.
    void finish();
    /// Sends nothing more, and cancels the jobs that are not over.
    void cancel();
    /// Sends nothing more, cancels the job being sent, and stops following. Jobs already sent continue to
    /// print.
    void giveUp();

Q_SIGNALS:
    /// The current activity in words, and the progress of the run; total is 0 when that is unknown.
    void progress(const QString &text, qint64 done, qint64 total);
    void finished(const printdialog::PrintOutcome &outcome);

private:
    struct Flags;

    std::unique_ptr<QThread> thread_;
    std::shared_ptr<Flags> flags_; ///< of the run under way; shared with its thread
};

} // namespace printdialog
