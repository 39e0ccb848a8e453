// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagePhoto.h"

#include <algorithm>

namespace printdialog {

int PagePhoto::detailFor(const QSize &seen, int least)
{
    int detail = least;
    while (detail < std::max(seen.width(), seen.height()) && detail < mostDetail)
        detail *= 2;
    return detail;
}

bool PagePhoto::needsPart(const QSize &seen, const QSize &stored)
{
    return std::min(std::max(seen.width(), seen.height()), std::max(stored.width(), stored.height())) >
           mostDetail;
}

} // namespace printdialog
