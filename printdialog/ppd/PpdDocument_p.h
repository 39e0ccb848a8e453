// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CupsPpd.h"
#include "PpdDocument.h"

namespace printdialog {

struct PpdDocument::Option
{
    ppd_option_t *record; // owned by the document's record
    QString text;
    OptionKind kind;
    QList<Choice> choices;
    QHash<QString, qsizetype> indexOf; // by keyword in lower case, since libcups is case-insensitive
};

} // namespace printdialog
