// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OptionSource.h"

#include <QtCore/QMap>

namespace printdialog {

/// The values of a custom choice, by the names of their parameters: numbers with a decimal point, in points
/// for lengths; texts as they are.
using CustomValues = QMap<QString, QString>;

/// Whether the choice is spelled as a custom one: `Custom.VALUE`, or `{NAME=VALUE ...}` for several
/// parameters, as ppdMarkOption() reads them; or `Custom` alone, which stands for secret values that are kept
/// elsewhere.
bool isCustomChoice(const QString &choice);

/// Whether the values of such a choice must not be stored, shown or logged.
bool isSecret(const QList<CustomParameter> &parameters);

/// The values in a custom choice; nothing when the text is not one for these parameters. They may be out of
/// range, see objection().
std::optional<CustomValues> customValues(const QList<CustomParameter> &parameters, const QString &choice);

/// The custom choice with these values, in the spelling that is stored and sent.
QString customChoice(const QList<CustomParameter> &parameters, const CustomValues &values);

/// The value in its one spelling ("5" for "05.0"); nothing when the parameter does not allow it: not a
/// number, out of range, too short or long, or with control characters.
std::optional<QString> customValue(const CustomParameter &parameter, const QString &value);

/// What the parameter allows, for people: "from 1 to 99", "up to 8 digits".
QString allowedText(const CustomParameter &parameter);

/// The choice as people read it: "12 mm", or "Code: 5, Name: x" for several parameters; a fixed text for
/// secret ones.
QString customText(const QList<CustomParameter> &parameters, const QString &choice);

// Lengths as people type and read them: in millimeters, or in inches where the locale measures so.
QString lengthUnit();
/// Without the unit, with the locale's decimal point.
QString lengthNumber(double points);
/// The points of a typed length; a comma or a point stands before the decimals. Nothing for any other text.
std::optional<double> typedLength(const QString &typed);

/// The value that a typed text stands for, in the spelling of customValue(): a number with a comma or a
/// point, a length in lengthUnit(); nothing when the parameter does not allow it.
std::optional<QString> typedValue(const CustomParameter &parameter, const QString &typed);
/// The reverse: the text to edit.
QString typedText(const CustomParameter &parameter, const QString &value);

/// The size of a custom page in points; nothing when the keyword is not `Custom.WIDTHxHEIGHT` with one of the
/// units pt (the default), mm, cm, m, in and ft.
std::optional<QSizeF> customPagePoints(const QString &keyword);

/// The keyword of a custom page in the one spelling that is stored and sent: in millimeters with at most two
/// decimals.
QString customPageKeyword(const QSizeF &points);

/// The page's size in the units of the user's locale, such as "100 × 150 mm".
QString pageSizeText(const QSizeF &points);

} // namespace printdialog
