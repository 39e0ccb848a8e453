// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "CallbackObject.h"
#include "ChoiceReceiver.h"
#include "ControlAction.h"

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
    , chosen_(ppd_, mode)
    , sessionPrinter_(printer, ppd_)
{
    connect(&chosen_, &ChosenOptions::changed, this,
            [this](const ChoiceChange &change) { changedKeys_ += change.key; });
    if (mode == PanelMode::Constraint) {
        callback_ = std::make_shared<ConstrainingCallbackObject>(
            ppd_, sessionPrinter_, chosen_.ticket(),
            [this](const QString &key, const QString &choice) { return rule(key, choice); });
    } else {
        callback_ = std::make_shared<CallbackObject>(ppd_, sessionPrinter_, chosen_.ticket());
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
            panelOf_.insert(key, panel.get());
    }
    return std::nullopt;
}

// Choices

// A panel's question, in constraint-handling mode.
bool DialogSession::rule(const QString &key, const QString &choice)
{
    lastRuling_ = chosen_.choose(key, choice, pdekit::actingControl());
    begunKeys_.removeOne(key);
    if (lastRuling_.verdict == Verdict::Incomplete)
        begunKeys_.append(key);
    tellPanels(key);
    return lastRuling_.letsThrough();
}

// A choice may change that of another option. The panel that has asked records its own choice itself.
void DialogSession::tellPanels(const QString &askedKey)
{
    QList<pdekit::PrintDialogPanel *> told;
    const QStringList keys = std::exchange(changedKeys_, {});
    for (const QString &key : keys) {
        pdekit::PrintDialogPanel *panel = panelOf_.value(key);
        const auto choice = chosen_.choice(key);
        if (key == askedKey || !panel || !choice)
            continue;
        panel->PPDOptionKeyValueDidChangePpdChoice(key, choice);
        if (!told.contains(panel))
            told.append(panel);
    }
    for (pdekit::PrintDialogPanel *panel : std::as_const(told))
        panel->restoreValuesAndReturnError(nullptr);
}

Ruling DialogSession::choose(const QString &key, const QString &choice)
{
    const Ruling ruling = chosen_.weigh(key, choice);
    if (ruling.verdict != Verdict::Accepted)
        return ruling;
    if (pdekit::PrintDialogPanel *panel = panelOf_.value(key))
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
    adoptChoices(panel);
    return lastRuling_;
}

Ruling DialogSession::chooseDirectly(const Ruling &offered)
{
    Ruling ruling = chosen_.choose(offered.key, offered.choice);
    tellPanels(offered.key);
    return ruling;
}

void DialogSession::adoptChoices(pdekit::PrintDialogPanel &panel)
{
    if (mode_ != PanelMode::Settings)
        return;
    panel.saveValuesAndReturnError(nullptr);
    chosen_.adopt(panel.supportedPPDOptionKeys());
    changedKeys_.clear(); // the panel's own
}

void DialogSession::savePanels()
{
    for (const pdekit::PanelPointer &panel : panels_)
        panel->saveValuesAndReturnError(nullptr);
    if (mode_ == PanelMode::Settings)
        chosen_.adopt(panelOf_.keys());
    changedKeys_.clear();
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
    keys += chosen_.chosenKeys();
    keys.removeDuplicates();
    return keys;
}

Result<JobOptions, Verdict> DialogSession::jobOptions()
{
    finishTyping();
    savePanels();
    JobOptions job;
    if (mode_ == PanelMode::Settings) {
        const QList<Ruling> replaced = chosen_.markTicket();
        for (const Ruling &ruling : replaced)
            job.dropped.append(ruling.text);
        showReplaced(replaced);
    }
    if (const std::optional<Ruling> conflict = chosen_.firstConflict()) {
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
