// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceMarker.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

class OptionSource;

/// Explains choices in words for the window. Uses the source's texts, in the user's language where it has
/// them, and no keywords. Plain text. Borrows the source.
class ChoiceExplanation
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::ChoiceExplanation)

public:
    explicit ChoiceExplanation(const OptionSource &source);

    /// One sentence: why the choice is refused, with the other options and their choices.
    QString refusal(const Ruling &ruling) const;
    /// A change of one option, such as "Quality to Fine".
    QString change(const OptionChoice &change) const;
    /// The changes as a list.
    QString changes(const QList<OptionChoice> &changes) const;

private:
    QString optionText(const QString &key) const;

    const OptionSource &source_;
};

} // namespace printdialog
