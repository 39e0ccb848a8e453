// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "PrintJob.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

namespace printdialog {

class OptionSource;

/// What a program asks for, in a printer's own words.
struct ProgramChoices
{
    QList<QPair<QString, QString>> options; ///< Initial choices, in order.
    QStringList remarks;                    ///< A sentence for each that the printer does not have.
};

/// The document of a program. It brings the pages only after it knows how they are printed, unless they are
/// in the window already. All texts are plain text.
struct ProgramDocument
{
    QString program;     ///< The program's name; may be empty.
    QString name;        ///< The document's, for people and as the job's title.
    QString acceptLabel; ///< For the button in the place of "Print", with "&"; mostly empty.
    bool hasCurrentPage = false;
    bool hasSelection = false;
    QSizeF pageSize = {};     ///< Of its pages, in points; empty: that of the paper.
    PageChoice pages = {};    ///< Which pages it wants.
    QStringList remarks = {}; ///< Sentences to be shown when the window opens.
    /// Called for the printer that the window opens with, and again when more of it is known.
    std::function<ProgramChoices(const OptionSource &)> choices = {};
};

/// How a program's document is to be printed.
struct PreparedPrint
{
    PrintJob job;
    Arrangement arrangement;        ///< Without pages where the program is still to bring them.
    PlacementChoice placement = {}; ///< Of the pages to come.
};

} // namespace printdialog
