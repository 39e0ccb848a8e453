// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterController.h"

#include "IppOptions.h"
#include "OptionsFetcher.h"
#include "PpdDocument.h"
#include "PrinterChooser.h"
#include "QueueCache.h"
#include "UserDestinations.h"

#include <utility>

namespace printdialog {

namespace {

/// The choices that differ from the PPD's defaults.
QMap<QString, QString> ownChoices(DialogSession &session)
{
    // Makes the panels save their choices; whether these conflict does not matter here.
    [[maybe_unused]] const auto job = session.jobOptions();
    QMap<QString, QString> choices;
    for (const QString &key : session.options().options()) {
        const std::optional<QString> choice = session.chosen(key);
        if (choice && choice != session.options().defaultChoice(key))
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

PrinterController::PrinterController(const Request &request)
    : request_(request)
    , fetcher_(new OptionsFetcher(this))
{
    std::optional<RememberedQueue> remembered;
    if (request_.remembers && !request_.ppdFile)
        remembered = QueueCache::load();
    // A printer that the user has chosen comes before a default, which is treated like one that is named.
    if (!request_.printer && !request_.ppdFile && !(remembered && remembered->wasChosen))
        request_.printer = UserDestinations::read().defaultPrinter;
    if (request_.printer && request_.printer->isBuiltIn()) {
        builtInPreset_ = request_.printer->instance;
        request_.printer = Destination::builtIn();
    }
    if (remembered && (!request_.printer || *request_.printer == remembered->queue.destination()))
        remembered_ = std::make_unique<RememberedQueue>(*std::move(remembered));
    if (request_.printer && *request_.printer != Destination::builtIn() && !request_.ppdFile)
        fetcher_->fetchAhead(*request_.printer);
    connect(fetcher_, &OptionsFetcher::fetched, this,
            [this](quint64 /*number*/, const FetchedOptions &options) { useOptions(options); });
    connect(fetcher_, &OptionsFetcher::failed, this,
            [this](quint64 /*number*/, QueueFault /*reason*/, const QString &text) { closeSession(text); });
}

PrinterController::~PrinterController() = default;

void PrinterController::start(PrinterChooser *chooser)
{
    chooser_ = chooser;
    connect(chooser_, &PrinterChooser::printerChosen, this, &PrinterController::open);
    connect(chooser_, &PrinterChooser::currentUpdated, this, &PrinterController::updateQueue);
    connect(chooser_, &PrinterChooser::searchFailed, this, &PrinterController::reportSearchFailure);
    connect(chooser_, &PrinterChooser::currentRemoved, this, &PrinterController::warned);
    openFirst();
}

void PrinterController::search()
{
    if (!request_.ppdFile)
        chooser_->search(request_.printer);
}

bool PrinterController::wasChosenHere() const
{
    return chooser_->selection().state() == PrinterSelection::State::Chosen;
}

bool PrinterController::hasOldOptions() const
{
    return chooser_->selection().hasOldOptions();
}

// Which printer is shown

void PrinterController::openFirst()
{
    const Queue builtIn = Queue::builtIn();
    const auto remembered = std::exchange(remembered_, nullptr);
    if (remembered && !remembered->queue.isBuiltIn) {
        openRemembered(*remembered);
    } else if (request_.printer && *request_.printer != builtIn.destination() && !request_.ppdFile) {
        chooser_->await(request_.printer->id());
        awaitOptions(request_.printer->id());
    } else {
        if (remembered && remembered->wasChosen)
            chooser_->recall(builtIn, PrinterSelection::State::Used);
        open(builtIn);
    }
}

void PrinterController::openRemembered(const RememberedQueue &remembered)
{
    queue_ = remembered.queue;
    using State = PrinterSelection::State;
    const State unchosen = request_.printer ? State::Kept : State::Open;
    chooser_->recall(queue_, remembered.wasChosen ? State::Used : unchosen);
    SessionResult session = openCached(remembered, request_.mode);
    awaitOptions(queue_.id());
    Q_EMIT unconfirmedShown();
    if (session)
        setSession(*std::move(session));
    whyNotReady_ =
        tr("The print server has not confirmed yet that the printer \"%1\" is there.").arg(queue_.id());
    Q_EMIT readinessChanged();
}

void PrinterController::open(const Queue &queue)
{
    queue_ = queue;
    Q_EMIT printerChanged();
    if (!queue.isBuiltIn) {
        awaitOptions(queue.id());
        fetchOptions();
        return;
    }
    fetcher_->cancel();
    use(openBuiltInPrinter(request_.ppdFile, request_.mode));
    if (chooser_->selection().isUserChoice())
        remember();
}

void PrinterController::updateQueue(const Queue &queue)
{
    queue_ = queue;
    Q_EMIT queueUpdated();
    if (!chooser_->selection().hasOldOptions())
        return;
    const PpdDocument *ppd = session_ ? session_->ppd() : nullptr;
    fetchOptions(ppd ? std::optional(ppd->checked()) : std::nullopt);
}

void PrinterController::reportSearchFailure(const QString &text)
{
    if (chooser_->selection().isConfirmed())
        Q_EMIT warned(text);
    else if (chooser_->currentIndex() < 0)
        closeSession(text);
    else
        makeUnusable(text);
}

void PrinterController::makeUnusable(const QString &reason)
{
    whyNotReady_ = reason;
    Q_EMIT unusable();
}

void PrinterController::awaitOptions(const QString &id)
{
    Q_EMIT optionsAwaited();
    closeSession({});
    whyNotReady_ = tr("The options of \"%1\" are being fetched from the print server.").arg(id);
    Q_EMIT readinessChanged();
}

void PrinterController::notePrinted()
{
    chooser_->selection().used();
    remember();
}

void PrinterController::remember()
{
    if (!request_.remembers || request_.ppdFile || !session_)
        return;
    // Attributes are not kept, and nothing confirms an address before it is asked.
    if (session_->ipp() || queue_.destination().isAddress())
        return;
    const PpdDocument *ppd = queue_.isBuiltIn ? nullptr : session_->ppd();
    QueueCache::save({queue_, ppd ? ppd->data() : QByteArray(), chooser_->selection().isUserChoice()});
}

// Its options

void PrinterController::renewOptions(const Destination &destination, const QString &reason)
{
    if (destination != queue_.destination())
        return; // another printer is shown by now
    whyNotReady_ = reason;
    Q_EMIT readinessChanged();
    fetchOptions();
}

void PrinterController::fetchOptions(const std::optional<CheckedPpd> &known)
{
    fetcher_->fetch(queue_.destination(), known, queue_.isAnnounced ? queue_.deviceUri : QString());
}

// A queue without a PPD can print, too: by its attributes, or else with the options of the job alone.
void PrinterController::useOptions(const FetchedOptions &options)
{
    const bool hadPpd = session_ && session_->ppd();
    const bool isSame = hadPpd && options.ppd ? session_->ppd()->data() == options.ppd->data()
                                              : session_ && session_->printer().isRaw && !options.ppd &&
                                                    !IppOptions::of(options.attributes);
    if (isSame)
        confirm(options.attributes);
    else
        replaceSession(options.ppd ? openQueue(queue_, *options.ppd, request_.mode, options.attributes)
                                   : openWithoutPpd(queue_, options.attributes, request_.mode));
}

// The options remembered from an earlier run are still those of the print server.
void PrinterController::confirm(const IppAttributes &attributes)
{
    chooser_->selection().confirmOptions();
    if (!attributes.isEmpty())
        Q_EMIT attributesArrived(attributes);
    Q_EMIT confirmed(std::exchange(whyNotReady_, QString()));
    remember();
    Q_EMIT readinessChanged();
}

void PrinterController::use(SessionResult session)
{
    if (session)
        setSession(*std::move(session));
    else
        closeSession(session.failure().text);
}

/// Choices made from the options shown before are kept as far as the printer still has them.
void PrinterController::replaceSession(SessionResult session)
{
    if (!session) {
        closeSession(session.failure().text);
        return;
    }
    const auto kept = session_ ? std::optional(ownChoices(*session_)) : std::nullopt;
    const bool hadAttributes = session_ && !session_->attributes().isEmpty();
    chooser_->selection().confirmOptions();
    if (kept) {
        Q_EMIT sessionClosing();
        session_ = *std::move(session);
        whyNotReady_.clear();
        Q_EMIT sessionReplaced(*kept, hadAttributes);
    } else {
        setSession(*std::move(session));
    }
    remember();
}

void PrinterController::setSession(std::unique_ptr<DialogSession> session)
{
    Q_EMIT sessionClosing();
    session_ = std::move(session);
    whyNotReady_.clear();
    Q_EMIT sessionOpened();
}

void PrinterController::closeSession(const QString &reason)
{
    Q_EMIT sessionClosing();
    session_.reset();
    whyNotReady_ = reason;
    if (reason.isEmpty())
        Q_EMIT readinessChanged();
    else
        Q_EMIT unusable();
}

} // namespace printdialog
