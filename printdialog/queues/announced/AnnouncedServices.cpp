// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AnnouncedServices.h"

#include "IppMessage.h"

#include <QtCore/QUrl>
#include <QtCore/QUrlQuery>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

bool isSame(const AnnouncedService &one, const AnnouncedService &other)
{
    return one.name == other.name && one.domain == other.domain && one.isEncrypted == other.isEncrypted;
}

/// With the address and not the host's name: the print server may not be able to look up a name in the
/// domain "local".
QString deviceUriOf(const AnnouncedService &service)
{
    std::array<char, 1024> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()),
                     service.isEncrypted ? "ipps" : "ipp", nullptr, service.address.toUtf8().constData(),
                     service.port, "/%s", service.path.toUtf8().constData());
    return QString::fromUtf8(uri.data());
}

QString nameKey(const QString &queueName)
{
    return QStringLiteral("name:") + queueName.toLower(); // CUPS ignores the case
}

QString serviceKey(const QString &fullName)
{
    const QString name = fullName.endsWith(u'.') ? fullName.chopped(1) : fullName;
    return QStringLiteral("service:") + name.toLower();
}

QString placeKey(const QString &host, int port, const QString &path)
{
    const QString name = host.endsWith(u'.') ? host.chopped(1) : host;
    return QStringLiteral("place:%1:%2/%3").arg(name.toLower()).arg(port).arg(path);
}

QStringList keysOf(const QString &queueName, const AnnouncedService &service)
{
    QStringList keys = {nameKey(queueName), placeKey(service.host, service.port, service.path),
                        placeKey(service.address, service.port, service.path)};
    for (const QLatin1String type : {QLatin1String("_ipp._tcp"), QLatin1String("_ipps._tcp")})
        keys.append(serviceKey(QStringLiteral("%1.%2.%3").arg(service.name, type, service.domain)));
    if (!service.uuid.isEmpty())
        keys.append(QStringLiteral("uuid:") + service.uuid);
    // A print server announces the queues that it shares; this computer's are listed as what they are.
    for (const QLatin1String folder : {QLatin1String("printers/"), QLatin1String("classes/")}) {
        if (service.isLocal && service.path.startsWith(folder))
            keys.append(nameKey(service.path.mid(folder.size())));
    }
    return keys;
}

} // namespace

QString queueNameOf(const QString &serviceName)
{
    QByteArray name;
    const QByteArray bytes = serviceName.toUtf8();
    for (const char byte : bytes) {
        const bool isKept =
            (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
        if (isKept)
            name.append(byte);
        else if (!name.endsWith('_'))
            name.append('_');
    }
    if (name.size() > 1 && name.endsWith('_'))
        name.chop(1);
    return QString::fromLatin1(name);
}

QStringList printerKeys(const Queue &queue)
{
    QStringList keys = {nameKey(queue.name)};
    std::array<char, HTTP_MAX_URI> scheme = {};
    std::array<char, HTTP_MAX_URI> user = {};
    std::array<char, HTTP_MAX_URI> host = {};
    std::array<char, HTTP_MAX_URI> resource = {};
    int port = 0;
    if (httpSeparateURI(HTTP_URI_CODING_MOST, queue.deviceUri.toUtf8().constData(), scheme.data(),
                        static_cast<int>(scheme.size()), user.data(), static_cast<int>(user.size()),
                        host.data(), static_cast<int>(host.size()), &port, resource.data(),
                        static_cast<int>(resource.size())) < HTTP_URI_STATUS_OK)
        return keys;
    const QString name = QString::fromUtf8(host.data());
    const QString path = QString::fromUtf8(resource.data());
    if (name.contains(QLatin1String("._tcp"), Qt::CaseInsensitive))
        keys.append(serviceKey(name));
    else if (qstrncmp(scheme.data(), "ipp", 3) == 0 || qstrncmp(scheme.data(), "http", 4) == 0)
        keys.append(placeKey(name, port, path.section(u'?', 0, 0).mid(1)));
    const QString uuid = QUrlQuery(path.section(u'?', 1)).queryItemValue(QStringLiteral("uuid"));
    if (!uuid.isEmpty())
        keys.append(QStringLiteral("uuid:") + uuid.toLower());
    return keys;
}

QStringList AnnouncedServices::apply(const Announcement &announcement)
{
    const QString name = queueNameOf(announcement.service.name);
    switch (announcement.event) {
    case Announcement::Event::Began:
        ++round_;
        return {};
    case Announcement::Event::Found:
        put(name, announcement.service);
        return {name};
    case Announcement::Event::Gone:
        drop(name, [&](const Known &known) { return isSame(known.service, announcement.service); });
        return {name};
    case Announcement::Event::Complete: {
        const QStringList before = names_;
        for (const QString &each : before)
            drop(each, [this](const Known &known) { return known.round != round_; });
        return before;
    }
    case Announcement::Event::Unavailable:
        break;
    }
    return {};
}

void AnnouncedServices::put(const QString &name, const AnnouncedService &service)
{
    if (!services_.contains(name)) {
        if (names_.size() >= mostPrinters)
            return;
        names_.append(name);
    }
    QList<Known> &known = services_[name];
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&](const Known &each) { return isSame(each.service, service); });
    if (found != known.end())
        *found = {service, round_};
    else if (known.size() < mostServices)
        known.append({service, round_});
}

void AnnouncedServices::drop(const QString &name, const std::function<bool(const Known &)> &isDropped)
{
    const auto found = services_.find(name);
    if (found == services_.end())
        return;
    found->removeIf(isDropped);
    if (!found->isEmpty())
        return;
    services_.erase(found);
    names_.removeOne(name);
}

std::optional<AnnouncedPrinter> AnnouncedServices::printer(const QString &queueName) const
{
    const QList<Known> known = services_.value(queueName);
    if (known.isEmpty())
        return std::nullopt;
    // Only the same host's: otherwise anybody could take the printer's place with an encrypted service.
    const AnnouncedService &first = known.constFirst().service;
    const auto encrypted = std::find_if(known.cbegin(), known.cend(), [&first](const Known &each) {
        const AnnouncedService &service = each.service;
        return service.isEncrypted && service.name == first.name && service.domain == first.domain &&
               service.host == first.host;
    });
    const AnnouncedService &service = encrypted == known.cend() ? first : encrypted->service;
    AnnouncedPrinter printer;
    printer.queue.name = queueName;
    printer.queue.info = service.name;
    printer.queue.location = service.location;
    printer.queue.makeAndModel = service.model;
    printer.queue.deviceUri = deviceUriOf(service);
    printer.queue.acceptsJobs = true;
    printer.queue.isAnnounced = true;
    for (const Known &each : known) {
        if (each.service.name == first.name && each.service.domain == first.domain)
            printer.keys += keysOf(queueName, each.service);
    }
    printer.keys.removeDuplicates();
    return printer;
}

} // namespace printdialog
