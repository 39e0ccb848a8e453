// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

class QWidget;

namespace printdialog {

/// Has the Escape that closes a list or a menu close nothing else. Under Wayland, Qt 6.4 closes a combo box's
/// list when it asks who wants the key, and then hands the key to the window below.
class EscapeGuard : public QObject
{
    Q_OBJECT

public:
    /// A child of the window that it guards.
    explicit EscapeGuard(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *window_;
    bool isPopups_ = false; ///< the key that is down went to a popup
};

} // namespace printdialog
