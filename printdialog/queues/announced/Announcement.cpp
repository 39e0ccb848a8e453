// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Announcement.h"

#include "PlainText.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <arpa/inet.h>
#include <array>

namespace printdialog {

namespace {

constexpr qsizetype serviceNameLimit = 63; // bytes, by DNS
constexpr qsizetype domainLimit = 255;     // bytes, by DNS
constexpr qsizetype pathLimit = 127;
constexpr qsizetype interfaceLimit = 15;
constexpr qsizetype uuidLength = 36;

struct EventName
{
    const char *name;
    Announcement::Event event;
};

constexpr std::array eventNames = {
    EventName{"began", Announcement::Event::Began},
    EventName{"found", Announcement::Event::Found},
    EventName{"gone", Announcement::Event::Gone},
    EventName{"complete", Announcement::Event::Complete},
    EventName{"unavailable", Announcement::Event::Unavailable},
};

bool isAsciiAlphanumeric(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z') ||
           (character >= u'0' && character <= u'9');
}

bool consistsOf(const QString &text, const QString &others)
{
    return std::all_of(text.cbegin(), text.cend(), [&others](QChar character) {
        return isAsciiAlphanumeric(character) || others.contains(character);
    });
}

/// A name that needs cleaning would afterwards be another service's.
bool isName(const QString &text, qsizetype limit)
{
    return !text.isEmpty() && text.toUtf8().size() <= limit && plainText(text) == text;
}

bool isAddress(const QString &text)
{
    const QString address = text.section(u'%', 0, 0);
    const QString interface = text.section(u'%', 1);
    std::array<unsigned char, sizeof(in6_addr)> binary = {};
    if (inet_pton(AF_INET, address.toLatin1().constData(), binary.data()) == 1)
        return address == text;
    return inet_pton(AF_INET6, address.toLatin1().constData(), binary.data()) == 1 &&
           interface.size() <= interfaceLimit && consistsOf(interface, QStringLiteral(".-_"));
}

QString shown(const QJsonValue &value)
{
    return plainText(value.toString().simplified(), shownTextLimit);
}

std::optional<AnnouncedService> serviceOf(const QJsonObject &object, bool isWhole)
{
    AnnouncedService service;
    service.name = object[QLatin1String("name")].toString();
    service.domain = object[QLatin1String("domain")].toString();
    const QString type = object[QLatin1String("type")].toString();
    service.isEncrypted = type == QLatin1String("_ipps._tcp");
    if (!isName(service.name, serviceNameLimit) || !isName(service.domain, domainLimit) ||
        !(service.isEncrypted || type == QLatin1String("_ipp._tcp")))
        return std::nullopt;
    if (!isWhole)
        return service;
    service.isLocal = object[QLatin1String("local")].toBool();
    service.host = object[QLatin1String("host")].toString();
    service.address = object[QLatin1String("address")].toString();
    service.port = object[QLatin1String("port")].toInt();
    service.path = object[QLatin1String("path")].toString();
    service.model = shown(object[QLatin1String("model")]);
    service.location = shown(object[QLatin1String("location")]);
    service.uuid = object[QLatin1String("uuid")].toString().toLower();
    if (!isName(service.host, domainLimit) || !isAddress(service.address) || service.port < 1 ||
        service.port > 65535 || service.path.size() > pathLimit || service.path.startsWith(u'/') ||
        !consistsOf(service.path, QStringLiteral("/._-~+@:,=!*()")))
        return std::nullopt;
    if (service.uuid.size() != uuidLength || !consistsOf(service.uuid, QStringLiteral("-")))
        service.uuid.clear();
    return service;
}

std::optional<Announcement> announcementOf(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString name = object[QLatin1String("event")].toString();
    const auto *const row =
        std::find_if(eventNames.begin(), eventNames.end(),
                     [&name](const EventName &each) { return name == QLatin1String(each.name); });
    if (row == eventNames.end())
        return std::nullopt;
    const bool isFound = row->event == Announcement::Event::Found;
    if (!isFound && row->event != Announcement::Event::Gone)
        return Announcement{row->event, {}};
    const auto service = serviceOf(object, isFound);
    return service ? std::optional(Announcement{row->event, *service}) : std::nullopt;
}

} // namespace

QList<Announcement> AnnouncementReader::read(const QByteArray &bytes)
{
    QList<Announcement> announcements;
    for (qsizetype begin = 0; begin < bytes.size();) {
        const qsizetype end = bytes.indexOf('\n', begin);
        const qsizetype size = (end < 0 ? bytes.size() : end) - begin;
        isTooLong_ = isTooLong_ || line_.size() + size > lineLimit;
        if (!isTooLong_)
            line_.append(bytes.constData() + begin, size);
        if (end < 0)
            break;
        if (const auto announcement = isTooLong_ ? std::nullopt : announcementOf(line_))
            announcements.append(*announcement);
        line_.clear();
        isTooLong_ = false;
        begin = end + 1;
    }
    return announcements;
}

} // namespace printdialog
