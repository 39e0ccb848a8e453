// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "ActionGuard.h"
#include "CallbackObject.h"
#include "GuardedPanel.h"
#include "JobTemplate.h"
#include "JoinedOptions.h"
#include "OptionPage.h"
#include "PpdDocument.h"

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

SessionOptions joined(SessionOptions options, bool isBuiltIn)
{
    auto job = isBuiltIn ? nullptr : JobTemplate::besides(*options.source, options.attributes);
    options.source = std::make_unique<JoinedOptions>(std::move(options.source), std::move(job));
    return options;
}

} // namespace

DialogSession::DialogSession(const PrinterDescription &printer, SessionOptions options, PanelMode mode)
    : printer_(printer)
    , options_(joined(std::move(options), printer.isBuiltIn))
    , joined_(static_cast<JoinedOptions &>(*options_.source))
    , mode_(mode)
    , chosen_(*options_.source, mode)
    , sessionPrinter_(printer, options_.ppd)
{
    connect(&chosen_, &ChosenOptions::changed, this,
            [this](const ChoiceChange &change) { changedKeys_ += change.key; });
    if (mode == PanelMode::Constraint) {
        callback_ =
            std::make_shared<ConstrainingCallbackObject>(options_.ppd, sessionPrinter_, chosen_.ticket(),
                                                         [this](const QString &key, const QString &choice) {
                                                             return rule(key, choice, panelOf_.value(key));
                                                         });
    } else {
        callback_ = std::make_shared<CallbackObject>(options_.ppd, sessionPrinter_, chosen_.ticket());
    }
}

DialogSession::~DialogSession() = default;

QStringList DialogSession::restoreFailures() const
{
    QStringList sentences;
    for (const auto &panel : panels_)
        sentences += panel->restoreFailure();
    sentences.removeAll(QString());
    return sentences;
}

// Choices

// Called by a panel in constraint-handling mode.
bool DialogSession::rule(const QString &key, const QString &choice, const GuardedPanel *asker)
{
    const Ruling ruling = chosen_.choose(key, choice, pdekit::actingControl());
    begunKeys_.removeOne(key);
    if (ruling.verdict == Verdict::Incomplete)
        begunKeys_.append(key);
    restore(reportChanges(key, asker)); // a panel that is told may ask, too
    lastRuling_ = ruling;
    return ruling.letsThrough();
}

// A choice may change that of another option. The panel that made the choice records its own.
QList<GuardedPanel *> DialogSession::reportChanges(const QString &askedKey, const GuardedPanel *asker)
{
    QList<GuardedPanel *> told;
    const QStringList keys = std::exchange(changedKeys_, {});
    for (const QString &key : keys) {
        const auto choice = chosen_.choice(key);
        const QList<GuardedPanel *> panels = choice ? panelsWith(key) : QList<GuardedPanel *>();
        for (GuardedPanel *panel : panels) {
            if (key == askedKey && panel == asker)
                continue;
            panel->choiceDidChange(key, *choice);
            if (panel != asker && !told.contains(panel))
                told.append(panel);
        }
    }
    return told;
}

void DialogSession::restore(const QList<GuardedPanel *> &panels)
{
    for (GuardedPanel *panel : panels)
        panel->restore();
}

Ruling DialogSession::choose(const QString &key, const QString &choice)
{
    const QMap<QString, QString> spelled = spelledHere({{key, choice}});
    if (spelled.isEmpty()) {
        // A secret of the job, which is sent without the word Custom.
        const bool isBare = JobTemplate::isJobOption(key) &&
                            isSecret(options_.source->customParameters(key)) && !isCustomChoice(choice) &&
                            !options_.source->choice(key, choice);
        return chooseOne(key, isBare ? QStringLiteral("Custom.") + choice : choice);
    }
    Ruling ruling;
    for (auto entry = spelled.cbegin(); entry != spelled.cend(); ++entry) {
        ruling = chooseOne(entry.key(), *entry);
        if (ruling.verdict != Verdict::Accepted)
            break;
    }
    return ruling;
}

Ruling DialogSession::chooseOne(const QString &key, const QString &choice)
{
    const bool isSecretChoice = isCustomChoice(choice) && isSecret(options_.source->customParameters(key));
    const Ruling ruling = isSecretChoice ? keepSecret(key, choice) : chosen_.weigh(key, choice);
    if (ruling.verdict != Verdict::Accepted)
        return ruling;
    if (GuardedPanel *panel = panelFor(key))
        return chooseThroughPanel(*panel, ruling);
    return chooseDirectly(ruling);
}

