// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Constraints.h"
#include "NumericChoices.h"

#include <QtCore/QMap>

#include <optional>

namespace printdialog {

class OptionSource;

/// The verdict of the constraint handling on one choice.
enum class Verdict {
    Accepted,
    Incomplete, ///< The beginning of a number, for a numeric option. Let through; nothing is marked.
    UnknownOption,
    UnknownChoice,
    Conflict, ///< It conflicts with a marked choice.
};

struct Ruling
{
    Verdict verdict = Verdict::Accepted;
    QString key; ///< The requested option; plain text.
    /// The choice's keyword in the source's spelling (`1.50` for `1.5`); an unknown one as requested, plain
    /// text.
    QString choice;
    QString text;                    ///< One sentence for people, plain text; empty when accepted.
    QString otherOption;             ///< In a conflict: the keyword of the other option,
    QString otherChoice;             ///< and of its marked choice.
    QList<OptionChoice> others = {}; ///< In a conflict: all choices that the choice conflicts with.

    /// Whether the choice is accepted, or may become one while it is typed.
    bool letsThrough() const { return verdict == Verdict::Accepted || verdict == Verdict::Incomplete; }
};

/// Which saved choices can be made.
struct ChoicePlan
{
    QMap<QString, QString> choices; ///< those that can be made together, in the source's spelling
    QList<Ruling> leftOut;          ///< a ruling for each of the others
};

/// The constraint handling: marks choices in one source and refuses what the source does not allow. Borrows
/// the source, which must outlive it and must not be moved. Use it on the source's thread.
///
/// A choice is named by its keyword, case-sensitively; by any plain decimal spelling of its number; by
/// several keywords separated by commas, for a PickMany option; or as a custom choice (CustomChoice.h).
/// Existing conflicts between other options do not count against a choice. An option's present choice is
/// judged like any other.
class ChoiceMarker
{
public:
    explicit ChoiceMarker(OptionSource &source);

    /// The ruling that mark() would return. Marks nothing.
    Ruling check(const QString &key, const QString &choice) const;
    /// Marks the choice when it is accepted. Otherwise the source is unchanged.
    Ruling mark(const QString &key, const QString &choice);

    /// Marks all the choices at once, even if they conflict (check with firstConflict()). In place of a
    /// choice that the source does not have, marks the option's default, and returns a ruling for each of
    /// these.
    QList<Ruling> markTogether(const QMap<QString, QString> &choices);

    /// Marks a choice of the source even if it conflicts.
    void markUnchecked(const QString &key, const QString &choice);

    /// Finds the wanted choices that the source has and allows together with those in `base`, which count in
    /// place of the marks. All of them when they are allowed together, in any order; else as many as can be
    /// made one after the other. Marks nothing.
    ChoicePlan plan(const QMap<QString, QString> &wanted, const QMap<QString, QString> &base) const;

    /// The changes of other options that would allow the refused choice, found from the marks. They
    /// never change the page size, the installed equipment or the option itself. Empty when there are none.
    /// Marks nothing.
    QList<OptionChoice> changesThatAllow(const Ruling &refusal) const;

    /// The installed equipment that rules the choice out, whatever else is chosen; empty when none does.
    QList<OptionChoice> equipmentAgainst(const QString &key, const QString &choice) const
    {
        return constraints_.againstEquipment(key, choice);
    }

    /// The spelling and range of the option's custom choices, for people; empty when it has none.
    static QString customAllowed(const OptionSource &source, const QString &key);

    /// The choice's keyword in the source's spelling, or nothing when the option does not have it.
    std::optional<QString> canonicalChoice(const QString &key, const QString &choice) const;

    /// The marked choice of every option that has one.
    QMap<QString, QString> markedChoices() const;
    /// The first conflict among the marked choices; its key and otherOption are the conflicting options. The
    /// key is the one that comes first in `keys`, if either is in it.
    std::optional<Ruling> firstConflict(const QStringList &keys = {}) const;

private:
    const NumericChoices &numbers(const QString &key) const;
    QString optionsList() const;
    QString allowed(const QString &key) const;
    QString optionLabel(const QString &key) const;
    QString choiceLabel(const QString &key, const QString &choice) const;
    Ruling conflict(const OptionChoice &choice, const QList<OptionChoice> &others) const;
    std::optional<QString> manyOf(const QString &key, const QString &keywords) const;
    std::optional<QString> customOf(const QString &key, const QString &choice) const;

    OptionSource &source_;
    Constraints constraints_;
    mutable QHash<QString, NumericChoices> numbers_; // computed on first use
};

} // namespace printdialog
