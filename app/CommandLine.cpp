// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"

#include "FileName.h"
#include "Queue.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct OptionRow
{
    const char *names; ///< separated by commas, the short one first
    const char *value; ///< the value's name in the help; null: the option has none
    const char *text;  ///< line breaks are kept
};

constexpr std::array optionRows = {
    OptionRow{"d,printer", "QUEUE",
              QT_TRANSLATE_NOOP("CommandLine",
                                "a print queue, or \"built-in\" for the built-in printer; with a preset\n"
                                "of it: QUEUE/PRESET. Or a printer's address, ipp://HOST/ipp/print,\n"
                                "which needs no print server. Otherwise your default queue, or else the\n"
                                "built-in printer")},
    OptionRow{"preset", "NAME",
              QT_TRANSLATE_NOOP("CommandLine", "a preset of the printer, also of your default printer")},
    OptionRow{"ppd", "FILE",
              QT_TRANSLATE_NOOP("CommandLine", "the built-in printer, with this PPD instead of its own")},
    OptionRow{"mode", "constraint|settings",
              QT_TRANSLATE_NOOP("CommandLine",
                                "refuse a conflicting choice at once (constraint, the default),\n"
                                "or check all choices together before printing (settings)")},
    OptionRow{"o,option", "KEY=CHOICE",
              QT_TRANSLATE_NOOP("CommandLine", "choose for an option of the printer; repeatable, in order")},
    OptionRow{
        "n,copies", "NUMBER",
        QT_TRANSLATE_NOOP("CommandLine", "how many copies of each photo; otherwise the preset's, or 1")},
    OptionRow{
        "title", "TEXT",
        QT_TRANSLATE_NOOP("CommandLine", "the job's title at a print queue; otherwise the photo's name")},
    OptionRow{"scaling", "fit|fill|actual",
              QT_TRANSLATE_NOOP("CommandLine",
                                "the whole photo on the page (fit, the default), the page filled\n"
                                "and the photo cropped (fill), or the photo by its file's resolution\n"
                                "(actual; 300 pixels per inch when the file names none)")},
    OptionRow{"crop", "X,Y",
              QT_TRANSLATE_NOOP("CommandLine",
                                "which part of a cropped photo is kept, in per cent from its left\n"
                                "and from its top (otherwise 50,50, the middle)")},
    OptionRow{"size", "SIZE",
              QT_TRANSLATE_NOOP("CommandLine",
                                "the size of each print, such as 9x13cm, 35x45mm, 4x6in, or by name:\n"
                                "square, passport, wallet; otherwise the whole page")},
    OptionRow{"scale", "PERCENT",
              QT_TRANSLATE_NOOP("CommandLine", "the photo larger or smaller than by its scaling, 1 to 1000")},
    OptionRow{
        "border", "WIDTH[,COLOR]",
        QT_TRANSLATE_NOOP("CommandLine", "a border around each photo, within its size: 3mm, or 3mm,black")},
    OptionRow{"layout", "LAYOUT",
              QT_TRANSLATE_NOOP("CommandLine",
                                "several photos on a sheet: ROWSxCOLUMNS (2x3); fit, as many of the size\n"
                                "as fit; contact or contact:ROWSxCOLUMNS, a contact sheet; strips or\n"
                                "strips:NUMBER, two strips of 2 to 4 photos. With \",repeat\" each photo\n"
                                "fills its sheet; also \",gap=2mm\" and \",marks\" for cut marks")},
    OptionRow{"caption", "none|name|date|both",
              QT_TRANSLATE_NOOP("CommandLine", "what stands below each photo of a layout")},
    OptionRow{"output", "DIR",
              QT_TRANSLATE_NOOP("CommandLine",
                                "where the built-in printer leaves its files (otherwise the current\n"
                                "folder; with a window, Prints in your Pictures folder)")},
    OptionRow{"one-pdf", "NAME",
              QT_TRANSLATE_NOOP("CommandLine",
                                "--batch: the built-in printer makes one PDF of all sheets, NAME.pdf,\n"
                                "instead of one for each sheet")},
    OptionRow{"overwrite", nullptr,
              QT_TRANSLATE_NOOP("CommandLine",
                                "--batch replaces files that the built-in printer has left before,\n"
                                "instead of numbering the new ones, and --preview earlier pictures;\n"
                                "a photo is never replaced")},
    OptionRow{"batch", nullptr,
              QT_TRANSLATE_NOOP("CommandLine",
                                "no window: apply the options, print, exit; what the window has\n"
                                "saved is not used, so that a script gets the same each time")},
    OptionRow{"watch", "FOLDER",
              QT_TRANSLATE_NOOP("CommandLine",
                                "no window: print each photo that arrives in the folder, once, until the\n"
                                "program is ended (SIGTERM, Ctrl+C). It waits for a printer or a print\n"
                                "server that is away. The photos that are there at first are left alone;\n"
                                "those that cannot be printed go to the folder \"unprintable\" in it")},
    OptionRow{"printed", "FOLDER",
              QT_TRANSLATE_NOOP("CommandLine",
                                "where --watch moves photos once they are printed; otherwise they stay\n"
                                "where they are, and the program remembers them")},
    OptionRow{"existing", nullptr,
              QT_TRANSLATE_NOOP("CommandLine", "--watch also prints the photos that are there at first")},
    OptionRow{"dry-run", nullptr,
              QT_TRANSLATE_NOOP("CommandLine", "show exactly what --batch would send, and send nothing")},
    OptionRow{"no-check", nullptr,
              QT_TRANSLATE_NOOP("CommandLine", "--batch and --dry-run do not look for damage in photos,\n"
                                               "and print what is left of them")},
    OptionRow{"wait", "SECONDS",
              QT_TRANSLATE_NOOP("CommandLine",
                                "how long --batch follows its jobs at most (0: not at all); otherwise to\n"
                                "their end. It never waits longer than 10 seconds for a job that is held\n"
                                "or whose printer is stopped, nor than 10 minutes without any news: such a\n"
                                "job stays with the print server, and that is told, with exit status 0")},
    OptionRow{"server", "HOST[:PORT]",
              QT_TRANSLATE_NOOP("CommandLine", "the print server to ask, instead of this machine's own")},
    OptionRow{"list-printers", nullptr,
              QT_TRANSLATE_NOOP("CommandLine", "list the printers, one per line: name, description, state,\n"
                                               "\"default\"; separated by tabs")},
    OptionRow{"list-options", nullptr,
              QT_TRANSLATE_NOOP("CommandLine", "list the printer's options with their choices and panels")},
    OptionRow{"summary", nullptr,
              QT_TRANSLATE_NOOP("CommandLine",
                                "show the job in words: the paper, the copies, the placement and\n"
                                "what the panels say; with --batch as well as printing")},
    OptionRow{"json", nullptr, QT_TRANSLATE_NOOP("CommandLine", "lists, summary and --dry-run as JSON")},
    OptionRow{"preview", "FILE.png",
              QT_TRANSLATE_NOOP("CommandLine",
                                "save a picture of the page as the window shows it, 1200 pixels on its\n"
                                "longer side, and exit; of further photos in FILE-2.png, FILE-3.png, ...")},
    OptionRow{"screenshot", "DIR",
              QT_TRANSLATE_NOOP("CommandLine", "save a picture of the dialog with each panel in DIR, exit")},
    OptionRow{"h,help", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show this help")},
    OptionRow{"v,version", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show the version")},
};

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : optionRows)
        parser.addOption({latin1(row.names).split(u','), QString(), latin1(row.value)});
}

