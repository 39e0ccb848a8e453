// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalCall.h"

#include "RequestObjects.h"

#include <QtDBus/QDBusServiceWatcher>

#include <utility>

namespace printdialog {

PortalCall::PortalCall(const QDBusConnection &bus, RequestObjects &requests, const QString &handle,
                       const QDBusMessage &message, QObject *parent)
    : QObject(parent)
    , bus_(bus)
    , requests_(requests)
    , handle_(handle)
    , message_(message)
{
    message_.setDelayedReply(true);
    isOpen_ = requests_.add(handle_, this);
    // The front end's end is that of its callers.
    auto *watcher =
        new QDBusServiceWatcher(message.service(), bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &PortalCall::end);
}

PortalCall::~PortalCall()
{
    answer(PortalResponse::Failed);
}

void PortalCall::answer(PortalResponse response, const QVariantMap &results)
{
    if (std::exchange(isAnswered_, true))
        return;
    bus_.send(message_.createReply({static_cast<uint>(response), QVariant::fromValue(results)}));
    if (std::exchange(isOpen_, false))
        requests_.remove(handle_);
}

void PortalCall::close(const QString &caller)
{
    if (caller == message_.service())
        end();
}

void PortalCall::end()
{
    if (isAnswered_)
        return;
    answer(PortalResponse::Canceled);
    Q_EMIT closed();
}

} // namespace printdialog
