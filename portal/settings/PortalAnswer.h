// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageChoice.h"

#include <QtCore/QVariantMap>

#include <optional>

namespace printdialog {

class OptionSource;
class PortalSettings;
struct PrintJob;

/// What was chosen, in a program's own keys.
struct PortalAnswer
{
    QVariantMap settings; ///< All values are texts.
    QVariantMap pageSetup;
};

/// How what programs do to their pages by themselves is answered. What this dialog does is answered as done.
enum class PagesBy {
    Program, ///< The program arranges the pages on sheets, as it asked for.
    Dialog,
};

/// What the program is to know of the job: the choice of pages stays with it, the copies never. Entries that
/// say nothing of what was chosen come back as they were.
PortalAnswer portalAnswer(const PortalSettings &asked, const PrintJob &job, const OptionSource &source,
                          const PageChoice &pages, PagesBy arranged);

/// The format in which the program is to bring its pages: "pdf", in lower case as programs compare it, or
/// "ps"; nothing when it offers neither.
/// @param offered the formats that it has; nothing when it does not say
/// @param takesPostScript whether PostScript can be converted
std::optional<QString> portalFormat(const std::optional<QStringList> &offered, bool takesPostScript);

} // namespace printdialog
