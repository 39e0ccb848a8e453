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
    QString text;                    ///< One sentence for people, plain text; empty when accepted.
    QString otherOption;             ///< In a conflict: the keyword of the option that stands in the way,
    QString otherChoice;             ///< and of its marked choice.
    QList<OptionChoice> others = {}; ///< In a conflict: all that the choice may not be together with.

    /// Nothing stands against going on: accepted, or still being typed.
    bool letsThrough() const { return verdict == Verdict::Accepted || verdict == Verdict::Incomplete; }
};

/// What becomes of choices that were made another time.
struct ChoicePlan
{
    QMap<QString, QString> choices; ///< those that can be made together, in the PPD's spelling
    QList<Ruling> leftOut;          ///< a ruling for each of the others
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

    /// Marks choices of the PPD, also where they stand in each other's way.
    void markUnchecked(const QString &key, const QString &choice);

    /// Which of the wanted choices the PPD has, and allows together with the choices in `base`, which count
    /// instead of what is marked. All of them when they go together, in whatever order; else as many as can
    /// be made one after the other. Marks nothing.
    ChoicePlan plan(const QMap<QString, QString> &wanted, const QMap<QString, QString> &base) const;

    /// The changes of other options that would allow the choice that the ruling refuses, worked out by
    /// libcups (cupsResolveConflicts) from what is marked: never of the page size, nor of the option itself.
    /// Nothing when there is no such way. Marks nothing.
    QList<OptionChoice> changesThatAllow(const Ruling &refusal) const;

    /// The choice's keyword in the PPD's spelling, or nothing when it is no choice of the option.
    std::optional<QString> canonicalChoice(const QString &key, const QString &choice) const;

    /// The marked choice of every option that has one.
    QMap<QString, QString> markedChoices() const;
    /// A sentence for each conflict within the marked choices, mirrored constraints once; mostly empty.
    QStringList conflicts() const;
    /// The first conflict within the marked choices; its key and otherOption are the two that may not be
    /// together. The key is the one of them that stands first in `keys`, if any does.
    std::optional<Ruling> firstConflict(const QStringList &keys = {}) const;

private:
    const NumericChoices &numbers(const QString &key) const;
    QString optionsList() const;
    QString allowed(const QString &key) const;
    QString optionLabel(const QString &key) const;
    QString choiceLabel(const QString &key, const QString &choice) const;
    Ruling conflict(const OptionChoice &choice, const QList<OptionChoice> &others) const;
    bool libcupsObjects(const QString &key, const QString &choice) const;

    PpdDocument &document_;
    PpdConstraints constraints_;
    mutable QHash<QString, NumericChoices> numbers_; // worked out when first asked for
};

} // namespace printdialog
