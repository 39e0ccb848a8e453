// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageSetup.h"

#include "PhotoPlacement.h"
#include "PortalText.h"
#include "PrintSize.h"

#include <array>
#include <cmath>

namespace printdialog {

namespace {

constexpr double longestSide = 5080; // millimeters, of a PDF's page

struct OrientationName
{
    PageSetup::Orientation orientation;
    const char *text;
};

constexpr std::array orientationNames = {
    OrientationName{PageSetup::Orientation::Portrait, "portrait"},
    OrientationName{PageSetup::Orientation::Landscape, "landscape"},
    OrientationName{PageSetup::Orientation::ReversePortrait, "reverse_portrait"},
    OrientationName{PageSetup::Orientation::ReverseLandscape, "reverse_landscape"},
};

std::optional<double> lengthOf(const QVariantMap &dictionary, const char *key)
{
    bool isNumber = false;
    const double length = dictionary.value(QLatin1String(key)).toDouble(&isNumber);
    return isNumber && std::isfinite(length) && length >= 0 && length <= longestSide ? std::optional(length)
                                                                                     : std::nullopt;
}

QString textAt(const QVariantMap &dictionary, const char *key)
{
    return portalText(dictionary.value(QLatin1String(key))).value_or(QString());
}

/// The margins of the sheet, in millimeters. Borderless printing has none.
QMarginsF sheetMargins(const PageGeometry &page)
{
    const QRectF printed = page.printed();
    return QMarginsF(printed.left(), printed.top(), page.size.width() - printed.right(),
                     page.size.height() - printed.bottom()) /
           pointsPerMillimeter;
}

/// As the page is seen: in landscape its top is the sheet's left edge.
QMarginsF turned(const QMarginsF &sheet, PageSetup::Orientation orientation)
{
    switch (orientation) {
    case PageSetup::Orientation::Portrait:
        return sheet;
    case PageSetup::Orientation::Landscape:
        return {sheet.bottom(), sheet.left(), sheet.top(), sheet.right()};
    case PageSetup::Orientation::ReversePortrait:
        return {sheet.right(), sheet.bottom(), sheet.left(), sheet.top()};
    case PageSetup::Orientation::ReverseLandscape:
        return {sheet.top(), sheet.right(), sheet.bottom(), sheet.left()};
    }
    return sheet;
}

} // namespace

std::optional<PageSetup::Orientation> PageSetup::orientationFromText(const QString &text)
{
    for (const auto &[orientation, name] : orientationNames) {
        if (text == QLatin1String(name))
            return orientation;
    }
    return std::nullopt;
}

QString PageSetup::toText(Orientation orientation)
{
    return QString::fromLatin1(orientationNames.at(static_cast<std::size_t>(orientation)).text);
}

PageSetup PageSetup::fromDictionary(const QVariantMap &dictionary)
{
    PageSetup setup;
    setup.ppdName = textAt(dictionary, "PPDName");
    setup.name = textAt(dictionary, "Name");
    setup.displayName = textAt(dictionary, "DisplayName");
    const auto width = lengthOf(dictionary, "Width");
    const auto height = lengthOf(dictionary, "Height");
    if (width && height && *width > 0 && *height > 0)
        setup.millimeters = QSizeF(*width, *height);
    const auto left = lengthOf(dictionary, "MarginLeft");
    const auto top = lengthOf(dictionary, "MarginTop");
    const auto right = lengthOf(dictionary, "MarginRight");
    const auto bottom = lengthOf(dictionary, "MarginBottom");
    if (left && top && right && bottom)
        setup.margins = QMarginsF(*left, *top, *right, *bottom);
    setup.orientation =
        orientationFromText(textAt(dictionary, "Orientation")).value_or(Orientation::Portrait);
    return setup;
}

QVariantMap PageSetup::toDictionary() const
{
    QVariantMap dictionary = {{QStringLiteral("Orientation"), toText(orientation)}};
    for (const auto &[key, text] :
         {std::pair("PPDName", ppdName), std::pair("Name", name), std::pair("DisplayName", displayName)}) {
        if (!text.isEmpty())
            dictionary.insert(QLatin1String(key), text);
    }
    if (!millimeters.isEmpty()) {
        dictionary.insert(QStringLiteral("Width"), millimeters.width());
        dictionary.insert(QStringLiteral("Height"), millimeters.height());
    }
    if (margins) {
        dictionary.insert(QStringLiteral("MarginLeft"), margins->left());
        dictionary.insert(QStringLiteral("MarginTop"), margins->top());
        dictionary.insert(QStringLiteral("MarginRight"), margins->right());
        dictionary.insert(QStringLiteral("MarginBottom"), margins->bottom());
    }
    return dictionary;
}

void PageSetup::setPage(const PageGeometry &page)
{
    millimeters = page.size / pointsPerMillimeter;
    margins = turned(sheetMargins(page), orientation);
}

double PageSetup::distance(const PageGeometry &page) const
{
    if (!margins)
        return 0;
    const QMarginsF away = turned(sheetMargins(page), orientation) - *margins;
    return std::abs(away.left()) + std::abs(away.top()) + std::abs(away.right()) + std::abs(away.bottom());
}

} // namespace printdialog
