// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceRefusals.h"

class QComboBox;
class QSpinBox;
class QToolButton;

namespace printdialog {

class ChoiceSteps;
class DialogSession;
class MessageBar;
class PanelTabs;
class PresetBar;
class PresetController;

/// The parts of the window that choices are made and shown with.
struct ChoiceWidgets
{
    QWidget *window;
    PanelTabs *panels;
    QComboBox *pageSize;
    QSpinBox *copies;
    PresetBar *presets;
    QToolButton *undo;
    QToolButton *redo;
    MessageBar *message;
};

/// What happens around the choices in the window: it brings together refusals (ChoiceRefusals), steps back
/// (ChoiceSteps) and presets (PresetController). The choices themselves are the session's.
class ChoiceController : public QObject
{
    Q_OBJECT

public:
    ChoiceController(const ChoiceWidgets &widgets, QObject *parent);

    /// Follows a session, whose panels are loaded and not shown yet, which must outlive this or the next
    /// call, and makes the choices that it opens with, see PresetController::setSession. Null: none.
    void setSession(DialogSession *session, const QString &builtInPreset = {});
    /// The session is as the dialog opens with it.
    void start();

    /// Makes the user's choice of a page size.
    void choosePageSize(const QString &pageSize);
    /// Why the session's job cannot be made, with what can be done about it.
    void explainJob();

    /// Keeps the choices for the next time with this printer. A sentence when that fails.
    QString keep(const QMap<QString, QString> &options);

    /// What is being explained beside a control; empty when nothing is.
    QString explanation() const { return refusals_->text(); }

Q_SIGNALS:
    /// A step was made, taken back or made again, or the steps begin from here.
    void stepsChanged();

private:
    void endAct(QWidget *control, bool goesOn);
    void clearMessages();

    ChoiceWidgets widgets_;
    ChoiceRefusals *refusals_;
    ChoiceSteps *steps_;
    PresetController *presets_;
    DialogSession *session_ = nullptr;
};

} // namespace printdialog
