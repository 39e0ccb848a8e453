// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelMainPDE.h"

#include "BundleIdentifier.h"
#include "SystemLog.h"

#include <array>
#include <cmath>

namespace {

using pdekit::Adjustment;

constexpr double largestLevel = 25;
constexpr double gammaBase = 1.35;
constexpr double contrastBase = 1.4;
constexpr double saturationBase = 2.5;
constexpr double brightnessStep = 1.8 / 255;
constexpr double balanceStep = 0.008;
constexpr std::array<double, 3> lumaWeights = {0.2126, 0.7152, 0.0722};

/// The factor of a level: `base` at the largest one, its reciprocal at the smallest.
double factor(double base, double level)
{
    return std::pow(base, level / largestLevel);
}

Adjustment::Curve toneCurve(double gamma, double contrast, double brightness)
{
    const double exponent = factor(gammaBase, -gamma);
    const double slope = factor(contrastBase, contrast);
    Adjustment::Curve curve(Adjustment::curvePoints);
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const double tone = std::pow(double(i) / double(curve.size() - 1), exponent);
        curve[i] = 0.5 + (tone - 0.5) * slope + brightness * brightnessStep;
    }
    return curve;
}

/// The saturation, then the balance. The identity, without an error of rounding, for the saturation 0 and
/// equal levels.
Adjustment::Matrix colorMatrix(double saturation, const std::array<double, 3> &balance)
{
    const double part = factor(saturationBase, saturation);
    Adjustment::Matrix matrix;
    for (std::size_t row = 0; row < 3; ++row) {
        double aboveMean = 0;
        for (std::size_t i = 0; i < 3; ++i)
            aboveMean += lumaWeights[i] * (balance[row] - balance[i]);
        for (std::size_t column = 0; column < 3; ++column) {
            matrix[row][column] = lumaWeights[column] * (1 - part + balanceStep * aboveMean);
            if (column == row)
                matrix[row][column] += part;
        }
    }
    return matrix;
}

} // namespace

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::nibName()
{
    pdekit::systemLog(QStringLiteral("corvelPDE Wants to nibName for corvelColorAdjust???\n\n"));
    return QStringLiteral("corvelPDE");
}

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::panelName()
{
    if (!thePDEName_)
        thePDEName_ = pdeBundle_->localizedString(QStringLiteral("corvelColorAdjustments"));
    return thePDEName_;
}

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::panelKind() const
{
    return QStringLiteral(CORVEL_9031_BUNDLE_IDENTIFIER ".coloradjust");
}

// The tone settings come first here and last among the tags: this is the order of the defaults and the
// summary, the tags have that of the controls.
QStringList LVCorvelMainPDE::supportedPPDOptionKeys()
{
    if (!supportedPPDOptionKeys_) {
        supportedPPDOptionKeys_ = {
            QStringLiteral("Brightness"), QStringLiteral("Contrast"),
            QStringLiteral("Saturation"), QStringLiteral("Gamma"),
            QStringLiteral("Red"),        QStringLiteral("Green"),
            QStringLiteral("Blue"),       QStringLiteral("AdjustmentsEnabled"),
        };
    }
    return *supportedPPDOptionKeys_;
}

RKTPPRBasePDEcorvel::Text LVCorvelMainPDE::ppdOptionKeyForTag(int tag) const
{
    switch (foldedTag(tag)) {
    case 1:
        return QStringLiteral("Red");
    case 2:
        return QStringLiteral("Green");
    case 3:
        return QStringLiteral("Blue");
    case 4:
        return QStringLiteral("Brightness");
    case 5:
        return QStringLiteral("Contrast");
    case 6:
        return QStringLiteral("Saturation");
    case 7:
        return QStringLiteral("Gamma");
    case enablerTag:
        return QStringLiteral("AdjustmentsEnabled");
    default:
        return std::nullopt;
    }
}

std::optional<pdekit::PrintDialogPanel::Summary> LVCorvelMainPDE::summaryInfo()
{
    std::optional<Summary> summary = RKTPPRBasePDEcorvel::summaryInfo();
    if (useConstraintHandling_ && summary)
        summary->remove(QStringLiteral("AllowCUPS11"));
    return summary;
}

pdekit::Adjustment LVCorvelMainPDE::adjustment()
{
    Adjustment adjustment;
    if (!isOn(QStringLiteral("AdjustmentsEnabled")))
        return adjustment;
    const auto level = [this](const QString &key) {
        return presentNumber(key, -largestLevel, largestLevel);
    };
    const double gamma = level(QStringLiteral("Gamma"));
    const double contrast = level(QStringLiteral("Contrast"));
    const double brightness = level(QStringLiteral("Brightness"));
    if (gamma != 0 || contrast != 0 || brightness != 0)
        adjustment.curves.fill(toneCurve(gamma, contrast, brightness));
    adjustment.matrix = colorMatrix(
        level(QStringLiteral("Saturation")),
        {level(QStringLiteral("Red")), level(QStringLiteral("Green")), level(QStringLiteral("Blue"))});
    return adjustment;
}
