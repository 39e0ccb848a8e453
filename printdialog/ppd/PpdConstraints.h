// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <optional>

struct ppd_file_s;

namespace printdialog {

class PpdDocument;

/// A choice of an option, by their keywords.
struct OptionChoice
{
    QString option;
    QString choice;

    bool operator==(const OptionChoice &) const = default;
};

/// Which constraint forbids what. libcups tells whether a choice is in conflict, and with which options, but
/// counts in every conflict that is anywhere in the PPD; this tells those that a choice takes part in, and
/// who with. The rules are libcups': letter case does not matter; a constraint without a choice means every
/// choice but None, Off and False; PageSize and PageRegion stand for each other; cupsUIConstraints, where a
/// PPD has them, replace the older UIConstraints and NonUIConstraints. Borrows the document.
class PpdConstraints
{
public:
    /// Choices by option keyword, in the PPD's spelling, that count instead of what is marked.
    using Supposed = QMap<QString, QString>;

    explicit PpdConstraints(const PpdDocument &document);

    /// What is marked or supposed and may not be together with the choice: the rest of the first constraint
    /// that would be broken if the choice were marked. Empty when none would be.
    QList<OptionChoice> against(const QString &option, const QString &choice,
                                const Supposed &supposed = {}) const;
    /// Each broken constraint among the marked and supposed choices, as the choices that may not be together,
    /// each set once.
    QList<QList<OptionChoice>> broken(const Supposed &supposed = {}) const;

private:
    struct Term
    {
        QString option;
        QString choice; // empty: every choice but None, Off and False
    };
    using Constraint = QList<Term>;

    void loadPairs(const ppd_file_s &record);
    void add(Constraint constraint);
    std::optional<OptionChoice> present(const QString &option, const Supposed &supposed) const;
    std::optional<OptionChoice> met(const Term &term, const OptionChoice &asked,
                                    const Supposed &supposed) const;

    const PpdDocument &document_;
    QList<Constraint> constraints_;
    QHash<QString, QList<qsizetype>> on_; // constraints by option keyword in lower case
    QHash<QString, QString> keywordOf_;   // option keyword as the PPD spells it, by lower case
};

} // namespace printdialog
