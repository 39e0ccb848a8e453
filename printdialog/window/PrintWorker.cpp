// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintWorker.h"

namespace printdialog {

PrintWorker::PrintWorker(QObject *parent)
    : QObject(parent)
{
}

PrintWorker::~PrintWorker()
{
    if (thread_) {
        thread_->requestInterruption();
        thread_->wait();
    }
}

void PrintWorker::print(const QList<Photo> &photos, const PrintTarget &target, const PrintJob &job)
{
    struct Outcome
    {
        QStringList printed;
        QString failure;
    };
    auto outcome = std::make_shared<Outcome>();
    thread_.reset(QThread::create([photos, target, job, outcome] {
        PhotoPrinter printer(target);
        for (const Photo &photo : photos) {
            if (QThread::currentThread()->isInterruptionRequested())
                return;
            const auto printed = printer.print(photo, job);
            if (!printed) {
                outcome->failure = printed.failure().text;
                return;
            }
            outcome->printed.append(printedText(photo, target, *printed));
        }
    }));
    connect(thread_.get(), &QThread::finished, this, [this, outcome] {
        thread_.release()->deleteLater();
        Q_EMIT finished(outcome->printed, outcome->failure);
    });
    thread_->start();
}

} // namespace printdialog
