// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RKTPPRMatrixPDEcorvel.h"

#include "RadioMatrix.h"

void RKTPPRMatrixPDEcorvel::updateControlWithValue(QWidget *control, const Text &value)
{
    auto *matrix = qobject_cast<pdekit::RadioMatrix *>(control);
    if (matrix && value)
        selectCell(matrix, value);
}

RKTPPRBasePDEcorvel::Text RKTPPRMatrixPDEcorvel::newChoiceForSender(QWidget *sender)
{
    return cellChoice(sender);
}

void RKTPPRMatrixPDEcorvel::setToolTipFromSender(const QString & /*toolTip*/, QWidget *sender)
{
    RKTPPRBasePDEcorvel::setToolTipFromSender(QString(), sender);
}
