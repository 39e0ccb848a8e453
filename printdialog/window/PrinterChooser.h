// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Queue.h"

#include <QtWidgets/QComboBox>

#include <optional>

namespace printdialog {

class QueueFinder;

/// The printers to choose from: the built-in one at once, and the queues of the print server as they are
/// found and as long as they are there.
class PrinterChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit PrinterChooser(QWidget *parent = nullptr);

    /// Shows the queue's id with no printer chosen, until the search has found the queue or is over.
    void await(const QString &id);
    /// Starts to look for queues. The queue `wanted`, or else the user's default, is chosen when it is found,
    /// unless the user has chosen by then.
    void search(const std::optional<QString> &wanted);
    Queue current() const;
    /// Whether the user has chosen a printer, be it the one that was current anyway.
    bool wasChosenByUser() const { return wasChosenByUser_; }

Q_SIGNALS:
    /// Another printer is the current one now.
    void printerChosen(const printdialog::Queue &queue);
    /// One sentence for people.
    void searchFailed(const QString &text);
    /// The queue that was the current one is gone; the built-in printer is the current one now.
    void currentRemoved(const QString &text);

private:
    void take(const Queue &queue);
    void remove(const QString &id);
    void endSearch();
    void choose(int index);
    int indexOf(const QString &id) const;

    QueueFinder *finder_;
    std::optional<QString> wanted_;
    bool wasChosenByUser_ = false;
    bool isSettled_ = false; ///< the user has chosen, or what was wanted has been found
};

} // namespace printdialog
