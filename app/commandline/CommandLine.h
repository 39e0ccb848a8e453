// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementStyle.h"
#include "Destination.h"
#include "PageChoice.h"
#include "PrintJob.h"
#include "PrintList.h"
#include "PrinterDescription.h"
#include "Result.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

namespace printdialog {

/// The program's exit status.
enum ExitStatus {
    exitDone = 0,
    exitFailed = 1, ///< refused or failed, with the reason on standard error
    exitWrongUsage = 2,
};

/// Why a command line is wrong.
enum class UsageFault {
    Syntax,      ///< an unknown option, or one without its value
    Value,       ///< a value that the option cannot have
    Missing,     ///< something required is missing
    Combination, ///< options that exclude each other
};

/// A choice requested on the command line.
struct RequestedChoice
{
    QString key;
    QString choice; ///< any text that may stand for a choice, not checked yet
};

/// What the command line says of the photos' arrangement; the rest is the preset's, or usual.
struct RequestedStyle
{
    std::optional<Scaling> scaling = std::nullopt;
    std::optional<QPointF> crop = std::nullopt; ///< see PlacementChoice
    std::optional<PrintSize> size = std::nullopt;
    std::optional<double> scale = std::nullopt;
    std::optional<PhotoBorder> border = std::nullopt;
    std::optional<SheetLayout> layout = std::nullopt;
    std::optional<Caption> caption = std::nullopt;

    bool operator==(const RequestedStyle &) const = default;
    /// The style with what is requested in place of its own.
    ArrangementStyle over(const ArrangementStyle &style) const;
};

/// Whether other programs are to print with this dialog.
enum class PortalUse { Start, Stop };

/// The program's task. A plain value. At most one of batch, watch, preview, listPrinters, listOptions and
/// screenshot is set; summary and dryRun are each set alone or together with batch. Without any of them, the
/// window is shown.
struct CommandLine
{
    /// Paths of photos and documents; file URLs are converted, and "-" stands for the standard input. Or a
    /// single print list.
    QStringList photos;
    std::optional<Destination> printer; ///< its instance is a preset's name, or the preset's instance in CUPS
    std::optional<QString> preset;      ///< of the printer; also the instance of `printer`, if that is set
    std::optional<QString> ppd;         ///< a file, for the built-in printer
    PanelMode mode = PanelMode::Constraint;
    QList<RequestedChoice> options; ///< in the order given
    std::optional<QString> title;   ///< of the job at a queue
    std::optional<int> copies;      ///< of each photo, from 1 to mostCopies
    RequestedStyle style;
    PageChoice pages;              ///< of documents
    std::optional<QString> output; ///< the folder of the built-in printer's files
    std::optional<QString> onePdf; ///< the name of one PDF of all sheets, without suffix
    bool overwrite = false;        ///< files of an earlier run are replaced
    bool batch = false;
    std::optional<QString> watch;   ///< the folder whose new photos are printed
    std::optional<QString> printed; ///< where they are moved then
    bool existing = false;          ///< also those that are there at first
    bool dryRun = false;
    bool checks = true;            ///< whether damaged photos are left out
    std::optional<QString> server; ///< "host", "host:port" or a socket's path, fit for CUPS_SERVER
    /// The limit for following a job; without it, to its end.
    std::optional<std::chrono::seconds> wait;
    bool listPrinters = false;
    bool listOptions = false;
    bool summary = false;
    bool json = false;
    std::optional<QString> screenshot; ///< the folder for the pictures
    std::optional<QString> preview;    ///< the file for the first photo's page; ends in .png
    /// Set alone.
    std::optional<PortalUse> portal;
    bool help = false;
    bool version = false;

    /// Parses the arguments, the program's name first. Needs no application object. With help or version,
    /// only checks that every option is known and has its value.
    static Result<CommandLine, UsageFault> parse(const QStringList &arguments);

    /// The text of --help; ends with a line feed.
    static QString helpText();

    /// Whether the photos are those of a print list.
    bool hasPrintList() const { return photos.size() == 1 && PrintList::isListName(photos.constFirst()); }
    /// Whether texts are drawn, for which fonts are needed.
    bool drawsText() const;

    /// A sentence: only jobs of print queues have a title.
    static QString noTitleText();

    /// Whether the printer is the built-in one by name.
    bool asksForBuiltInPrinter() const;
    /// The folder for the built-in printer's files: the requested one, or else the current one or, with a
    /// window, "Prints" in the user's pictures folder.
    QString outputFolder() const;
    /// Whether the task shows no widget, on a screen or in a picture.
    bool runsWithoutWindow() const
    {
        return batch || watch || dryRun || preview || listPrinters || listOptions || summary;
    }
};

} // namespace printdialog
