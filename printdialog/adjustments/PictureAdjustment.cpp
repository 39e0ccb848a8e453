// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureAdjustment.h"

namespace printdialog {

PictureAdjustment PictureAdjustment::of(const QList<pdekit::Adjustment> &adjustments,
                                        QStringList * /*problems*/)
{
    PictureAdjustment joined;
    for (const pdekit::Adjustment &adjustment : adjustments) {
        if (!adjustment.remark.isEmpty())
            joined.remarks_ += adjustment.remark;
    }
    return joined;
}

} // namespace printdialog
