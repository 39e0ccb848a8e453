// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

class QUndoStack;

namespace printdialog {

/// What the user has chosen since the dialog opened, step by step, and back.
class ChoiceHistory : public QObject
{
    Q_OBJECT

public:
    /// Option keyword to choice keyword.
    using State = QMap<QString, QString>;
    /// Makes all the choices of a state, and answers those that are there then.
    using Maker = std::function<State(const State &)>;

    explicit ChoiceHistory(Maker maker, QObject *parent = nullptr);

    /// Begins anew: this is how the dialog opens.
    void start(const State &state);
    /// The user has acted, and this is there now. A step, if it is anything new; with `goesOn` it becomes
    /// part of the last step.
    void note(const State &state, bool goesOn);

    bool canUndo() const;
    bool canRedo() const;
    /// Whether it is not as the dialog opened.
    bool canRevert() const { return current_ != opening_; }
    const State &current() const { return current_; }

public Q_SLOTS:
    void undo();
    void redo();
    /// Goes back to how the dialog opened, as a step of its own.
    void revert();

Q_SIGNALS:
    void changed();

private:
    class Step;

    void make(const State &state);

    Maker maker_;
    QUndoStack *steps_;
    State opening_;
    State current_;
    int act_ = 0; // what belongs to one act is one step
};

} // namespace printdialog
