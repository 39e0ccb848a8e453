// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceRefusals.h"

class QComboBox;
class QSpinBox;
class QToolButton;

namespace printdialog {

class ArrangementModel;
class ChoiceSteps;
class DialogSession;
class IppAttributes;
class MessageBar;
class PanelTabs;
class PresetBar;
class PresetController;

/// The window's widgets that make and show choices.
struct ChoiceWidgets
{
    QWidget *window;
    PanelTabs *panels;
    QComboBox *pageSize;
    QSpinBox *copies;
    ArrangementModel *photos;
    PresetBar *presets;
    QToolButton *undo;
    QToolButton *redo;
    MessageBar *message;
};

/// Coordinates the window's handling of choices: refusals (ChoiceRefusals), undo and redo (ChoiceSteps) and
/// presets (PresetController). The choices themselves belong to the session.
class ChoiceController : public QObject
{
    Q_OBJECT

public:
    ChoiceController(const ChoiceWidgets &widgets, QObject *parent);

    /// Follows a session whose panels are loaded but not yet shown, and makes the choices that it opens with
    /// (see PresetController::setSession). The session must outlive this object or the next call. Null: none.
    void setSession(DialogSession *session, const QString &builtInPreset = {});
    /// Call when the session is in the state that the dialog opens with.
    void start();
    /// Hands over attributes of the printer that arrived later than the session. True: nothing was chosen
    /// before, and other choices are made to begin with; call start() then.
    /// @param opensAnew also when the attributes change nothing in these choices
    bool useAttributes(const IppAttributes &attributes, bool opensAnew);

    /// Applies the user's choice of a page size, made with the control.
    void choosePageSize(const QString &pageSize, QWidget *control);
    /// Shows beside the control why what was typed there cannot be chosen.
    void refuse(const QString &text, QWidget *control);
    /// See ControlWatcher::watchField.
    void watchField(QWidget *field);
    /// What follows is another act, even by the same control.
    void beginAct();
    /// The user has done something with the photos, by the control.
    void noteAct(QWidget *control);
    /// Shows why the session's job cannot be made, and offers a remedy.
    void explainJob();

    /// Saves the choices for the next time with this printer. Returns a sentence when that fails.
    QString keep(const QMap<QString, QString> &options);
    /// From now on, the copies and the arrangement that are kept stay what they were.
    void keepOnlyOptions();

    /// The explanation shown beside a control; empty when there is none.
    QString explanation() const { return refusals_->text(); }

Q_SIGNALS:
    /// A step was made, undone or redone, or the history was restarted.
    void stepsChanged();

private:
    void endAct(QWidget *control, bool continues);
    void clearMessages();

    ChoiceWidgets widgets_;
    ChoiceRefusals *refusals_;
    ChoiceSteps *steps_;
    PresetController *presets_;
    DialogSession *session_ = nullptr;
};

} // namespace printdialog
