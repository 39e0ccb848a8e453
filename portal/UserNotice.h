// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

namespace printdialog {

/// Reports to the user what a program is not told: by a notification of the desktop, or in a small window
/// where the desktop has none.
class UserNotice : public QObject
{
    Q_OBJECT

public:
    UserNotice(const QDBusConnection &bus, QObject *parent);

    /// Both are plain text. Also writes them to the system log.
    void show(const QString &summary, const QString &text);
    /// Whether a notice is on its way, or a window is open.
    bool isBusy() const { return open_ > 0; }

Q_SIGNALS:
    /// isBusy() may have changed.
    void over();

private:
    void showWindow(const QString &summary, const QString &text);

    QDBusConnection bus_;
    int open_ = 0;
};

} // namespace printdialog
