// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"
#include "DialogSession.h"
#include "PpdFetcher.h"
#include "PrintDialog.h"
#include "PrintWorker.h"
#include "ViewTexts.h"
#include "ui_PrintDialog.h"

#include <QtCore/QFileInfo>

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
}

std::optional<PrintJob> PrintDialog::makeJob(QStringList &remarks)
{
    const auto options = session_->jobOptions();
    if (!options) {
        choices_->explainJob();
        return std::nullopt;
    }
    remarks = options->dropped;
    const auto size = session_->ppd().pageSize(options->options.value(QStringLiteral("PageSize")));
    if (!size) {
        ui_->message->show(MessageBar::Kind::Warning, tr("No paper size is chosen. Choose one."));
        return std::nullopt;
    }
    PrintJob job;
    job.printer = session_->printer().name;
    job.page = {size->points, size->imageable};
    job.options = options->options;
    job.copies = ui_->copies->value();
    job.queue = session_->printer().hasPpd ? QueueTerms::ofPpd(session_->ppd()) : QueueTerms::withoutPpd();
    for (const auto &[option, choice] : session_->summary())
        job.summary.insert(option, choice);
    notKept_ = choices_->keep(*options);
    return job;
}

void PrintDialog::print()
{
    if (!isReady() || worker_->isBusy() || ui_->photos->photos().isEmpty())
        return;
    QStringList remarks;
    const std::optional<PrintJob> job = makeJob(remarks);
    if (!job)
        return;
    ui_->message->show(remarks.isEmpty() ? MessageBar::Kind::Information : MessageBar::Kind::Warning,
                       (QStringList(tr("Printing…")) + remarks).join(QLatin1Char('\n')));
    PrintTarget target;
    if (session_->printer().isBuiltIn)
        target.folder.path = ui_->folder->text();
    else
        target.queue = session_->printer().name;
    remarks_ = remarks;
    remember(true);
    ui_->progress->show(tr("Printing…"));
    worker_->print(ui_->photos->photos(), target, *job);
    updateButtons();
}

void PrintDialog::finishPrinting(const PrintOutcome &outcome)
{
    ui_->progress->hide();
    updateButtons();
    QStringList lines = outcome.printed + outcome.waiting + remarks_;
    const bool isFine = outcome.waiting.isEmpty() && notKept_.isEmpty() && remarks_.isEmpty();
    for (const QString &line : {outcome.failure, std::exchange(notKept_, QString())}) {
        if (!line.isEmpty())
            lines += line;
    }
    if (!outcome.failure.isEmpty()) {
        ui_->message->show(MessageBar::Kind::Error, lines.join(u'\n'));
        if (outcome.hasOtherPpd) {
            whyNotReady_ = outcome.failure;
            updateButtons();
            fetcher_->fetch(queue_.id());
        }
        return;
    }
    ui_->cancel->setText(tr("Close"));
    ui_->message->showWithFolder(
        isFine ? MessageBar::Kind::Information : MessageBar::Kind::Warning, lines.join(u'\n'),
        queue_.isBuiltIn ? QFileInfo(ui_->folder->text()).absoluteFilePath() : QString());
}

void PrintDialog::saveSettings()
{
    const auto options = session_->jobOptions();
    if (!options) {
        choices_->explainJob();
        return;
    }
    const QString failure = choices_->keep(*options);
    if (failure.isEmpty())
        ui_->message->show(MessageBar::Kind::Information,
                           tr("The settings are saved for \"%1\".").arg(session_->printer().text));
    else
        ui_->message->show(MessageBar::Kind::Error, failure);
}

} // namespace printdialog
