// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureAdjustment.h"

#include "AdjustmentCheck.h"

#include <algorithm>
#include <cmath>

namespace printdialog {
namespace {

using namespace Qt::StringLiterals;
using pdekit::Adjustment;
using ColorStage = PictureAdjustment::ColorStage;

constexpr double negligible = 1e-6; // too little to change a byte

bool isStraight(const Adjustment::Curve &curve)
{
    const auto isSame = [](double a, double b) {
        return std::abs(a - b) < negligible;
    };
    return std::equal(curve.begin(), curve.end(), straightCurve().begin(), isSame);
}

bool changesNothing(const ColorStage &stage)
{
    return stage.matrix == Adjustment::unchangedColors &&
           std::all_of(stage.curves.begin(), stage.curves.end(), isStraight);
}

/// Whether the stage has nothing but curves, with results that need not be clipped.
bool isJoinable(const ColorStage &stage)
{
    const auto staysInside = [](const Adjustment::Curve &curve) {
        return curve.front() >= 0.0 && curve.back() <= 1.0;
    };
    return stage.matrix == Adjustment::unchangedColors &&
           std::all_of(stage.curves.begin(), stage.curves.end(), staysInside);
}

double valueAt(const Adjustment::Curve &curve, double place)
{
    const double point = place * 255.0;
    const auto before = std::min(static_cast<std::size_t>(point), curve.size() - 2);
    const double part = point - static_cast<double>(before);
    return curve[before] * (1.0 - part) + curve[before + 1] * part;
}

void add(ColorStage stage, std::vector<ColorStage> &stages)
{
    if (changesNothing(stage))
        return;
    if (!stages.empty() && isJoinable(stages.back())) {
        for (std::size_t i = 0; i < stage.curves.size(); ++i) {
            Adjustment::Curve joined = stages.back().curves[i];
            for (double &point : joined)
                point = valueAt(stage.curves[i], point);
            stage.curves[i] = std::move(joined);
        }
        stages.pop_back();
    }
    stages.push_back(std::move(stage));
}

} // namespace

PictureAdjustment PictureAdjustment::of(const QList<Adjustment> &adjustments, QStringList *problems)
{
    PictureAdjustment joined;
    for (const Adjustment &adjustment : adjustments) {
        CheckedAdjustment checked(adjustment);
        add(std::move(checked.colors), joined.colors_);
        if (checked.sharpening.radius > 0.0 && checked.sharpening.amount > 0.0)
            joined.sharpenings_.push_back(checked.sharpening);
        joined.matte_ = 1.0 - (1.0 - joined.matte_) * (1.0 - checked.matte);
        if (!adjustment.remark.isEmpty())
            joined.remarks_ += adjustment.remark;
        if (problems != nullptr && !checked.faults.isEmpty())
            *problems +=
                u"An adjustment of the picture breaks its limits: %1."_s.arg(checked.faults.join(u"; "_s));
    }
    return joined;
}

} // namespace printdialog