Ruling DialogSession::chooseThroughPanel(GuardedPanel &panel, const Ruling &offered)
{
    if (!panel.receivesChoices()) {
        Ruling ruling = chooseDirectly(offered);
        panel.choiceDidChange(offered.key, offered.choice);
        return ruling;
    }
    lastRuling_ = offered;
    panel.receiveChoice(offered.key, offered.choice);
    adoptChoices(panel);
    return panel.isLost() ? chooseDirectly(offered) : lastRuling_;
}

Ruling DialogSession::chooseDirectly(const Ruling &offered)
{
    Ruling ruling = chosen_.choose(offered.key, offered.choice);
    restore(reportChanges(offered.key, nullptr));
    return ruling;
}

void DialogSession::adoptChoices(GuardedPanel &panel)
{
    if (mode_ != PanelMode::Settings)
        return;
    panel.save();
    const auto own = std::ranges::find(ownPages_, &panel, &OwnPage::panel);
    if (panel.missing().isEmpty())
        chosen_.adopt(own == ownPages_.end() ? panel.keys() : own->page->savedKeys());
    const QStringList keys = std::exchange(changedKeys_, {});
    for (const QString &key : keys) {
        const QList<GuardedPanel *> others = panelsWith(key);
        for (GuardedPanel *other : others) {
            if (other != &panel)
                other->choiceDidChange(key, chosen_.choice(key).value_or(QString()));
        }
    }
}

void DialogSession::savePanels()
{
    for (const auto &panel : panels_) {
        panel->save();
        // What a panel wrote before it failed does not count.
        if (mode_ == PanelMode::Settings && panel->missing().isEmpty())
            chosen_.adopt(panel->keys());
    }
    changedKeys_.clear();
}

// A panel restores from where its mode stores the choices, so its recorded choices are saved there first.
void DialogSession::refreshPanels()
{
    begunKeys_.clear();
    for (const auto &panel : panels_) {
        panel->save();
        panel->restore();
    }
}

// The job

QList<QPair<QString, QString>> DialogSession::summary()
{
    QList<QPair<QString, QString>> entries;
    for (const auto &panel : panels_) {
        auto info = panel->summary();
        if (!info)
            continue;
        const auto add = [&entries](const QString &label, const QString &text) {
            const QPair<QString, QString> entry(label, text);
            if (!entries.contains(entry)) // an option that one panel handles and another one shows
                entries.append(entry);
        };
        // The entries are sorted by translated name; the options' order does not depend on the language.
        const QStringList keys = panel->keys();
        for (const QString &key : keys) {
            auto entry = bundle_ ? info->constFind(bundle_->localizedString(key)) : info->cend();
            if (entry == info->cend())
                entry = info->constFind(options_.source->optionText(key));
            if (entry == info->cend())
                continue;
            add(entry.key(), entry.value());
            info->erase(entry);
        }
        for (auto entry = info->cbegin(); entry != info->cend(); ++entry)
            add(entry.key(), entry.value());
    }
    return entries;
}

QStringList DialogSession::jobKeys() const
{
    QStringList keys = {options_.source->pageSizeKey()};
    for (const auto &panel : panels_) {
        if (panel->missing().isEmpty())
            keys += panel->keys();
    }
    // The server has its own defaults for the job's options, which it applies by itself.
    const QStringList &ofJob = jobOptionKeys();
    keys.removeIf([&ofJob](const QString &key) { return ofJob.contains(key); });
    const QStringList chosen = chosen_.chosenKeys();
    for (const QString &key : chosen) {
        const GuardedPanel *panel = panelFor(key);
        if (!panel || panel->missing().isEmpty())
            keys += key;
    }
    const QStringList alone = keys;
    for (const QString &key : alone)
        keys += JobTemplate::sentTogether(key);
    keys.removeDuplicates();
    return keys;
}

Result<JobOptions, Verdict> DialogSession::jobOptions()
{
    finishTyping();
    savePanels();
    JobOptions job;
    for (const auto &panel : panels_)
        job.missing += panel->missing();
    job.missing.removeAll(QString());
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
        const std::optional<QString> choice = options_.source->markedChoice(key);
        const QList<CustomParameter> parameters = options_.source->customParameters(key);
        if (choice && *choice == QLatin1String("Custom") && isSecret(parameters)) {
            const CustomValues values = secrets_.value(key);
            if (!values.isEmpty())
                job.secrets.insert(key, JobTemplate::isJobOption(key) ? values.first()
                                                                      : customChoice(parameters, values));
            else
                job.missing += tr("The option \"%1\" lacks what has to be entered for it.")
                                   .arg(options_.source->optionText(key));
        } else if (choice) {
            job.options.insert(key, *choice);
        }
    }
    job.options = JobTemplate::sent(job.options);
    return job;
}

} // namespace printdialog
