// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintJob.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

class QTemporaryDir;

namespace printdialog {

class ChoiceController;
class DialogSession;
class MessageBar;
class PhotoPane;
class PrintProgress;
class PrintWorker;
struct Arrangement;
struct Queue;
struct PrintOutcome;
struct SessionJob;

/// Printing from the window, from the question about a damaged photo to the sentence on what became of the
/// run. It asks in the message bar, never in a box over the window.
class PrintingController : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        PhotoPane *photos;
        PrintProgress *progress;
        MessageBar *message;
    };

    PrintingController(const Widgets &widgets, ChoiceController *choices, QObject *parent);
    ~PrintingController() override;

    /// Prints the choices of this session, which must outlive this or the next call; null: none.
    void setSession(DialogSession *session);

    /// Prints the photos, unless something has to be asked first or there is no job: the message bar says so.
    /// True: printing is under way. Not while busy.
    /// @param folder where the built-in printer leaves its files
    /// @param queue the session's, as it is known by now: a printer on the network may have another address
    bool print(int copies, const QString &folder, const Queue &queue);
    /// Prints the test page for the print position with the session's choices, in one copy. Not while busy.
    void printTestPage(const QString &folder, const Queue &queue);
    bool isBusy() const;
    /// Whether the user wants the run stopped that is under way.
    bool isStopping() const { return isStopping_; }
    /// Whether there was a run, whatever became of it.
    bool hasPrinted() const { return hasPrinted_; }

    void stop();
    /// Escape while it prints: asks whether to stop, or dismisses a question.
    void askToStop();
    /// Whether the window may close now. While it prints, the user is asked first; asking to close again is
    /// an answer, too, and gives up the run.
    bool mayClose();

Q_SIGNALS:
    /// What the functions above answer has changed.
    void stateChanged();
    /// The user wants to print in spite of what was asked.
    void printRequested();
    /// The user wants the window closed, and has been told what that means.
    void closeRequested();
    /// The user wants to see the jobs on the print server.
    void jobsRequested();
    /// A question is answered without anything to follow.
    void dismissed();
    /// Nothing is printed, since the print server has another PPD than the session: one sentence.
    void ppdChanged(const printdialog::Destination &destination, const QString &reason);

private:
    void askAboutDamage();
    void askAboutMissing(const QStringList &missing);
    std::optional<SessionJob> makeJob(int copies);
    void start(const Arrangement &arrangement, const SessionJob &made, const QString &folder,
               const Queue &queue);
    void showOutcome(const PrintOutcome &outcome);
    QString whatContinues() const;

    Widgets widgets_;
    ChoiceController *choices_;
    PrintWorker *worker_;
    std::unique_ptr<QTemporaryDir> testPage_; ///< holds its picture
    DialogSession *session_ = nullptr;
    PrintJob job_;                ///< of what is being printed, or was
    QStringList remarks_;         ///< what was left out of it
    QStringList acceptedMissing_; ///< what is missing of the job, and the user prints without
    QString notKept_;             ///< why the choices are not kept for the next time; mostly empty
    bool hasPrinted_ = false;
    bool isStopping_ = false;
    bool asksToClose_ = false; ///< the question in the message bar is whether to close the window
};

} // namespace printdialog
