// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "CommandLine_p.h"

#include "Queue.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QStandardPaths>

namespace printdialog {

Result<CommandLine, UsageFault> CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addCommandLineOptions(parser);
    if (!parser.parse(arguments))
        return usageFault(UsageFault::Syntax, parser.errorText());

    CommandLine line;
    line.batch = parser.isSet(QStringLiteral("batch"));
    line.overwrite = parser.isSet(QStringLiteral("overwrite"));
    line.existing = parser.isSet(QStringLiteral("existing"));
    line.dryRun = parser.isSet(QStringLiteral("dry-run"));
    line.checks = !parser.isSet(QStringLiteral("no-check"));
    line.listPrinters = parser.isSet(QStringLiteral("list-printers"));
    line.listOptions = parser.isSet(QStringLiteral("list-options"));
    line.summary = parser.isSet(QStringLiteral("summary"));
    line.json = parser.isSet(QStringLiteral("json"));
    line.help = parser.isSet(QStringLiteral("help"));
    line.version = parser.isSet(QStringLiteral("version"));
    if (line.help || line.version)
        return line;

    if (const UsageFailure fault = readCommandLineValues(parser, line))
        return *fault;
    return line;
}

ArrangementStyle RequestedStyle::over(const ArrangementStyle &style) const
{
    ArrangementStyle result = style;
    PlacementChoice &placement = result.placement;
    placement.scaling = scaling.value_or(placement.scaling);
    placement.crop = crop.value_or(placement.crop);
    placement.size = size ? size : placement.size;
    placement.scale = scale.value_or(placement.scale);
    placement.border = border.value_or(placement.border);
    result.layout = layout.value_or(result.layout);
    result.layout.caption = caption.value_or(result.layout.caption);
    return result;
}

bool CommandLine::drawsText() const
{
    // A list or a preset may ask for captions, which is known only when they are read.
    return (batch || dryRun || preview) && (hasPrintList() || (printer && !printer->instance.isEmpty()) ||
                                            style.over({}).layout.caption != Caption::None);
}

QString CommandLine::noTitleText()
{
    return CommandLineText::tr(
        "--title is for print queues; the built-in printer names its files after the photos.");
}

QString CommandLine::outputFolder() const
{
    if (output)
        return *output;
    if (runsWithoutWindow())
        return QStringLiteral(".");
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QLatin1String("/Prints");
}

bool CommandLine::asksForBuiltInPrinter() const
{
    return printer && printer->isBuiltIn();
}

} // namespace printdialog
