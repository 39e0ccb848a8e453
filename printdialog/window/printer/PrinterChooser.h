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

class QueueFinder;

/// The printers to choose from: the built-in one at once, with the one remembered from the last time, and the
/// queues of the print server as they are found and as long as they are there.
class PrinterChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit PrinterChooser(QWidget *parent = nullptr);

    /// Shows the queue's id with no printer chosen, until a search has found the queue or the user chooses.
    void await(const QString &id);
    /// Makes a printer from an earlier time the current one, before any server has been asked for it.
    void recall(const Queue &queue, PrinterSelection::State state);
    /// Starts to look for queues. The queue `wanted`, or else the default, is chosen when it is found, as far
    /// as the selection has it.
    void search(const std::optional<Destination> &wanted);
    /// As if the user had chosen it.
    void chooseBuiltIn();
    /// Asked when the user chooses another printer: the id of the printer that is to stay, nothing when none
    /// is.
    void setStaying(const std::function<std::optional<QString>()> &staying) { staying_ = staying; }
    Queue current() const;
    PrinterSelection &selection() { return selection_; }

Q_SIGNALS:
    /// Another printer is the current one now.
    void printerChosen(const printdialog::Queue &queue);
    /// The print server has something new to say about the current printer: its state, its supplies, or that
    /// the recalled one is there.
    void currentUpdated(const printdialog::Queue &queue);
    /// What the search has not found, or why the print server cannot be asked, in a sentence or two for
    /// people. There may be no current printer now.
    void searchFailed(const QString &text);
    /// The queue that was the current one is gone; another one is the current one now.
    void currentRemoved(const QString &text);

private:
    void take(const Queue &queue);
    void add(const Queue &queue);
    void update(int index, const Queue &queue);
    void remove(const QString &id);
    void drop(int index);
    void forgetRecalled();
    QString missing(const Destination &destination) const;
    void endSearch();
    void choose(int index);
    int indexOf(const QString &id) const { return indexes_.value(id, -1); }

    QueueFinder *finder_;
    std::function<std::optional<QString>()> staying_;
    QHash<QString, int> indexes_; ///< by id
    PrinterSelection selection_;
    QString failure_; ///< why the server could not be asked
};

} // namespace printdialog
