// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// How a text reads as a plain decimal number: digits with an optional sign and point, without exponent or
/// other bases.
enum class DecimalText {
    Number,    ///< `12`, `-0.5`, `+12`, `.5`, `1.`
    Beginning, ///< Typed so far, without a digit: nothing, `-`, `+`, `.`, `-.`, `+.`
    Other,
};

DecimalText decimalText(const QString &text);

/// The choices of one option whose keywords are numbers, found by their value.
class NumericChoices
{
public:
    /// Keeps the numbers among the option's choice keywords.
    explicit NumericChoices(const QStringList &keywords = {});

    bool isEmpty() const { return keywordOf_.isEmpty(); }
    /// The choice keyword with the number's value, such as `1.50` for `1.5`; the first of several.
    std::optional<QString> byValue(const QString &number) const;
    /// The allowed range in the PPD's spelling, such as `-25 to 25` or `0.00 to 3.00 in steps of 0.01`. Empty
    /// when there are fewer than three values or their distances differ.
    QString range() const;

private:
    QHash<QString, QString> keywordOf_; // by the value's shortest spelling
    QStringList keywords_;
};

} // namespace printdialog
