// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtDBus/QDBusVirtualObject>

namespace printdialog {

class PortalCall;

/// The objects by which the open calls are closed. They are one for the bus, which is there before the first
/// call: a caller may close a call right behind it, and the object of a call alone would be looked for before
/// the call is seen here.
class RequestObjects : public QDBusVirtualObject
{
    Q_OBJECT

public:
    using QDBusVirtualObject::QDBusVirtualObject;

    /// Of this and all handles below it.
    static QString path();

    /// False: the handle is in use, or none.
    bool add(const QString &handle, PortalCall *call);
    void remove(const QString &handle) { calls_.remove(handle); }

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QHash<QString, PortalCall *> calls_;
};

} // namespace printdialog
