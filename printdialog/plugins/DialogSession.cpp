// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "CallbackObject.h"
#include "ChoiceReceiver.h"

#include <utility>

namespace printdialog {

namespace {

const QString pageSizeKey = QStringLiteral("PageSize");

QObject *objectOf(pdekit::PrintDialogPanel &panel)
{
    return dynamic_cast<QObject *>(&panel);
}

} // namespace

DialogSession::DialogSession(const PrinterDescription &printer, PpdDocument ppd, PanelMode mode)
    : printer_(printer)
    , ppd_(std::move(ppd))
    , mode_(mode)
    , marker_(ppd_)
    , sessionPrinter_(printer, ppd_)
{
    if (mode == PanelMode::Constraint) {
        callback_ = std::make_shared<ConstrainingCallbackObject>(
            ppd_, sessionPrinter_, ticket_,
            [this](const QString &key, const QString &choice) { return rule(key, choice); });
    } else {
        callback_ = std::make_shared<CallbackObject>(ppd_, sessionPrinter_, ticket_);
    }
}

DialogSession::~DialogSession() = default;

std::optional<Failure<PluginFault>> DialogSession::loadPanels()
{
    const QStringList names = ppd_.requestedBundles();
    if (names.isEmpty())
        return std::nullopt;
    const auto plugin = PluginLoader::load(names);
    if (!plugin)
        return plugin.failure();
    auto panels = PluginLoader::panels(*plugin, callback_);
    if (!panels)
        return panels.failure();
    panels_ = *std::move(panels);
    bundle_ = plugin->bundle;
    for (const pdekit::PanelPointer &panel : panels_) {
        panel->restoreValuesAndReturnError(nullptr);
        const QStringList keys = panel->supportedPPDOptionKeys();
        for (const QString &key : keys)
            knownMarks_.insert(key, ppd_.markedChoice(key).value_or(QString()));
    }
    return std::nullopt;
}

// Choices

// A panel's question, in constraint-handling mode.
bool DialogSession::rule(const QString &key, const QString &choice)
{
    lastRuling_ = mark(key, choice);
    const bool let = lastRuling_.verdict == Verdict::Accepted || lastRuling_.verdict == Verdict::Incomplete;
    begunKeys_.removeOne(key);
    if (lastRuling_.verdict == Verdict::Incomplete)
        begunKeys_.append(key);
    if (let) {
        noteChosen(key);
        announceChangedMarks(key);
        Q_EMIT choiceMade(key);
    } else
        Q_EMIT choiceRefused(lastRuling_);
    return let;
}

Ruling DialogSession::mark(const QString &key, const QString &choice)
{
    const auto entry = together_.constFind(key);
    if (entry == together_.cend() || *entry != choice)
        return marker_.mark(key, choice);
    marker_.markUnchecked(key, choice);
    return {Verdict::Accepted, key, choice, {}, {}, {}};
}

// Marking one choice may change the mark of another option. The panel that has asked records its own choice
// itself.
void DialogSession::announceChangedMarks(const QString &askedKey)
{
    for (const pdekit::PanelPointer &panel : panels_) {
        bool hasChanged = false;
        const QStringList keys = panel->supportedPPDOptionKeys();
        for (const QString &key : keys) {
            const std::optional<QString> marked = ppd_.markedChoice(key);
            if (!marked || knownMarks_.value(key) == *marked)
                continue;
            knownMarks_.insert(key, *marked);
            if (key == askedKey)
                continue;
            panel->PPDOptionKeyValueDidChangePpdChoice(key, marked);
            hasChanged = true;
        }
        if (hasChanged)
            panel->restoreValuesAndReturnError(nullptr);
    }
}

Ruling DialogSession::choose(const QString &key, const QString &choice)
{
    Ruling ruling = marker_.check(key, choice);
    // The tickets' choices are weighed against each other when the job is made, since only then all of them
    // are there.
    if (mode_ == PanelMode::Settings && ruling.verdict == Verdict::Conflict)
        ruling.verdict = Verdict::Accepted;
    if (ruling.verdict != Verdict::Accepted)
        return ruling;
    if (pdekit::PrintDialogPanel *panel = panelFor(key))
        return chooseThroughPanel(*panel, ruling);
    return chooseDirectly(ruling);
}

Ruling DialogSession::chooseThroughPanel(pdekit::PrintDialogPanel &panel, const Ruling &offered)
{
    auto *receiver = qobject_cast<pdekit::ChoiceReceiver *>(objectOf(panel));
    if (!receiver) {
        Ruling ruling = chooseDirectly(offered);
        panel.PPDOptionKeyValueDidChangePpdChoice(offered.key, offered.choice);
        return ruling;
    }
    lastRuling_ = offered;
    receiver->markChoiceForPPDOptionKeyFromSender(offered.choice, offered.key, nullptr);
    return lastRuling_;
}

Ruling DialogSession::chooseDirectly(const Ruling &offered)
{
    Ruling ruling = mode_ == PanelMode::Constraint ? mark(offered.key, offered.choice) : offered;
    if (ruling.verdict != Verdict::Accepted)
        return ruling;
    if (mode_ == PanelMode::Constraint)
        announceChangedMarks({});
    else
        ticket_.options().insert(offered.key, offered.choice);
    noteChosen(offered.key);
    if (!directKeys_.contains(offered.key))
        directKeys_.append(offered.key);
    Q_EMIT choiceMade(offered.key);
    return ruling;
}

// A panel restores from where its mode keeps the choices, so what it has recorded goes there first.
void DialogSession::refreshPanels()
{
    begunKeys_.clear();
    for (const pdekit::PanelPointer &panel : panels_) {
        panel->saveValuesAndReturnError(nullptr);
        panel->restoreValuesAndReturnError(nullptr);
    }
}

pdekit::PrintDialogPanel *DialogSession::panelFor(const QString &key) const
{
    for (const pdekit::PanelPointer &panel : panels_) {
        if (panel->supportedPPDOptionKeys().contains(key))
            return panel.get();
    }
    return nullptr;
}

std::optional<QString> DialogSession::chosen(const QString &key) const
{
    if (mode_ == PanelMode::Settings) {
        const auto entry = ticket_.options().constFind(key);
        if (entry != ticket_.options().cend())
            return *entry;
    }
    return ppd_.markedChoice(key);
}

// The job

QList<QPair<QString, QString>> DialogSession::summary()
{
    QList<QPair<QString, QString>> entries;
    for (const pdekit::PanelPointer &panel : panels_) {
        auto info = panel->summaryInfo();
        if (!info)
            continue;
        // They come by name, so that another language would have another order.
        const QStringList keys = panel->supportedPPDOptionKeys();
        for (const QString &key : keys) {
            const auto entry = info->constFind(bundle_->localizedString(key));
            if (entry == info->cend())
                continue;
            entries.append({entry.key(), entry.value()});
            info->erase(entry);
        }
        for (auto entry = info->cbegin(); entry != info->cend(); ++entry)
            entries.append({entry.key(), entry.value()});
    }
    return entries;
}

QStringList DialogSession::jobKeys() const
{
    QStringList keys = {pageSizeKey};
    for (const pdekit::PanelPointer &panel : panels_)
        keys += panel->supportedPPDOptionKeys();
    keys += directKeys_;
    keys.removeDuplicates();
    return keys;
}

Result<JobOptions, Verdict> DialogSession::jobOptions()
{
    finishTyping();
    for (const pdekit::PanelPointer &panel : panels_)
        panel->saveValuesAndReturnError(nullptr);
    JobOptions job;
    if (mode_ == PanelMode::Settings) {
        const QList<Ruling> unmarked = marker_.markTogether(ticket_.options());
        for (const Ruling &ruling : unmarked)
            job.dropped.append(ruling.text);
        replaceDropped(unmarked);
    }
    if (const std::optional<Ruling> conflict = marker_.firstConflict(chosenKeys_)) {
        jobRefusal_ = *conflict;
        return Failure<Verdict>{conflict->verdict, conflict->text, {}};
    }
    const QStringList keys = jobKeys();
    for (const QString &key : keys) {
        if (const std::optional<QString> choice = ppd_.markedChoice(key))
            job.options.insert(key, *choice);
    }
    return job;
}

} // namespace printdialog
