// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"

#include "ChoiceSteps.h"
#include "DialogSession.h"
#include "MessageBar.h"
#include "PresetController.h"

#include <QtWidgets/QComboBox>

namespace printdialog {

ChoiceController::ChoiceController(const ChoiceWidgets &widgets, QObject *parent)
    : QObject(parent)
    , widgets_(widgets)
    , refusals_(new ChoiceRefusals(widgets.window, widgets.panels, widgets.message, this))
    , steps_(new ChoiceSteps(
          {widgets.window, widgets.panels, widgets.copies, widgets.photos, widgets.undo, widgets.redo}, this))
    , presets_(new PresetController(widgets.presets, widgets.message, steps_, widgets.photos, this))
{
    connect(refusals_, &ChoiceRefusals::offerAccepted, steps_, [this] { steps_->note(); });
    connect(steps_, &ChoiceSteps::acted, this, &ChoiceController::endAct);
    connect(steps_, &ChoiceSteps::aboutToMake, this, &ChoiceController::clearMessages);
    connect(steps_, &ChoiceSteps::changed, presets_, &PresetController::update);
    connect(steps_, &ChoiceSteps::changed, this, &ChoiceController::stepsChanged);
    connect(presets_, &PresetController::aboutToUse, this, &ChoiceController::clearMessages);
    connect(presets_, &PresetController::jobRefused, refusals_, &ChoiceRefusals::explainJob);
}

void ChoiceController::setSession(DialogSession *session, const QString &builtInPreset)
{
    session_ = session;
    refusals_->setSession(session);
    steps_->setSession(session);
    presets_->setSession(session, builtInPreset);
}

void ChoiceController::start()
{
    steps_->start();
}

bool ChoiceController::useAttributes(const IppAttributes &attributes, bool opensAnew)
{
    return presets_->useAttributes(attributes, opensAnew);
}

void ChoiceController::choosePageSize(const QString &pageSize, QWidget *control)
{
    if (!session_)
        return;
    if (control == widgets_.pageSize)
        steps_->endAct();
    const Ruling ruling = session_->choose(session_->options().pageSizeKey(), pageSize);
    if (ruling.verdict == Verdict::Accepted)
        steps_->noteAct(control);
    else
        refusals_->explain(ruling, control);
}

void ChoiceController::refuse(const QString &text, QWidget *control)
{
    if (session_)
        refusals_->explain({Verdict::UnknownChoice, session_->options().pageSizeKey(), {}, text, {}, {}},
                           control);
}

void ChoiceController::watchField(QWidget *field)
{
    steps_->watchField(field);
}

void ChoiceController::beginAct()
{
    steps_->endAct();
}

void ChoiceController::noteAct(QWidget *control)
{
    steps_->noteAct(control);
}

void ChoiceController::explainJob()
{
    refusals_->explainJob();
}

QString ChoiceController::keep(const QMap<QString, QString> &options)
{
    refusals_->dismiss(); // the refused choice is not part of the job
    return presets_->keep(options);
}

void ChoiceController::keepOnlyOptions()
{
    presets_->keepOnlyOptions();
}

void ChoiceController::endAct(QWidget *control, bool continues)
{
    refusals_->endAct(control, steps_->note(continues));
}

void ChoiceController::clearMessages()
{
    refusals_->dismiss();
    widgets_.message->clear();
}

} // namespace printdialog
