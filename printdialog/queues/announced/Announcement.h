// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// A print service that a printer announces by DNS-SD. All texts are plain text and limited in length.
struct AnnouncedService
{
    QString name;             ///< For people, as announced: "Photo corner".
    QString domain;           ///< Mostly "local".
    bool isEncrypted = false; ///< _ipps._tcp; else _ipp._tcp.
    bool isLocal = false;     ///< Announced by this computer.
    QString host;             ///< The host's name; not necessarily one that this computer can look up.
    QString address;          ///< A numeric address; a link-local one ends with "%interface".
    int port = 0;             ///< 1 to 65535.
    QString path;             ///< Of the printer at its host, without a slash at the beginning.
    QString model;            ///< May be empty.
    QString location;         ///< May be empty.
    QString uuid;             ///< Lower case; may be empty.

    friend bool operator==(const AnnouncedService &, const AnnouncedService &) = default;
};

/// One line of corvel-printer-list.
struct Announcement
{
    enum class Event {
        Began,       ///< Services are being looked for, anew after an interruption.
        Found,       ///< A service is there, or something about it has changed.
        Gone,        ///< A service is gone; only its name, domain and isEncrypted are set.
        Complete,    ///< What was there at the beginning has been found.
        Unavailable, ///< Avahi is not running.
    };
    Event event = Event::Began;
    AnnouncedService service;
};

/// Reads the lines of corvel-printer-list, which hold what strangers announce. A line that is malformed, has
/// a value out of range or is too long is ignored.
class AnnouncementReader
{
public:
    /// The longest line, in bytes.
    static constexpr qsizetype lineLimit = 4096;

    /// The announcements in the lines that these bytes complete.
    QList<Announcement> read(const QByteArray &bytes);

private:
    QByteArray line_;        ///< its beginning, at most lineLimit
    bool isTooLong_ = false; ///< ignore the rest of the line
};

} // namespace printdialog