using Fault = std::optional<Failure<UsageFault>>;

Failure<UsageFault> fault(UsageFault reason, const QString &text)
{
    return {reason, text, {}};
}

/// Any value is allowed, but not an empty one.
template <class Value>
Fault readValue(const QCommandLineParser &parser, const char *name, std::optional<Value> &value)
{
    if (!parser.isSet(latin1(name)))
        return std::nullopt;
    const QString text = parser.value(latin1(name));
    value = text;
    if (text.isEmpty())
        return fault(UsageFault::Syntax, Text::tr("The value of --%1 is empty.").arg(latin1(name)));
    return std::nullopt;
}

Fault readMode(const QCommandLineParser &parser, PanelMode &mode)
{
    std::optional<QString> name;
    if (Fault found = readValue(parser, "mode", name); found || !name)
        return found;
    if (*name != QLatin1String("constraint") && *name != QLatin1String("settings")) {
        return fault(UsageFault::Value,
                     Text::tr("There is no mode \"%1\". Choose constraint or settings.").arg(*name));
    }
    mode = *name == QLatin1String("settings") ? PanelMode::Settings : PanelMode::Constraint;
    return std::nullopt;
}

/// The address of a server as CUPS accepts it: a name or number with an optional port, or a socket's path.
Fault readServer(const QCommandLineParser &parser, std::optional<QString> &server)
{
    if (Fault found = readValue(parser, "server", server); found || !server)
        return found;
    static const QRegularExpression address(QStringLiteral(
        "\\A(?:/[^\\x00-\\x1f]+|(?:[A-Za-z0-9._-]+|\\[[0-9A-Fa-f:.%]+\\])(?::([0-9]{1,5}))?)\\z"));
    const QRegularExpressionMatch match = address.match(*server);
    const int port = match.captured(1).isEmpty() ? 631 : match.captured(1).toInt();
    if (match.hasMatch() && port >= 1 && port <= 65535)
        return std::nullopt;
    return fault(UsageFault::Value,
                 Text::tr("\"%1\" is not a print server. Give it as HOST or HOST:PORT.").arg(*server));
}

