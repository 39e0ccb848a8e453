// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FolderController.h"

#include "ArrangementModel.h"
#include "ChoiceController.h"
#include "DialogSession.h"
#include "FolderPrinter.h"
#include "MessageBar.h"
#include "PhotoPane.h"
#include "Queue.h"
#include "SessionJob.h"
#include "WatchBar.h"

#include <QtCore/QDir>

namespace printdialog {

FolderController::FolderController(const Widgets &widgets, ChoiceController *choices, QObject *parent)
    : QObject(parent)
    , widgets_(widgets)
    , choices_(choices)
    , printer_(new FolderPrinter(this))
{
    connect(printer_, &FolderPrinter::said, widgets_.bar, &WatchBar::showNews);
    connect(printer_, &FolderPrinter::complained, this, [this](const QString &sentence) {
        if (widgets_.message->text().isEmpty())
            widgets_.message->show(MessageBar::Kind::Warning, sentence);
        else
            widgets_.message->append(sentence);
    });
    connect(printer_, &FolderPrinter::finished, this, [this](const QString &failure) {
        widgets_.bar->setWatching(false);
        widgets_.bar->showNews({});
        if (!failure.isEmpty())
            widgets_.message->show(MessageBar::Kind::Error, failure);
    });
}

FolderController::~FolderController() = default;

void FolderController::setSession(DialogSession *session)
{
    if (session_ && session != session_)
        stop();
    session_ = session;
}

void FolderController::start(int copies, const QString &output, const Queue &queue)
{
    if (printer_->isBusy() || !session_)
        return refuse(tr("The last photos of the folder are still being printed. Try again in a moment."));
    auto made = jobOf(*session_, copies);
    if (!made) {
        widgets_.bar->setWatching(false);
        if (made.failure().reason == SessionJobFault::Conflict)
            return choices_->explainJob();
        return refuse(made.failure().text);
    }
    if (!made->missing.isEmpty())
        return refuse(made->missing.join(u'\n'));
    WatchOrder order;
    order.folder = widgets_.bar->folder();
    order.job = made->job;
    order.job.folder = {QDir(output).absolutePath()};
    if (queue.isAnnounced)
        order.job.announcedUri = queue.deviceUri;
    order.setStyle(widgets_.photos->model()->style());
    if (const auto why = order.whyImpossible())
        return refuse(*why);
    widgets_.message->clear();
    widgets_.bar->setWatching(true);
    widgets_.bar->showNews(tr("Waiting for new photos."));
    printer_->start(order);
}

void FolderController::stop()
{
    widgets_.bar->setWatching(false);
    widgets_.bar->showNews({});
    if (printer_->isBusy())
        printer_->stop();
}

void FolderController::refuse(const QString &sentence)
{
    widgets_.bar->setWatching(false);
    widgets_.message->show(MessageBar::Kind::Warning, sentence);
}

} // namespace printdialog
