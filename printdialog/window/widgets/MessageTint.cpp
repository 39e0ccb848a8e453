// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MessageTint.h"

namespace printdialog {

QColor tinted(const QPalette &palette, const QColor &tint, double share)
{
    const QColor window = palette.color(QPalette::Window);
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a * (1.0 - share) + b * share);
    };
    return {mix(window.red(), tint.red()), mix(window.green(), tint.green()),
            mix(window.blue(), tint.blue())};
}

} // namespace printdialog
