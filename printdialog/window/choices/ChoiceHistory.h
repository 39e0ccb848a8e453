// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementModel.h"
#include "ChosenOptions.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <functional>
#include <optional>

class QUndoStack;

namespace printdialog {

/// The undo history of the user's choices, and of what they did with the photos, since the dialog opened. A
/// step stores only the choices that it changes, so its cost does not depend on the number of options; and
/// the photos, where it changes something about them.
class ChoiceHistory : public QObject
{
    Q_OBJECT

public:
    /// Option keyword to choice keyword.
    using State = QMap<QString, QString>;
    /// Makes choices. Its effects must be reported by change().
    using Maker = std::function<void(const State &)>;

    /// Puts the photos into a state.
    using PhotosMaker = std::function<void(const ArrangementModel::State &)>;

    explicit ChoiceHistory(Maker maker, PhotosMaker photosMaker = {}, QObject *parent = nullptr);

    /// Restarts the history with the state that the dialog opens with. What was done with the photos can
    /// still be taken back: another printer changes nothing about them.
    void start(const State &state);
    /// Adds options that the printer has only now, with the choice that each begins with.
    void include(const State &state);
    /// Records a changed choice as a part of the step that the next note() makes.
    void change(const ChoiceChange &change);
    /// The same for the photos.
    void changePhotos(const ArrangementModel::State &before, const ArrangementModel::State &after);
    bool hasChanges() const { return !pending_.isEmpty() || pendingPhotos_; }
    /// Ends an act of the user's: the changes since the last one become a step or, with `continues`, a part
    /// of the last step.
    void note(bool continues);

    /// Remembers the state as that of the preset in use.
    void mark(const State &state) { mark_.start(state); }
    /// Whether the choices differ from those of the preset in use.
    bool differsFromMark() const { return !mark_.differing.isEmpty(); }

    bool canUndo() const;
    bool canRedo() const;
    /// Whether the state differs from the one that the dialog opened with.
    bool canRevert() const { return !opening_.differing.isEmpty(); }

public Q_SLOTS:
    void undo();
    void redo();
    /// Returns to the state that the dialog opened with, as a separate step.
    void revert();

Q_SIGNALS:
    void changed();

private:
    class Step;
    /// An option's choice before and after a step; a null string: none.
    struct Change
    {
        QString before;
        QString after;
    };
    using Changes = QMap<QString, Change>;
    struct PhotosChange
    {
        ArrangementModel::State before;
        ArrangementModel::State after;
    };

    /// A state, and how the present choices differ from it.
    struct Baseline
    {
        State state;
        QSet<QString> differing;

        void start(const State &from);
        void include(const State &added);
        void compare(const QString &key, const QString &choice);
    };

    static void merge(Changes &changes, const QString &key, const Change &change);
    void push(const Changes &changes, const std::optional<PhotosChange> &photos, int act);
    void make(const State &state, const ArrangementModel::State *photos);

    Maker maker_;
    PhotosMaker photosMaker_;
    QUndoStack *steps_;
    Baseline opening_;
    Baseline mark_;
    Changes pending_;
    std::optional<PhotosChange> pendingPhotos_;
    bool isMaking_ = false; // during undo and redo, whose changes are not a new step
    int act_ = 0;           // numbers the acts: changes of one act form one step
};

} // namespace printdialog
