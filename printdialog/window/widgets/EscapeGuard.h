// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

class QWidget;

namespace printdialog {

/// Makes the Escape that closes a list or a menu close nothing else. Under Wayland, Qt 6.4 closes a combo
/// box's list at the ShortcutOverride event, and then sends the key to the window below.
class EscapeGuard : public QObject
{
    Q_OBJECT

public:
    /// The guard becomes a child of the window that it guards.
    explicit EscapeGuard(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *window_;
    bool wentToPopup_ = false; ///< the pressed key went to a popup
};

} // namespace printdialog
