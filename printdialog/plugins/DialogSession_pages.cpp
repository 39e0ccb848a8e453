// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "GuardedPanel.h"
#include "OptionPage.h"
#include "PpdDocument.h"

#include <algorithm>

namespace printdialog {

namespace {

/// "Tray 4: Not Installed"
QString equipmentText(const OptionSource &source, const QList<OptionChoice> &equipment)
{
    QStringList texts;
    for (const OptionChoice &each : equipment)
        texts += DialogSession::tr("%1: %2", "a part of the printer and its state")
                     .arg(source.optionText(each.option), choiceText(source, each));
    return texts.join(DialogSession::tr(", ", "between the parts of a list"));
}

} // namespace

std::optional<Failure<PluginFault>> DialogSession::loadPanels()
{
    auto failure = loadPluginPanels();
    updateOwnPage();
    return failure;
}

std::optional<Failure<PluginFault>> DialogSession::loadPluginPanels()
{
    const QStringList names =
        PluginLoader::bundles(options_.ppd ? options_.ppd->requestedBundles() : QStringList());
    if (names.isEmpty())
        return std::nullopt;
    const auto plugin = PluginLoader::load(names);
    if (!plugin)
        return plugin.failure();
    auto panels = PluginLoader::panels(*plugin, callback_);
    if (!panels)
        return panels.failure();
    bundle_ = plugin->bundle;
    for (pdekit::PanelPointer &made : *panels) {
        GuardedPanel *panel = addPanel(std::move(made));
        const QStringList keys = panel->keys();
        for (const QString &key : keys)
            panelOf_.insert(key, panel);
    }
    return std::nullopt;
}

GuardedPanel *DialogSession::addPanel(pdekit::PanelPointer made)
{
    panels_.push_back(std::make_unique<GuardedPanel>(std::move(made)));
    GuardedPanel *panel = panels_.back().get();
    connect(panel, &GuardedPanel::lost, this, [this, panel] {
        chosen_.forget(panel->keys());
        Q_EMIT panelFailed(panel->loss());
    });
    connect(panel, &GuardedPanel::restoreFailed, this,
            [this, panel] { Q_EMIT panelFailed(panel->restoreFailure()); });
    panel->open();
    return panel;
}

// The dialog's own page

/// The options that can be chosen and that no panel shows.
QStringList DialogSession::keysForOwnPage() const
{
    const OptionSource &source = *options_.source;
    QStringList hidden = {source.pageSizeKey(), QStringLiteral("PageRegion")};
    const QList<OptionGroup> groups = source.groups();
    for (const OptionGroup &group : groups) {
        if (group.isInstallable)
            hidden += group.options;
    }
    QStringList keys;
    for (const QString &key : source.options()) {
        const GuardedPanel *panel = panelOf_.value(key);
        const bool isShown = panel && !panel->retiredKeys().contains(key);
        const bool isFixed = source.choices(key).size() < 2 && source.customParameters(key).isEmpty();
        if (!isShown && !isFixed && !hidden.contains(key))
            keys += key;
    }
    return keys;
}

void DialogSession::updateOwnPage()
{
    const QStringList keys = !printer_.isRaw ? keysForOwnPage() : QStringList();
    if (!ownPage_ && keys.isEmpty())
        return;
    if (ownPage_) {
        ownPage_->setKeys(keys);
        ownPanel_->reopen();
        return;
    }
    OptionPage::Session session;
    if (mode_ == PanelMode::Constraint)
        session.rule = [this](const QString &key, const QString &choice) {
            return rule(key, choice, true);
        };
    session.equipmentRefusal = [this](const QString &key, const QString &choice) {
        return equipmentText(*options_.source, chosen_.equipmentAgainst(key, choice));
    };
    session.keepSecret = [this](const QString &key, const CustomValues &values) {
        secrets_.insert(key, values);
    };
    auto page = std::make_unique<OptionPage>(*options_.source, callback_, session,
                                             panels_.empty() ? tr("Options") : tr("More Options"),
                                             QStringLiteral("options"));
    ownPage_ = page.get();
    ownPage_->setKeys(keys);
    ownPanel_ = addPanel(std::move(page));
    Q_EMIT pageAdded();
}

void DialogSession::noteShown(GuardedPanel &panel)
{
    if (&panel != ownPanel_ && panel.updateRetiredKeys())
        updateOwnPage();
}

GuardedPanel *DialogSession::panelFor(const QString &key) const
{
    const QList<GuardedPanel *> panels = panelsWith(key);
    return panels.isEmpty() ? nullptr : panels.constFirst();
}

/// The panels that handle the option and still work; the one that shows it comes first.
QList<GuardedPanel *> DialogSession::panelsWith(const QString &key) const
{
    QList<GuardedPanel *> panels;
    if (ownPanel_ && !ownPanel_->isLost() && ownPanel_->keys().contains(key))
        panels += ownPanel_;
    if (GuardedPanel *panel = panelOf_.value(key); panel && !panel->isLost())
        panels += panel;
    return panels;
}

// Secret values

/// The ruling on the choice with its values left out; keeps them when it is accepted.
Ruling DialogSession::keepSecret(const QString &key, const QString &choice)
{
    const QList<CustomParameter> parameters = options_.source->customParameters(key);
    const auto values = customValues(parameters, choice);
    const bool isAllowed =
        values && std::ranges::all_of(parameters, [&values](const CustomParameter &parameter) {
            return customValue(parameter, values->value(parameter.name)).has_value();
        });
    if (!isAllowed)
        return chosen_.weigh(key, choice); // which refuses it without quoting it
    Ruling ruling = chosen_.weigh(key, QStringLiteral("Custom"));
    if (ruling.verdict == Verdict::Accepted)
        secrets_.insert(key, *values);
    return ruling;
}

} // namespace printdialog
