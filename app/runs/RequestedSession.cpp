// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RequestedSession.h"

#include "AnnouncedPrinters.h"
#include "Console.h"
#include "JobTemplate.h"
#include "PpdCheck.h"
#include "PresetStore.h"
#include "PrinterLister.h"
#include "QueueList.h"
#include "SessionJob.h"
#include "SessionOpening.h"
#include "UsedChoices.h"
#include "UserDestinations.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto defaultPatience = 2s;
constexpr auto queuePatience = 10s;
constexpr auto networkPatience = 3s;

struct SessionText
{
    Q_DECLARE_TR_FUNCTIONS(RequestedSession)
};

using OpenedPrinter = Result<std::unique_ptr<DialogSession>, std::monostate>;

Failure<std::monostate> refusal(const QString &sentence)
{
    return {{}, sentence, {}};
}

OpenedPrinter orSentence(SessionResult session)
{
    if (!session)
        return refusal(session.failure().text);
    return *std::move(session);
}

/// The queue of the print server, or the one that it makes for a printer on the network.
Result<OpenedQueue, QueueFault> queueOrAnnounced(const Destination &destination)
{
    auto opened = queueNamed(destination, queuePatience);
    if (opened || opened.failure().reason != QueueFault::NotFound || destination.isAddress() ||
        !isPrintServerHere())
        return opened;
    PrinterLister lister(printerListProgram());
    const AnnouncedList network = lookForAnnounced(lister, networkPatience, destination.queue);
    if (const auto printer = network.services.printer(destination.queue))
        return queueNamed(destination, queuePatience, printer->queue.deviceUri);
    if (const QString why = whyIncomplete(network.look); !why.isEmpty())
        return queueFailure(QueueFault::NotFound, destination.id(), why);
    return opened;
}

OpenedPrinter openQueueNamed(const Destination &destination, PanelMode mode)
{
    const auto opened = queueOrAnnounced(destination);
    if (!opened)
        return refusal(opened.failure().text);
    if (!opened->hasPpd)
        return orSentence(openWithoutPpd(opened->queue, opened->attributes, mode));
    const auto ppd = checkPpd(opened->ppd, destination.id());
    if (!ppd)
        return refusal(ppd.failure().text);
    return orSentence(openQueue(opened->queue, *ppd, mode, opened->attributes));
}

OpenedPrinter openDefaultQueue(const Destination &destination, PanelMode mode)
{
    auto session = openQueueNamed(destination, mode);
    if (session)
        return session;
    return refusal(
        SessionText::tr("%1 It is your default printer; --printer names another one, and \"--printer "
                        "built-in\" prints into files.")
            .arg(session.failure().text));
}

/// A default printer with the preset that is requested, if one is.
Destination withPreset(Destination printer, const CommandLine &commandLine)
{
    if (commandLine.preset)
        printer.instance = *commandLine.preset;
    return printer;
}

/// The printer requested by name or as the user's default.
std::optional<Destination> destinationOf(const CommandLine &commandLine)
{
    if (commandLine.printer || commandLine.ppd)
        return commandLine.printer;
    const auto chosen = UserDestinations::read().defaultPrinter;
    return chosen ? std::optional(withPreset(*chosen, commandLine)) : std::nullopt;
}

/// Notes the copies, and what is left out in one line. @param introduction with a place for the sentences
void take(RequestedSession &requested, const UsedChoices &used, const QString &introduction)
{
    requested.copies = used.copies.value_or(1);
    requested.style = used.style.value_or(ArrangementStyle());
    QStringList sentences;
    for (const QString &sentence : used.leftOut)
        sentences += introduction.arg(sentence);
    if (!sentences.isEmpty())
        requested.leftOut += Console::oneLine(sentences);
}

/// Makes the choices of the preset that the destination names, or else the printer's defaults. Returns an
/// empty string, or why it failed.
QString makeFirstChoices(RequestedSession &requested, const Destination &destination)
{
    const PrinterDescription &printer = requested.session->printer();
    const QString &queue = printer.destination.queue;
    const QString &name = (printer.isBuiltIn ? destination : printer.destination).instance;
    if (name.isEmpty()) {
        take(requested, useDefaults(*requested.session),
             SessionText::tr("Of the printer's defaults is left out: %1"));
        return {};
    }
    const auto presets = PresetStore::of(queue, printer.isBuiltIn).presets();
    if (!presets)
        return presets.failure().text;
    const Preset *preset = PresetStore::findInstance(*presets, name);
    if (!preset)
        return PresetStore::missing(queue, name, *presets);
    take(requested, usePreset(*requested.session, *preset),
         SessionText::tr("Of the preset \"%1\" is left out: %2").arg(preset->name, QStringLiteral("%1")));
    return {};
}

