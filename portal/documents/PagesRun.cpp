// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagesRun.h"

#include "OutcomeText.h"
#include "PrintWorker.h"

namespace printdialog {

PagesRun::PagesRun(const PrintJob &job, const Arrangement &arrangement, QObject *parent)
    : PortalRun(parent)
    , worker_(new PrintWorker(this))
{
    connect(worker_, &PrintWorker::finished, this, [this, job, arrangement](const PrintOutcome &outcome) {
        const bool isWhole = outcome.failure.isEmpty() && outcome.unprinted.isEmpty() &&
                             outcome.skipped.isEmpty() && outcome.waiting.isEmpty() &&
                             outcome.unknown.isEmpty();
        const OutcomeText text(outcome, job, arrangement);
        Q_EMIT finished(isWhole ? QString()
                                : QStringList{text.summary(), text.details()}.join(u'\n').trimmed());
    });
    worker_->print(arrangement, job);
}

PagesRun::~PagesRun() = default;

void PagesRun::leave()
{
    if (worker_->isFollowing())
        return worker_->giveUp();
    connect(worker_, &PrintWorker::progress, this, [this] {
        if (worker_->isFollowing())
            worker_->giveUp();
    });
}

} // namespace printdialog
