// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "UserNotice.h"

#include "SystemLog.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtWidgets/QMessageBox>

namespace printdialog {

namespace {

constexpr int patience = 5000; // milliseconds

QDBusMessage toNotifications(const char *method)
{
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QLatin1String(method));
}

} // namespace

UserNotice::UserNotice(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , bus_(bus)
{
}

void UserNotice::show(const QString &summary, const QString &text)
{
    pdekit::systemLog(text);
    ++open_;
    auto *asked =
        new QDBusPendingCallWatcher(bus_.asyncCall(toNotifications("GetCapabilities"), patience), this);
    connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked, summary, text] {
        asked->deleteLater();
        const QDBusPendingReply<QStringList> capabilities = *asked;
        if (capabilities.isError())
            return showWindow(summary, text);
        const bool hasMarkup = capabilities.value().contains(QLatin1String("body-markup"));
        QDBusMessage message = toNotifications("Notify");
        message << QStringLiteral("corvel-print") << 0U << QStringLiteral("corvel-print") << summary
                << (hasMarkup ? text.toHtmlEscaped() : text) << QStringList() << QVariantMap() << -1;
        auto *notified = new QDBusPendingCallWatcher(bus_.asyncCall(message, patience), this);
        connect(notified, &QDBusPendingCallWatcher::finished, this, [this, notified, summary, text] {
            notified->deleteLater();
            if (notified->isError())
                return showWindow(summary, text);
            --open_;
            Q_EMIT over();
        });
    });
}

void UserNotice::showWindow(const QString &summary, const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Warning, summary, text, QMessageBox::Close);
    box->setObjectName(QStringLiteral("notice"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::NonModal);
    connect(box, &QObject::destroyed, this, [this] {
        --open_;
        Q_EMIT over();
    });
    box->show();
}

} // namespace printdialog
