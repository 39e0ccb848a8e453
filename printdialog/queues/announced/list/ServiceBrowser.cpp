// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ServiceBrowser.h"

#include "PlainText.h"

#include <QtCore/QJsonDocument>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusServiceWatcher>

#include <array>
#include <chrono>
#include <limits>
#include <net/if.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

const QString avahi = QStringLiteral("org.freedesktop.Avahi");
const QString serverInterface = avahi + QStringLiteral(".Server");
const QString browserInterface = avahi + QStringLiteral(".ServiceBrowser");
const QString resolverInterface = avahi + QStringLiteral(".ServiceResolver");

// Avahi's numbers.
constexpr int anyInterface = -1;
constexpr int anyProtocol = -1;
constexpr int ipv4 = 0;
constexpr int ipv6 = 1;
constexpr uint isLocalFlag = 8;

/// Two types of each printer. Avahi limits the objects of a client, too.
constexpr qsizetype mostServices = 400;
constexpr qsizetype textLimit = 300;
/// What a printer announces arrives within milliseconds, and is written together. More often would only keep
/// the reader busy.
constexpr auto writingPause = 25ms;

/// What is announced together with its address is resolved long before.
constexpr auto stragglingLimit = 1s;

/// Avahi may be stopped for any time; it answers when it continues.
constexpr int noTimeout = std::numeric_limits<int>::max();

/// The values of a TXT record by their keys in lower case. Of a key that comes twice, the first counts.
QMap<QString, QString> textsIn(const QVariant &record)
{
    QMap<QString, QString> texts;
    const auto entries = qdbus_cast<QList<QByteArray>>(record);
    for (const QByteArray &entry : entries) {
        const qsizetype end = entry.indexOf('=');
        const QString key = QString::fromLatin1(entry.left(end)).toLower();
        if (end > 0 && !texts.contains(key))
            texts.insert(key, plainText(QString::fromUtf8(entry.mid(end + 1)), textLimit));
    }
    return texts;
}

QString withInterface(const QString &address, int interface)
{
    std::array<char, IF_NAMESIZE> name = {};
    const bool isLinkLocal = address.startsWith(QLatin1String("fe80:"), Qt::CaseInsensitive);
    if (!isLinkLocal || !if_indextoname(static_cast<unsigned>(interface), name.data()))
        return address;
    return address + u'%' + QString::fromLatin1(name.data());
}

QString withoutSlash(const QString &path)
{
    return path.startsWith(u'/') ? path.mid(1) : path;
}

void writeLine(const QJsonObject &object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    for (qsizetype done = 0; done < line.size();) {
        const ssize_t count =
            ::write(STDOUT_FILENO, line.constData() + done, static_cast<size_t>(line.size() - done));
        if (count <= 0)
            ::_exit(0); // nobody reads any more
        done += count;
    }
}

QJsonObject lineOf(const QString &name)
{
    return {{QStringLiteral("event"), name}};
}

} // namespace

ServiceBrowser::ServiceBrowser(const QDBusConnection &bus)
    : bus_(bus)
{
    qDBusRegisterMetaType<QList<QByteArray>>();
    writing_.setSingleShot(true);
    writing_.setInterval(writingPause);
    connect(&writing_, &QTimer::timeout, this, &ServiceBrowser::writeChanges);
    straggling_.setSingleShot(true);
    straggling_.setInterval(stragglingLimit);
    connect(&straggling_, &QTimer::timeout, this, &ServiceBrowser::stopWaiting);
    auto *watcher = new QDBusServiceWatcher(avahi, bus_, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &ServiceBrowser::browse);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &ServiceBrowser::forget);
    // Of every object, since the first signals follow before the answer that says which object it is.
    const auto listen = [this](const QString &interface, const char *signal, const char *slot) {
        bus_.connect(avahi, QString(), interface, QString::fromLatin1(signal), this, slot);
    };
    listen(browserInterface, "ItemNew", SLOT(itemNew(QDBusMessage)));
    listen(browserInterface, "ItemRemove", SLOT(itemRemove(QDBusMessage)));
    listen(browserInterface, "AllForNow", SLOT(allForNow(QDBusMessage)));
    listen(resolverInterface, "Found", SLOT(found(QDBusMessage)));
    listen(resolverInterface, "Failure", SLOT(failed(QDBusMessage)));
}

void ServiceBrowser::start()
{
    // Not by asking Avahi itself: the bus would start it.
    if (bus_.interface()->isServiceRegistered(avahi))
        browse();
    else
        writeLine(lineOf(QStringLiteral("unavailable")));
}

void ServiceBrowser::browse()
{
    forget();
    writeLine(lineOf(QStringLiteral("began")));
    isComplete_ = false;
    for (const QString &type : {QStringLiteral("_ipps._tcp"), QStringLiteral("_ipp._tcp")}) {
        browsing_.insert(type);
        call(QStringLiteral("ServiceBrowserNew"), {anyInterface, anyProtocol, type, QString(), 0U},
             [this, type](const QDBusMessage &answer) {
                 if (answer.type() == QDBusMessage::ErrorMessage && browsing_.remove(type))
                     writeSoon();
                 else
                     browsers_.insert(answer.arguments().value(0).value<QDBusObjectPath>().path(), type);
             });
    }
}

void ServiceBrowser::forget()
{
    ++round_;
    straggling_.stop();
    services_.clear();
    browsing_.clear();
    browsers_.clear();
    isComplete_ = true;
}

