// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QScrollArea>

class QLabel;

namespace printdialog {

/// Wrapped plain text of any length, of limited height: longer text scrolls, by keys as well.
class LimitedText : public QScrollArea
{
    Q_OBJECT

public:
    /// @param mostLines the most lines of text shown at once
    explicit LimitedText(int mostLines, QWidget *parent = nullptr);

    void setText(const QString &text);
    QString text() const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int limit() const;

    QLabel *label_;
    int mostLines_;
};

} // namespace printdialog
