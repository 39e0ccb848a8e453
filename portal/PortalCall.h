// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

namespace printdialog {

class RequestObjects;

/// How a call of the portal's front end ended.
enum class PortalResponse : uint { Done = 0, Canceled = 1, Failed = 2 };

/// A call that is answered later. While it is open, its caller can close it through the object at its handle.
class PortalCall : public QObject
{
    Q_OBJECT

public:
    /// The call is answered by this object, and not by its method. The requests outlive it.
    PortalCall(const QDBusConnection &bus, RequestObjects &requests, const QString &handle,
               const QDBusMessage &message, QObject *parent);
    /// Answers Failed unless it is answered.
    ~PortalCall() override;

    /// Whether it can be closed. It cannot when the handle is another open call's, or no handle.
    bool isOpen() const { return isOpen_; }
    /// At most once has an effect.
    void answer(PortalResponse response, const QVariantMap &results = {});
    /// The caller closes it; others on the bus cannot.
    void close(const QString &caller);

Q_SIGNALS:
    /// The caller wants no answer any more, or is gone. The call is answered Canceled already.
    void closed();

private:
    void end();

    QDBusConnection bus_;
    RequestObjects &requests_;
    QString handle_;
    QDBusMessage message_;
    bool isOpen_ = false;
    bool isAnswered_ = false;
};

} // namespace printdialog
