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

#include <algorithm>
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
        if (stopping_ == Stopping::No)
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

bool PrintingController::print(int copies, const OutputFolder &wanted, const Queue &queue)
{
    OutputFolder folder = wanted;
    if (queue.isBuiltIn && !settleName(folder))
        return false;
    if (!widgets_.photos->damagedPhotos().isEmpty()) {
        askAboutDamage();
        return false;
    }
    const std::optional<SessionJob> made = makeJob(copies);
    if (!made)
        return false;
    testPage_.reset();
    begin(widgets_.photos->arrangement(), *made, folder, queue);
    return true;
}

std::optional<PrintJob> PrintingController::prepare(int copies, const OutputFolder &wanted,
                                                    const Queue &queue)
{
    OutputFolder folder = wanted;
    if (queue.isBuiltIn && !settleName(folder))
        return std::nullopt;
    if (!widgets_.photos->damagedPhotos().isEmpty()) {
        askAboutDamage();
        return std::nullopt;
    }
    std::optional<SessionJob> made = makeJob(copies);
    if (!made)
        return std::nullopt;
    made->job.folder = folder;
    made->job.announcedUri = queue.isAnnounced ? queue.deviceUri : QString();
    return made->job;
}

void PrintingController::begin(const Arrangement &arrangement, const SessionJob &made,
                               const OutputFolder &folder, const Queue &queue)
{
    widgets_.message->clear();
    if (!made.remarks.isEmpty())
        widgets_.message->show(MessageBar::Kind::Warning, made.remarks.join(u'\n'));
    job_ = made.job;
    job_.folder = folder;
    job_.announcedUri = queue.isAnnounced ? queue.deviceUri : QString();
    remarks_ = made.remarks;
    arrangement_ = arrangement;
    start(std::nullopt);
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
    begin({{{*photo, {Scaling::Fill}, true}}}, *made, {folder}, queue);
}

void PrintingController::start(const std::optional<QList<qsizetype>> &only)
{
    widgets_.progress->show(tr("Printing…"));
    worker_->print(arrangement_, job_, only);
    Q_EMIT stateChanged();
}

/// With the choices of the run that did not print them, whatever has been chosen since.
void PrintingController::printRest(const QList<qsizetype> &rest)
{
    if (isBusy())
        return;
    widgets_.message->clear();
    start(rest);
}

/// Whether the one PDF of all photos can have its name. If not, the user sees why, or is asked.
bool PrintingController::settleName(OutputFolder &folder)
{
    const auto answer = std::exchange(nameAnswer_, std::nullopt);
    if (!folder.document)
        return true;
    const PrintedNames names(folder);
    if (const auto why = names.whyUnfit()) {
        widgets_.message->show(MessageBar::Kind::Warning, *why);
        return false;
    }
    if (!names.isDocumentThere())
        return true;
    const QString path = QDir(folder.path).filePath(*folder.document + PrintedNames::pageSuffix);
    if (answer && answer->path == path) {
        folder.isOverwritten = answer->isReplaced;
        return true;
    }
    const auto print = [this, path](bool isReplaced) {
        return [this, path, isReplaced] {
            nameAnswer_ = {path, isReplaced};
            Q_EMIT printRequested();
        };
    };
    widgets_.message->show(
        {MessageBar::Kind::Warning,
         tr("\"%1\" is already there. Keep it, and give the new PDF a number, or replace it?")
             .arg(plainText(QDir::toNativeSeparators(path), shownTextLimit)),
         {},
         {},
         {{tr("Keep Both"), print(false)}, {tr("Replace"), print(true)}}});
    return false;
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
    stopping_ = Stopping::No;
    Q_EMIT stateChanged();
    if (outcome.hasDamaged)
        return askAboutDamage();
    if (!testPage_ && outcome.failure.isEmpty() && outcome.unprinted.isEmpty() && !outcome.wasStopped)
        Q_EMIT printed(arrangement_);
    const OutcomeText text(outcome, job_, arrangement_);
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
    // The rest of one is all of it. With another PPD, the run's choices are not the printer's any more.
    if (!outcome.unprinted.isEmpty() && outcome.total > 1 && !outcome.hasOtherPpd) {
        QList<qsizetype> rest;
        for (const UnprintedSheet &sheet : outcome.unprinted)
            rest.append(sheet.index);
        message.actions.append({tr("Print the Rest"), [this, rest] {
                                    printRest(rest);
                                }});
    }
    if (!outcome.waiting.isEmpty() || !outcome.unknown.isEmpty())
        message.actions.append({tr("Jobs…"), [this] {
                                    Q_EMIT jobsRequested();
                                }});
    widgets_.message->show(message);
    if (outcome.hasOtherPpd)
        Q_EMIT ppdChanged(job_.destination, outcome.failure);
}

} // namespace printdialog
