// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OwnJob.h"
#include "SheetPrinter.h"

#include <QtCore/QCoreApplication>

#include <functional>

namespace printdialog {

/// Flags that stop a patient printer; raised by another thread. Plain ints, since libcups reads them.
struct PatientStop
{
    int leave = 0;  ///< Begin no job, and do not wait for one that was sent: the queue keeps it.
    int cancel = 0; ///< Give up the job that is being sent, too.
};

/// What a sheet has come to.
struct PatientOutcome
{
    enum class End {
        Printed,     ///< To the end; the text is a sentence for people.
        Unfit,       ///< The photo cannot be printed; the text says why.
        Failed,      ///< Its job was canceled, or the printer could not print it.
        Unclear,     ///< It may have been printed.
        Vanished,    ///< It was not printed, and its file is gone.
        Stopped,     ///< A flag was raised. A job that was sent is still the queue's.
        OtherPrinter ///< Nothing can be printed: the queue's PPD has changed since the options were chosen.
    };

    End end;
    QString text;
    int job = 0; ///< 0 when there is none
};

/// What tells a job that may have been made from others.
struct BegunJob
{
    QString printer;  ///< the id of its destination
    QString title;    ///< of the job; others may have the same one
    int after = 0;    ///< the number of an earlier job; 0: none is known
    qint64 since = 0; ///< when it was begun, in seconds since 1970
};

/// Prints one sheet at a time and waits until its job has come to its end, however long that takes: while the
/// printer needs paper, the queue rejects jobs or the print server is away. Nothing is sent twice: what was
/// sent is followed, also when the server was started again. Blocking; on the thread that made it.
class PatientPrinter
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PatientPrinter)

public:
    /// What its owner does at each step of a sheet.
    struct Steps
    {
        /// The job is about to be made. Returns why it must not be, a sentence, or an empty string.
        std::function<QString(const BegunJob &)> begin;
        /// The job was not made after all.
        std::function<void()> withdraw;
        /// The queue has the job.
        std::function<void(int job)> sent;
        /// Whether the sheet is still to be printed, asked while it waits.
        std::function<bool()> isThere;
    };
    /// Receives a sentence when the sheet begins to wait, and one when it goes on.
    using News = std::function<void(const QString &)>;

    /// @param stop outlives this object
    PatientPrinter(const PrintJob &job, const News &news, PatientStop &stop);

    PatientOutcome print(const JobSheets &sheets, const Steps &steps);

    /// Waits for a job that was sent by an earlier run of the program. One that the server does not know any
    /// more is Unclear.
    /// @param name the sheet's
    /// @param printer the id of its destination
    PatientOutcome resume(const QString &name, const QString &printer, int job);
    /// Looks for a job that may have been made by an earlier run, and waits for it. Unclear when the server
    /// has none that it must be.
    /// @param sent the job was found
    PatientOutcome resume(const QString &name, const BegunJob &begun,
                          const std::function<void(int job)> &sent);

private:
    PatientOutcome follow(const QString &name, const QString &printer, int job, bool isResumed);
    void note(const QString &name, int job, const JobStatus &status);
    void waits(const QString &sentence);
    void goesOn(const QString &name);
    std::optional<int> found(const BegunJob &begun, const QList<OwnJob> &jobs) const;
    bool isStopped() const;
    /// @return false: stopped
    bool pause();

    PrintJob job_;
    News news_;
    PatientStop &stop_;
    int lastJob_ = 0; ///< its number; 0: there was none
    bool isWaiting_ = false;
    std::chrono::milliseconds pause_ = {};
};

} // namespace printdialog
