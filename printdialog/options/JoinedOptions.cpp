// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JoinedOptions.h"

#include <utility>

namespace printdialog {

JoinedOptions::JoinedOptions(std::unique_ptr<OptionSource> printer, std::unique_ptr<OptionSource> job)
    : printer_(std::move(printer))
    , keys_(printer_->options())
{
    setJob(std::move(job));
}

JoinedOptions::~JoinedOptions() = default;

void JoinedOptions::setJob(std::unique_ptr<OptionSource> job, const QStringList &chosen)
{
    const auto before = std::exchange(job_, std::move(job));
    keys_ = printer_->options();
    jobKeys_.clear();
    if (!job_)
        return;
    for (const QString &key : job_->options()) {
        if (printer_->hasOption(key))
            continue;
        jobKeys_ += key;
        const auto marked = before && chosen.contains(key) ? before->markedChoice(key) : std::nullopt;
        if (marked && (job_->choice(key, *marked) || !job_->customParameters(key).isEmpty()))
            job_->mark(key, *marked);
    }
    keys_ += jobKeys_;
}

QList<OptionGroup> JoinedOptions::groups() const
{
    QList<OptionGroup> groups = printer_->groups();
    const QList<OptionGroup> ofJob = job_ ? job_->groups() : QList<OptionGroup>();
    for (OptionGroup group : ofJob) {
        group.options.removeIf([this](const QString &key) { return !jobKeys_.contains(key); });
        if (!group.options.isEmpty())
            groups += group;
    }
    return groups;
}

OptionSource &JoinedOptions::of(const QString &key) const
{
    return job_ && !printer_->hasOption(key) && job_->hasOption(key) ? *job_ : *printer_;
}

} // namespace printdialog
