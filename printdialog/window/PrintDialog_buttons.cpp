// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"
#include "DialogSession.h"
#include "PrintDialog.h"
#include "PrinterController.h"
#include "PrintingController.h"
#include "ViewTexts.h"
#include "ui_PrintDialog.h"

#include <QtGui/QCloseEvent>

namespace printdialog {

void PrintDialog::updateButtons()
{
    QString reason = printer_->whyNotReady();
    if (reason.isEmpty() && ui_->photos->isOpening())
        reason = tr("Files are still being opened.");
    if (reason.isEmpty() && ui_->photos->photos().isEmpty() && !awaitsPages())
        reason = tr("There is nothing to print.");
    if (reason.isEmpty())
        reason = ui_->photos->whyNotPrintable();
    if (reason.isEmpty() && printing_->isBusy())
        reason = tr("Printing is under way.");
    ui_->print->setEnabled(reason.isEmpty());
    pdekit::setPlainToolTip(ui_->print, reason); // it may name a printer, or hold a PPD's words
    ui_->save->setEnabled(printer_->session() != nullptr);
    const QString end = printing_->hasPrinted() ? tr("Close") : tr("Cancel");
    ui_->cancel->setText(printing_->isBusy() ? tr("Stop") : end);
    ui_->cancel->setEnabled(!printing_->isStopping());
    updatePosition();
}

void PrintDialog::print()
{
    const bool hasPages = awaitsPages() || !ui_->photos->photos().isEmpty();
    if (!isReady() || printing_->isBusy() || ui_->photos->isOpening() || !hasPages || pageStays() ||
        !ui_->customPage->finish() || !ui_->photos->finishTyping() ||
        !ui_->photos->whyNotPrintable().isEmpty())
        return;
    if (setup_.program)
        return prepare();
    if (!printing_->print(ui_->copies->value(), outputFolder(), printer_->queue()))
        return;
    printer_->notePrinted();
}

void PrintDialog::cancelOrStop()
{
    if (printing_->isBusy())
        printing_->askHowToStop();
    else
        closeUnlessPageStays();
}

/// Whether the current page must stay; if so, shows why.
bool PrintDialog::pageStays()
{
    const QString reason = ui_->panels->whyPageStays();
    if (!reason.isEmpty())
        ui_->message->show(MessageBar::Kind::Warning, reason);
    return !reason.isEmpty();
}

/// No plug-in can keep the window open for good: closing is offered all the same.
void PrintDialog::closeUnlessPageStays()
{
    const QString reason = ui_->panels->whyPageStays();
    if (reason.isEmpty())
        closeUnlessWorkIsLost();
    else
        ui_->message->showWithAction(MessageBar::Kind::Warning, reason, tr("Close Anyway"),
                                     [this] { QDialog::reject(); });
}

/// Asks before the arrangement of several photos is lost; closing again is an answer, too.
void PrintDialog::closeUnlessWorkIsLost()
{
    const bool isAnswered = asksToLose_ && ui_->message->isAsking();
    asksToLose_ = !isAnswered && ui_->photos->model()->hasUnkeptWork();
    if (!asksToLose_)
        return QDialog::reject();
    ui_->message->ask(tr("The sheets were arranged and not printed. Close the window all the same?"),
                      {{tr("Close Without Printing"),
                        [this] {
                            QDialog::reject();
                        }},
                       {tr("Save List…"),
                        [this] {
                            ui_->photos->saveList();
                        }},
                       {tr("Keep Open"), [this] {
                            ui_->cancel->setFocus(Qt::OtherFocusReason);
                        }}});
}

void PrintDialog::reject()
{
    if (printing_->isBusy())
        printing_->askToStop();
    else
        closeUnlessPageStays();
}

// While printing, the window closes only after it has said what that means, or at a second close.
void PrintDialog::closeEvent(QCloseEvent *event)
{
    if (!printing_->isBusy())
        QDialog::closeEvent(event);
    else if (printing_->mayClose())
        QDialog::reject();
    else
        event->ignore();
}

void PrintDialog::saveSettings()
{
    if (!ui_->customPage->finish())
        return;
    const auto options = printer_->session()->jobOptions();
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
                           tr("The settings are saved for \"%1\".").arg(printer_->session()->printer().text));
    else
        ui_->message->show(MessageBar::Kind::Error, failure);
}

} // namespace printdialog
