// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintingController.h"

#include "MessageBar.h"
#include "OutcomeText.h"
#include "PhotoPane.h"
#include "PrintProgress.h"
#include "PrintWorker.h"

#include <QtCore/QTemporaryDir>

#include <algorithm>

// The end: of printing, and of the window.

namespace printdialog {

void PrintingController::stop(Stopping how)
{
    widgets_.message->clear();
    stopping_ = how;
    if (how == Stopping::AtOnce) {
        widgets_.progress->show(tr("Stopping…"));
        worker_->cancel();
    } else {
        widgets_.progress->show(say(tr("Stopping after this photo…"), tr("Stopping after this sheet…"),
                                    tr("Stopping after this job…")));
        worker_->finish();
    }
    Q_EMIT stateChanged();
}

/// In the words for what the run counts.
QString PrintingController::say(const QString &photos, const QString &sheets, const QString &jobs) const
{
    using Unit = OutcomeText::Unit;
    const Unit unit = OutcomeText::unitOf(arrangement_);
    return unit == Unit::Photos ? photos : unit == Unit::Sheets ? sheets : jobs;
}

void PrintingController::askHowToStop()
{
    asksToClose_ = false;
    QList<MessageBar::Action> answers;
    // The pages of one PDF are printed together, or not at all.
    const bool hasOthers = worker_->total() != 1 && !job_.folder.document;
    if (hasOthers && stopping_ == Stopping::No)
        answers.append(
            {say(tr("Stop After This Photo"), tr("Stop After This Sheet"), tr("Stop After This Job")),
             [this] {
                 stop(Stopping::AfterSheet);
             }});
    answers.append({hasOthers ? tr("Stop at Once") : tr("Stop Printing"), [this] {
                        stop(Stopping::AtOnce);
                    }});
    answers.append({tr("Continue"), [this] {
                        Q_EMIT dismissed();
                    }});
    widgets_.message->ask(tr("Stop printing? What is not printed yet is canceled."), answers);
}

// Users press Escape to dismiss a question, too.
void PrintingController::askToStop()
{
    if (widgets_.message->isAsking()) {
        widgets_.message->clear();
        Q_EMIT dismissed();
    } else if (!isStopping()) {
        askHowToStop();
    }
}

bool PrintingController::mayClose()
{
    if (!worker_->isBusy())
        return true;
    if (asksToClose_ && widgets_.message->isAsking()) {
        worker_->giveUp();
        return true;
    }
    asksToClose_ = true;
    widgets_.message->ask(whatContinues(), {{tr("Close Window"),
                                             [this] {
                                                 worker_->giveUp();
                                                 Q_EMIT closeRequested();
                                             }},
                                            {tr("Keep Open"), [this] {
                                                 Q_EMIT dismissed();
                                             }}});
    return false;
}

QString PrintingController::whatContinues() const
{
    if (worker_->isFollowing())
        return tr("The print server continues printing when this window is closed.");
    const int count = std::max(worker_->total(), 1);
    if (job_.destination.isBuiltIn())
        return say(tr("Printed so far: %1 of %2 photos. The rest is not printed when this window is closed."),
                   tr("Printed so far: %1 of %2 sheets. The rest is not printed when this window is closed."),
                   tr("Printed so far: %1 of %2 jobs. The rest is not printed when this window is closed."))
            .arg(worker_->sent())
            .arg(count);
    return say(tr("When this window is closed, the print server continues printing the %1 of %2 photos that "
                  "it "
                  "has. The rest is not printed."),
               tr("When this window is closed, the print server continues printing the %1 of %2 sheets that "
                  "it "
                  "has. The rest is not printed."),
               tr("When this window is closed, the print server continues printing the %1 of %2 jobs that it "
                  "has. The rest is not printed."))
        .arg(worker_->sent())
        .arg(count);
}

} // namespace printdialog
