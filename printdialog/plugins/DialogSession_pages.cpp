// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "GuardedPanel.h"
#include "JobTemplate.h"
#include "OptionPage.h"
#include "PpdDocument.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace printdialog {

namespace {

// In DialogSession::ownPages_.
constexpr std::size_t printerPage = 0;
constexpr std::size_t jobPage = 1;

struct PagesText
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::DialogSession)
};

/// "Tray 4: Not Installed"
QString equipmentText(const OptionSource &source, const QList<OptionChoice> &equipment)
{
    QStringList texts;
    for (const OptionChoice &each : equipment)
        texts += PagesText::tr("%1: %2", "a part of the printer and its state")
                     .arg(source.optionText(each.option), choiceText(source, each));
    return texts.join(PagesText::tr(", ", "between the parts of a list"));
}

} // namespace

std::optional<Failure<PluginFault>> DialogSession::loadPanels()
{
    auto failure = loadPluginPanels();
    updateOwnPages();
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
        GuardedPanel *panel = addPanel(std::move(made), std::ssize(panels_));
        const QStringList keys = panel->keys();
        for (const QString &key : keys)
            panelOf_.insert(key, panel);
    }
    return std::nullopt;
}

GuardedPanel *DialogSession::addPanel(pdekit::PanelPointer made, qsizetype index)
{
    const auto place =
        panels_.insert(panels_.begin() + index, std::make_unique<GuardedPanel>(std::move(made)));
    GuardedPanel *panel = place->get();
    connect(panel, &GuardedPanel::lost, this, [this, panel] {
        chosen_.forget(panel->keys());
        Q_EMIT panelFailed(panel->loss());
    });
    connect(panel, &GuardedPanel::restoreFailed, this,
            [this, panel] { Q_EMIT panelFailed(panel->restoreFailure()); });
    panel->open();
    return panel;
}

// The dialog's own pages

/// The options that can be chosen and that no panel shows.
QStringList DialogSession::keysForOwnPages() const
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

void DialogSession::updateOwnPages()
{
    QStringList ofPrinter = keysForOwnPages();
    QStringList ofJob =
        QStringList(JobTemplate::titleKey()) + JobTemplate::namedByPrinters() + jobOptionKeys();
    ofJob.removeDuplicates();
    ofJob.removeIf([&ofPrinter](const QString &key) { return !ofPrinter.contains(key); });
    ofPrinter.removeIf([&ofJob](const QString &key) { return ofJob.contains(key); });
    updateOwnPage(ownPages_[printerPage], ofPrinter);
    updateOwnPage(ownPages_[jobPage], ofJob);
}

void DialogSession::updateOwnPage(OwnPage &own, const QStringList &keys)
{
    const bool isJob = &own == &ownPages_[jobPage];
    if (own.page) {
        if (isJob || own.panel->keys() != keys)
            own.page->setKeys(keys);
        own.panel->reopen();
        return;
    }
    if (keys.isEmpty())
        return;
    const bool isAlone = panelOf_.isEmpty();
    OptionPage::Session session;
    if (mode_ == PanelMode::Constraint)
        session.rule = [this, &own](const QString &key, const QString &choice) {
            return rule(key, choice, own.panel);
        };
    session.equipmentRefusal = [this](const QString &key, const QString &choice) {
        return equipmentText(*options_.source, chosen_.equipmentAgainst(key, choice));
    };
    session.keepSecret = [this](const QString &key, const CustomValues &values) {
        if (values.isEmpty())
            secrets_.remove(key);
        else
            secrets_.insert(key, values);
    };
    const QString ofPrinter = isAlone ? tr("Options") : tr("More Options");
    auto page =
        std::make_unique<OptionPage>(*options_.source, callback_, session, isJob ? tr("Job") : ofPrinter,
                                     isJob ? QStringLiteral("job") : QStringLiteral("options"));
    page->setGrouped(!isJob);
    own.page = page.get();
    own.page->setKeys(keys);
    // What is left over by a plug-in's panels comes last; a printer without them begins with its options.
    const OwnPage &other = ownPages_[isJob ? printerPage : jobPage];
    const qsizetype index = std::ssize(panels_) - (other.page && isJob != isAlone ? 1 : 0);
    own.panel = addPanel(std::move(page), index);
    Q_EMIT pageAdded(index);
}

bool DialogSession::isOwnPage(const GuardedPanel &panel) const
{
    return std::ranges::any_of(ownPages_, [&panel](const OwnPage &own) { return own.panel == &panel; });
}

void DialogSession::noteShown(GuardedPanel &panel)
{
    if (!isOwnPage(panel) && panel.updateRetiredKeys())
        updateOwnPages();
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
    for (const OwnPage &own : ownPages_) {
        if (own.page && !own.panel->isLost() && own.page->shows(key))
            panels += own.panel;
    }
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
