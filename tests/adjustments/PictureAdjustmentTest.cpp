// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureAdjustment.h"
#include "Rows.h"
#include "TestMain.h"

#include <cmath>
#include <functional>
#include <limits>

using namespace printdialog;
using namespace Qt::StringLiterals;
using pdekit::Adjustment;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

Adjustment::Curve curve(const std::function<double(double)> &function)
{
    Adjustment::Curve points;
    for (int i = 0; i < Adjustment::curvePoints; ++i)
        points.push_back(function(i / 255.0));
    return points;
}

Adjustment::Curve straight()
{
    return curve([](double value) { return value; });
}

Adjustment red(const Adjustment::Curve &points)
{
    Adjustment adjustment;
    adjustment.curves[0] = points;
    return adjustment;
}

Adjustment powered(double exponent)
{
    return red(curve([exponent](double value) { return std::pow(value, exponent); }));
}

Adjustment saturated(double element)
{
    Adjustment adjustment;
    adjustment.matrix[2][0] = element;
    return adjustment;
}

Adjustment sharpened(double radius, Adjustment::Unit unit, double amount)
{
    Adjustment adjustment;
    adjustment.sharpeningRadius = radius;
    adjustment.sharpeningUnit = unit;
    adjustment.sharpeningAmount = amount;
    return adjustment;
}

Adjustment matte(double value)
{
    Adjustment adjustment;
    adjustment.matte = value;
    return adjustment;
}

/// What a limited adjustment amounts to: none of the numbers that a test row does not name.
struct Kept
{
    double redAtBlack = 0.0;
    double redAtWhite = 1.0;
    double redToBlue = 0.0;
    double radius = 0.0;
    double amount = 0.0;
    double matte = 0.0;

    bool operator==(const Kept &) const = default;
};

Kept keptOf(const PictureAdjustment &adjustment)
{
    Kept kept;
    if (!adjustment.colors().empty()) {
        const auto &stage = adjustment.colors().front();
        kept.redAtBlack = stage.curves[0].front();
        kept.redAtWhite = stage.curves[0].back();
        kept.redToBlue = stage.matrix[2][0];
    }
    if (!adjustment.sharpenings().empty()) {
        kept.radius = adjustment.sharpenings().front().radius;
        kept.amount = adjustment.sharpenings().front().amount;
    }
    kept.matte = adjustment.matte();
    return kept;
}

} // namespace

class PictureAdjustmentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limits_data()
    {
        using Unit = Adjustment::Unit;
        Adjustment::Curve holed = straight();
        holed[100] = notANumber;
        Adjustment::Curve falling = straight();
        falling[100] = 0.1;
        addRows<Adjustment, Kept, QString>({
            {"curve, short", red({0.0, 1.0}), {}, u"red does not have 256 points"_s},
            {"curve, not a number", red(holed), {}, u"red has a point that is not"_s},
            {"curve, infinite",
             red(curve([](double value) { return value < 1.0 ? value : infinity; })),
             {},
             u"red has a point that is not"_s},
            {"curve, falls", red(falling), {}, u"red falls"_s},
            {"curve, wide",
             red(curve([](double value) { return 3.0 * value - 1.0; })),
             {.redAtBlack = -1.0, .redAtWhite = 2.0},
             {}},
            {"curve, too wide",
             red(curve([](double value) { return 9.0 * value - 3.0; })),
             {.redAtBlack = -1.0, .redAtWhite = 2.0},
             u"red leaves the range from -1 to 2"_s},
            {"matrix, not a number", saturated(notANumber), {}, u"matrix has an element that is not"_s},
            {"matrix, large", saturated(-4.0), {.redToBlue = -4.0}, {}},
            {"matrix, too large", saturated(-5.0), {.redToBlue = -4.0}, u"matrix has an element beyond 4"_s},
            {"radius, negative", sharpened(-1.0, Unit::Dots, 1.0), {}, u"radius or amount is negative"_s},
            {"amount, infinite", sharpened(1.0, Unit::Dots, infinity), {}, u"radius or amount is negative"_s},
            {"dots, at the limits", sharpened(60.0, Unit::Dots, 10.0), {.radius = 60.0, .amount = 10.0}, {}},
            {"dots, beyond",
             sharpened(61.0, Unit::Dots, 11.0),
             {.radius = 60.0, .amount = 10.0},
             u"radius is beyond 60 or its amount beyond 10"_s},
            {"millimeters, beyond",
             sharpened(60.0, Unit::Millimeters, 1.0),
             {.radius = 5.0, .amount = 1.0},
             u"radius is beyond 5 "_s},
            {"no amount", sharpened(1.0, Unit::Dots, 0.0), {}, {}},
            {"no radius", sharpened(0.0, Unit::Dots, 1.0), {}, {}},
            {"matte, not a number", matte(notANumber), {}, u"matte is not"_s},
            {"matte, negative", matte(-0.5), {}, u"matte is not from 0 to 1"_s},
            {"matte, too much", matte(1.5), {.matte = 1.0}, u"matte is not from 0 to 1"_s},
        });
    }
    /// A fault is logged once for the adjustment, by what is wrong, and the others are left as they are.
    void limits()
    {
        const auto [adjustment, expected, problem] = row<Adjustment, Kept, QString>();
        QStringList problems;
        const PictureAdjustment checked = PictureAdjustment::of({adjustment}, &problems);
        QCOMPARE(keptOf(checked), expected);
        QCOMPARE(problems.size(), problem.isEmpty() ? 0 : 1);
        QVERIFY2(problems.join(u""_s).contains(problem), qPrintable(problems.join(u""_s)));
        QCOMPARE(PictureAdjustment::of({adjustment}), checked);
    }

    void joining_data()
    {
        Adjustment matrix = saturated(0.5);
        const Adjustment clipping = red(curve([](double value) { return 1.5 * value; }));
        addRows<QList<Adjustment>, int>({
            {"nothing", {{}, red(straight())}, 0},
            {"nothing between", {matrix, red(straight()), matrix}, 2},
            {"curves", {powered(0.5), powered(2.0), powered(3.0)}, 1},
            {"curves, then a matrix", {powered(2.0), matrix}, 1},
            {"a matrix, then curves", {matrix, powered(2.0), powered(3.0)}, 2},
            // The first one clips, which is lost in a joined one.
            {"curves beyond white", {clipping, powered(2.0)}, 2},
        });
    }
    void joining()
    {
        const auto [adjustments, stages] = row<QList<Adjustment>, int>();
        const PictureAdjustment joined = PictureAdjustment::of(adjustments);
        QCOMPARE(int(joined.colors().size()), stages);
        // Values go through the stages of the joined adjustment as through each one, within the curves' grid.
        const auto through = [](double value, const auto &all) {
            for (const auto &each : all) {
                const auto &points = each.curves[0];
                if (!points.empty())
                    value =
                        std::clamp(points[static_cast<std::size_t>(std::lround(value * 255.0))], 0.0, 1.0);
            }
            return value;
        };
        for (const double value : {0.0, 0.2, 0.4, 0.6, 0.8, 1.0})
            QVERIFY(std::abs(through(value, joined.colors()) - through(value, adjustments)) < 0.01);
    }

    void partsAddUp()
    {
        Adjustment first = sharpened(1.0, Adjustment::Unit::Dots, 2.0);
        first.matte = 0.5;
        first.remark = u"first"_s;
        Adjustment second = sharpened(0.1, Adjustment::Unit::Millimeters, 1.0);
        second.matte = 0.5;
        second.remark = u"second"_s;
        const PictureAdjustment joined = PictureAdjustment::of({first, {}, second});
        QCOMPARE(joined.sharpenings().size(), 2U);
        QCOMPARE(joined.sharpenings().back().unit, Adjustment::Unit::Millimeters);
        QCOMPARE(joined.matte(), 0.75);
        QCOMPARE(joined.remarks(), QStringList({u"first"_s, u"second"_s}));
    }
};

CORVEL_TEST(PictureAdjustmentTest)
#include "PictureAdjustmentTest.moc"
