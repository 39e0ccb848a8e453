// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QWidget;

namespace printdialog {

/// Tells which of the panels' controls the user has acted on, after the panel has dealt with it. It knows the
/// stock controls by their tags (pdekit/views), and nothing of what they stand for.
class ControlWatcher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Watches the tagged controls in the view, as long as they live. Each view once, when its panel has made
    /// it: a panel is to hear of its controls first.
    void watchView(QWidget *view);
    /// Watches one field for the end of the user's act. Undo and redo are the dialog's there, not the field's
    /// own, as in every text field that is watched.
    void watchField(QWidget *field);
    /// The user has acted on the control.
    void note(QWidget *control);
    /// What comes next is an act of its own, also on the same control.
    void endAct() { last_.clear(); }

Q_SIGNALS:
    /// `goesOn`: more of the same: typing in the same field, moving the same slider without letting go of it.
    void acted(QWidget *control, bool goesOn);
    /// The user has left a text field or pressed Return in it.
    void typingFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchControl(QWidget *control);

    QPointer<QWidget> last_;
};

} // namespace printdialog
