// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AnnouncedPrinters.h"

#include "PrinterLister.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QSocketNotifier>

#include <algorithm>
#include <poll.h>
#include <utility>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto firstLookPatience = 3s;
/// A lister that ends is started again so often, after longer and longer pauses.
constexpr int mostRelaunches = 3;
constexpr int pauseGrowth = 5;

struct NetworkText
{
    Q_DECLARE_TR_FUNCTIONS(AnnouncedPrinters)
};

std::optional<NetworkLook> endOfLook(const Announcement &announcement)
{
    switch (announcement.event) {
    case Announcement::Event::Complete:
        return NetworkLook::Complete;
    case Announcement::Event::Unavailable:
        return NetworkLook::Unavailable;
    default:
        return std::nullopt;
    }
}

} // namespace

QString whyIncomplete(NetworkLook look)
{
    switch (look) {
    case NetworkLook::Unavailable:
        return NetworkText::tr("printers on the network are not listed, because Avahi is not running");
    case NetworkLook::Silent:
        return NetworkText::tr("printers on the network are not listed, because Avahi does not answer");
    case NetworkLook::Complete:
        break;
    }
    return {};
}

AnnouncedPrinters::AnnouncedPrinters(const QString &program, QObject *parent, std::chrono::milliseconds pause)
    : QObject(parent)
    , program_(program)
{
    patience_.setSingleShot(true);
    patience_.setInterval(firstLookPatience);
    connect(&patience_, &QTimer::timeout, this, [this] { endFirstLook(NetworkLook::Silent); });
    relaunch_.setSingleShot(true);
    relaunch_.setInterval(pause);
    connect(&relaunch_, &QTimer::timeout, this, &AnnouncedPrinters::launch);
}

AnnouncedPrinters::~AnnouncedPrinters() = default;

void AnnouncedPrinters::start()
{
    if (std::exchange(isStarted_, true))
        return;
    patience_.start();
    launch();
}

void AnnouncedPrinters::launch()
{
    reader_ = {};
    lister_ = std::make_unique<PrinterLister>(program_);
    if (launches_++ > 0)
        relaunch_.setInterval(relaunch_.interval() * pauseGrowth);
    if (!lister_->isRunning()) {
        lister_.reset();
        // Queued, so that start() emits nothing.
        QMetaObject::invokeMethod(
            this, [this] { endFirstLook(NetworkLook::Unavailable); }, Qt::QueuedConnection);
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(lister_->descriptor(), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &AnnouncedPrinters::read);
}

// What was found stays when the lister ends: it may well be there, and a printer that is not is found out
// when it is chosen.
void AnnouncedPrinters::read()
{
    const auto bytes = lister_->read();
    if (!bytes) {
        notifier_->setEnabled(false);
        notifier_.release()->deleteLater(); // it is the sender
        lister_.reset();
        if (launches_ <= mostRelaunches)
            relaunch_.start();
        return;
    }
    const QPointer<AnnouncedPrinters> self(this);
    const QList<Announcement> announcements = reader_.read(*bytes);
    for (const Announcement &announcement : announcements) {
        const QStringList names = services_.apply(announcement);
        for (const QString &name : names) {
            Q_EMIT changed(name);
            if (!self)
                return;
        }
        if (const auto look = endOfLook(announcement))
            endFirstLook(*look);
        if (!self)
            return;
    }
}

void AnnouncedPrinters::endFirstLook(NetworkLook look)
{
    if (firstLook_)
        return;
    patience_.stop();
    firstLook_ = look;
    Q_EMIT lookedOnce();
}

AnnouncedList lookForAnnounced(PrinterLister &lister, std::chrono::milliseconds limit, const QString &wanted)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    AnnouncedList list;
    AnnouncementReader reader;
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left <= 0ms)
            return list;
        pollfd watched = {lister.descriptor(), POLLIN, 0};
        if (lister.isRunning())
            ::poll(&watched, 1, static_cast<int>(left.count()));
        const auto bytes = lister.read();
        if (!bytes) {
            list.look = NetworkLook::Unavailable;
            return list;
        }
        const QList<Announcement> announcements = reader.read(*bytes);
        for (const Announcement &announcement : announcements) {
            list.services.apply(announcement);
            if (const auto look = endOfLook(announcement)) {
                list.look = *look;
                return list;
            }
        }
        if (!wanted.isEmpty() && list.services.names().contains(wanted)) {
            list.look = NetworkLook::Complete;
            return list;
        }
    }
}

} // namespace printdialog
