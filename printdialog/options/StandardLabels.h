// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace printdialog {

/// Labels in the user's language for the names that the standards give to options and their choices: IPP
/// attributes and values (RFC 8011; PWG 5100 and 5101.1), and the names that CUPS gives them in a PPD that it
/// makes from them. A maker's own names have none.
class StandardLabels
{
public:
    /// For "media-type" or "MediaType"; empty when the name is not a standard one.
    static QString option(const QString &key);
    /// Enumerations by their number. Empty when the name is not a standard one.
    static QString choice(const QString &key, const QString &keyword);

    /// For a page size by its self-describing name (PWG 5101.1). A size without a name of its own is labeled
    /// by its dimensions.
    static QString pageSize(const QString &name, const QSizeF &points, bool isBorderless);
};

} // namespace printdialog
