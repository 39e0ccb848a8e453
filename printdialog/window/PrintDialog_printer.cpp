// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"
#include "DialogSession.h"
#include "PpdFetcher.h"
#include "PrintDialog.h"
#include "QueueCache.h"
#include "SessionOpening.h"
#include "UserDestinations.h"
#include "ui_PrintDialog.h"

namespace printdialog {

namespace {

const QString pageSizeKey = QStringLiteral("PageSize");

/// What differs from the PPD's defaults.
QMap<QString, QString> ownChoices(DialogSession &session)
{
    // Has the panels hand over what they keep; whether it goes together does not matter here.
    [[maybe_unused]] const auto job = session.jobOptions();
    QMap<QString, QString> choices;
    for (const QString &key : session.ppd().options()) {
        const std::optional<QString> choice = session.chosen(key);
        if (choice && choice != session.ppd().defaultChoice(key))
            choices.insert(key, *choice);
    }
    return choices;
}

SessionResult openCached(const RememberedQueue &remembered, PanelMode mode)
{
    if (remembered.ppd.isEmpty())
        return openRawQueue(remembered.queue, mode);
    const auto ppd = trustPpd(remembered.ppd, remembered.queue.id());
    if (!ppd)
        return ppd.failure();
    return openQueue(remembered.queue, *ppd, mode);
}

} // namespace

// Which printer is shown

/// The printer used last, if it is the one to begin with; from here on the user's default is asked for like
/// one that is named. What the user has chosen comes before a default.
std::optional<RememberedQueue> PrintDialog::firstPrinter()
{
    std::optional<RememberedQueue> remembered;
    if (setup_.remembers && !setup_.ppdFile)
        remembered = QueueCache::load();
    if (!setup_.printer && !setup_.ppdFile && !(remembered && remembered->wasChosen))
        setup_.printer = UserDestinations::read().defaultPrinter;
    if (setup_.printer && setup_.printer->isBuiltIn()) {
        builtInPreset_ = setup_.printer->instance;
        setup_.printer = Destination::builtIn();
    }
    if (remembered && setup_.printer && *setup_.printer != remembered->queue.destination())
        remembered.reset();
    return remembered;
}

void PrintDialog::openFirstPrinter(const std::optional<RememberedQueue> &remembered)
{
    const Queue builtIn = Queue::builtIn();
    if (remembered && !remembered->queue.isBuiltIn) {
        openRemembered(*remembered);
    } else if (setup_.printer && *setup_.printer != builtIn.destination() && !setup_.ppdFile) {
        ui_->printer->await(setup_.printer->id());
        awaitOptions(setup_.printer->id());
    } else {
        if (remembered && remembered->wasChosen)
            ui_->printer->recall(builtIn, PrinterSelection::State::Used);
        openPrinter(builtIn);
    }
}

void PrintDialog::openRemembered(const RememberedQueue &remembered)
{
    queue_ = remembered.queue;
    using State = PrinterSelection::State;
    const State unchosen = setup_.printer ? State::Kept : State::Open;
    ui_->printer->recall(queue_, remembered.wasChosen ? State::Used : unchosen);
    SessionResult session = openCached(remembered, setup_.mode);
    awaitOptions(queue_.id());
    ui_->status->showUnconfirmed();
    if (session)
        takeSession(*std::move(session));
    whyNotReady_ =
        tr("The print server has not confirmed yet that the printer \"%1\" is there.").arg(queue_.id());
    updateButtons();
}

void PrintDialog::openPrinter(const Queue &queue)
{
    queue_ = queue;
    clearMessage();
    ui_->status->show(queue);
    if (!queue.isBuiltIn) {
        awaitOptions(queue.id());
        fetcher_->fetch(queue.destination());
        return;
    }
    fetcher_->cancel();
    showFolder(true);
    SessionResult session = openBuiltInPrinter(setup_.ppdFile, setup_.mode);
    if (session)
        takeSession(*std::move(session));
    else
        closeSession(session.failure().text);
    if (ui_->printer->selection().isUsersChoice())
        remember();
}

void PrintDialog::takeUpdate(const Queue &queue)
{
    queue_ = queue;
    ui_->status->show(queue);
    if (!ui_->printer->selection().hasOldOptions())
        return;
    const bool hasPpd = session_ && session_->printer().hasPpd;
    fetcher_->fetch(queue.destination(), hasPpd ? std::optional(session_->ppd().checked()) : std::nullopt);
}

bool PrintDialog::wasChosenHere() const
{
    return ui_->printer->selection().state() == PrinterSelection::State::Chosen;
}

/// Photos that could not be opened are named until the user does something about the printer.
void PrintDialog::clearMessage()
{
    ui_->message->clear();
    if (!setup_.photoFailures.isEmpty() && !wasChosenHere())
        ui_->message->show(MessageBar::Kind::Error, setup_.photoFailures.join(u'\n'));
}

void PrintDialog::takeSearchFailure(const QString &text)
{
    if (ui_->printer->selection().isConfirmed()) {
        ui_->message->show(MessageBar::Kind::Warning, text);
        return;
    }
    if (ui_->printer->currentIndex() < 0)
        closeSession(text);
    else
        showUnusable(text);
}

void PrintDialog::showUnusable(const QString &reason)
{
    whyNotReady_ = reason;
    if (queue_.isBuiltIn)
        ui_->message->show(MessageBar::Kind::Error, reason);
    else
        ui_->message->showWithAction(MessageBar::Kind::Error, reason, tr("Use the Built-in Printer"),
                                     [this] { ui_->printer->chooseBuiltIn(); });
    updateButtons();
}

void PrintDialog::remember()
{
    if (!setup_.remembers || setup_.ppdFile || !session_)
        return;
    const bool hasPpd = !queue_.isBuiltIn && session_->printer().hasPpd;
    QueueCache::save(
        {queue_, hasPpd ? session_->ppd().data() : QByteArray(), ui_->printer->selection().isUsersChoice()});
}

void PrintDialog::awaitOptions(const QString &id)
{
    showFolder(false);
    closeSession({});
    whyNotReady_ = tr("The options of \"%1\" are being fetched from the print server.").arg(id);
    updateButtons();
}

void PrintDialog::showFolder(bool isBuiltIn)
{
    ui_->folderLabel->setVisible(isBuiltIn);
    ui_->folder->setVisible(isBuiltIn);
    ui_->browse->setVisible(isBuiltIn);
}

// Its PPD

void PrintDialog::takePpd(quint64 /*number*/, const CheckedPpd &ppd)
{
    if (session_ && session_->printer().hasPpd && session_->ppd().data() == ppd.data()) {
        confirm();
        return;
    }
    SessionResult session = openQueue(queue_, ppd, setup_.mode);
    if (session)
        reopen(*std::move(session));
    else
        closeSession(session.failure().text);
}

// A queue without a PPD prints as well: there is nothing to choose then.
void PrintDialog::takePpdFailure(QueueFault reason, const QString &text)
{
    if (reason == QueueFault::NoPpd && session_ && !session_->printer().hasPpd) {
        confirm();
        return;
    }
    if (reason != QueueFault::NoPpd) {
        closeSession(text);
        return;
    }
    SessionResult session = openRawQueue(queue_, setup_.mode);
    if (session)
        reopen(*std::move(session));
    else
        closeSession(session.failure().text);
}

// What is shown from an earlier time is what the print server has.
void PrintDialog::confirm()
{
    ui_->printer->selection().confirmOptions();
    if (ui_->message->text() == whyNotReady_)
        ui_->message->clear(); // the print server is back
    whyNotReady_.clear();
    remember();
    updateButtons();
}

// Shows the options that the print server has. Choices made from other ones are kept as far as there are any
// such.
void PrintDialog::reopen(std::unique_ptr<DialogSession> session)
{
    QMap<QString, QString> kept;
    const bool wasShown = session_ != nullptr;
    if (wasShown)
        kept = ownChoices(*session_);
    const int copies = ui_->copies->value();
    ui_->printer->selection().confirmOptions();
    takeSession(std::move(session));
    if (wasShown) {
        session_->restoreChoices(kept, DialogSession::Unnamed::Default);
        ui_->copies->setValue(copies);
        fillPageSizes();
        choices_->start();
        ui_->message->show(
            MessageBar::Kind::Warning,
            tr("The options of \"%1\" have changed. Your choices were kept as far as the printer "
               "still has them; look at them before you print.")
                .arg(queue_.id()));
    }
    remember();
}

void PrintDialog::closeSession(const QString &reason)
{
    choices_->setSession(nullptr);
    ui_->panels->setSession(nullptr);
    printing_->setSession(nullptr);
    session_.reset();
    whyNotReady_ = reason;
    ui_->pageSize->clear();
    if (reason.isEmpty())
        updateButtons();
    else
        showUnusable(reason);
}

void PrintDialog::takeSession(std::unique_ptr<DialogSession> session)
{
    choices_->setSession(nullptr);
    ui_->panels->setSession(nullptr);
    session_ = std::move(session);
    whyNotReady_.clear();
    connect(&session_->chosen(), &ChosenOptions::changed, this, [this](const ChoiceChange &change) {
        ui_->message->clear();
        if (change.key == pageSizeKey)
            showPageSize();
    });
    // Not at once: it is part of what is being done, which has its own messages.
    connect(session_.get(), &DialogSession::panelFailed, this, &PrintDialog::showPanelFailure,
            Qt::QueuedConnection);
    printing_->setSession(session_.get());
    const auto noPanels = session_->loadPanels();
    choices_->setSession(session_.get(), wasChosenHere() ? QString() : builtInPreset_);
    if (applyOptions())
        session_->refreshPanels();
    fillPageSizes();
    choices_->start();
    ui_->panels->setSession(session_.get());
    if (noPanels)
        ui_->message->show(noPanels->reason == PluginFault::NotFound ? MessageBar::Kind::Information
                                                                     : MessageBar::Kind::Error,
                           noPanels->text);
    else if (!session_->printer().hasPpd && message().isEmpty())
        ui_->message->show(
            MessageBar::Kind::Information,
            tr("This printer has no PPD file and so no options: it gets the photo's file as it is, "
               "and places it on the page itself."));
    else if (session_->panels().empty() && message().isEmpty())
        ui_->message->show(MessageBar::Kind::Information,
                           tr("This printer has no panels of its own; it prints with its defaults."));
    updateButtons();
}

void PrintDialog::showPanelFailure(const QString &sentence)
{
    if (ui_->message->isAsking())
        return; // a page that is lost says so itself
    const QString before = ui_->message->text();
    ui_->message->show(MessageBar::Kind::Error, before.isEmpty() ? sentence : before + u'\n' + sentence);
}

// The options asked for hold until the user chooses another printer, which has choices of its own.
bool PrintDialog::applyOptions()
{
    if (wasChosenHere())
        return false;
    if (setup_.copies)
        ui_->copies->setValue(*setup_.copies);
    for (const auto &[key, choice] : std::as_const(setup_.options)) {
        const Ruling ruling = session_->choose(key, choice);
        if (ruling.verdict != Verdict::Accepted)
            ui_->message->show(MessageBar::Kind::Warning, ruling.text);
    }
    return !setup_.options.isEmpty();
}

// The page

void PrintDialog::fillPageSizes()
{
    ui_->pageSize->clear();
    for (const PageSize &size : session_->ppd().pageSizes())
        ui_->pageSize->addItem(size.text, size.keyword);
    showPageSize();
}

void PrintDialog::choosePageSize(int index)
{
    choices_->choosePageSize(ui_->pageSize->itemData(index).toString());
    if (session_)
        showPageSize();
}

void PrintDialog::showPageSize()
{
    const QString chosen = session_->chosen(pageSizeKey).value_or(QString());
    ui_->pageSize->setCurrentIndex(ui_->pageSize->findData(chosen));
    if (const auto size = session_->ppd().pageSize(chosen))
        ui_->photos->setPage({size->points, size->imageable});
}

} // namespace printdialog
