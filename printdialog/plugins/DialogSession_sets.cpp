// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "GuardedPanel.h"
#include "JobTemplate.h"
#include "JoinedOptions.h"

#include <algorithm>
#include <utility>

namespace printdialog {

void DialogSession::chooseTogether(const QMap<QString, QString> &choices)
{
    savePanels();
    chosen_.chooseTogether(choices);
    reportChanges({}, nullptr);
    begunKeys_.clear();
    for (const auto &panel : panels_)
        panel->restore();
}

/// With the job's options in the spelling that they have here.
QMap<QString, QString> DialogSession::spelledHere(const QMap<QString, QString> &saved) const
{
    const QMap<QString, QString> choices =
        joined_.hasOption(QStringLiteral("job-sheets")) ? JobTemplate::withOneSheet(saved) : saved;
    QMap<QString, QString> spelled;
    for (auto entry = choices.cbegin(); entry != choices.cend(); ++entry) {
        const QMap<QString, QString> each = JobTemplate::choicesOf({{entry.key(), *entry}});
        const bool isKnown =
            std::ranges::all_of(each.keys(), [this](const QString &key) { return joined_.hasOption(key); });
        if (isKnown)
            spelled.insert(each);
        else if (!options_.attributes.isEmpty() || !JobTemplate::isJobOption(entry.key()))
            spelled.insert(entry.key(), *entry);
    }
    return spelled;
}

void DialogSession::setAttributes(const IppAttributes &attributes)
{
    options_.attributes = attributes;
    joined_.setJob(JobTemplate::besides(joined_, attributes), chosen_.chosenKeys());
    chosen_.include(joined_.jobOptions());
    updateOwnPages();
    Q_EMIT jobOptionsChanged();
}

const QStringList &DialogSession::jobOptionKeys() const
{
    return joined_.jobOptions();
}

QList<Ruling> DialogSession::restoreChoices(const QMap<QString, QString> &saved, Unnamed unnamed)
{
    const QMap<QString, QString> choices = spelledHere(saved);
    savePanels();
    QMap<QString, QString> base = chosen_.choices();
    QMap<QString, QString> made;
    if (unnamed == Unnamed::Default) {
        const QStringList keys = jobKeys();
        for (const QString &key : keys) {
            if (const auto fallback = options_.source->defaultChoice(key); fallback && !choices.contains(key))
                made.insert(key, *fallback);
        }
        base.insert(made);
    }
    const ChoicePlan plan = chosen_.plan(choices, base);
    made.insert(plan.choices);
    chooseTogether(made);
    chosen_.keep(plan.choices.keys());
    return plan.leftOut;
}

void DialogSession::finishTyping()
{
    const QStringList keys = std::exchange(begunKeys_, {});
    for (const QString &key : keys) {
        if (GuardedPanel *panel = panelFor(key))
            panel->restore();
    }
}

void DialogSession::showReplaced(const QList<Ruling> &replaced)
{
    changedKeys_.clear();
    for (const Ruling &ruling : replaced) {
        const std::optional<QString> marked = options_.source->markedChoice(ruling.key);
        const QList<GuardedPanel *> panels = marked ? panelsWith(ruling.key) : QList<GuardedPanel *>();
        for (GuardedPanel *panel : panels) {
            panel->choiceDidChange(ruling.key, *marked);
            // If the ticket lacks one of a panel's options, the panel restores the defaults of all.
            const QStringList keys = panel->keys();
            const pdekit::PPDDictionary &recorded = chosen_.ticket().options();
            if (std::ranges::all_of(keys, [&recorded](const QString &key) { return recorded.contains(key); }))
                panel->restore();
        }
    }
}

} // namespace printdialog
