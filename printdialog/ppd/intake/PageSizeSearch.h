// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdScanner.h"

#include <QtCore/QByteArray>

#include <vector>

namespace printdialog {

/// Finds out, entry by entry, whether a PPD has page sizes.
class PageSizeSearch
{
public:
    /// For each line that opens an option.
    void open(const PpdLine &line, QByteArrayView option);
    /// For each other entry that libcups gets to see; `option` is the open one, or empty.
    void see(const PpdLine &line, QByteArrayView option);

    bool hasFound() const { return hasFound_; }
    /// The lines that open a PageSize without choices. libcups finds only one of two options of the same name
    /// in different groups, which may be the empty one.
    const std::vector<PpdLine> &emptyOnes() const { return emptyOnes_; }

    /// The option for a PPD without page sizes, so that there is a page to print on: A4 and Letter, with the
    /// usual one of the locale as the default.
    static QByteArray usualOnes();

private:
    bool hasFound_ = false;
    bool isLastEmpty_ = false; // of the list
    std::vector<PpdLine> emptyOnes_;
};

} // namespace printdialog
