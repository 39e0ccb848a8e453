// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QScrollArea>

namespace printdialog {

/// One side of the window. It scrolls when the window is too small for its contents, so that a small screen
/// or a large font hides nothing. A widget that gets the focus by a key is scrolled into view. The wheel only
/// scrolls: it never changes a choice that passes below the mouse.
class SideArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit SideArea(QWidget *parent = nullptr);

    /// Sets the widths that the side requests, whatever its contents, in average characters of its font. 0:
    /// the contents decide.
    void setReadableWidth(int least, int most);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int scrollBarWidth() const;
    bool acceptsWheel(const QWidget *widget) const;

    int leastWidth_ = 0;
    int mostWidth_ = 0;
};

} // namespace printdialog
