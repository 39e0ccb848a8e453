// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdInspection.h"
#include "PpdScanner.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <optional>

namespace printdialog {

/// What a PPD has more of than PpdLimits allows.
struct PpdExcess
{
    PpdFault fault;
    QString what; ///< In the plural, for people.
    qint64 limit;
};

/// Counts the parts of a PPD. Each function returns nothing within the limits. Borrows the PPD's bytes.
class PpdCounts
{
    Q_DECLARE_TR_FUNCTIONS(PpdInspection)

public:
    std::optional<PpdExcess> addGroup();
    std::optional<PpdExcess> addOption();
    /// An entry other than those that open or close something; `option` is the open one, or empty.
    std::optional<PpdExcess> add(const PpdLine &line, QByteArrayView option);
    /// An entry that belongs to nothing else.
    std::optional<PpdExcess> addOther();

    /// For each constraint, libcups searches the choices of the options that it names.
    qint64 constraintCost() const;

private:
    std::optional<PpdExcess> addChoice(QByteArrayView option);
    std::optional<PpdExcess> addConstraint(QByteArrayView value);

    int groups_ = 0;
    int options_ = 0;
    int choices_ = 0;
    int sizes_ = 0;
    int sizeEntries_ = 0;
    int customParameters_ = 0;
    int others_ = 0;
    QHash<QByteArrayView, int> translations_; // by language
    qint64 constraints_ = 0;
    QHash<QByteArrayView, qint64> choicesOf_;
    QHash<QByteArrayView, qint64> constraintsOn_;
};

} // namespace printdialog
