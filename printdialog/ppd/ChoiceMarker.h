// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "NumericChoices.h"
#include "PpdConstraints.h"

#include <QtCore/QMap>

#include <optional>

namespace printdialog {

class PpdDocument;

/// What the constraint handling says to one choice.
enum class Verdict {
    Accepted,
    Incomplete, ///< The beginning of a number, for an option with numbers. Let through; nothing is marked.
    UnknownOption,
    UnknownChoice,
    Conflict, ///< Something that is marked may not be together with it.
};

struct Ruling
{
    Verdict verdict = Verdict::Accepted;
    QString key; ///< The option that was asked for; plain text.
    QString
        choice; ///< The choice's keyword in the PPD's spelling (`1.50` for `1.5`); unknown: as asked, plain.
    QString text;        ///< One sentence for people, plain text; empty when accepted.
    QString otherOption; ///< In a conflict: the keyword of the option that stands in the way,
    QString otherChoice; ///< and of its marked choice.

    /// Nothing stands against going on: accepted, or still being typed.
    bool letsThrough() const { return verdict == Verdict::Accepted || verdict == Verdict::Incomplete; }
};

/// The constraint handling: marks choices in one PPD and refuses what the PPD does not allow. Borrows the
/// document, which must outlive it and not be moved meanwhile; same thread.
///
/// A choice is named by its keyword, letter case too, or by any plain decimal spelling of its number. Whether
/// a choice is in conflict is libcups' own answer (cupsGetConflicts), except that a conflict between other
/// options, which was there before, does not count against it. An option's present choice is judged like any
/// other.
class ChoiceMarker
{
public:
    explicit ChoiceMarker(PpdDocument &document);

    /// What mark() would say. Marks nothing.
    Ruling check(const QString &key, const QString &choice) const;
    /// Marks the choice when it is accepted. Otherwise the PPD stays exactly as it was.
    Ruling mark(const QString &key, const QString &choice);

    /// Marks all the choices at once, also where they stand in each other's way: firstConflict() tells
    /// afterwards. Instead of what is no choice of the PPD the option's default is marked; the answer has a
    /// ruling for each.
    QList<Ruling> markTogether(const QMap<QString, QString> &choices);

    /// The choice's keyword in the PPD's spelling, or nothing when it is no choice of the option.
    std::optional<QString> canonicalChoice(const QString &key, const QString &choice) const;

    /// The marked choice of every option that has one.
    QMap<QString, QString> markedChoices() const;
    /// A sentence for each conflict within the marked choices, mirrored constraints once; mostly empty.
    QStringList conflicts() const;
    /// The first conflict within the marked choices; its key and otherOption are the two that may not be
    /// together.
    std::optional<Ruling> firstConflict() const;

private:
    const NumericChoices &numbers(const QString &key) const;
    QString optionsList() const;
    QString allowed(const QString &key) const;
    QString optionLabel(const QString &key) const;
    QString choiceLabel(const QString &key, const QString &choice) const;
    Ruling conflict(const OptionChoice &choice, const QList<OptionChoice> &others) const;
    void markUnchecked(const QString &key, const QString &choice);
    bool libcupsObjects(const QString &key, const QString &choice) const;

    PpdDocument &document_;
    PpdConstraints constraints_;
    mutable QHash<QString, NumericChoices> numbers_; // worked out when first asked for
};

} // namespace printdialog
