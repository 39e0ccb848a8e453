// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"
#include "PpdFetcher.h"
#include "PrintDialog.h"
#include "QueueSettings.h"
#include "SessionOpening.h"
#include "ui_PrintDialog.h"

namespace printdialog {

namespace {

const QString pageSizeKey = QStringLiteral("PageSize");

} // namespace

void PrintDialog::openPrinter(const Queue &queue)
{
    queue_ = queue;
    ui_->message->clear();
    if (!queue.isBuiltIn) {
        awaitOptions(queue.id());
        fetcher_->fetch(queue.id());
        return;
    }
    fetcher_->cancel();
    showFolder(true);
    SessionResult session = openBuiltInPrinter(setup_.ppdFile, setup_.mode);
    if (session)
        takeSession(*std::move(session));
    else
        closeSession(session.failure().text);
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

void PrintDialog::takePpd(quint64 /*number*/, const QByteArray &ppd)
{
    SessionResult session = openQueue(queue_, ppd, setup_.mode);
    if (session)
        takeSession(*std::move(session));
    else
        closeSession(session.failure().text);
}

// A queue without a PPD prints as well: there is nothing to choose then.
void PrintDialog::takePpdFailure(QueueFault reason, const QString &text)
{
    if (reason != QueueFault::NoPpd) {
        closeSession(text);
        return;
    }
    SessionResult session = openRawQueue(queue_, setup_.mode);
    if (session)
        takeSession(*std::move(session));
    else
        closeSession(session.failure().text);
}

void PrintDialog::closeSession(const QString &reason)
{
    ui_->panels->setSession(nullptr);
    session_.reset();
    whyNotReady_ = reason;
    ui_->pageSize->clear();
    if (!reason.isEmpty())
        ui_->message->show(MessageBar::Kind::Error, reason);
    updateButtons();
}

void PrintDialog::takeSession(std::unique_ptr<DialogSession> session)
{
    ui_->panels->setSession(nullptr);
    session_ = std::move(session);
    whyNotReady_.clear();
    connect(session_.get(), &DialogSession::choiceRefused, this,
            [this](const Ruling &ruling) { ui_->message->show(MessageBar::Kind::Warning, ruling.text); });
    connect(session_.get(), &DialogSession::choiceMade, this, [this](const QString &key) {
        ui_->message->clear();
        if (key == pageSizeKey)
            showPageSize();
    });
    const auto noPanels = session_->loadPanels();
    const QMap<QString, QString> saved = QueueSettings::load(session_->printer().name);
    session_->restoreChoices(saved);
    const bool hasOptions = applyOptions();
    if (hasOptions || !saved.isEmpty())
        session_->refreshPanels();
    fillPageSizes();
    ui_->panels->setSession(session_.get());
    if (noPanels)
        ui_->message->show(MessageBar::Kind::Error, noPanels->text);
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

// The options asked for hold until the user chooses another printer, which has choices of its own.
bool PrintDialog::applyOptions()
{
    if (ui_->printer->wasChosenByUser())
        return false;
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
    if (!session_)
        return;
    const Ruling ruling = session_->choose(pageSizeKey, ui_->pageSize->itemData(index).toString());
    if (ruling.verdict != Verdict::Accepted)
        ui_->message->show(MessageBar::Kind::Warning, ruling.text);
    showPageSize();
}

void PrintDialog::showPageSize()
{
    const QString chosen = session_->chosen(pageSizeKey).value_or(QString());
    ui_->pageSize->setCurrentIndex(ui_->pageSize->findData(chosen));
    if (const auto size = session_->ppd().pageSize(chosen))
        ui_->preview->setPage({size->points, size->imageable});
}

} // namespace printdialog
