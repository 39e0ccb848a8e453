// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <functional>
#include <tuple>

namespace printdialog {

/// Asks Avahi for print services, resolves each, and writes what comes, changes and goes to the standard
/// output.
class ServiceBrowser : public QObject
{
    Q_OBJECT

public:
    explicit ServiceBrowser(const QDBusConnection &bus);

    void start();

private Q_SLOTS:
    // Signals of Avahi, by their names there.
    void itemNew(const QDBusMessage &message);
    void itemRemove(const QDBusMessage &message);
    void allForNow(const QDBusMessage &message);
    void found(const QDBusMessage &message);
    void failed(const QDBusMessage &message);

private:
    struct Id
    {
        QString name;
        QString type;
        QString domain;

        friend bool operator<(const Id &one, const Id &other)
        {
            return std::tie(one.name, one.type, one.domain) < std::tie(other.name, other.type, other.domain);
        }
    };
    struct Service
    {
        QSet<QString> places; ///< network interfaces and protocols on which it was seen
        int addressProtocol = 0;
        QString resolver; ///< its path at Avahi; empty before there is one
        bool isLocal = false;
        bool isPending = true; ///< neither resolved nor failed yet
        QJsonObject shown;     ///< the line written last; empty before
        QJsonObject current;   ///< the line to write; empty while it is not resolved
    };

    void browse();
    void forget();
    void resolve(const Id &id);
    void free(const QString &resolver);
    void call(const QString &method, const QVariantList &arguments,
              const std::function<void(const QDBusMessage &)> &answered);
    static Id idIn(const QDBusMessage &message);
    void stopWaiting();
    void writeSoon();
    void writeChanges();

    QDBusConnection bus_;
    QTimer writing_;
    QTimer straggling_; ///< the wait for services that are not resolved
    QMap<Id, Service> services_;
    QMap<QString, QString> browsers_; ///< their types by their paths at Avahi
    QSet<QString> browsing_;          ///< types of which Avahi has not reported everything yet
    int round_ = 0;                   ///< answers to calls of earlier rounds are out of date
    bool isComplete_ = false;
};

} // namespace printdialog
