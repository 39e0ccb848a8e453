// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OptionSource.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QSet>

namespace printdialog {

/// Which choices do not go together. libcups reports whether a choice conflicts, and with which options, but
/// includes all conflicts anywhere in the PPD. This class finds those that one choice takes part in. The
/// rules are those of libcups: case-insensitive; a term without a choice means every choice but None, Off and
/// False; PageSize and PageRegion stand for each other; "Custom" means every custom choice. Of a PickMany
/// option, each chosen keyword counts. Borrows the source.
class Constraints
{
public:
    /// Choices by option keyword, in the source's spelling, that count in place of the marks.
    using Supposed = QMap<QString, QString>;

    explicit Constraints(const OptionSource &source);

    /// The marked or supposed choices that conflict with the choice: the other terms of the first constraint
    /// that marking it would break. Empty when it would break none.
    QList<OptionChoice> against(const QString &option, const QString &choice,
                                const Supposed &supposed = {}) const;
    /// Like against(), but only what the printer's installed equipment rules out, whatever else is chosen.
    QList<OptionChoice> againstEquipment(const QString &option, const QString &choice) const;
    /// The broken constraints among the marked and supposed choices, each as the set of conflicting choices,
    /// without duplicates.
    QList<QList<OptionChoice>> broken(const Supposed &supposed = {}) const;

private:
    using Term = OptionChoice;

    void add(ConstraintTerms constraint);
    bool isMetBy(const Term &term, const QString &choice) const;
    std::optional<OptionChoice> present(const QString &option, const Supposed &supposed) const;
    std::optional<OptionChoice> met(const Term &term, const OptionChoice &asked,
                                    const Supposed &supposed) const;

    const OptionSource &source_;
    QList<ConstraintTerms> constraints_;
    QHash<QString, QList<qsizetype>> on_; // constraints by option keyword in lower case
    QSet<QString> equipment_;             // the options of installable equipment
    QHash<QString, QString> keywordOf_;   // option keyword as the source spells it, by lower case
};

} // namespace printdialog
