// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QPushButton>

namespace printdialog {

/// A button's text without the ampersand that underlines a letter.
QString withoutMnemonic(const QString &text);

/// A button for text of any length, such as a PPD's. Text that does not fit is elided, and a tool tip shows
/// all of it. The text never makes a window wider.
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
