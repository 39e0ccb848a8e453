// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "GuardedPanel.h"

#include "ActionGuard.h"
#include "ChoiceReceiver.h"
#include "PlainText.h"
#include "PluginGuard.h"
#include "RetiredOptions.h"
#include "SystemLog.h"

#include <QtWidgets/QWidget>

#include <utility>

namespace printdialog {

namespace {

QList<GuardedPanel *> &openPanels()
{
    static auto *const panels = new QList<GuardedPanel *>; // outlives every panel
    return *panels;
}

QObject *objectOf(pdekit::PrintDialogPanel &panel)
{
    return dynamic_cast<QObject *>(&panel);
}

} // namespace

GuardedPanel::GuardedPanel(pdekit::PanelPointer panel)
    : panel_(std::move(panel))
{
    pdekit::setFailureHandler(&GuardedPanel::handleFailure);
    openPanels().append(this);
}

GuardedPanel::~GuardedPanel()
{
    openPanels().removeOne(this);
}

void GuardedPanel::open()
{
    call([this] {
        name_ = plainText(panel_->panelName().value_or(QString()), shownTextLimit);
        kind_ = panel_->panelKind().value_or(QString());
        keys_ = panel_->supportedPPDOptionKeys();
    });
    restore();
    updateRetiredKeys();
}

void GuardedPanel::reopen()
{
    call([this] { keys_ = panel_->supportedPPDOptionKeys(); });
    restore();
}

bool GuardedPanel::updateRetiredKeys()
{
    QStringList retired;
    call([&] {
        auto *panel = qobject_cast<pdekit::RetiredOptions *>(objectOf(*panel_));
        const QStringList named = panel ? panel->retiredOptionKeys() : QStringList();
        for (const QString &key : keys_) {
            if (named.contains(key))
                retired += key;
        }
    });
    return std::exchange(retiredKeys_, retired) != retired;
}

// Calls

bool GuardedPanel::call(const std::function<void()> &call)
{
    if (isLost())
        return false;
    if (const auto thrown = thrownBy(call))
        lose(*thrown);
    return !isLost();
}

void GuardedPanel::lose(const QString &thrown)
{
    if (isLost())
        return;
    thrown_ = thrown;
    pdekit::systemLog(
        QStringLiteral("The panel \"%1\" is given up: it threw \"%2\"").arg(shownName(), thrown));
    Q_EMIT lost();
}

QWidget *GuardedPanel::view()
{
    QWidget *view = nullptr;
    call([&] { view = panel_->panelView(); });
    if (view)
        view_ = view;
    return isLost() ? nullptr : view;
}

/// Why the request failed; empty when it succeeded, nothing when the panel is lost.
std::optional<QString> GuardedPanel::problemOf(bool (pdekit::PrintDialogPanel::*request)(QString *))
{
    QString error;
    bool isDone = false;
    if (!call([&] { isDone = (*panel_.*request)(&error); }))
        return std::nullopt;
    if (isDone)
        return QString();
    const QString reason = insideSentence(error);
    return reason.isEmpty() ? tr("its plug-in gives no reason") : reason;
}

void GuardedPanel::restore()
{
    const auto problem = problemOf(&pdekit::PrintDialogPanel::restoreValuesAndReturnError);
    if (!problem || std::exchange(restoreProblem_, *problem) == *problem || problem->isEmpty())
        return;
    pdekit::systemLog(restoreFailure());
    Q_EMIT restoreFailed();
}

void GuardedPanel::save()
{
    const auto problem = problemOf(&pdekit::PrintDialogPanel::saveValuesAndReturnError);
    if (problem && std::exchange(saveProblem_, *problem) != *problem && !problem->isEmpty())
        pdekit::systemLog(missing());
}

void GuardedPanel::willShow()
{
    call([this] { panel_->willShow(); });
}

bool GuardedPanel::shouldHide()
{
    bool answer = true;
    return !call([&] { answer = panel_->shouldHide(); }) || answer;
}

std::optional<GuardedPanel::Summary> GuardedPanel::summary()
{
    std::optional<Summary> summary;
    call([&] { summary = panel_->summaryInfo(); });
    return summary;
}

void GuardedPanel::choiceDidChange(const QString &key, const QString &choice)
{
    call([&] { panel_->PPDOptionKeyValueDidChangePpdChoice(key, choice); });
}

bool GuardedPanel::shouldShowHelp()
{
    bool answer = true;
    return !call([&] { answer = panel_->shouldShowHelp(); }) || answer;
}

bool GuardedPanel::receivesChoices() const
{
    return qobject_cast<pdekit::ChoiceReceiver *>(objectOf(*panel_)) != nullptr;
}

void GuardedPanel::receiveChoice(const QString &key, const QString &choice)
{
    call([&] {
        if (auto *receiver = qobject_cast<pdekit::ChoiceReceiver *>(objectOf(*panel_)))
            receiver->markChoiceForPPDOptionKeyFromSender(choice, key, nullptr);
    });
}

std::optional<pdekit::Adjustment> GuardedPanel::adjustment()
{
    std::optional<pdekit::Adjustment> adjustment;
    call([&] {
        if (auto *source = qobject_cast<pdekit::AdjustmentSource *>(objectOf(*panel_)))
            adjustment = source->adjustment();
    });
    return adjustment;
}

// Events of its view

bool GuardedPanel::owns(const QObject *receiver) const
{
    const QObject *panel = objectOf(*panel_);
    for (const QObject *object = receiver; object; object = object->parent()) {
        if (object == view_ || object == panel)
            return true;
    }
    return false;
}

bool GuardedPanel::handleFailure(const QObject *receiver)
{
    for (GuardedPanel *panel : std::as_const(openPanels())) {
        if (panel->owns(receiver)) {
            panel->lose(caughtText());
            return true;
        }
    }
    return false;
}

// In words

QString GuardedPanel::shownName() const
{
    const QObject *object = objectOf(*panel_);
    if (!name_.isEmpty() || !object)
        return name_;
    return QString::fromLatin1(object->metaObject()->className());
}

QString GuardedPanel::loss() const
{
    if (!isLost())
        return {};
    return tr("The page \"%1\" was closed because its plug-in failed: %2. Update the plug-in. Everything "
              "else works.")
        .arg(shownName(), thrown_);
}

QString GuardedPanel::missing() const
{
    if (isLost())
        return tr("The choices of the page \"%1\" are missing, because its plug-in failed: %2. Update the "
                  "plug-in.")
            .arg(shownName(), thrown_);
    if (saveProblem_.isEmpty())
        return {};
    return tr("The choices of the page \"%1\" are missing, because it could not save them: %2.")
        .arg(shownName(), saveProblem_);
}

QString GuardedPanel::restoreFailure() const
{
    if (restoreProblem_.isEmpty())
        return {};
    return tr("The page \"%1\" could not read the job's choices, and may show other ones: %2.")
        .arg(shownName(), restoreProblem_);
}

} // namespace printdialog
