// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Listings.h"

#include "Console.h"
#include "OptionTable.h"
#include "PrinterFinder.h"
#include "PrinterLister.h"
#include "QueueList.h"
#include "RequestedSession.h"
#include "StateText.h"
#include "SummaryLines.h"
#include "UserDestinations.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto listPatience = 2s;
/// Printers that are there have announced themselves by then.
constexpr auto networkListPatience = 700ms;

struct ListingText
{
    Q_DECLARE_TR_FUNCTIONS(Listings)
};

/// The built-in printer comes first. It is the default if the user has set it, or if there is no other
/// printer.
Result<QList<Queue>, QueueFault> allPrinters(const CommandLine &commandLine)
{
    const std::optional<Destination> chosen = UserDestinations::read().defaultPrinter;
    Queue builtIn = Queue::builtIn();
    const auto network =
        isPrintServerHere() ? std::make_unique<PrinterLister>(printerListProgram()) : nullptr;
    const auto found = listQueues(listPatience);
    const bool needsServer = commandLine.server || (chosen && !chosen->isBuiltIn());
    if (!found && (needsServer || !isWithoutPrintServer(found.failure())))
        return found.failure();
    QList<Queue> queues = found ? *found : QList<Queue>();
    if (found && network)
        queues = withAnnounced(queues, lookForAnnounced(*network, networkListPatience).services);
    builtIn.isDefault = chosen ? chosen->isBuiltIn() : !defaultQueue(queues);
    queues.prepend(builtIn);
    return queues;
}

QString stateKeyword(Queue::State state)
{
    switch (state) {
    case Queue::State::Idle:
        return QStringLiteral("idle");
    case Queue::State::Processing:
        return QStringLiteral("processing");
    case Queue::State::Stopped:
        return QStringLiteral("stopped");
    case Queue::State::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

QJsonArray jsonOf(const QList<Supply> &supplies)
{
    QJsonArray array;
    for (const Supply &supply : supplies)
        array.append(QJsonObject{{QStringLiteral("name"), supply.name},
                                 {QStringLiteral("level"),
                                  supply.level ? QJsonValue(*supply.level) : QJsonValue(QJsonValue::Null)},
                                 {QStringLiteral("low"), supply.isLow}});
    return array;
}

QJsonObject jsonOf(const Queue &queue)
{
    return {
        {QStringLiteral("name"), queue.id()},
        {QStringLiteral("description"), queue.info},
        {QStringLiteral("location"), queue.location},
        {QStringLiteral("model"), queue.makeAndModel},
        {QStringLiteral("state"), stateKeyword(queue.state)},
        {QStringLiteral("stateReasons"), QJsonArray::fromStringList(queue.stateReasons)},
        {QStringLiteral("stateText"), stateText(queue)},
        {QStringLiteral("acceptsJobs"), queue.acceptsJobs},
        {QStringLiteral("supplies"), jsonOf(queue.supplies)},
        {QStringLiteral("members"), QJsonArray::fromStringList(queue.members)},
        {QStringLiteral("uri"), queue.uri},
        {QStringLiteral("default"), queue.isDefault},
        {QStringLiteral("announced"), queue.isAnnounced},
        {QStringLiteral("builtIn"), queue.isBuiltIn},
    };
}

int fail(Console &console, const QString &sentence)
{
    console.complain(sentence);
    return exitFailed;
}

/// Nothing on failure, after a complaint.
std::optional<RequestedSession> openJob(const CommandLine &commandLine, Console &console)
{
    auto requested = openRequestedSession(commandLine);
    if (!requested) {
        console.complain(requested.failure().text);
        return std::nullopt;
    }
    for (const QString &sentence : std::as_const(requested->leftOut))
        console.complain(sentence);
    return *std::move(requested);
}

} // namespace

int listPrinters(const CommandLine &commandLine, Console &console)
{
    const auto printers = allPrinters(commandLine);
    if (!printers)
        return fail(console, printers.failure().text);
    QList<QStringList> rows;
    QJsonArray array;
    for (const Queue &queue : *printers) {
        const QString mark = queue.isDefault ? ListingText::tr("default") : QString();
        rows.append({queue.id(), queue.info, stateText(queue), mark});
        array.append(jsonOf(queue));
    }
    if (commandLine.json)
        console.writeJson(array);
    else
        console.writeRows(rows);
    return exitDone;
}

int listOptions(const CommandLine &commandLine, Console &console)
{
    const auto opened = openJob(commandLine, console);
    if (!opened)
        return exitFailed;
    DialogSession &session = *opened->session;
    // Makes the panels save their choices. A printer whose own defaults conflict is still shown if the
    // command line makes no choice.
    const auto job = session.jobOptions();
    if (!job && !commandLine.options.isEmpty())
        return fail(console, job.failure().text);
    if (job && !job->missing.isEmpty())
        return fail(console, Console::oneLine(job->missing));
    for (const QString &note : session.options().notes())
        console.complain(note);
    const OptionTable table(session);
    if (commandLine.json)
        console.writeJson(table.json());
    else
        console.writeLines(table.lines());
    return exitDone;
}

int showSummary(const CommandLine &commandLine, Console &console)
{
    const auto opened = openJob(commandLine, console);
    if (!opened)
        return exitFailed;
    DialogSession &session = *opened->session;
    const auto job = session.jobOptions();
    if (!job || !job->missing.isEmpty())
        return fail(console, job ? Console::oneLine(job->missing) : job.failure().text);
    const ArrangementStyle style = commandLine.style.over(opened->style);
    const SummaryEntries entries =
        jobSummary(session, opened->copies, {style.placement}, style.layout, commandLine.pages);
    if (!commandLine.json) {
        console.writeLines(summaryLines(entries));
        return exitDone;
    }
    QJsonObject object;
    for (const auto &[label, text] : entries)
        object.insert(label, text);
    console.writeJson(object);
    return exitDone;
}

} // namespace printdialog
