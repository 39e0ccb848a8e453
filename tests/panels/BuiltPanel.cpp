// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltPanel.h"

RKTPPRBasePDEcorvel::Text BuiltPanel::ppdOptionKeyForTag(int tag) const
{
    const int folded = foldedTag(tag);
    if (folded == enablerTag)
        return QStringLiteral("Enabler");
    return folded >= 1 && folded <= 15 ? Text(QStringLiteral("Key%1").arg(folded)) : std::nullopt;
}

RKTPPRBasePDEcorvel::Text BuiltPanel::ppdChoiceForTag(int cellTag) const
{
    if (cellTag != 10 && cellTag != 11)
        return std::nullopt;
    return cellTag == 10 ? QStringLiteral("Standard") : QStringLiteral("Fine");
}

int BuiltPanel::tagForStringValue(const Text &value) const
{
    if (value == QStringLiteral("Standard"))
        return 10;
    return value == QStringLiteral("Fine") ? 11 : 0;
}

int BuiltPanel::enablerState(QWidget *enabler) const
{
    return fixedEnablerState.value_or(RKTPPRBasePDEcorvel::enablerState(enabler));
}

QWidget *BuiltPanel::root()
{
    if (!PDEView_)
        PDEView_ = new QWidget;
    return PDEView_;
}
