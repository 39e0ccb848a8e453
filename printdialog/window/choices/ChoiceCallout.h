// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QFrame>

class QLabel;
class QPushButton;
class QToolButton;

namespace printdialog {

/// Explains beside a control why the choice just made there was refused, and offers changes that allow it. It
/// is placed below or above the control, never over it. It does not grab the focus, and disappears when it is
/// dismissed (Escape, or its button). Plain text only.
class ChoiceCallout : public QFrame
{
    Q_OBJECT

public:
    /// The callout becomes a child of the window that it is shown in.
    explicit ChoiceCallout(QWidget *window);

    /// Shows the text beside the control, within `area` (an ancestor of the control) if there is room. Adds a
    /// button for the offer unless `offer` is empty.
    void show(QWidget *control, QWidget *area, const QString &text, const QString &offer);
    void dismiss();

    /// The text shown; empty while the callout is hidden.
    QString text() const;

Q_SIGNALS:
    void offerAccepted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void place();
    void join(QWidget *control);

    QLabel *text_;
    QPushButton *offer_;
    QToolButton *close_;
    QPointer<QWidget> control_;
    QPointer<QWidget> focused_; ///< the control, or the focused button within a group
    QPointer<QWidget> area_;
    QList<QPointer<QWidget>> watched_; ///< the control and its ancestors
    bool isBelow_ = true;              ///< whether the callout is below the control
    int tip_ = 0;                      ///< the x coordinate at which it points at the control
};

} // namespace printdialog