Fault readWait(const QCommandLineParser &parser, std::optional<std::chrono::seconds> &wait)
{
    std::optional<QString> text;
    if (Fault found = readValue(parser, "wait", text); found || !text)
        return found;
    constexpr int longest = 7 * 24 * 60 * 60;
    bool isNumber = false;
    const int seconds = text->toInt(&isNumber);
    if (!isNumber || seconds < 0 || seconds > longest)
        return fault(UsageFault::Value,
                     Text::tr("\"%1\" is not a time to wait. Give a number of seconds from 0 to %2.")
                         .arg(*text, QString::number(longest)));
    wait = std::chrono::seconds(seconds);
    return std::nullopt;
}

Fault readCopies(const QCommandLineParser &parser, std::optional<int> &copies)
{
    std::optional<QString> text;
    if (Fault found = readValue(parser, "copies", text); found || !text)
        return found;
    bool isNumber = false;
    const int number = text->toInt(&isNumber);
    if (!isNumber || number < 1 || number > mostCopies)
        return fault(UsageFault::Value,
                     Text::tr("\"%1\" copies cannot be printed. Give a number from 1 to %2.")
                         .arg(*text, QString::number(mostCopies)));
    copies = number;
    return std::nullopt;
}

Fault readPreview(const QCommandLineParser &parser, std::optional<QString> &preview)
{
    if (Fault found = readValue(parser, "preview", preview); found || !preview)
        return found;
    static const QRegularExpression picture(QStringLiteral("[^/]\\.png\\z"),
                                            QRegularExpression::CaseInsensitiveOption);
    if (preview->contains(picture))
        return std::nullopt;
    return fault(UsageFault::Value,
                 Text::tr("\"%1\" is not the name of a picture. Give one that ends in .png.").arg(*preview));
}

/// The name of the one PDF may be given with its suffix.
Fault readOutput(const QCommandLineParser &parser, CommandLine &line)
{
    Fault found = readValue(parser, "output", line.output);
    if (!found)
        found = readValue(parser, "one-pdf", line.onePdf);
    if (line.onePdf && line.onePdf->endsWith(PrintedNames::pageSuffix, Qt::CaseInsensitive))
        line.onePdf->chop(PrintedNames::pageSuffix.size());
    return found;
}

