// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusAbstractAdaptor>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

namespace printdialog {

/// How a call of the portal's front end ended.
enum class PortalResponse : uint { Done = 0, Canceled = 1, Failed = 2 };

/// A call that is answered later. While it is open, its caller can close it through the object at its handle.
class PortalCall : public QObject
{
    Q_OBJECT

public:
    /// The call is answered by this object, and not by its method.
    PortalCall(const QDBusConnection &bus, const QString &handle, const QDBusMessage &message,
               QObject *parent);
    /// Answers Failed unless it is answered.
    ~PortalCall() override;

    /// Whether it can be closed. It cannot when the handle is another open call's, or no path.
    bool isOpen() const { return isOpen_; }
    /// At most once has an effect.
    void answer(PortalResponse response, const QVariantMap &results = {});

Q_SIGNALS:
    /// The caller wants no answer any more, or is gone. The call is answered Canceled already.
    void closed();

private:
    friend class RequestAdaptor;

    void close(const QString &caller);
    void end();

    QDBusConnection bus_;
    QString handle_;
    QDBusMessage message_;
    bool isOpen_ = false;
    bool isAnswered_ = false;
};

class RequestAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Request")

public:
    explicit RequestAdaptor(PortalCall *call)
        : QDBusAbstractAdaptor(call)
        , call_(call)
    {
    }

public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): the interface's name
    void Close(const QDBusMessage &message) { call_->close(message.service()); }

private:
    PortalCall *call_;
};

} // namespace printdialog
