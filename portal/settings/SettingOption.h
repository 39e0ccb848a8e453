// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace printdialog {

class OptionSource;

/// A setting of programs, and the printers' option that is the same.
struct SettingOption
{
    /// A value of the setting, and the IPP keywords or numbers that mean the same, the usual one first.
    struct Value
    {
        QString setting;
        QStringList keywords;
    };

    QString setting;
    QStringList options;       ///< Keywords that printers have for the option.
    QString label;             ///< By which StandardLabels knows its choices.
    std::vector<Value> values; ///< Empty: the setting's values are the option's.
    QStringList usual;         ///< Values that a printer without the option satisfies.

    static const std::vector<SettingOption> &all();

    /// The option's keyword at this printer; nothing when it has none.
    std::optional<QString> optionOf(const OptionSource &source) const;
    /// The choice for the setting's value; nothing when the printer has none.
    std::optional<QString> choiceFor(const OptionSource &source, const QString &value) const;
    /// The setting's value for people; the value itself where there are no words for it.
    QString textOf(const QString &value) const;
    /// The setting's value for a choice; nothing when programs have no word for it.
    std::optional<QString> valueOf(const QString &choice) const;
};

} // namespace printdialog
