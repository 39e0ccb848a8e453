// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RequestedSession.h"

#include "PpdFetcher.h"
#include "QueueList.h"
#include "SessionOpening.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto listPatience = 2s;
constexpr auto ppdPatience = 10s;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RequestedSession)
};

Failure<std::monostate> refusal(const QString &sentence)
{
    return {{}, sentence, {}};
}

RequestedSessionResult orSentence(SessionResult session)
{
    if (!session)
        return refusal(session.failure().text);
    return *std::move(session);
}

RequestedSessionResult openQueueNamed(const QString &id, const QList<Queue> &queues, PanelMode mode)
{
    const auto queue =
        std::find_if(queues.cbegin(), queues.cend(), [&id](const Queue &q) { return q.id() == id; });
    const bool isListed = queue != queues.cend();
    // Asked for its PPD the server says best what is wrong with a queue that it has not listed, or no more.
    const auto ppd = fetchPpd(id, isListed ? ppdPatience : listPatience);
    if (!ppd)
        return refusal(ppd.failure().text);
    if (!isListed)
        return refusal(queueFailure(QueueFault::NotFound, id).text);
    return orSentence(openQueue(*queue, *ppd, mode));
}

} // namespace

RequestedSessionResult openRequestedPrinter(const CommandLine &commandLine)
{
    if (commandLine.ppd || commandLine.asksForBuiltInPrinter())
        return orSentence(openBuiltInPrinter(commandLine.ppd, commandLine.mode));
    const QList<Queue> queues = listQueues(listPatience);
    if (commandLine.printer)
        return openQueueNamed(*commandLine.printer, queues, commandLine.mode);
    if (const std::optional<QString> id = defaultQueue(queues)) {
        auto session = openQueueNamed(*id, queues, commandLine.mode);
        if (session)
            return session;
        return refusal(Text::tr("%1 It is your default printer; --printer names another one.")
                           .arg(session.failure().text));
    }
    return orSentence(openBuiltInPrinter(std::nullopt, commandLine.mode));
}

RequestedSessionResult openRequestedSession(const CommandLine &commandLine)
{
    auto session = openRequestedPrinter(commandLine);
    if (!session)
        return session;
    if (const auto failure = (*session)->loadPanels())
        return refusal(failure->text);
    for (const RequestedChoice &requested : commandLine.options) {
        // Text that is only the beginning of a number is let through while somebody types; here nothing
        // follows it.
        const Ruling ruling = (*session)->choose(requested.key, requested.choice);
        if (ruling.verdict != Verdict::Accepted)
            return refusal(ruling.text);
    }
    return session;
}

} // namespace printdialog
