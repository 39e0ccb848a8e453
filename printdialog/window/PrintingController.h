// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
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
    bool print(int copies, const OutputFolder &folder, const Queue &queue);
    /// The job that print() would print a document with, for a program that brings the document afterwards;
    /// nothing when something has to be asked first, or there is no job. Keeps the choices for the next time.
    std::optional<PrintJob> prepare(int copies, const OutputFolder &folder, const Queue &queue);
    /// Prints the test page for the print position with the session's choices, in one copy. Not while busy.
    void printTestPage(const QString &folder, const Queue &queue);
    bool isBusy() const;
    /// Whether the run under way is being stopped, and nothing more can be done about it.
    bool isStopping() const { return stopping_ == Stopping::AtOnce; }
    /// Whether there was a run, whatever became of it.
    bool hasPrinted() const { return hasPrinted_; }

    /// Asks how to stop: after the current sheet, or at once.
    void askHowToStop();
    /// Escape while it prints: asks the same, or dismisses a question.
    void askToStop();
    /// Whether the window may close now. While it prints, the user is asked first; asking to close again is
    /// an answer, too, and gives up the run.
    bool mayClose();

Q_SIGNALS:
    /// What the functions above answer has changed.
    void stateChanged();
    /// A run is over, and everything of it is printed or with the print server.
    void printed(const printdialog::Arrangement &arrangement);
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
    enum class Stopping { No, AfterSheet, AtOnce };

    void start(const std::optional<QList<qsizetype>> &only);
    void printRest(const QList<qsizetype> &rest);
    void stop(Stopping how);
    bool settleName(OutputFolder &folder);
    void askAboutDamage();
    void askAboutMissing(const QStringList &missing);
    std::optional<SessionJob> makeJob(int copies);
    void begin(const Arrangement &arrangement, const SessionJob &made, const OutputFolder &folder,
               const Queue &queue);
    void showOutcome(const PrintOutcome &outcome);
    QString say(const QString &photos, const QString &sheets, const QString &jobs) const;
    QString whatContinues() const;

    Widgets widgets_;
    ChoiceController *choices_;
    PrintWorker *worker_;
    std::unique_ptr<QTemporaryDir> testPage_; ///< holds its picture; null when photos were printed last
    DialogSession *session_ = nullptr;
    Arrangement arrangement_;     ///< what is being printed, or was
    PrintJob job_;                ///< of what is being printed, or was
    QStringList remarks_;         ///< what was left out of it
    QStringList acceptedMissing_; ///< what is missing of the job, and the user prints without
    /// What is to be done about the files that are there already, of a PDF by its path.
    struct NameAnswer
    {
        QString path;
        bool isReplaced;
    };
    std::optional<NameAnswer> nameAnswer_;
    QString notKept_; ///< why the choices are not kept for the next time; mostly empty
    bool hasPrinted_ = false;
    Stopping stopping_ = Stopping::No;
    bool asksToClose_ = false; ///< the question in the message bar is whether to close the window
};

} // namespace printdialog
