// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageSizeSearch.h"

#include <QtCore/QLocale>

#include <utility>

namespace printdialog {

namespace {

constexpr QByteArrayView pageSize = "PageSize";

} // namespace

void PageSizeSearch::open(const PpdLine &line, QByteArrayView option)
{
    isLastEmpty_ = option == pageSize;
    if (isLastEmpty_)
        emptyOnes_.push_back(line);
}

void PageSizeSearch::see(const PpdLine &line, QByteArrayView option)
{
    const bool isChoice =
        line.mainKeyword == pageSize && !line.optionKeyword.isEmpty() && !line.value.isEmpty();
    // For this option, libcups does without the line that opens it.
    if (!isChoice || !(option.isEmpty() || option == pageSize))
        return;
    hasFound_ = true;
    if (option == pageSize && std::exchange(isLastEmpty_, false))
        emptyOnes_.pop_back();
}

QByteArray PageSizeSearch::usualOnes()
{
    const bool isLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return QByteArrayLiteral("*OpenUI *PageSize: PickOne\n*DefaultPageSize: ") +
           (isLetter ? "Letter" : "A4") +
           "\n*PageSize A4: \"\"\n*PageSize Letter: \"\"\n*CloseUI: *PageSize\n"
           "*PaperDimension A4: \"595 842\"\n*PaperDimension Letter: \"612 792\"\n";
}

} // namespace printdialog
