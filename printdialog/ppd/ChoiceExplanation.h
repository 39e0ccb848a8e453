// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceMarker.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

class PpdDocument;

/// Choices in words for the window: by the PPD's texts in the user's language, as far as it has them, without
/// keywords. Plain text. Borrows the document.
class ChoiceExplanation
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::ChoiceExplanation)

public:
    explicit ChoiceExplanation(const PpdDocument &document);

    /// Why the choice is refused, with the other options and their choices: one sentence.
    QString refusal(const Ruling &ruling) const;
    /// "Quality to Fine": a change of one option.
    QString change(const OptionChoice &change) const;
    /// The changes, one after the other.
    QString changes(const QList<OptionChoice> &changes) const;

private:
    QString optionText(const QString &key) const;
    QString choiceText(const OptionChoice &choice) const;

    const PpdDocument &document_;
};

} // namespace printdialog