/// File managers pass URLs. But a file may also have such a name.
Fault readPhotos(const QStringList &arguments, QStringList &photos)
{
    for (const QString &argument : arguments) {
        const bool isUrl =
            argument.startsWith(QLatin1String("file:/"), Qt::CaseInsensitive) && !QFile::exists(argument);
        const std::optional<QString> path = isUrl ? fileOfUrl(QUrl(argument)) : argument;
        if (!path)
            return fault(
                UsageFault::Value,
                Text::tr("\"%1\" is not a file on this computer. Copy the photo here first.").arg(argument));
        photos.append(*path);
    }
    return std::nullopt;
}

/// A value in its text form; `complaint` is a sentence about the text %1.
template <class Value, class Read>
Fault readText(const QCommandLineParser &parser, const char *name, std::optional<Value> &value, Read read,
               const QString &complaint)
{
    std::optional<QString> text;
    if (Fault found = readValue(parser, name, text); found || !text)
        return found;
    value = read(*text);
    return value ? std::nullopt : Fault(fault(UsageFault::Value, complaint.arg(*text)));
}

Fault readSheets(const QCommandLineParser &parser, RequestedStyle &style)
{
    const Fault faults[] = {
        readText(parser, "scaling", style.scaling, scalingFromWord,
                 Text::tr("There is no scaling \"%1\". Choose fit, fill or actual.")),
        readText(
            parser, "size", style.size, PrintSize::fromText,
            Text::tr("\"%1\" is not a print size. Give one such as 10x15cm, 4x6in or passport, with sides "
                     "from 5 mm to 2 m.")),
        readText(parser, "scale", style.scale, PlacementChoice::scaleFromText,
                 Text::tr("\"%1\" is not a scale. Give a number from 1 to 1000, in per cent.")),
        readText(
            parser, "border", style.border, PhotoBorder::fromText,
            Text::tr("\"%1\" is not a border. Give a width from 0 to 100 mm, and a color if it is not to be "
                     "white: 3mm,black.")),
        readText(
            parser, "layout", style.layout, SheetLayout::fromText,
            Text::tr("\"%1\" is not a layout. Give rows and columns from 1 to 20 (2x3), fit, contact, or "
                     "strips:2 to strips:4.")),
        readText(parser, "caption", style.caption, captionFromText,
                 Text::tr("There is no caption \"%1\". Choose none, name, date or both."))};
    for (const Fault &found : faults) {
        if (found)
            return found;
    }
    return std::nullopt;
}

/// Call after readSheets().
Fault readCrop(const QCommandLineParser &parser, RequestedStyle &style)
{
    std::optional<QString> value;
    if (Fault found = readValue(parser, "crop", value); found || !value)
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
        return fault(
            UsageFault::Value,
            Text::tr("\"%1\" is not a crop. Give two numbers from 0 to 100, such as 50,0.").arg(*value));
    }
    if (style.scaling.value_or(Scaling::Fit) == Scaling::Fit && style.scale.value_or(1) == 1) {
        return fault(UsageFault::Combination,
                     Text::tr("--crop is for --scaling fill or actual; with fit nothing is cropped."));
    }
    style.crop = QPointF(left, top) / 100;
    return std::nullopt;
}

Fault readTitle(const QCommandLineParser &parser, CommandLine &line)
{
    Fault found = readValue(parser, "title", line.title);
    if (!found && line.title && (line.ppd || line.asksForBuiltInPrinter()))
        return fault(UsageFault::Combination, CommandLine::noTitleText());
    return found;
}

Fault readChoices(const QCommandLineParser &parser, QList<RequestedChoice> &choices)
{
    const QStringList values = parser.values(QStringLiteral("option"));
    for (const QString &value : values) {
        const qsizetype equals = value.indexOf(u'=');
        if (equals < 1) {
            return fault(UsageFault::Value,
                         Text::tr("\"%1\" is not an option. Give it as KEY=CHOICE.").arg(value));
        }
        choices.append({value.left(equals), value.mid(equals + 1)});
    }
    return std::nullopt;
}

