// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Announcement.h"
#include "Queue.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

namespace printdialog {

/// The name of the queue that CUPS makes for a service, so that what is kept for a printer by its name is
/// lp(1)'s, too: each run of bytes that are not ASCII letters or digits becomes one underscore, and one at
/// the end is left out.
QString queueNameOf(const QString &serviceName);

/// A printer that is known only because it announces itself. A plain value.
struct AnnouncedPrinter
{
    /// What can be said of it before there is a queue: name, description, location, model, device URI.
    Queue queue;
    /// By what it is recognized as the printer of a queue, see printerKeys().
    QStringList keys;
};

/// What the printer of a queue of the print server can be recognized by: the queue's name, and from its
/// device URI the service, its UUID, or the host with its port and path. A queue hides the announced printers
/// that share a key with it.
QStringList printerKeys(const Queue &queue);

/// The announced services, as the printers that they stand for. Services with the same queue name are one
/// printer: the one found first, which is spoken to with encryption if the same host offers that as well.
class AnnouncedServices
{
public:
    /// Further printers, and further services of one, are ignored: nobody finds a printer among so many.
    static constexpr qsizetype mostPrinters = 200;
    static constexpr qsizetype mostServices = 8;

    /// Takes note of an announcement. Returns the names of the printers that it concerns.
    QStringList apply(const Announcement &announcement);

    /// In the order in which they were found.
    const QStringList &names() const { return names_; }
    std::optional<AnnouncedPrinter> printer(const QString &queueName) const;

private:
    struct Known
    {
        AnnouncedService service;
        int round; ///< in which it was last found
    };

    void put(const QString &name, const AnnouncedService &service);
    void drop(const QString &name, const std::function<bool(const Known &)> &isDropped);

    QStringList names_;
    QHash<QString, QList<Known>> services_; ///< by the queue's name
    int round_ = 0;
};

} // namespace printdialog
