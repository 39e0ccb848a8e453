// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AdjustmentCheck.h"

#include <algorithm>
#include <cmath>

namespace printdialog {
namespace {

using namespace Qt::StringLiterals;
using pdekit::Adjustment;

constexpr double lowestPoint = -1.0;
constexpr double highestPoint = 2.0;
constexpr double largestElement = 4.0;
constexpr double mostMillimeters = 5.0;
constexpr double mostDots = 60.0;
constexpr double largestAmount = 10.0;

bool isFinite(double value)
{
    return std::isfinite(value);
}

} // namespace

const Adjustment::Curve &straightCurve()
{
    static const Adjustment::Curve curve = [] {
        Adjustment::Curve points(Adjustment::curvePoints);
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i] = static_cast<double>(i) / 255.0;
        return points;
    }();
    return curve;
}

CheckedAdjustment::CheckedAdjustment(const Adjustment &adjustment)
{
    const QString names[] = {u"red"_s, u"green"_s, u"blue"_s};
    for (std::size_t i = 0; i < colors.curves.size(); ++i)
        colors.curves[i] = checkedCurve(adjustment.curves[i], names[i]);
    colors.matrix = checkedMatrix(adjustment.matrix);
    sharpening = checkedSharpening(adjustment);
    matte = checkedMatte(adjustment.matte);
}

Adjustment::Curve CheckedAdjustment::checkedCurve(const Adjustment::Curve &curve, const QString &name)
{
    if (curve.empty())
        return straightCurve();
    QString fault;
    if (curve.size() != Adjustment::curvePoints)
        fault = u"does not have %1 points"_s.arg(Adjustment::curvePoints);
    else if (!std::all_of(curve.begin(), curve.end(), isFinite))
        fault = u"has a point that is not a finite number"_s;
    else if (!std::is_sorted(curve.begin(), curve.end()))
        fault = u"falls"_s;
    if (!fault.isEmpty()) {
        faults += u"the curve of %1 %2, so it is ignored"_s.arg(name, fault);
        return straightCurve();
    }
    if (curve.front() >= lowestPoint && curve.back() <= highestPoint)
        return curve;
    faults += u"the curve of %1 leaves the range from %2 to %3, so it is limited"_s.arg(name)
                  .arg(lowestPoint)
                  .arg(highestPoint);
    Adjustment::Curve limited = curve;
    for (double &point : limited)
        point = std::clamp(point, lowestPoint, highestPoint);
    return limited;
}

Adjustment::Matrix CheckedAdjustment::checkedMatrix(Adjustment::Matrix matrix)
{
    bool isLimited = false;
    for (auto &row : matrix) {
        if (!std::all_of(row.begin(), row.end(), isFinite)) {
            faults += u"the matrix has an element that is not a finite number, so it is ignored"_s;
            return Adjustment::unchangedColors;
        }
        for (double &element : row) {
            const double limited = std::clamp(element, -largestElement, largestElement);
            isLimited |= limited != element;
            element = limited;
        }
    }
    if (isLimited)
        faults += u"the matrix has an element beyond %1, so it is limited"_s.arg(largestElement);
    return matrix;
}

PictureAdjustment::Sharpening CheckedAdjustment::checkedSharpening(const Adjustment &adjustment)
{
    PictureAdjustment::Sharpening result = {adjustment.sharpeningRadius, adjustment.sharpeningUnit,
                                            adjustment.sharpeningAmount};
    for (const double number : {result.radius, result.amount}) {
        if (!isFinite(number) || number < 0.0) {
            faults += u"the sharpening's radius or amount is negative or not a finite number, so it is "
                      "ignored"_s;
            return {};
        }
    }
    const double largestRadius = result.unit == Adjustment::Unit::Dots ? mostDots : mostMillimeters;
    if (result.radius > largestRadius || result.amount > largestAmount)
        faults += u"the sharpening's radius is beyond %1 or its amount beyond %2, so it is limited"_s
                      .arg(largestRadius)
                      .arg(largestAmount);
    result.radius = std::min(result.radius, largestRadius);
    result.amount = std::min(result.amount, largestAmount);
    return result;
}

double CheckedAdjustment::checkedMatte(double given)
{
    if (!isFinite(given)) {
        faults += u"matte is not a finite number, so it is ignored"_s;
        return 0.0;
    }
    const double limited = std::clamp(given, 0.0, 1.0);
    if (limited != given)
        faults += u"matte is not from 0 to 1, so it is limited"_s;
    return limited;
}

} // namespace printdialog
