// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceHistory.h"

class QSpinBox;
class QToolButton;

namespace printdialog {

class ControlWatcher;
class DialogSession;
class PanelTabs;

/// Every act of the user's is a step that can be undone: it follows what is chosen in the session, and the
/// number of copies, and knows when an act is over.
class ChoiceSteps : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        QWidget *window;
        PanelTabs *panels;
        QSpinBox *copies;
        QToolButton *undo;
        QToolButton *redo;
    };

    ChoiceSteps(const Widgets &widgets, QObject *parent);

    /// Follows a session, which must outlive this or the next call; null: none.
    void setSession(DialogSession *session);
    /// The session is as the dialog opens with it.
    void start();

    int copies() const { return copies_; }
    /// A program's number of copies: no step by itself.
    void setCopies(int copies);

    /// What comes next is an act of its own.
    void endAct();
    /// The act is over: whatever has changed since the last one is a step. False when nothing has.
    bool note(bool goesOn = false);

    bool canRevert() const;
    void revert();
    /// The present choices are those of the preset in use.
    void markPreset();
    bool differsFromPreset() const { return history_->differsFromMark(); }

Q_SIGNALS:
    /// The user has acted on the control, and its panel has dealt with that.
    void acted(QWidget *control, bool goesOn);
    /// A step is about to be taken back or made again.
    void aboutToMake();
    /// A step was made, taken back or made again, or the steps begin from here.
    void changed();

private:
    ChoiceHistory::State state() const;
    void make(const ChoiceHistory::State &state);
    void noteAct(QWidget *control, bool goesOn);
    void noteCopies(int copies);
    void updateButtons();

    Widgets widgets_;
    ControlWatcher *watcher_;
    ChoiceHistory *history_;
    DialogSession *session_ = nullptr;
    int copies_ = 1;
};

} // namespace printdialog