/// Call after the printer and the PPD were read: the built-in printer's PPD needs a printer's name to have a
/// preset.
Fault readPreset(const QCommandLineParser &parser, CommandLine &line)
{
    if (Fault found = readValue(parser, "preset", line.preset); found || !line.preset)
        return found;
    if (line.printer && !line.printer->instance.isEmpty())
        return fault(UsageFault::Combination,
                     Text::tr("--preset names the preset \"%1\", and --printer the preset \"%2\". Name one.")
                         .arg(*line.preset, line.printer->instance));
    if (line.printer && line.printer->isAddress())
        return fault(UsageFault::Combination,
                     Text::tr("--preset is for print queues and the built-in printer, and \"%1\" is a "
                              "printer's address. Use -o in its place.")
                         .arg(line.printer->queue));
    if (line.ppd && !line.printer)
        line.printer = Destination::builtIn();
    if (line.printer)
        line.printer->instance = *line.preset;
    return std::nullopt;
}

Fault contradictionOfWatch(const CommandLine &line)
{
    if (!line.watch && (line.printed || line.existing))
        return fault(UsageFault::Combination,
                     Text::tr("%1 is for --watch.")
                         .arg(line.printed ? QLatin1String("--printed") : QLatin1String("--existing")));
    if (line.watch && !line.photos.isEmpty())
        return fault(UsageFault::Combination,
                     Text::tr("--watch prints the photos of its folder, and \"%1\" is named, too. Leave one "
                              "of them out.")
                         .arg(line.photos.constFirst()));
    return std::nullopt;
}

/// The requested tasks, as they are written on the command line.
QStringList tasksOf(const CommandLine &line)
{
    QStringList tasks;
    if (line.batch)
        tasks.append(QStringLiteral("--batch"));
    if (line.watch)
        tasks.append(QStringLiteral("--watch"));
    if (line.listPrinters)
        tasks.append(QStringLiteral("--list-printers"));
    if (line.listOptions)
        tasks.append(QStringLiteral("--list-options"));
    if (line.screenshot)
        tasks.append(QStringLiteral("--screenshot"));
    if (line.preview)
        tasks.append(QStringLiteral("--preview"));
    if (line.dryRun && !line.batch)
        tasks.append(QStringLiteral("--dry-run"));
    if (line.summary && !line.batch && !line.dryRun)
        tasks.append(QStringLiteral("--summary"));
    return tasks;
}

Fault contradiction(const CommandLine &line)
{
    if (line.ppd && line.printer && !line.asksForBuiltInPrinter()) {
        return fault(UsageFault::Combination,
                     Text::tr("--ppd is for the built-in printer, and --printer names the queue \"%1\".")
                         .arg(line.printer->id()));
    }
    const QStringList tasks = tasksOf(line);
    if (tasks.size() > 1) {
        return fault(UsageFault::Combination,
                     Text::tr("%1 and %2 exclude each other.").arg(tasks.at(0), tasks.at(1)));
    }
    if (line.batch && line.photos.isEmpty())
        return fault(UsageFault::Missing, Text::tr("--batch needs a photo to print."));
    if (line.dryRun && line.photos.isEmpty())
        return fault(UsageFault::Missing, Text::tr("--dry-run needs a photo."));
    if (line.preview && line.photos.isEmpty())
        return fault(UsageFault::Missing, Text::tr("--preview needs a photo."));
    const qsizetype lists = std::ranges::count_if(line.photos, PrintList::isListName);
    if (lists > 0 && (line.photos.size() > 1 || line.style != RequestedStyle()))
        return fault(
            UsageFault::Combination,
            Text::tr(
                "A print list says itself which photos are printed and how. Give it without other photos, "
                "and without %1.")
                .arg(QLatin1String("--scaling, --crop, --size, --scale, --border, --layout, --caption")));
    if (line.photos.count(QLatin1String("-")) > 1)
        return fault(UsageFault::Combination,
                     Text::tr("\"-\" reads one photo from the standard input. Give it once."));
    if (line.json && !line.dryRun &&
        (line.batch || line.watch || line.screenshot || line.preview || tasks.isEmpty())) {
        return fault(UsageFault::Combination,
                     Text::tr("--json is for --list-printers, --list-options, --summary and --dry-run."));
    }
    if (line.overwrite && !line.batch && !line.dryRun && !line.preview)
        return fault(UsageFault::Combination,
                     Text::tr("--overwrite is for --batch, --dry-run and --preview."));
    if (line.onePdf && !line.batch && !line.dryRun)
        return fault(UsageFault::Combination, Text::tr("--one-pdf is for --batch and --dry-run."));
    if (line.wait && !line.batch)
        return fault(UsageFault::Combination, Text::tr("--wait is for --batch."));
    if (line.preset && !line.printer && !line.runsWithoutWindow() && !line.screenshot)
        return fault(UsageFault::Missing,
                     Text::tr("--preset needs --printer where a window opens: it opens with the printer used "
                              "last, which may have no such preset."));
    if (!line.checks && !line.batch && !line.dryRun)
        return fault(UsageFault::Combination, Text::tr("--no-check is for --batch and --dry-run."));
    return std::nullopt;
}

