// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreparedJobs.h"

#include "PlainText.h"

#include <QtCore/QRandomGenerator>

#include <algorithm>

namespace printdialog {

quint32 PreparedJobs::add(const QString &program, const PreparedJob &job)
{
    dropOld();
    dropOldest(program, mostOfProgram - 1);
    dropOldest(std::nullopt, most - 1);
    quint32 token = 0;
    while (token == 0 || entries_.contains(token))
        token = QRandomGenerator::system()->generate();
    entries_.emplace(token, Entry{program, job, now_() + lifetime});
    return token;
}

Result<PreparedJob, TokenFault> PreparedJobs::take(quint32 token, const QString &program)
{
    dropOld();
    const auto found = entries_.find(token);
    if (found == entries_.end())
        return Failure<TokenFault>{TokenFault::Unknown,
                                   {},
                                   QStringLiteral("The token %1 is unknown, used up or too old.").arg(token)};
    if (found->second.program != program)
        return Failure<TokenFault>{TokenFault::Foreign,
                                   {},
                                   QStringLiteral("The token %1 is not one of the program \"%2\".")
                                       .arg(QString::number(token), plainText(program, shownTextLimit))};
    PreparedJob job = std::move(found->second.job);
    entries_.erase(found);
    return job;
}

std::optional<PreparedJobs::Time> PreparedJobs::end()
{
    dropOld();
    const auto last = std::ranges::max_element(
        entries_, {}, [](const Entries::value_type &entry) { return entry.second.end; });
    return last == entries_.end() ? std::nullopt : std::optional(last->second.end);
}

void PreparedJobs::dropOld()
{
    std::erase_if(entries_, [now = now_()](const auto &entry) { return entry.second.end <= now; });
}

/// @param program nothing: of all programs
void PreparedJobs::dropOldest(const std::optional<QString> &program, std::size_t mostKept)
{
    const auto counts = [&program](const Entries::value_type &entry) {
        return !program || entry.second.program == *program;
    };
    for (;;) {
        auto oldest = entries_.end();
        std::size_t count = 0;
        for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
            if (!counts(*entry))
                continue;
            ++count;
            if (oldest == entries_.end() || entry->second.end < oldest->second.end)
                oldest = entry;
        }
        if (count <= mostKept)
            return;
        entries_.erase(oldest);
    }
}

} // namespace printdialog
