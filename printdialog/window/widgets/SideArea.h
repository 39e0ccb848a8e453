// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QScrollArea>

namespace printdialog {

/// One side of the window: it scrolls where the window is too small for its contents, so that a small screen
/// or a large font hides nothing. What gets the focus by a key comes into view. The wheel scrolls: it changes
/// no choice that happens to pass below the mouse.
class SideArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit SideArea(QWidget *parent = nullptr);

    /// The widths that the side asks for, whatever its contents, in average characters of its font; 0: the
    /// contents decide.
    void setReadableWidth(int least, int most);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int scrollBarWidth() const;
    bool takesWheel(const QWidget *widget) const;

    int leastWidth_ = 0;
    int mostWidth_ = 0;
};

} // namespace printdialog
