// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintingController.h"

#include "ChoiceController.h"
#include "DialogSession.h"
#include "MessageBar.h"
#include "OutcomeText.h"
#include "PhotoPane.h"
#include "PlainText.h"
#include "PositionTestPage.h"
#include "PrintProgress.h"
#include "PrintWorker.h"
#include "Queue.h"
#include "SessionJob.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <utility>

namespace printdialog {

PrintingController::PrintingController(const Widgets &widgets, ChoiceController *choices, QObject *parent)
    : QObject(parent)
    , widgets_(widgets)
    , choices_(choices)
    , worker_(new PrintWorker(this))
{
    connect(worker_, &PrintWorker::finished, this, &PrintingController::showOutcome);
    connect(worker_, &PrintWorker::progress, this, [this](const QString &text, qint64 done, qint64 total) {
        if (!isStopping_)
            widgets_.progress->show(text, done, total);
    });
}

PrintingController::~PrintingController() = default;

void PrintingController::setSession(DialogSession *session)
{
    session_ = session;
    acceptedMissing_.clear();
}

bool PrintingController::isBusy() const
{
    return worker_->isBusy();
}

bool PrintingController::print(int copies, const QString &folder, const Queue &queue)
{
    if (!widgets_.photos->damagedPhotos().isEmpty()) {
        askAboutDamage();
        return false;
    }
    const std::optional<SessionJob> made = makeJob(copies);
    if (!made)
        return false;
    start(widgets_.photos->arrangement(), *made, folder, queue);
    return true;
}

void PrintingController::start(const Arrangement &arrangement, const SessionJob &made, const QString &folder,
                               const Queue &queue)
{
    widgets_.message->clear();
    if (!made.remarks.isEmpty())
        widgets_.message->show(MessageBar::Kind::Warning, made.remarks.join(u'\n'));
    job_ = made.job;
    job_.folder = {folder};
    job_.announcedUri = queue.isAnnounced ? queue.deviceUri : QString();
    remarks_ = made.remarks;
    widgets_.progress->show(tr("Printing…"));
    worker_->print(arrangement, job_);
    Q_EMIT stateChanged();
}

void PrintingController::printTestPage(const QString &folder, const Queue &queue)
{
    const std::optional<SessionJob> made = makeJob(1);
    if (!made)
        return;
    testPage_ = std::make_unique<QTemporaryDir>();
    const QString path = testPage_->filePath(tr("Print position", "a file's name") + QLatin1String(".png"));
    const bool isSaved = testPage_->isValid() && positionTestPage(made->job.page).save(path);
    const auto photo = Photo::open(path);
    if (!isSaved || !photo) {
        widgets_.message->show(
            MessageBar::Kind::Error,
            tr("The test page could not be made in \"%1\". Free some space there.").arg(QDir::tempPath()));
        return;
    }
    start({{{*photo, {Scaling::Fill}, true}}}, *made, folder, queue);
}

/// Also saves the choices for the next time. When no job can be made, the user sees why.
std::optional<SessionJob> PrintingController::makeJob(int copies)
{
    auto job = jobOf(*session_, copies);
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
        widgets_.message->show(MessageBar::Kind::Warning, job.failure().text);
    return std::nullopt;
}

/// Shows the first damaged photo. It is printed only if the user confirms that.
void PrintingController::askAboutDamage()
{
    const QList<int> damaged = widgets_.photos->damagedPhotos();
    QStringList names;
    for (const int index : damaged)
        names += plainText(widgets_.photos->photos().at(index).photo.fileName(), shownTextLimit);
    if (names.isEmpty()) {
        widgets_.message->show(
            MessageBar::Kind::Warning,
            tr("Nothing was printed: a photo that was removed meanwhile is damaged. Print again."));
        return;
    }
    widgets_.photos->setCurrent(damaged.constFirst());
    const QString text = names.size() == 1 ? tr("%1 is damaged: a part of the picture is missing or wrong. "
                                                "Look at it, then print it as it is, or "
                                                "remove it and copy it again from where it came from.")
                                           : tr("These photos are damaged: %1. Look at them, then print them "
                                                "as they are, or remove them and copy "
                                                "them again from where they came from.");
    widgets_.message->showWithAction(MessageBar::Kind::Warning, text.arg(names.join(QLatin1String(", "))),
                                     tr("Print Anyway"), [this] {
                                         widgets_.photos->acceptDamagedPhotos();
                                         Q_EMIT printRequested();
                                     });
}

/// Asks about pages that have not handed over their choices. The job is printed without them only if the user
/// confirms that.
void PrintingController::askAboutMissing(const QStringList &missing)
{
    widgets_.message->showWithAction(
        MessageBar::Kind::Warning,
        missing.join(u'\n') + u'\n' +
            tr("Print without these choices? The printer's own defaults take their place."),
        tr("Print Without Them"), [this, missing] {
            acceptedMissing_ = missing;
            Q_EMIT printRequested();
        });
}

void PrintingController::showOutcome(const PrintOutcome &outcome)
{
    widgets_.progress->hide();
    hasPrinted_ = hasPrinted_ || !outcome.hasDamaged;
    isStopping_ = false;
    Q_EMIT stateChanged();
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
    if (!outcome.waiting.isEmpty())
        message.actions.append({tr("Jobs…"), [this] {
                                    Q_EMIT jobsRequested();
                                }});
    widgets_.message->show(message);
    if (outcome.hasOtherPpd)
        Q_EMIT ppdChanged(job_.destination, outcome.failure);
}

// The end: of printing, and of the window

void PrintingController::stop()
{
    widgets_.message->clear();
    isStopping_ = true;
    widgets_.progress->show(tr("Stopping…"));
    worker_->cancel();
    Q_EMIT stateChanged();
}

// Users press Escape to dismiss a question, too.
void PrintingController::askToStop()
{
    if (widgets_.message->isAsking()) {
        widgets_.message->clear();
        Q_EMIT dismissed();
    } else if (!isStopping_) {
        asksToClose_ = false;
        widgets_.message->ask(tr("Stop printing? Photos not printed yet are canceled."),
                              {{tr("Stop Printing"),
                                [this] {
                                    stop();
                                }},
                               {tr("Continue"), [this] {
                                    Q_EMIT dismissed();
                                }}});
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
    const auto count = static_cast<int>(widgets_.photos->photos().size());
    if (job_.destination.isBuiltIn())
        return tr("Printed so far: %1 of %2 photos. The rest is not printed when this window is closed.")
            .arg(worker_->sent())
            .arg(count);
    return tr("When this window is closed, the print server continues printing the %1 of %2 photos that it "
              "has. "
              "The rest is not printed.")
        .arg(worker_->sent())
        .arg(count);
}

} // namespace printdialog
