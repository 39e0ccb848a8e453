// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceHistory.h"

class QSpinBox;
class QToolButton;

namespace printdialog {

class ArrangementModel;
class ControlWatcher;
class DialogSession;
class PanelTabs;

/// Makes every act of the user a step that can be undone. It follows the session's choices, the number of
/// copies and the photos, and detects when an act is over.
class ChoiceSteps : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        QWidget *window;
        PanelTabs *panels;
        QSpinBox *copies;
        ArrangementModel *photos;
        QToolButton *undo;
        QToolButton *redo;
    };

    ChoiceSteps(const Widgets &widgets, QObject *parent);

    /// Follows a session, which must outlive this object or the next call; null: none.
    void setSession(DialogSession *session);
    /// Call when the session is in the state that the dialog opens with.
    void start();

    /// Call when the session has got further options.
    void include();

    int copies() const { return copies_; }
    /// Sets the number of copies without making a step.
    void setCopies(int copies);

    /// Watches a field outside the panels. Call noteAct() when the user has made a choice with it, or has
    /// done something with the photos.
    void watchField(QWidget *field);
    void noteAct(QWidget *control);
    /// The next change begins a new act.
    void endAct();
    /// Ends the act: the changes since the last one become a step. False when nothing has changed.
    bool note(bool continues = false);

    bool canRevert() const;
    void revert();
    /// Records the present choices as those of the preset in use.
    void markPreset();
    bool differsFromPreset() const { return history_->differsFromMark(); }

Q_SIGNALS:
    /// The user has acted on the control, and its panel has handled that.
    void acted(QWidget *control, bool continues);
    /// A step is about to be undone or redone.
    void aboutToMake();
    /// A step was made, undone or redone, or the history was restarted.
    void changed();

private:
    ChoiceHistory::State state() const;
    void make(const ChoiceHistory::State &state);
    void makePhotos(const ArrangementModel::State &state);
    void finishAct(QWidget *control, bool continues);
    void noteCopies(int copies);
    void updateButtons();

    Widgets widgets_;
    ControlWatcher *watcher_;
    ChoiceHistory *history_;
    DialogSession *session_ = nullptr;
    int copies_ = 1;
};

} // namespace printdialog
