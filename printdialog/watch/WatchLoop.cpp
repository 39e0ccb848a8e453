// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WatchLoop.h"
#include "WatchLoop_p.h"

#include "FileName.h"
#include "PlainText.h"
#include "QueueList.h"

#include <QtCore/QFile>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

using End = PatientOutcome::End;
using State = PhotoRecord::State;

} // namespace

WatchLoop::WatchLoop(const WatchOrder &order, const WatchNews &news, WatchControl &control)
    : order_(order)
    , news_(news)
    , control_(control)
    , watch_(
          order.folder,
          [this](const PhotoIdentity &photo) { return record_ && record_->find(photo) != nullptr; },
          order.pace)
    , printer_(order.job, news.complain, control.stop)
{
}

QString WatchLoop::run()
{
    if (const QString failure = begin(); !failure.isEmpty())
        return failure;
    QString trouble = watch_.trouble();
    while (!isStopped()) {
        std::optional<FolderFile> file;
        {
            moveLate();
            const auto mark = busy(control_);
            file = watch_.next(control_.wake, lateMoves);
        }
        if (watch_.trouble() != trouble) {
            trouble = watch_.trouble();
            if (trouble.isEmpty())
                news_.say(
                    tr("The folder \"%1\" is there again.").arg(plainText(order_.folder, shownTextLimit)));
            else
                news_.complain(trouble);
        }
        if (!file || isStopped())
            continue;
        if (const QString failure = finish(*file, printOne(*file)); !failure.isEmpty())
            return failure;
    }
    return {};
}

/// Takes up the record where the last run has left it. @return why that is not possible
QString WatchLoop::begin()
{
    std::optional<QList<FolderFile>> files;
    {
        const auto mark = busy(control_);
        auto record = WatchRecord::open(order_.folder);
        if (!record)
            return record.failure().text;
        record_.emplace(*std::move(record));
        files = watch_.begin();
        if (!files)
            return watch_.trouble();
    }
    const bool isFirst = record_->isNew();
    const auto left =
        isFirst && !order_.printsExisting ? std::optional(PhotoRecord{.state = State::Left}) : std::nullopt;
    if (const auto failure = record_->compact(*files, left))
        return failure->text;
    news_.say(order_.printed
                  ? tr("Photos that arrive in \"%1\" are printed on %2 and moved to \"%3\".")
                        .arg(plainText(order_.folder, shownTextLimit), order_.job.destination.id(),
                             plainText(*order_.printed, shownTextLimit))
                  : tr("Photos that arrive in \"%1\" are printed on %2.")
                        .arg(plainText(order_.folder, shownTextLimit), order_.job.destination.id()));
    if (left && !files->isEmpty())
        news_.say(
            tr("The files that are there already are left alone: %1. With --existing, they are printed.")
                .arg(files->size()));
    for (const FolderFile &file : std::as_const(*files)) {
        if (!isStopped())
            resume(file);
    }
    return {};
}

/// Ends what an earlier run has begun with the file.
void WatchLoop::resume(const FolderFile &file)
{
    const PhotoRecord *found = record_->find(file.identity);
    if (!found)
        return;
    const PhotoRecord known = *found;
    const bool isAsked = known.server == printServerAddress() || Destination(known.printer).isAddress();
    const QString otherServer = tr("It was sent to another print server, %1.").arg(known.server);
    switch (known.state) {
    case State::Left:
        if (order_.printsExisting)
            record_->forget(file.identity);
        break;
    case State::Began:
        if (Destination(known.printer).isBuiltIn() || known.printer.isEmpty())
            finish(file, {End::Unclear, tr("The program was ended while it was being sent.")});
        else if (!isAsked)
            finish(file, {End::Unclear, otherServer});
        else
            finish(file, printer_.resume(shownName(file), {known.printer, known.title, known.job, known.when},
                                         [&](int job) { noteSent(file, known.printer, job); }));
        break;
    case State::Sent:
        finish(file, isAsked ? printer_.resume(shownName(file), known.printer, known.job)
                             : PatientOutcome{End::Unclear, otherServer});
        break;
    case State::Printed:
        movePrinted(file);
        break;
    case State::Aside:
        moveAside(file, known.reason);
        break;
    }
}

