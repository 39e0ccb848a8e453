// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrinterSelection.h"
#include "Queue.h"

#include <QtCore/QHash>
#include <QtWidgets/QComboBox>

#include <functional>
#include <optional>

namespace printdialog {

class PrinterFinder;

/// The printers to choose from: at once the built-in one and the one remembered from the last time, then the
/// queues of the print server and the printers on the network while they exist.
class PrinterChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit PrinterChooser(QWidget *parent = nullptr);

    /// Shows the queue's id, with no printer chosen, until a search finds the queue or the user chooses one.
    void await(const QString &id);
    /// Makes a printer remembered from an earlier run the current one, before a server is asked for it.
    void recall(const Queue &queue, PrinterSelection::State state);
    /// Starts looking for queues. The queue `wanted`, or else the default, becomes current when it is found,
    /// if the selection allows it.
    void search(const std::optional<Destination> &wanted);
    /// Chooses the built-in printer as if the user had.
    void chooseBuiltIn();
    /// Sets the function that is called when the user chooses another printer. It returns the id of the
    /// printer that must stay, or nothing.
    void setStaying(const std::function<std::optional<QString>()> &staying) { staying_ = staying; }
    Queue current() const;
    PrinterSelection &selection() { return selection_; }

Q_SIGNALS:
    /// Another printer is now the current one.
    void printerChosen(const printdialog::Queue &queue);
    /// The print server has news of the current printer: its state, its supplies, or that the recalled one
    /// exists.
    void currentUpdated(const printdialog::Queue &queue);
    /// The search did not find the printer, or the print server cannot be reached: a sentence or two for
    /// people. There may be no current printer now.
    void searchFailed(const QString &text);
    /// The current queue was removed; another printer is now the current one.
    void currentRemoved(const QString &text);

private:
    void updateQueue(const Queue &queue);
    void add(const Queue &queue);
    void update(int index, const Queue &queue);
    void remove(const QString &id);
    void drop(int index);
    void forgetRecalled();
    QString missing(const Destination &destination) const;
    void endSearch();
    void choose(int index);
    int indexOf(const QString &id) const { return indexes_.value(id, -1); }

    PrinterFinder *finder_;
    std::function<std::optional<QString>()> staying_;
    QHash<QString, int> indexes_; ///< by id
    PrinterSelection selection_;
    QString failure_; ///< why the server could not be asked
};

} // namespace printdialog
