// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "AnnouncedServices.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <memory>

class QSocketNotifier;

namespace printdialog {

class PrinterLister;

/// How a look for printers on the network ended.
enum class NetworkLook {
    Complete,    ///< Every printer that was there has been found.
    Unavailable, ///< Avahi is not running, or cannot be asked.
    Silent,      ///< Avahi did not answer in time.
};

/// Why printers on the network may be missing, as a part of a sentence; empty for a complete look.
QString whyIncomplete(NetworkLook look);

/// Watches the printers that announce themselves on the network (DNS-SD), as they come and go. Main thread;
/// no call blocks, whatever Avahi and the system bus do. Without Avahi there are simply no printers.
class AnnouncedPrinters : public QObject
{
    Q_OBJECT

public:
    /// @param program see printerListProgram()
    /// @param pause before the program is started again, the first time
    explicit AnnouncedPrinters(const QString &program, QObject *parent = nullptr,
                               std::chrono::milliseconds pause = std::chrono::seconds(1));
    ~AnnouncedPrinters() override;

    /// Starts to look, unless it has already. The lister is started again when it ends, a few times.
    void start();
    bool isStarted() const { return isStarted_; }

    const AnnouncedServices &services() const { return services_; }
    /// How the first look ended; nothing while it lasts.
    std::optional<NetworkLook> firstLook() const { return firstLook_; }

Q_SIGNALS:
    /// The printer of this name came, changed or is gone, see services().
    void changed(const QString &queueName);
    /// The first look is over. Emitted once; printers may still come.
    void lookedOnce();

private:
    void launch();
    void read();
    void endFirstLook(NetworkLook look);

    QString program_;
    bool isStarted_ = false;
    int launches_ = 0;
    QTimer patience_; ///< for the first look
    QTimer relaunch_;
    std::unique_ptr<PrinterLister> lister_;
    std::unique_ptr<QSocketNotifier> notifier_; ///< destroyed before the lister closes its descriptor
    AnnouncementReader reader_;
    AnnouncedServices services_;
    std::optional<NetworkLook> firstLook_;
};

/// The printers on the network, found within the limit. Blocks, without an event loop; for runs without a
/// window. Main thread.
/// @param wanted the name of a queue: the look ends when it is found; empty: look for all
struct AnnouncedList
{
    AnnouncedServices services;
    NetworkLook look = NetworkLook::Silent;
};
AnnouncedList lookForAnnounced(PrinterLister &lister, std::chrono::milliseconds limit,
                               const QString &wanted = {});

} // namespace printdialog
