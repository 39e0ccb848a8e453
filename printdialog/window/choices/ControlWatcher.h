// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSet>

class QWidget;

namespace printdialog {

/// Reports which of the panels' controls the user has acted on, after the panel has handled it. It finds the
/// stock controls by their tags (pdekit/views) and does not know what they stand for.
class ControlWatcher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Watches the tagged controls in the view, as long as they live. Call it once per view, after its panel
    /// has made it, so that the panel receives the controls' events first.
    void watchView(QWidget *view);
    /// Watches one field, or a widget that something is dragged on, for the end of the user's act. As in
    /// every watched text field, undo and redo are the dialog's, not the field's own.
    void watchField(QWidget *field);
    /// Records that the user has acted on the control.
    void note(QWidget *control);
    /// The next change begins a new act, even on the same control.
    void endAct() { last_.clear(); }

Q_SIGNALS:
    /// `continues`: the act continues the last one, such as typing in the same field or dragging the same
    /// slider.
    void acted(QWidget *control, bool continues);
    /// The user has left a text field or pressed Return in it.
    void typingFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchControl(QWidget *control);
    bool canContinue(QWidget *control) const;
    bool isDragged(QWidget *control) const;

    QPointer<QWidget> last_;
    QSet<QWidget *> canvases_; ///< The watched widgets that are neither fields nor sliders.
};

} // namespace printdialog
