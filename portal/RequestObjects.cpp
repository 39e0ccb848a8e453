// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RequestObjects.h"

#include "PortalCall.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

namespace printdialog {

QString RequestObjects::path()
{
    return QStringLiteral("/org/freedesktop/portal/desktop/request");
}

bool RequestObjects::add(const QString &handle, PortalCall *call)
{
    if (!handle.startsWith(path() + u'/') || calls_.contains(handle))
        return false;
    calls_.insert(handle, call);
    return true;
}

QString RequestObjects::introspect(const QString &path) const
{
    return calls_.contains(path) ? QStringLiteral("<interface name=\"org.freedesktop.impl.portal.Request\">"
                                                  "<method name=\"Close\"/></interface>")
                                 : QString();
}

bool RequestObjects::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    PortalCall *call = calls_.value(message.path());
    const bool isOfRequest = message.interface().isEmpty() ||
                             message.interface() == QLatin1String("org.freedesktop.impl.portal.Request");
    if (!call || !isOfRequest || message.member() != QLatin1String("Close"))
        return false;
    connection.send(message.createReply());
    call->close(message.service());
    return true;
}

} // namespace printdialog
