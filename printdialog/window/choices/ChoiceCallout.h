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

/// Says beside a control why the choice just made there was refused, and offers a way to it. It stands below
/// or above the control, never over it, takes no focus by itself, and goes when it is dismissed (Escape, or
/// its button). Plain text only.
class ChoiceCallout : public QFrame
{
    Q_OBJECT

public:
    /// A child of the window that it is shown in.
    explicit ChoiceCallout(QWidget *window);

    /// Shows the text beside the control, within `area` (an ancestor of the control) if there is room, with a
    /// button for the offer unless `offer` is empty.
    void show(QWidget *control, QWidget *area, const QString &text, const QString &offer);
    void dismiss();

    /// What it says; empty while it is hidden.
    QString text() const;

Q_SIGNALS:
    void offerTaken();

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
    QPointer<QWidget> focused_; ///< the control, or what the user was at in a group of buttons
    QPointer<QWidget> area_;
    QList<QPointer<QWidget>> watched_; ///< the control and what it stands in
    bool isBelow_ = true;              ///< the control is above it
    int tip_ = 0;                      ///< where it points at the control
};

} // namespace printdialog
