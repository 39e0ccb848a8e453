// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine_p.h"

#include <array>

namespace printdialog {

namespace {

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
                                "fills its sheet; also \",gap=2mm\" and \",marks\" for cut marks. Of a\n"
                                "document: pages:2, 4, 6, 9 or 16 on each sheet, or booklet")},
    OptionRow{"pages", "RANGES|all",
              QT_TRANSLATE_NOOP("CommandLine",
                                "which pages of documents: 1-3,7,12- (12- is page 12 to the last one);\n"
                                "otherwise all")},
    OptionRow{"page-set", "all|odd|even",
              QT_TRANSLATE_NOOP("CommandLine", "only pages with odd or with even numbers")},
    OptionRow{"reverse", nullptr, QT_TRANSLATE_NOOP("CommandLine", "print the last sheet first")},
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
                                "no window: apply the options, print, exit; of what the window has\n"
                                "saved only the print position is used, so that a script gets the same\n"
                                "each time")},
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
    OptionRow{"use-for-all-programs", nullptr,
              QT_TRANSLATE_NOOP("CommandLine",
                                "have the programs that print through the desktop's portal use this\n"
                                "dialog: sets one key of your portals.conf, and says in which file.\n"
                                "Needs the package corvel-print-portal")},
    OptionRow{"stop-using-for-all-programs", nullptr,
              QT_TRANSLATE_NOOP("CommandLine", "remove that key again")},
    OptionRow{"h,help", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show this help")},
    OptionRow{"v,version", nullptr, QT_TRANSLATE_NOOP("CommandLine", "show the version")},
};

QString syntaxOf(const OptionRow &row)
{
    QStringList names = latin1(row.names).split(u',');
    for (QString &name : names)
        name.prepend(name.size() == 1 ? QLatin1String("-") : QLatin1String("--"));
    const QString syntax = names.join(QLatin1String(", "));
    return row.value ? syntax + u' ' + latin1(row.value) : syntax;
}

} // namespace

void addCommandLineOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : optionRows)
        parser.addOption({latin1(row.names).split(u','), QString(), latin1(row.value)});
}

QString CommandLine::helpText()
{
    constexpr int column = 28;
    QString help =
        CommandLineText::tr("Usage: corvel-print [options] FILE...\n"
                            "Prints photos and PDF documents: from a window, or at once with --batch.\n"
                            "FILE can be - for the standard input, or a print list, LIST.json.\n\n"
                            "Options:\n");
    for (const OptionRow &row : optionRows) {
        QString left = QLatin1String("  ") + syntaxOf(row);
        if (left.size() > column - 2) {
            help += left + u'\n';
            left.clear();
        }
        const QStringList lines = CommandLineText::tr(row.text).split(u'\n');
        for (const QString &text : lines) {
            help += left.leftJustified(column) + text + u'\n';
            left.clear();
        }
    }
    help += CommandLineText::tr(
        "\nExit status:\n"
        "  0  printed, or done what was asked for\n"
        "  1  refused or failed; one line on standard error says what and why. A photo with\n"
        "     damaged pixels is left out, with a line of its own, and the others are printed\n"
        "  2  wrong usage\n"
        "\nExamples:\n"
        "  corvel-print --printer built-in holiday.jpg\n"
        "  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output prints *.jpg\n"
        "  corvel-print --batch --size passport --scaling fill --layout fit portrait.jpg\n"
        "  corvel-print --batch --pages 2-9 --layout booklet -o Duplex=DuplexTumble report.pdf\n");
    return help;
}

} // namespace printdialog
