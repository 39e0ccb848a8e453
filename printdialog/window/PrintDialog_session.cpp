// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"
#include "DialogSession.h"
#include "FolderController.h"
#include "JobTemplate.h"
#include "PictureController.h"
#include "PrintDialog.h"
#include "PrinterController.h"
#include "PrintingController.h"
#include "ui_PrintDialog.h"

#include <algorithm>

namespace printdialog {

namespace {

/// Every queue's job has a title; whether it has the other options is in the printer's attributes.
bool isInAttributes(const QString &key)
{
    return JobTemplate::isJobOption(key) && key != JobTemplate::titleKey();
}

} // namespace

// The printer

void PrintDialog::followPrinter()
{
    connect(printer_.get(), &PrinterController::printerChanged, this, [this] {
        clearMessage();
        ui_->status->show(printer_->queue());
        showFolder(printer_->queue().isBuiltIn);
    });
    connect(printer_.get(), &PrinterController::optionsAwaited, this, [this] { showFolder(false); });
    connect(printer_.get(), &PrinterController::queueUpdated, this,
            [this] { ui_->status->show(printer_->queue()); });
    connect(printer_.get(), &PrinterController::unconfirmedShown, ui_->status,
            &PrinterStatus::showUnconfirmed);
    connect(printer_.get(), &PrinterController::sessionClosing, this, &PrintDialog::closeSession);
    connect(printer_.get(), &PrinterController::sessionOpened, this, &PrintDialog::showSession);
    connect(printer_.get(), &PrinterController::sessionReplaced, this, &PrintDialog::showReplacement);
    connect(printer_.get(), &PrinterController::attributesArrived, this, &PrintDialog::useAttributes);
    connect(printer_.get(), &PrinterController::confirmed, this, [this](const QString &doubt) {
        if (ui_->message->text() == doubt)
            ui_->message->clear(); // the print server is back
        if (printer_->session()->attributes().isEmpty())
            applyOptions(Requested::OfJob); // which says what the printer does not have
    });
    connect(printer_.get(), &PrinterController::unusable, this, &PrintDialog::showUnusable);
    connect(printer_.get(), &PrinterController::readinessChanged, this, &PrintDialog::updateButtons);
    connect(printer_.get(), &PrinterController::warned, this,
            [this](const QString &text) { ui_->message->show(MessageBar::Kind::Warning, text); });
}

/// The message about photos that could not be opened stays until the user acts on the printer.
void PrintDialog::clearMessage()
{
    ui_->message->clear();
    if (!setup_.photoFailures.isEmpty() && !printer_->wasChosenHere())
        showPhotoFailures(setup_.photoFailures);
}

void PrintDialog::showUnusable()
{
    if (printer_->queue().isBuiltIn)
        ui_->message->show(MessageBar::Kind::Error, printer_->whyNotReady());
    else
        ui_->message->showWithAction(MessageBar::Kind::Error, printer_->whyNotReady(),
                                     tr("Use the Built-in Printer"),
                                     [this] { ui_->printer->chooseBuiltIn(); });
    updateButtons();
}

void PrintDialog::showFolder(bool isBuiltIn)
{
    ui_->folderLabel->setVisible(isBuiltIn);
    ui_->folder->setVisible(isBuiltIn);
    ui_->browse->setVisible(isBuiltIn);
    ui_->documents->setVisible(isBuiltIn && !setup_.program);
    ui_->documentName->setVisible(isBuiltIn && ui_->documents->currentIndex() > 0);
    ui_->statusRow->setVisible(!isBuiltIn);
}

// Its session

void PrintDialog::closeSession()
{
    choices_->setSession(nullptr);
    picture_->setSession(nullptr);
    ui_->panels->setSession(nullptr);
    printing_->setSession(nullptr);
    folder_->setSession(nullptr);
    ui_->pageSize->clear();
    ui_->customPage->hide();
}

void PrintDialog::showSession()
{
    DialogSession *session = printer_->session();
    connect(&session->chosen(), &ChosenOptions::changed, this, [this](const ChoiceChange &change) {
        ui_->message->clear();
        if (change.key == printer_->session()->options().pageSizeKey())
            showPageSize();
    });
    // Queued: the failure occurs in the middle of an operation that shows its own messages.
    connect(session, &DialogSession::panelFailed, this, &PrintDialog::showPanelFailure, Qt::QueuedConnection);
    printing_->setSession(session);
    folder_->setSession(session);
    const auto noPanels = session->loadPanels();
    choices_->setSession(session, printer_->builtInPreset());
    if (applyOptions())
        session->refreshPanels();
    ui_->photos->setPlacedByPrinter(session->printer().isRaw);
    fillPageSizes();
    choices_->start();
    ui_->panels->setSession(session);
    picture_->setSession(session);
    if (noPanels)
        ui_->message->show(noPanels->reason == PluginFault::NotFound ? MessageBar::Kind::Information
                                                                     : MessageBar::Kind::Error,
                           noPanels->text);
    else if (session->printer().isRaw && message().isEmpty())
        ui_->message->show(MessageBar::Kind::Information, tr("This printer has no PPD file and so no options "
                                                             "of its own: it gets the photo's file as it is, "
                                                             "and places it on the page itself."));
    else if (session->panels().empty() && message().isEmpty())
        ui_->message->show(MessageBar::Kind::Information,
                           tr("This printer has no panels of its own; it prints with its defaults."));
    updateButtons();
}

/// An untouched dialog shows what it would have opened with, had it known the attributes.
void PrintDialog::useAttributes(const IppAttributes &attributes)
{
    const bool areAwaited =
        printer_->session()->attributes().isEmpty() && !printer_->wasChosenHere() &&
        std::ranges::any_of(setup_.options, [](const auto &option) { return isInAttributes(option.first); });
    const bool opensAnew = choices_->useAttributes(attributes, areAwaited);
    if (!opensAnew && !areAwaited)
        return;
    if (applyOptions(opensAnew ? Requested::All : Requested::OfJob))
        printer_->session()->refreshPanels();
    showPageSize();
    if (opensAnew)
        choices_->start();
}

void PrintDialog::showReplacement(const QMap<QString, QString> &choices, bool hadAttributes)
{
    const int copies = ui_->copies->value();
    showSession();
    printer_->session()->restoreChoices(choices, DialogSession::Unnamed::Default);
    if (!hadAttributes)
        applyOptions(Requested::OfJob); // which could not be chosen before
    ui_->copies->setValue(copies);
    fillPageSizes();
    choices_->start();
    ui_->message->show(MessageBar::Kind::Warning,
                       tr("The options of \"%1\" have changed. Your choices were kept as far as the printer "
                          "still has them; look at them before you print.")
                           .arg(printer_->queue().id()));
}

void PrintDialog::showPanelFailure(const QString &sentence)
{
    if (ui_->message->isAsking())
        return; // the lost page says so in its place
    if (ui_->message->text().isEmpty())
        ui_->message->show(MessageBar::Kind::Error, sentence);
    else
        ui_->message->append(sentence);
}

// The requested options apply until the user chooses another printer, which has its own choices.
bool PrintDialog::applyOptions(Requested which)
{
    if (printer_->wasChosenHere())
        return false;
    DialogSession &session = *printer_->session();
    if (setup_.copies && which == Requested::All)
        ui_->copies->setValue(*setup_.copies);
    if (setup_.style && which == Requested::All && ui_->photos->model()->isAsOpened())
        ui_->photos->model()->open(*setup_.style);
    // Those of a queue's job wait for its attributes.
    const bool isAwaiting = printer_->hasOldOptions() && session.attributes().isEmpty();
    QStringList sentences;
    if (setup_.program && setup_.program->choices) {
        const ProgramChoices asked = setup_.program->choices(session.options());
        setup_.options = asked.options;
        sentences = setup_.program->remarks + (isAwaiting ? QStringList() : asked.remarks);
    }
    for (const auto &[key, choice] : std::as_const(setup_.options)) {
        if (isInAttributes(key) ? isAwaiting : which == Requested::OfJob)
            continue;
        const Ruling ruling = session.choose(key, choice);
        if (ruling.verdict != Verdict::Accepted)
            sentences += ruling.text;
    }
    if (!sentences.isEmpty())
        ui_->message->show(MessageBar::Kind::Warning, sentences.join(u'\n'));
    return !setup_.options.isEmpty();
}

} // namespace printdialog
