// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// What a text is as a plain decimal number: digits with an optional sign and point; no exponent, no other
/// base.
enum class DecimalText {
    Number,    ///< `12`, `-0.5`, `+12`, `.5`, `1.`
    Beginning, ///< What a person has typed before the first digit: nothing, `-`, `+`, `.`, `-.`, `+.`
    Other,
};

DecimalText decimalText(const QString &text);

/// The choices of one option whose keywords are numbers, found by their value.
class NumericChoices
{
public:
    /// Takes all choice keywords of the option and keeps the numbers among them.
    explicit NumericChoices(const QStringList &keywords = {});

    bool isEmpty() const { return keywordOf_.isEmpty(); }
    /// The choice keyword of the number's value: `1.50` for `1.5`. The first one when several have it.
    std::optional<QString> byValue(const QString &number) const;
    /// What is allowed, such as `-25 to 25` or `0.00 to 3.00 in steps of 0.01`, in the PPD's own spelling.
    /// Empty when there are fewer than three values or their distances differ.
    QString range() const;

private:
    QHash<QString, QString> keywordOf_; // by the value's shortest spelling
    QStringList keywords_;
};

} // namespace printdialog
