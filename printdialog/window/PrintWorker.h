// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPrinter.h"

#include <QtCore/QObject>
#include <QtCore/QThread>

namespace printdialog {

/// Prints photos on a thread of its own. Signals come on the thread of this object.
class PrintWorker : public QObject
{
    Q_OBJECT

public:
    explicit PrintWorker(QObject *parent = nullptr);
    /// Waits for the photo that is being printed; the rest is not begun.
    ~PrintWorker() override;

    bool isBusy() const { return thread_ != nullptr; }
    /// Prints the photos with the job's settings, one after the other. Not while busy.
    void print(const QList<Photo> &photos, const PrintTarget &target, const PrintJob &job);

Q_SIGNALS:
    /// All is done: a sentence for each photo that was printed, and what stopped the rest, or an empty text.
    void finished(const QStringList &printed, const QString &failure);

private:
    std::unique_ptr<QThread> thread_;
};

} // namespace printdialog
