// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceHistory.h"
#include "ChoiceMarker.h"

#include <QtCore/QPointer>

#include <memory>
#include <optional>

class QAction;
class QComboBox;
class QSpinBox;
class QToolButton;

namespace printdialog {

class ChoiceCallout;
class ControlWatcher;
class DialogSession;
class MessageBar;
class PanelTabs;
class PresetBar;
class PresetStore;

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

/// What happens around the choices in the window: a refusal is explained beside its control, with a way out;
/// every act of the user's is a step that can be undone; choices come from presets and from the last time,
/// and go there. The choices themselves are the session's.
class ChoiceController : public QObject
{
    Q_OBJECT

public:
    ChoiceController(const ChoiceWidgets &widgets, QObject *parent);
    ~ChoiceController() override;

    /// Takes up a session, whose panels are loaded and not shown yet, which must outlive this or the next
    /// call: makes the choices of the preset that the printer's name has in it, or else those last used with
    /// the printer. Null: none.
    /// @param builtInPreset the built-in printer's preset, whose name is not in the printer's
    void setSession(DialogSession *session, const QString &builtInPreset = {});
    /// The session is as the dialog opens with it.
    void start();

    /// Makes the user's choice of a page size.
    void choosePageSize(const QString &pageSize);
    /// Why the session's job cannot be made, with what can be done about it.
    void explainJob();

    /// Keeps the choices for the next time with this printer. A sentence when that fails.
    QString keep(const QMap<QString, QString> &options);

    /// The texts of the buttons that may appear beside a refusal.
    static QStringList offerTexts() { return {tr("Als&o change %1"), tr("Chan&ge %1")}; }

    /// What is being explained beside a control; empty when nothing is.
    QString explanation() const;

Q_SIGNALS:
    /// A step was made, taken back or made again, or the steps begin from here.
    void stepsChanged();

private:
    // Refusals
    void explain(const Ruling &ruling, QWidget *control);
    void explainPending(QWidget *control);
    void takeOffer();
    void settleJob(const Ruling &refusal);
    QString offerText(const QList<OptionChoice> &changes) const;

    // Steps
    void noteAct(QWidget *control, bool goesOn);
    void noteStep(bool goesOn);
    ChoiceHistory::State state();
    ChoiceHistory::State make(const ChoiceHistory::State &state);
    void setCopies(int copies);
    void updateHistory();

    // Presets
    void makePresetActions();
    void loadPresets();
    bool openWithPreset(const QString &instance);
    void usePreset(const QString &name);
    QStringList restorePreset(const QString &name);
    void addPreset(const QString &typed);
    void updatePreset(const QString &name);
    void renamePreset(const QString &name, const QString &typed);
    void removePreset(const QString &name);
    std::optional<QMap<QString, QString>> kept();
    void markPreset(const QString &name);
    void sayLeftOut(const QString &introduction, const QStringList &sentences);

    ChoiceWidgets widgets_;
    ControlWatcher *watcher_;
    ChoiceHistory *history_;
    ChoiceCallout *callout_;
    QAction *revert_ = nullptr;
    DialogSession *session_ = nullptr;
    std::unique_ptr<PresetStore> store_;
    std::optional<Ruling> pending_; ///< refused; which control it was is not known yet
    Ruling explained_;
    ChoiceHistory::State presetState_; ///< what the preset in use made
};

} // namespace printdialog