OpenedPrinter openRequestedPrinter(const CommandLine &commandLine)
{
    if (commandLine.ppd || commandLine.asksForBuiltInPrinter())
        return orSentence(openBuiltInPrinter(commandLine.ppd, commandLine.mode));
    if (commandLine.printer)
        return openQueueNamed(PresetStore::destination(*commandLine.printer), commandLine.mode);
    if (const std::optional<Destination> chosen = destinationOf(commandLine)) {
        if (chosen->isBuiltIn())
            return orSentence(openBuiltInPrinter(std::nullopt, commandLine.mode));
        return openDefaultQueue(PresetStore::destination(*chosen), commandLine.mode);
    }
    const auto queues = listQueues(defaultPatience);
    if (!queues && (commandLine.server || !isWithoutPrintServer(queues.failure())))
        return refusal(
            SessionText::tr("%1 It may have your default printer; --printer names another one, and "
                            "\"--printer built-in\" prints into files.")
                .arg(queues.failure().text));
    if (const std::optional<Destination> found = queues ? defaultQueue(*queues) : std::nullopt)
        return openDefaultQueue(PresetStore::destination(withPreset(*found, commandLine)), commandLine.mode);
    return orSentence(openBuiltInPrinter(std::nullopt, commandLine.mode));
}

} // namespace

Result<RequestedSession, std::monostate> openRequestedSession(const CommandLine &commandLine)
{
    auto opened = openRequestedPrinter(commandLine);
    if (!opened)
        return opened.failure();
    RequestedSession requested{*std::move(opened)};
    if (const auto failure = requested.session->loadPanels()) {
        if (failure->reason != PluginFault::NotFound)
            return refusal(failure->text);
        requested.leftOut += failure->text;
    }
    const PrinterDescription &printer = requested.session->printer();
    const auto foreign = std::ranges::find_if(commandLine.options, [](const RequestedChoice &choice) {
        return !JobTemplate::isJobOption(choice.key);
    });
    if (printer.isRaw && foreign != commandLine.options.cend())
        return refusal(SessionText::tr("The printer \"%1\" has no PPD file and so no option %2. Leave it "
                                       "out, or set the printer up with its driver.")
                           .arg(printer.destination.id(), foreign->key));
    if (const QString failure =
            makeFirstChoices(requested, destinationOf(commandLine).value_or(withPreset({}, commandLine)));
        !failure.isEmpty())
        return refusal(failure);
    requested.copies = commandLine.copies.value_or(requested.copies);
    if (commandLine.title && printer.isBuiltIn)
        return refusal(CommandLine::noTitleText());
    QList<RequestedChoice> choices = commandLine.options;
    if (commandLine.title)
        choices.append({JobTemplate::titleKey(), QStringLiteral("Custom.") + *commandLine.title});
    for (const RequestedChoice &choice : std::as_const(choices)) {
        // Text that is only the beginning of a number is let through while somebody types; here
        // nothing follows it.
        const Ruling ruling = requested.session->choose(choice.key, choice.choice);
        if (ruling.verdict != Verdict::Accepted)
            return refusal(ruling.text);
    }
    requested.leftOut += requested.session->restoreFailures();
    return requested;
}

Result<PrintJob, std::monostate> jobOfRequested(const RequestedSession &requested, Console &console)
{
    for (const QString &sentence : requested.leftOut)
        console.complain(sentence);
    DialogSession &session = *requested.session;
    auto made = jobOf(session, requested.copies);
    if (!made && made.failure().reason == SessionJobFault::NoPaper)
        return refusal(
            SessionText::tr("No page size is chosen. Choose one with -o %1=%2 or another one of "
                            "--list-options.")
                .arg(session.options().pageSizeKey(), session.options().pageSizes().constFirst().keyword));
    if (!made)
        return refusal(made.failure().text);
    if (!made->missing.isEmpty())
        return refusal(Console::oneLine(made->missing));
    for (const QString &remark : made->remarks)
        console.complain(remark);
    return made->job;
}

} // namespace printdialog
