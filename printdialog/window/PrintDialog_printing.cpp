// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"
#include "DialogSession.h"
#include "OutcomeText.h"
#include "PlainText.h"
#include "PpdFetcher.h"
#include "PrintDialog.h"
#include "PrintWorker.h"
#include "SessionJob.h"
#include "ViewTexts.h"
#include "ui_PrintDialog.h"

#include <QtCore/QFileInfo>
#include <QtGui/QCloseEvent>

#include <utility>

namespace printdialog {

void PrintDialog::updateButtons()
{
    QString reason = whyNotReady_;
    if (reason.isEmpty() && ui_->photos->photos().isEmpty())
        reason = tr("There is no photo to print.");
    if (reason.isEmpty() && worker_->isBusy())
        reason = tr("Printing is under way.");
    ui_->print->setEnabled(reason.isEmpty());
    pdekit::setPlainToolTip(ui_->print, reason); // it may name a printer, or hold a PPD's words
    ui_->save->setEnabled(session_ != nullptr);
    const QString end = hasPrinted_ ? tr("Close") : tr("Cancel");
    ui_->cancel->setText(worker_->isBusy() ? tr("Stop") : end);
    ui_->cancel->setEnabled(!isStopping_);
}

/// Keeps the choices for the next time, too. Where there is no job, the user sees why.
std::optional<SessionJob> PrintDialog::makeJob()
{
    auto job = jobOf(*session_, ui_->copies->value());
    if (job && !job->missing.isEmpty() && job->missing != acceptedMissing_) {
        askAboutMissing(job->missing);
        return std::nullopt;
    }
    if (job) {
        notKept_ = choices_->keep(job->job.options);
        return *std::move(job);
    }
    if (job.failure().reason == SessionJobFault::Conflict)
        choices_->explainJob();
    else
        ui_->message->show(MessageBar::Kind::Warning, job.failure().text);
    return std::nullopt;
}

void PrintDialog::print()
{
    if (!isReady() || worker_->isBusy() || ui_->photos->photos().isEmpty())
        return;
    if (pageStays())
        return;
    if (!ui_->photos->damagedPhotos().isEmpty())
        return askAboutDamage();
    const std::optional<SessionJob> made = makeJob();
    if (!made)
        return;
    ui_->message->clear();
    if (!made->remarks.isEmpty())
        ui_->message->show(MessageBar::Kind::Warning, made->remarks.join(u'\n'));
    job_ = made->job;
    job_.folder = {ui_->folder->text()};
    remarks_ = made->remarks;
    ui_->printer->selection().used();
    remember();
    ui_->progress->show(tr("Printing…"));
    worker_->print(ui_->photos->photos(), job_);
    updateButtons();
}

/// Shows the first photo that is damaged. It is printed once the user wants it like that.
void PrintDialog::askAboutDamage()
{
    const QList<int> damaged = ui_->photos->damagedPhotos();
    QStringList names;
    for (const int index : damaged)
        names += plainText(ui_->photos->photos().at(index).photo.fileName(), shownTextLimit);
    if (names.isEmpty())
        return;
    ui_->photos->setCurrent(damaged.constFirst());
    const QString text = names.size() == 1 ? tr("%1 is damaged: a part of the picture is missing or wrong. "
                                                "Look at it, then print it as it is, or "
                                                "remove it and copy it again from where it came from.")
                                           : tr("These photos are damaged: %1. Look at them, then print them "
                                                "as they are, or remove them and copy "
                                                "them again from where they came from.");
    ui_->message->showWithAction(MessageBar::Kind::Warning, text.arg(names.join(QLatin1String(", "))),
                                 tr("Print Anyway"), [this] {
                                     ui_->photos->acceptDamagedPhotos();
                                     print();
                                 });
}

/// Pages that have not handed over their choices. It is printed once the user wants it without them.
void PrintDialog::askAboutMissing(const QStringList &missing)
{
    ui_->message->showWithAction(
        MessageBar::Kind::Warning,
        missing.join(u'\n') + u'\n' +
            tr("Print without these choices? The printer's own defaults take their place."),
        tr("Print Without Them"), [this, missing] {
            acceptedMissing_ = missing;
            print();
        });
}

void PrintDialog::finishPrinting(const PrintOutcome &outcome)
{
    ui_->progress->hide();
    hasPrinted_ = hasPrinted_ || !outcome.hasDamaged;
    isStopping_ = false;
    updateButtons();
    if (outcome.hasDamaged)
        return askAboutDamage();
    const OutcomeText text(outcome, job_);
    MessageBar::Message message;
    if (!outcome.failure.isEmpty() || !outcome.skipped.isEmpty())
        message.kind = MessageBar::Kind::Error;
    else if (!outcome.waiting.isEmpty() || !notKept_.isEmpty() || !remarks_.isEmpty() || outcome.wasStopped)
        message.kind = MessageBar::Kind::Warning;
    message.text = (QStringList(text.summary()) + remarks_ + QStringList(std::exchange(notKept_, QString())))
                       .join(u'\n')
                       .trimmed();
    message.details = text.details();
    if (job_.destination.isBuiltIn() && outcome.done > 0)
        message.folder = QFileInfo(job_.folder.path).absoluteFilePath();
    ui_->message->show(message);
    if (outcome.hasOtherPpd) {
        whyNotReady_ = outcome.failure;
        updateButtons();
        fetcher_->fetch(queue_.destination());
    }
}

// The end: of printing, and of the window

void PrintDialog::cancelOrStop()
{
    if (worker_->isBusy())
        stopPrinting();
    else
        closeUnlessPageStays();
}

/// Whether the page that is shown has to stay, which the user is told then.
bool PrintDialog::pageStays()
{
    const QString reason = ui_->panels->whyPageStays();
    if (!reason.isEmpty())
        ui_->message->show(MessageBar::Kind::Warning, reason);
    return !reason.isEmpty();
}

/// No plug-in can hold the window for good.
void PrintDialog::closeUnlessPageStays()
{
    const QString reason = ui_->panels->whyPageStays();
    if (reason.isEmpty())
        QDialog::reject();
    else
        ui_->message->showWithAction(MessageBar::Kind::Warning, reason, tr("Close Anyway"),
                                     [this] { QDialog::reject(); });
}

void PrintDialog::stopPrinting()
{
    ui_->message->clear();
    isStopping_ = true;
    ui_->progress->show(tr("Stopping…"));
    worker_->cancel();
    updateButtons();
}

// Escape. It is pressed to be rid of a question as well.
void PrintDialog::reject()
{
    if (!worker_->isBusy()) {
        closeUnlessPageStays();
    } else if (ui_->message->isAsking()) {
        ui_->message->clear();
        ui_->cancel->setFocus(Qt::OtherFocusReason);
    } else if (!isStopping_) {
        isLeaving_ = false;
        ui_->message->ask(tr("Stop printing? What is not printed yet is taken back."),
                          {{tr("Stop Printing"),
                            [this] {
                                stopPrinting();
                            }},
                           {tr("Go On"), [this] {
                                ui_->cancel->setFocus(Qt::OtherFocusReason);
                            }}});
    }
}

// The window goes only when it has said what that means, or is closed once more.
void PrintDialog::closeEvent(QCloseEvent *event)
{
    if (!worker_->isBusy()) {
        QDialog::closeEvent(event);
        return;
    }
    if (isLeaving_ && ui_->message->isAsking()) {
        leave();
        return;
    }
    event->ignore();
    isLeaving_ = true;
    ui_->message->ask(whatGoesOn(), {{tr("Close Window"),
                                      [this] {
                                          leave();
                                      }},
                                     {tr("Keep Open"), [this] {
                                          ui_->cancel->setFocus(Qt::OtherFocusReason);
                                      }}});
}

QString PrintDialog::whatGoesOn() const
{
    if (worker_->isFollowing())
        return tr("The print server goes on printing when this window is closed.");
    const auto count = static_cast<int>(ui_->photos->photos().size());
    if (job_.destination.isBuiltIn())
        return tr("Printed so far: %1 of %2 photos. The rest is not printed when this window is closed.")
            .arg(worker_->sent())
            .arg(count);
    return tr("When this window is closed, the print server goes on printing the %1 of %2 photos that it "
              "has. "
              "The rest is not printed.")
        .arg(worker_->sent())
        .arg(count);
}

void PrintDialog::leave()
{
    worker_->giveUp();
    QDialog::reject();
}

void PrintDialog::saveSettings()
{
    const auto options = session_->jobOptions();
    if (!options) {
        choices_->explainJob();
        return;
    }
    if (!options->missing.isEmpty()) {
        ui_->message->show(MessageBar::Kind::Error,
                           options->missing.join(u'\n') + u'\n' + tr("Nothing is saved."));
        return;
    }
    const QString failure = choices_->keep(options->options);
    if (failure.isEmpty())
        ui_->message->show(MessageBar::Kind::Information,
                           tr("The settings are saved for \"%1\".").arg(session_->printer().text));
    else
        ui_->message->show(MessageBar::Kind::Error, failure);
}

} // namespace printdialog
