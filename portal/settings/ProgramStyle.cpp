// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramStyle.h"

#include "PortalSettings.h"
#include "ProgramDocument.h"

namespace printdialog {

namespace {

/// In rows from the top left, as the dialog lays pages out.
bool isInReadingOrder(const PortalSettings &settings)
{
    const QString order = settings.text(portal_keys::perSheetOrder);
    return settings.pagesPerSheet() == 1 || order.isEmpty() || order == QLatin1String("lrtb");
}

} // namespace

ArrangementStyle programStyle(const PortalSettings &settings)
{
    ArrangementStyle style;
    if (!isInReadingOrder(settings))
        return style;
    if (const int pages = settings.pagesPerSheet(); pages > 1) {
        style.layout = SheetLayout::usual(SheetLayout::Kind::Pages);
        style.layout.pagesPerSheet = pages;
    }
    constexpr double perCent = 100;
    if (settings.scale() != perCent) {
        style.placement.scaling = Scaling::ActualSize;
        style.placement.scale = settings.scale() / perCent;
    }
    return style;
}

PagesBy arrangedBy(const PortalSettings &settings, const PreparedPrint &print)
{
    const bool isChosenHere =
        print.arrangement.layout != SheetLayout() || print.placement != PlacementChoice();
    return isInReadingOrder(settings) || isChosenHere ? PagesBy::Dialog : PagesBy::Program;
}

} // namespace printdialog