void ServiceBrowser::call(const QString &method, const QVariantList &arguments,
                          const std::function<void(const QDBusMessage &)> &answered)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(avahi, QStringLiteral("/"), serverInterface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message, noTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [round = round_, answered, this](QDBusPendingCallWatcher *self) {
                self->deleteLater();
                if (round == round_)
                    answered(self->reply());
            });
}

// What Avahi reports

ServiceBrowser::Id ServiceBrowser::idIn(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    return {arguments.value(2).toString(), arguments.value(3).toString(), arguments.value(4).toString()};
}

namespace {

QString placeIn(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    return QStringLiteral("%1 %2").arg(arguments.value(0).toInt()).arg(arguments.value(1).toInt());
}

} // namespace

void ServiceBrowser::itemNew(const QDBusMessage &message)
{
    const Id id = idIn(message);
    const bool isNew = !services_.contains(id);
    if (isNew && services_.size() >= mostServices)
        return;
    Service &service = services_[id];
    service.places.insert(placeIn(message));
    service.isLocal = (message.arguments().value(5).toUInt() & isLocalFlag) != 0;
    if (isNew)
        resolve(id);
}

void ServiceBrowser::itemRemove(const QDBusMessage &message)
{
    const auto service = services_.find(idIn(message));
    if (service == services_.end())
        return;
    service->places.remove(placeIn(message));
    if (!service->places.isEmpty())
        return;
    free(service->resolver);
    if (!service->shown.isEmpty()) {
        QJsonObject line = lineOf(QStringLiteral("gone"));
        for (const QString &key : {QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("domain")})
            line.insert(key, service->shown.value(key));
        writeLine(line);
    }
    services_.erase(service);
    writeSoon(); // it may have been the last that was waited for
}

void ServiceBrowser::allForNow(const QDBusMessage &message)
{
    if (browsing_.remove(browsers_.value(message.path())) && browsing_.isEmpty())
        straggling_.start();
    writeSoon();
}

/// A service that was announced without its address may never be resolved.
void ServiceBrowser::stopWaiting()
{
    for (Service &service : services_)
        service.isPending = false;
    writeSoon();
}

void ServiceBrowser::resolve(const Id &id)
{
    call(QStringLiteral("ServiceResolverNew"),
         {anyInterface, anyProtocol, id.name, id.type, id.domain, services_.value(id).addressProtocol, 0U},
         [this, id](const QDBusMessage &answer) {
             const QString path = answer.arguments().value(0).value<QDBusObjectPath>().path();
             const auto service = services_.find(id);
             if (service == services_.end())
                 free(path);
             else if (answer.type() == QDBusMessage::ErrorMessage)
                 service->isPending = false;
             else
                 service->resolver = path;
         });
}

void ServiceBrowser::free(const QString &resolver)
{
    if (!resolver.isEmpty())
        bus_.send(QDBusMessage::createMethodCall(avahi, resolver, resolverInterface, QStringLiteral("Free")));
}

void ServiceBrowser::found(const QDBusMessage &message)
{
    const Id id = idIn(message);
    const auto service = services_.find(id);
    if (service == services_.end())
        return;
    const QVariantList arguments = message.arguments();
    const QMap<QString, QString> texts = textsIn(arguments.value(9));
    service->isPending = false;
    service->current = {
        {QStringLiteral("event"), QStringLiteral("found")},
        {QStringLiteral("name"), id.name},
        {QStringLiteral("type"), id.type},
        {QStringLiteral("domain"), id.domain},
        {QStringLiteral("local"), service->isLocal},
        {QStringLiteral("host"), arguments.value(5).toString()},
        {QStringLiteral("address"), withInterface(arguments.value(7).toString(), arguments.value(0).toInt())},
        {QStringLiteral("port"), static_cast<int>(arguments.value(8).value<ushort>())},
        {QStringLiteral("path"),
         withoutSlash(texts.value(QStringLiteral("rp"), QStringLiteral("ipp/print")))},
        {QStringLiteral("model"), texts.value(QStringLiteral("ty"))},
        {QStringLiteral("location"), texts.value(QStringLiteral("note"))},
        {QStringLiteral("uuid"), texts.value(QStringLiteral("uuid"))},
    };
    writeSoon();
}

// A printer without an IPv4 address is asked for an IPv6 one.
void ServiceBrowser::failed(const QDBusMessage &message)
{
    for (auto service = services_.begin(); service != services_.end(); ++service) {
        if (service->resolver != message.path())
            continue;
        free(service->resolver);
        service->resolver.clear();
        if (service->addressProtocol == ipv4) {
            service->addressProtocol = ipv6;
            resolve(service.key());
        } else {
            service->isPending = false;
            writeSoon();
        }
        return;
    }
}

// What is written

void ServiceBrowser::writeSoon()
{
    if (!writing_.isActive())
        writing_.start();
}

void ServiceBrowser::writeChanges()
{
    bool isPending = !browsing_.isEmpty();
    for (Service &service : services_) {
        isPending = isPending || service.isPending;
        if (service.current == service.shown)
            continue;
        writeLine(service.current);
        service.shown = service.current;
    }
    if (!isPending && !std::exchange(isComplete_, true))
        writeLine(lineOf(QStringLiteral("complete")));
}

} // namespace printdialog
