// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RequestedSession.h"

#include "PpdCheck.h"
#include "QueueList.h"
#include "SessionOpening.h"

#include <QtCore/QCoreApplication>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto listPatience = 2s;
constexpr auto queuePatience = 10s;

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

RequestedSessionResult openQueueNamed(const QString &id, PanelMode mode)
{
    const auto opened = queueNamed(id, queuePatience);
    if (!opened)
        return refusal(opened.failure().text);
    if (opened->hasPpd) {
        if (const auto failure = checkPpd(opened->ppd, id))
            return refusal(failure->text);
    }
    return orSentence(opened->hasPpd ? openQueue(opened->queue, opened->ppd, mode)
                                     : openRawQueue(opened->queue, mode));
}

} // namespace

RequestedSessionResult openRequestedPrinter(const CommandLine &commandLine)
{
    if (commandLine.ppd || commandLine.asksForBuiltInPrinter())
        return orSentence(openBuiltInPrinter(commandLine.ppd, commandLine.mode));
    if (commandLine.printer)
        return openQueueNamed(*commandLine.printer, commandLine.mode);
    if (const std::optional<QString> id = defaultQueue(listQueues(listPatience))) {
        auto session = openQueueNamed(*id, commandLine.mode);
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
    const PrinterDescription &printer = (*session)->printer();
    if (!printer.hasPpd && !commandLine.options.isEmpty())
        return refusal(
            Text::tr("The printer \"%1\" has no PPD file and so no option %2; leave it out, or set "
                     "the printer up with its driver.")
                .arg(printer.name, commandLine.options.constFirst().key));
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
