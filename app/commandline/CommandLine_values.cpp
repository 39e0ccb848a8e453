// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "CommandLine_p.h"

#include "FileName.h"
#include "Queue.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

// The values of options.

namespace printdialog {

namespace {

/// Any value is allowed, but not an empty one.
template <class Value>
UsageFailure readValue(const QCommandLineParser &parser, const char *name, std::optional<Value> &value)
{
    if (!parser.isSet(latin1(name)))
        return std::nullopt;
    const QString text = parser.value(latin1(name));
    value = text;
    if (text.isEmpty())
        return usageFault(UsageFault::Syntax,
                          CommandLineText::tr("The value of --%1 is empty.").arg(latin1(name)));
    return std::nullopt;
}

UsageFailure readMode(const QCommandLineParser &parser, PanelMode &mode)
{
    std::optional<QString> name;
    if (UsageFailure found = readValue(parser, "mode", name); found || !name)
        return found;
    if (*name != QLatin1String("constraint") && *name != QLatin1String("settings")) {
        return usageFault(
            UsageFault::Value,
            CommandLineText::tr("There is no mode \"%1\". Choose constraint or settings.").arg(*name));
    }
    mode = *name == QLatin1String("settings") ? PanelMode::Settings : PanelMode::Constraint;
    return std::nullopt;
}

/// The address of a server as CUPS accepts it: a name or number with an optional port, or a socket's path.
UsageFailure readServer(const QCommandLineParser &parser, std::optional<QString> &server)
{
    if (UsageFailure found = readValue(parser, "server", server); found || !server)
        return found;
    static const QRegularExpression address(QStringLiteral(
        "\\A(?:/[^\\x00-\\x1f]+|(?:[A-Za-z0-9._-]+|\\[[0-9A-Fa-f:.%]+\\])(?::([0-9]{1,5}))?)\\z"));
    const QRegularExpressionMatch match = address.match(*server);
    const int port = match.captured(1).isEmpty() ? 631 : match.captured(1).toInt();
    if (match.hasMatch() && port >= 1 && port <= 65535)
        return std::nullopt;
    return usageFault(
        UsageFault::Value,
        CommandLineText::tr("\"%1\" is not a print server. Give it as HOST or HOST:PORT.").arg(*server));
}

UsageFailure readWait(const QCommandLineParser &parser, std::optional<std::chrono::seconds> &wait)
{
    std::optional<QString> text;
    if (UsageFailure found = readValue(parser, "wait", text); found || !text)
        return found;
    constexpr int longest = 7 * 24 * 60 * 60;
    bool isNumber = false;
    const int seconds = text->toInt(&isNumber);
    if (!isNumber || seconds < 0 || seconds > longest)
        return usageFault(
            UsageFault::Value,
            CommandLineText::tr("\"%1\" is not a time to wait. Give a number of seconds from 0 to %2.")
                .arg(*text, QString::number(longest)));
    wait = std::chrono::seconds(seconds);
    return std::nullopt;
}

UsageFailure readCopies(const QCommandLineParser &parser, std::optional<int> &copies)
{
    std::optional<QString> text;
    if (UsageFailure found = readValue(parser, "copies", text); found || !text)
        return found;
    bool isNumber = false;
    const int number = text->toInt(&isNumber);
    if (!isNumber || number < 1 || number > mostCopies)
        return usageFault(UsageFault::Value,
                          CommandLineText::tr("\"%1\" copies cannot be printed. Give a number from 1 to %2.")
                              .arg(*text, QString::number(mostCopies)));
    copies = number;
    return std::nullopt;
}

UsageFailure readPreview(const QCommandLineParser &parser, std::optional<QString> &preview)
{
    if (UsageFailure found = readValue(parser, "preview", preview); found || !preview)
        return found;
    static const QRegularExpression picture(QStringLiteral("[^/]\\.png\\z"),
                                            QRegularExpression::CaseInsensitiveOption);
    if (preview->contains(picture))
        return std::nullopt;
    return usageFault(UsageFault::Value,
                      CommandLineText::tr("\"%1\" is not the name of a picture. Give one that ends in .png.")
                          .arg(*preview));
}

/// The name of the one PDF may be given with its suffix.
UsageFailure readOutput(const QCommandLineParser &parser, CommandLine &line)
{
    UsageFailure found = readValue(parser, "output", line.output);
    if (!found)
        found = readValue(parser, "one-pdf", line.onePdf);
    if (line.onePdf && line.onePdf->endsWith(PrintedNames::pageSuffix, Qt::CaseInsensitive))
        line.onePdf->chop(PrintedNames::pageSuffix.size());
    return found;
}

/// File managers pass URLs. But a file may also have such a name.
UsageFailure readPhotos(const QStringList &arguments, QStringList &photos)
{
    for (const QString &argument : arguments) {
        const bool isUrl =
            argument.startsWith(QLatin1String("file:/"), Qt::CaseInsensitive) && !QFile::exists(argument);
        const std::optional<QString> path = isUrl ? fileOfUrl(QUrl(argument)) : argument;
        if (!path)
            return usageFault(
                UsageFault::Value,
                CommandLineText::tr("\"%1\" is not a file on this computer. Copy it here first.")
                    .arg(argument));
        photos.append(*path);
    }
    return std::nullopt;
}

/// A value in its text form; `complaint` is a sentence about the text %1.
template <class Value, class Read>
UsageFailure readText(const QCommandLineParser &parser, const char *name, std::optional<Value> &value,
                      Read read, const QString &complaint)
{
    std::optional<QString> text;
    if (UsageFailure found = readValue(parser, name, text); found || !text)
        return found;
    value = read(*text);
    return value ? std::nullopt : UsageFailure(usageFault(UsageFault::Value, complaint.arg(*text)));
}

UsageFailure readSheets(const QCommandLineParser &parser, RequestedStyle &style)
{
    const UsageFailure faults[] = {
        readText(parser, "scaling", style.scaling, scalingFromWord,
                 CommandLineText::tr("There is no scaling \"%1\". Choose fit, fill or actual.")),
        readText(parser, "size", style.size, PrintSize::fromText,
                 CommandLineText::tr(
                     "\"%1\" is not a print size. Give one such as 10x15cm, 4x6in or passport, with sides "
                     "from 5 mm to 2 m.")),
        readText(parser, "scale", style.scale, PlacementChoice::scaleFromText,
                 CommandLineText::tr("\"%1\" is not a scale. Give a number from 1 to 1000, in per cent.")),
        readText(parser, "border", style.border, PhotoBorder::fromText,
                 CommandLineText::tr(
                     "\"%1\" is not a border. Give a width from 0 to 100 mm, and a color if it is not to be "
                     "white: 3mm,black.")),
        readText(parser, "layout", style.layout, SheetLayout::fromText,
                 CommandLineText::tr(
                     "\"%1\" is not a layout. Give rows and columns from 1 to 20 (2x3), fit, contact, "
                     "strips:2 to strips:4, pages:2, 4, 6, 9 or 16, or booklet.")),
        readText(parser, "caption", style.caption, captionFromText,
                 CommandLineText::tr("There is no caption \"%1\". Choose none, name, date or both."))};
    for (const UsageFailure &found : faults) {
        if (found)
            return found;
    }
    return std::nullopt;
}

UsageFailure readPages(const QCommandLineParser &parser, PageChoice &pages)
{
    std::optional<PageRanges> ranges;
    std::optional<PageChoice::Set> set;
    const bool areAll = parser.value(QStringLiteral("pages")) == QLatin1String("all");
    pages.isReversed = parser.isSet(QStringLiteral("reverse"));
    for (const UsageFailure &found :
         {areAll
              ? UsageFailure()
              : readText(parser, "pages", ranges, PageRanges::fromText,
                         CommandLineText::tr("\"%1\" does not say which pages. Give page numbers from 1 on "
                                             "and ranges, such as 1-3,7,12-.")),
          readText(parser, "page-set", set, pageSetFromWord,
                   CommandLineText::tr("There is no set of pages \"%1\". Choose all, odd or even."))}) {
        if (found)
            return found;
    }
    pages.set = set.value_or(pages.set);
    if (ranges) {
        pages.which = PageChoice::Which::Ranges;
        pages.ranges = *ranges;
    }
    return std::nullopt;
}

/// Call after readSheets().
UsageFailure readCrop(const QCommandLineParser &parser, RequestedStyle &style)
{
    std::optional<QString> value;
    if (UsageFailure found = readValue(parser, "crop", value); found || !value)
        return found;
    const QStringList parts = value->split(u',');
    bool isLeftNumber = false;
    bool isTopNumber = false;
    const double left = parts.value(0).toDouble(&isLeftNumber);
    const double top = parts.value(1).toDouble(&isTopNumber);
    const auto isPerCent = [](double number) {
        return number >= 0 && number <= 100;
    };
    if (parts.size() != 2 || !isLeftNumber || !isTopNumber || !isPerCent(left) || !isPerCent(top)) {
        return usageFault(
            UsageFault::Value,
            CommandLineText::tr("\"%1\" is not a crop. Give two numbers from 0 to 100, such as 50,0.")
                .arg(*value));
    }
    if (style.scaling.value_or(Scaling::Fit) == Scaling::Fit && style.scale.value_or(1) == 1) {
        return usageFault(
            UsageFault::Combination,
            CommandLineText::tr("--crop is for --scaling fill or actual; with fit nothing is cropped."));
    }
    style.crop = QPointF(left, top) / 100;
    return std::nullopt;
}

UsageFailure readTitle(const QCommandLineParser &parser, CommandLine &line)
{
    UsageFailure found = readValue(parser, "title", line.title);
    if (!found && line.title && (line.ppd || line.asksForBuiltInPrinter()))
        return usageFault(UsageFault::Combination, CommandLine::noTitleText());
    return found;
}

UsageFailure readChoices(const QCommandLineParser &parser, QList<RequestedChoice> &choices)
{
    const QStringList values = parser.values(QStringLiteral("option"));
    for (const QString &value : values) {
        const qsizetype equals = value.indexOf(u'=');
        if (equals < 1) {
            return usageFault(
                UsageFault::Value,
                CommandLineText::tr("\"%1\" is not an option. Give it as KEY=CHOICE.").arg(value));
        }
        choices.append({value.left(equals), value.mid(equals + 1)});
    }
    return std::nullopt;
}

/// Call after the printer and the PPD were read: the built-in printer's PPD needs a printer's name to have a
/// preset.
UsageFailure readPreset(const QCommandLineParser &parser, CommandLine &line)
{
    if (UsageFailure found = readValue(parser, "preset", line.preset); found || !line.preset)
        return found;
    if (line.printer && !line.printer->instance.isEmpty())
        return usageFault(UsageFault::Combination,
                          CommandLineText::tr(
                              "--preset names the preset \"%1\", and --printer the preset \"%2\". Name one.")
                              .arg(*line.preset, line.printer->instance));
    if (line.printer && line.printer->isAddress())
        return usageFault(
            UsageFault::Combination,
            CommandLineText::tr("--preset is for print queues and the built-in printer, and \"%1\" is a "
                                "printer's address. Use -o in its place.")
                .arg(line.printer->queue));
    if (line.ppd && !line.printer)
        line.printer = Destination::builtIn();
    if (line.printer)
        line.printer->instance = *line.preset;
    return std::nullopt;
}

/// Each of the two options stands alone.
UsageFailure readPortal(const QCommandLineParser &parser, std::optional<PortalUse> &portal)
{
    for (const PortalUse use : {PortalUse::Start, PortalUse::Stop}) {
        const QString name = portalOption(use);
        if (!parser.isSet(name))
            continue;
        if (parser.optionNames().size() > 1 || !parser.positionalArguments().isEmpty())
            return usageFault(
                UsageFault::Combination,
                CommandLineText::tr("--%1 stands alone, without photos and other options.").arg(name));
        portal = use;
    }
    return std::nullopt;
}

} // namespace

UsageFailure readCommandLineValues(const QCommandLineParser &parser, CommandLine &line)
{
    for (const UsageFailure &found : {readPhotos(parser.positionalArguments(), line.photos),
                                      readCopies(parser, line.copies),
                                      readValue(parser, "printer", line.printer),
                                      readValue(parser, "ppd", line.ppd),
                                      readPreset(parser, line),
                                      readValue(parser, "watch", line.watch),
                                      readValue(parser, "printed", line.printed),
                                      readOutput(parser, line),
                                      readTitle(parser, line),
                                      readValue(parser, "screenshot", line.screenshot),
                                      readPreview(parser, line.preview),
                                      readServer(parser, line.server),
                                      readWait(parser, line.wait),
                                      readMode(parser, line.mode),
                                      readSheets(parser, line.style),
                                      readPages(parser, line.pages),
                                      readCrop(parser, line.style),
                                      readChoices(parser, line.options),
                                      readPortal(parser, line.portal),
                                      commandLineContradiction(line)}) {
        if (found)
            return found;
    }
    return std::nullopt;
}

} // namespace printdialog
