// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QPushButton>

namespace printdialog {

/// A button for text of any length, such as a PPD's: where it has not the room for all of it, the text ends
/// in dots, and a tool tip shows the whole. Never the reason why a window is wide.
class ElidingButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ElidingButton(QWidget *parent = nullptr);
    explicit ElidingButton(const QString &text, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QString shownText() const;
};

} // namespace printdialog
