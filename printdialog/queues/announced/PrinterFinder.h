// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "AnnouncedPrinters.h"
#include "QueueFinder.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

namespace printdialog {

/// The queues with the announced printers that none of them is for, and with the user's instances of both.
QList<Queue> withAnnounced(const QList<Queue> &queues, const AnnouncedServices &services);

/// Finds the queues of the print server and the printers that announce themselves on the network, each of
/// which is one Queue: a queue hides the announced printer that it is for, and a temporary queue is shown as
/// its printer. Printers on the network are listed only when the server is this computer's own: another one
/// may not reach them. No call blocks.
class PrinterFinder : public QObject
{
    Q_OBJECT

public:
    explicit PrinterFinder(QObject *parent = nullptr);

    /// Starts to look. Does nothing while it runs.
    /// @param awaited the names of queues whose absence will be reported: finished() waits until each has
    /// been found, or has not been found on the network, either
    void start(const QSet<QString> &awaited);

    /// See QueueFinder.
    bool isWithoutPrintServer() const { return finder_.isWithoutPrintServer(); }
    /// Why printers on the network may be missing, as a part of a sentence; may be empty.
    QString whyIncomplete() const;

Q_SIGNALS:
    /// See QueueFinder.
    void queueFound(const printdialog::Queue &queue);
    void queueRemoved(const QString &id);
    void finished();
    void failed(const QString &text);

private:
    void addQueue(const Queue &queue);
    void removeQueue(const QString &id);
    void watchNetwork();
    void updateAnnounced(const QString &name);
    void showAnnounced(const QString &name);
    void changeKeys(const QStringList &keys, int step);
    void updateHidden(const QStringList &keys);
    QList<Queue> announced(const QString &name) const;
    bool isShownAnnounced(const QString &id) const;
    QStringList keysOf(const QString &id) const;
    void endSearch();

    QueueFinder finder_;
    AnnouncedPrinters network_;
    QTimer watching_;         ///< starts the watch of the network when the window is up
    QSet<QString> awaited_;   ///< and not found yet
    bool isSearched_ = false; ///< the server's first answer, or its failure, is here
    bool isFinished_ = false;
    QHash<QString, Queue> queues_;       ///< the server's, by id
    QHash<QString, int> keys_;           ///< of the server's lasting queues: how many have it
    QHash<QString, QList<Queue>> shown_; ///< the announced printers shown, with their instances, by name
    QHash<QString, QStringList> announcedKeys_; ///< the keys of all announced printers, by name
    QSet<QString> withdrawn_;                   ///< printers that are gone, and still have a temporary queue
};

} // namespace printdialog