QString syntaxOf(const OptionRow &row)
{
    QStringList names = latin1(row.names).split(u',');
    for (QString &name : names)
        name.prepend(name.size() == 1 ? QLatin1String("-") : QLatin1String("--"));
    const QString syntax = names.join(QLatin1String(", "));
    return row.value ? syntax + u' ' + latin1(row.value) : syntax;
}

} // namespace

Result<CommandLine, UsageFault> CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return fault(UsageFault::Syntax, parser.errorText());

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

    for (const Fault &found :
         {readPhotos(parser.positionalArguments(), line.photos), readCopies(parser, line.copies),
          readValue(parser, "printer", line.printer), readValue(parser, "ppd", line.ppd),
          readPreset(parser, line), readValue(parser, "watch", line.watch),
          readValue(parser, "printed", line.printed), readOutput(parser, line), readTitle(parser, line),
          readValue(parser, "screenshot", line.screenshot), readPreview(parser, line.preview),
          readServer(parser, line.server), readWait(parser, line.wait), readMode(parser, line.mode),
          readSheets(parser, line.style), readCrop(parser, line.style), readChoices(parser, line.options),
          contradiction(line), contradictionOfWatch(line)}) {
        if (found)
            return *found;
    }
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
    return Text::tr("--title is for print queues; the built-in printer names its files after the photos.");
}

QString CommandLine::helpText()
{
    constexpr int column = 28;
    QString help = Text::tr("Usage: corvel-print [options] PHOTO...\n"
                            "Prints photos on a photo printer: from a window, or at once with --batch.\n"
                            "PHOTO can be - for the standard input, or a print list, LIST.json.\n\n"
                            "Options:\n");
    for (const OptionRow &row : optionRows) {
        QString left = QLatin1String("  ") + syntaxOf(row);
        if (left.size() > column - 2) {
            help += left + u'\n';
            left.clear();
        }
        const QStringList lines = Text::tr(row.text).split(u'\n');
        for (const QString &text : lines) {
            help += left.leftJustified(column) + text + u'\n';
            left.clear();
        }
    }
    help +=
        Text::tr("\nExit status:\n"
                 "  0  printed, or done what was asked for\n"
                 "  1  refused or failed; one line on standard error says what and why. A photo with\n"
                 "     damaged pixels is left out, with a line of its own, and the others are printed\n"
                 "  2  wrong usage\n"
                 "\nExamples:\n"
                 "  corvel-print --printer built-in holiday.jpg\n"
                 "  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output prints *.jpg\n"
                 "  corvel-print --batch --size passport --scaling fill --layout fit portrait.jpg\n");
    return help;
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
