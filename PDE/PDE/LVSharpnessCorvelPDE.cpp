// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVSharpnessCorvelPDE.h"

#include "BundleIdentifier.h"
#include "ControlValues.h"
#include "NumericText.h"
#include "SystemLog.h"
#include "ViewTags.h"

#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace {

struct SharpnessCell
{
    int cellTag;
    QLatin1String choice;
};

constexpr std::array<SharpnessCell, 4> sharpnessCells = {{
    {2, QLatin1String("0")},
    {3, QLatin1String("1")},
    {4, QLatin1String("2")},
    {5, QLatin1String("3")},
}};

/// The tag's bit that distinguishes the intensity's slider (2) and field (82) from those of the radius (1,
/// 81).
constexpr int intensityBit = 2;

constexpr double largestRadius = 3; // dots
constexpr double largestIntensity = 3;

bool isIntensity(const QWidget *control)
{
    return (pdekit::tag(control) & intensityBit) != 0;
}

/// Formats like "%.2f" of printf(3), in the C locale whatever the user's.
QString withTwoDecimals(double value)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 2).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

/// Removes everything before the first and after the last digit or point, including a sign.
QStringView trimmedToNumber(QStringView text)
{
    const auto isPartOfNumber = [](QChar c) {
        return c == u'.' || (c >= u'0' && c <= u'9');
    };
    const auto begin = std::find_if(text.begin(), text.end(), isPartOfNumber);
    const auto end = std::find_if(std::make_reverse_iterator(text.end()), std::make_reverse_iterator(begin),
                                  isPartOfNumber)
                         .base();
    return text.mid(begin - text.begin(), end - begin);
}

float singlePrecision(double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

} // namespace

RKTPPRBasePDEcorvel::Text LVSharpnessCorvelPDE::nibName()
{
    pdekit::systemLog(QStringLiteral("corvelPDE wants to know nibName for corvelSharpness..."));
    return QStringLiteral("corvelSharpness");
}

RKTPPRBasePDEcorvel::Text LVSharpnessCorvelPDE::panelName()
{
    if (!thePDEName_)
        thePDEName_ = pdeBundle_->localizedString(QStringLiteral("corvelSharpness"));
    return thePDEName_;
}

RKTPPRBasePDEcorvel::Text LVSharpnessCorvelPDE::panelKind() const
{
    return QStringLiteral(CORVEL_9031_BUNDLE_IDENTIFIER ".sharpness");
}

QStringList LVSharpnessCorvelPDE::supportedPPDOptionKeys()
{
    if (!supportedPPDOptionKeys_) {
        supportedPPDOptionKeys_ = {QStringLiteral("SharpnessEnabled"), QStringLiteral("SharpnessIntensity"),
                                   QStringLiteral("SharpnessRadius")};
    }
    return *supportedPPDOptionKeys_;
}

RKTPPRBasePDEcorvel::Text LVSharpnessCorvelPDE::ppdOptionKeyForTag(int tag) const
{
    switch (foldedTag(tag)) {
    case 1:
        return QStringLiteral("SharpnessRadius");
    case 2:
        return QStringLiteral("SharpnessIntensity");
    case enablerTag:
        return QStringLiteral("SharpnessEnabled");
    default:
        return std::nullopt;
    }
}

RKTPPRBasePDEcorvel::Text LVSharpnessCorvelPDE::ppdChoiceForTag(int cellTag) const
{
    for (const SharpnessCell &cell : sharpnessCells) {
        if (cell.cellTag == cellTag)
            return QString(cell.choice);
    }
    return std::nullopt;
}

int LVSharpnessCorvelPDE::tagForStringValue(const Text &value) const
{
    for (const SharpnessCell &cell : sharpnessCells) {
        if (value && *value == cell.choice)
            return cell.cellTag;
    }
    return 0;
}

RKTPPRBasePDEcorvel::Text LVSharpnessCorvelPDE::newChoiceForSender(QWidget *sender)
{
    if (!sender)
        return std::nullopt;
    Text text = pdekit::stringValue(sender);
    if (!isIntensity(sender))
        return QString::number(pdekit::leadingInteger(text.value_or(QString())));
    if (!text || !pdekit::isSlider(sender))
        return text;
    return withTwoDecimals(pdekit::leadingDouble(trimmedToNumber(*text)));
}

void LVSharpnessCorvelPDE::controlTextDidEndEditing(QWidget *object)
{
    RKTPPRBasePDEcorvel::controlTextDidEndEditing(object);
    if (!object || !isIntensity(object))
        return;
    // Single precision here and double for the slider: the two may round a third decimal differently.
    const double typed = pdekit::leadingDouble(pdekit::stringValue(object).value_or(QString()));
    pdekit::setStringValue(object, withTwoDecimals(singlePrecision(typed)));
    changePrinterSetting(object);
}

pdekit::Adjustment LVSharpnessCorvelPDE::adjustment()
{
    pdekit::Adjustment adjustment;
    if (isOn(QStringLiteral("SharpnessEnabled"))) {
        adjustment.sharpeningRadius = presentNumber(QStringLiteral("SharpnessRadius"), 0, largestRadius);
        adjustment.sharpeningAmount =
            presentNumber(QStringLiteral("SharpnessIntensity"), 0, largestIntensity);
    }
    return adjustment;
}
