// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "PhotoPlacement.h"
#include "PrintJob.h"
#include "PrinterDescription.h"
#include "Result.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

namespace printdialog {

/// What the program ends with.
enum ExitStatus {
    exitDone = 0,
    exitFailed = 1, ///< refused or failed, and said why
    exitWrongUsage = 2,
};

/// Why a command line is wrong.
enum class UsageFault {
    Syntax,      ///< an unknown option, or one without its value
    Value,       ///< a value that the option cannot have
    Missing,     ///< something that has to be there as well
    Combination, ///< options that exclude each other
};

/// A choice that is asked for on the command line.
struct RequestedChoice
{
    QString key;
    QString choice; ///< any text that may stand for a choice; nothing in it is checked yet
};

/// What the program is asked to do. A plain value. At most one of batch, listPrinters, listOptions and
/// screenshot is set, summary beside none of them but batch, and dryRun likewise; without any of them it is
/// the window.
struct CommandLine
{
    QStringList photos;                 ///< paths, also of those that are given as file URLs
    std::optional<Destination> printer; ///< its instance is a preset's name, or what CUPS calls the preset
    std::optional<QString> ppd;         ///< a file, for the built-in printer
    PanelMode mode = PanelMode::Constraint;
    QList<RequestedChoice> options; ///< in the order given
    std::optional<int> copies;      ///< of each photo, from 1 to mostCopies
    PlacementChoice placement;      ///< of each photo on its page
    std::optional<QString> output;  ///< the folder of the built-in printer's files
    bool overwrite = false;         ///< the built-in printer replaces files of an earlier run
    bool batch = false;
    bool dryRun = false;
    bool checks = true;            ///< whether damaged photos are left out
    std::optional<QString> server; ///< "host", "host:port" or a socket's path, fit for CUPS_SERVER
    /// How long a job is followed at most; without it to its end.
    std::optional<std::chrono::seconds> wait;
    bool listPrinters = false;
    bool listOptions = false;
    bool summary = false;
    bool json = false;
    std::optional<QString> screenshot; ///< the folder for the pictures
    bool help = false;
    bool version = false;

    /// Reads the arguments, the program's name first. Needs no application object. With help or version
    /// nothing else is checked but that every option is known and has its value.
    static Result<CommandLine, UsageFault> parse(const QStringList &arguments);

    /// What --help shows; ends with a line feed.
    static QString helpText();

    /// Whether the printer is by its very name the built-in one.
    bool asksForBuiltInPrinter() const;
    /// Where the built-in printer leaves its files: the folder asked for, or else the current one, with a
    /// window the folder "Prints" among the user's pictures.
    QString outputFolder() const;
    /// Whether the task is done without any widget on a screen or in a picture.
    bool runsWithoutWindow() const { return batch || dryRun || listPrinters || listOptions || summary; }
};

} // namespace printdialog
