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

/// An option and its choice, by their keywords.
struct OptionChoice
{
    QString option;
    QString choice;

    bool operator==(const OptionChoice &) const = default;
};

/// The PPD's constraints. libcups reports whether a choice conflicts, and with which options, but includes
/// all conflicts anywhere in the PPD. This class finds those that one choice takes part in. The rules are
/// those of libcups: case-insensitive; a constraint without a choice means every choice but None, Off and
/// False; PageSize and PageRegion stand for each other; cupsUIConstraints, where a PPD has them, replace the
/// older UIConstraints and NonUIConstraints. Borrows the document.
class PpdConstraints
{
public:
    /// Choices by option keyword, in the PPD's spelling, that count in place of the marks.
    using Supposed = QMap<QString, QString>;

    explicit PpdConstraints(const PpdDocument &document);

    /// The marked or supposed choices that conflict with the choice: the other terms of the first constraint
    /// that marking it would break. Empty when it would break none.
    QList<OptionChoice> against(const QString &option, const QString &choice,
                                const Supposed &supposed = {}) const;
    /// The broken constraints among the marked and supposed choices, each as the set of conflicting choices,
    /// without duplicates.
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
