// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChosenOptions.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <functional>

class QUndoStack;

namespace printdialog {

/// What the user has chosen since the dialog opened, step by step, and back. A step holds what it changes, so
/// that its cost does not depend on how much there is to choose.
class ChoiceHistory : public QObject
{
    Q_OBJECT

public:
    /// Option keyword to choice keyword.
    using State = QMap<QString, QString>;
    /// Makes choices. What it changes is announced by change().
    using Maker = std::function<void(const State &)>;

    explicit ChoiceHistory(Maker maker, QObject *parent = nullptr);

    /// Starts again: this is how the dialog opens.
    void start(const State &state);
    /// A choice has changed: a part of the step that the next note() makes.
    void change(const ChoiceChange &change);
    bool hasChanges() const { return !pending_.isEmpty(); }
    /// The user's act is over. What has changed since the last one is a step; with `goesOn` it becomes part
    /// of the last step.
    void note(bool goesOn);

    /// Remembers the state as that of the preset in use.
    void mark(const State &state) { mark_.start(state); }
    /// Whether the choices are not those of the preset in use.
    bool differsFromMark() const { return !mark_.differing.isEmpty(); }

    bool canUndo() const;
    bool canRedo() const;
    /// Whether it is not as the dialog opened.
    bool canRevert() const { return !opening_.differing.isEmpty(); }

public Q_SLOTS:
    void undo();
    void redo();
    /// Goes back to how the dialog opened, as a step of its own.
    void revert();

Q_SIGNALS:
    void changed();

private:
    class Step;
    /// What an option's choice was before a step, and after it; a null string: none.
    struct Change
    {
        QString before;
        QString after;
    };
    using Changes = QMap<QString, Change>;

    /// A state, and where the present choices differ from it.
    struct Baseline
    {
        State state;
        QSet<QString> differing;

        void start(const State &from);
        void compare(const QString &key, const QString &choice);
    };

    static void merge(Changes &changes, const QString &key, const Change &change);
    void make(const State &state);

    Maker maker_;
    QUndoStack *steps_;
    Baseline opening_;
    Baseline mark_;
    Changes pending_;
    bool isMaking_ = false; // a step is taken back or made again, which is no new one
    int act_ = 0;           // what belongs to one act is one step
};

} // namespace printdialog