PatientOutcome WatchLoop::printOne(const FolderFile &file)
{
    const QString name = QFile::decodeName(file.name);
    if (isForeignName(name))
        return {End::Unfit, foreignNameText(name)};
    std::optional<Result<QList<Photo>, PhotoFault>> photos;
    {
        const auto mark = busy(control_);
        photos = Photo::openAll(path(file.name));
        if (!isThere(file))
            return {End::Vanished, {}};
    }
    if (!*photos)
        return {End::Unfit, photos->failure().text};
    Arrangement wanted{{}, order_.style.layout, order_.pages};
    for (const Photo &photo : **photos)
        wanted.photos += PlacedPhoto{photo, order_.style.placement};
    const Arrangement arranged = order_.job.isRaw() ? wanted.unplaced() : wanted;
    const SheetPlan plan = arranged.plan(order_.job.page);
    if (plan.failure())
        return {End::Unfit, plan.failure()->text};
    const QString shown = shownName(file);
    const PatientPrinter::Steps steps = {
        .begin =
            [&](const BegunJob &begun) {
                const auto failure = record_->add(file.identity, {.state = State::Began,
                                                                  .name = shown,
                                                                  .job = begun.after,
                                                                  .printer = begun.printer,
                                                                  .server = printServerAddress(),
                                                                  .title = begun.title});
                return failure ? failure->text : QString();
            },
        .withdraw = [&] { record_->forget(file.identity); },
        .sent = [&](int job) { noteSent(file, order_.job.destination.id(), job); },
        .isThere =
            [&] {
                const auto mark = busy(control_);
                return isThere(file);
            },
    };
    return printer_.print(arranged.jobSheets(plan, {0, plan.sheets().size()}), steps);
}

void WatchLoop::noteSent(const FolderFile &file, const QString &printer, int job)
{
    if (const auto failure = record_->add(file.identity, {.state = State::Sent,
                                                          .name = shownName(file),
                                                          .job = job,
                                                          .printer = printer,
                                                          .server = printServerAddress()}))
        complainOnce(failure->text);
}

QString WatchLoop::finish(const FolderFile &file, const PatientOutcome &outcome)
{
    switch (outcome.end) {
    case End::Printed:
        if (const auto failure = record_->add(
                file.identity, {.state = State::Printed, .name = shownName(file), .job = outcome.job}))
            complainOnce(failure->text);
        news_.say(outcome.text);
        movePrinted(file);
        break;
    case End::Unfit:
        unfit(file, outcome.text);
        break;
    case End::Failed:
        setAside(file, outcome.text);
        break;
    case End::Unclear:
        news_.complain(
            tr("It is unclear whether \"%1\" was printed. %2 It is not printed again by itself; if it "
               "has to be, set its time (\"touch\") or copy it into the folder again.")
                .arg(shownName(file), outcome.text));
        break;
    case End::OtherPrinter:
        return outcome.text;
    case End::Vanished:
        watch_.postpone(file); // its disk may only not have answered
        break;
    case End::Stopped:
        break;
    }
    return {};
}

/// Whether it is still the same photo.
bool WatchLoop::isThere(const FolderFile &file) const
{
    const auto now = watch_.find(file.name);
    return now && now->identity == file.identity;
}

bool WatchLoop::isStopped() const
{
    return std::atomic_ref(control_.stop.leave).load() != 0;
}

QString WatchLoop::path(const QByteArray &name) const
{
    return QFile::decodeName(watch_.pathOf(name));
}

void WatchLoop::complainOnce(const QString &sentence)
{
    if (sentence == std::exchange(complaint_, sentence))
        return;
    news_.complain(sentence);
}

} // namespace printdialog
