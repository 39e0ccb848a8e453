// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelLaminationPDE.h"
#include "LVCorvelMainPDE.h"
#include "LVSharpnessCorvelPDE.h"
#include "PanelHarness.h"
#include "TestMain.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace {

using pdekit::Adjustment;
using Color = std::array<double, 3>; // from 0 to 255
using Measure = double (*)(const Adjustment &);

constexpr Color black = {0, 0, 0};
constexpr Color lumaWeights = {0.2126, 0.7152, 0.0722}; // of Rec. ITU-R BT.709

QByteArray printerPpd()
{
    QFile file(text(CORVEL_PPD));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no PPD");
    return file.readAll();
}

/// A panel on the printer's PPD, and what it says.
template <class Panel>
struct Asked
{
    explicit Asked(Mode mode, const QByteArray &ppd = printerPpd())
        : dialog(mode, ppd)
        , panel(dialog.make<Panel>())
    {
        panel->restoreValuesAndReturnError(nullptr);
    }

    /// "Option=Choice", separated by blanks.
    Adjustment with(const QString &choices)
    {
        for (const QString &each : choices.split(u' ', Qt::SkipEmptyParts))
            panel->markChoiceForPPDOptionKeyFromSender(each.section(u'=', 1), each.section(u'=', 0, 0), {});
        return adjustment();
    }
    Adjustment adjustment() { return qobject_cast<pdekit::AdjustmentSource *>(panel.get())->adjustment(); }

    PanelHarness dialog;
    std::unique_ptr<Opened<Panel>> panel;
};

/// Whole numbers go in, and what comes out may lie beyond black and white.
Color adjusted(const Adjustment &adjustment, const Color &color)
{
    Color toned;
    for (std::size_t i = 0; i < 3; ++i) {
        const Adjustment::Curve &curve = adjustment.curves.at(i);
        toned[i] = curve.empty() ? color[i] : 255 * curve.at(std::size_t(color[i]));
    }
    Color result;
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = std::inner_product(toned.begin(), toned.end(), adjustment.matrix[i].begin(), 0.0);
    return result;
}

Color adjustedGray(const Adjustment &adjustment, int gray)
{
    return adjusted(adjustment, {double(gray), double(gray), double(gray)});
}

double luma(const Color &color)
{
    return std::inner_product(color.begin(), color.end(), lumaWeights.begin(), 0.0);
}

bool isWithin(const Color &color, double least, double greatest)
{
    return std::all_of(color.begin(), color.end(), [&](double x) { return x >= least && x <= greatest; });
}

double largestDifference(const Color &a, const Color &b)
{
    double largest = 0;
    for (std::size_t i = 0; i < 3; ++i)
        largest = std::max(largest, std::abs(a[i] - b[i]));
    return largest;
}

Color rounded(Color color)
{
    for (double &x : color)
        x = std::round(std::clamp(x, 0.0, 255.0));
    return color;
}

/// All grays, and colors from all over.
QList<Color> samples()
{
    QList<Color> colors;
    for (int i = 0; i <= 255; ++i)
        colors << Color{double(i), double(i), double(i)};
    for (std::uint32_t i = 0; i < 4096; ++i) {
        const std::uint32_t bits = i * 2654435761U;
        colors << Color{double(bits >> 24), double(bits >> 16 & 255), double(bits >> 8 & 255)};
    }
    return colors;
}

template <std::size_t Component>
double ofGray(const Adjustment &adjustment)
{
    return adjustedGray(adjustment, 128)[Component] - adjustedGray(adjustment, 128)[(Component + 1) % 3];
}

} // namespace

/// What the panels say their choices do to the picture.
class AdjustmentTest : public ModesTest
{
    Q_OBJECT

private Q_SLOTS:
    void level_data()
    {
        const auto tone = [](const Adjustment &adjustment) {
            return adjustedGray(adjustment, 128)[0];
        };
        const auto range = [](const Adjustment &adjustment) {
            return adjustedGray(adjustment, 192)[0] - adjustedGray(adjustment, 64)[0];
        };
        const auto vividness = [](const Adjustment &adjustment) {
            const Color color = adjusted(adjustment, {200, 100, 50});
            return color[0] - color[2];
        };
        addRows<Measure>({{"Brightness", tone},
                          {"Contrast", range},
                          {"Gamma", tone},
                          {"Saturation", vividness},
                          {"Red", ofGray<0>},
                          {"Green", ofGray<1>},
                          {"Blue", ofGray<2>}});
    }

    // Each number does more than the one before it, and the opposite one takes it back.
    void level()
    {
        const auto [measure] = row<Measure>();
        if (mode_ == Mode::Settings)
            return; // takes long, and the formulas are the same
        const QString option = text(QTest::currentDataTag());
        const bool isTone = QStringList{text("Brightness"), text("Contrast"), text("Gamma")}.contains(option);
        Asked<LVCorvelMainPDE> asked(mode_);
        std::array<Adjustment, 51> levels;
        for (int level = -25; level <= 25; ++level) {
            levels[std::size_t(level + 25)] = asked.with(text("%1=%2").arg(option).arg(level));
            QVERIFY(level == -25 || measure(levels[std::size_t(level + 25)]) >
                                        measure(levels[std::size_t(level + 24)]) + 0.1);
        }
        QVERIFY(levels[25].isIdentity());

        const QList<Color> colors = samples();
        for (std::size_t i = 0; i < levels.size(); ++i) {
            for (const Color &color : colors) {
                const Color there = adjusted(levels[i], color);
                QVERIFY(isTone || std::abs(luma(there) - luma(color)) < 1e-9);
                if (!isWithin(there, 0, 255))
                    continue;
                const Color back = rounded(adjusted(levels[50 - i], rounded(there)));
                QVERIFY2(largestDifference(back, color) <= 2, qPrintable(QString::number(int(i) - 25)));
            }
        }
        for (int gray = 10; gray <= 245; ++gray) {
            QVERIFY(isWithin(adjustedGray(levels[20], gray), 0.5, 254.5));
            QVERIFY(isWithin(adjustedGray(levels[30], gray), 0.5, 254.5));
        }
        const Color gray = adjustedGray(levels[50], 128);
        const bool isBalance = text("Red Green Blue").contains(option);
        QVERIFY(isBalance || largestDifference(gray, {gray[0], gray[0], gray[0]}) < 1e-9);
        const bool movesBlack = option == text("Brightness") || option == text("Contrast");
        QVERIFY(movesBlack || largestDifference(adjusted(levels[50], black), black) == 0);
    }

    void levelsTogether()
    {
        Asked<LVCorvelMainPDE> asked(mode_);
        QVERIFY(asked.adjustment().isIdentity());
        QVERIFY(asked.with(text("Red=7 Green=7 Blue=7")).isIdentity());
        QVERIFY(!asked.with(text("Red=12 Gamma=1")).isIdentity());
        QVERIFY(asked.with(text("AdjustmentsEnabled=False")).isIdentity());
        asked.with(text("AdjustmentsEnabled=True"));
        // The balance comes last, so weak colors do not weaken it: gray gets all of the red.
        const Adjustment::Matrix balanced = asked.with(text("Red=25 Green=0 Blue=0 Saturation=-25")).matrix;
        const double red = balanced[0][0] + balanced[0][1] + balanced[0][2];
        QVERIFY2(std::abs(red - (1 + 25 * 0.008 * (1 - 0.2126))) < 1e-9, qPrintable(QString::number(red)));
        asked.with(text("Red=0 Saturation=0"));
        const QStringList options = text("Brightness Contrast Gamma Saturation Red Green Blue").split(u' ');
        for (int corner = 0; corner < 1 << 7; ++corner) {
            QString choices;
            for (int i = 0; i < 7; ++i)
                choices += options[i] + ((corner >> i & 1) != 0 ? text("=25 ") : text("=-25 "));
            const Adjustment adjustment = asked.with(choices);
            for (const Adjustment::Curve &curve : adjustment.curves) {
                QVERIFY(curve.size() == Adjustment::curvePoints &&
                        std::is_sorted(curve.begin(), curve.end()));
                QVERIFY(curve.front() >= -1 && curve.back() <= 2);
            }
            for (const auto &elements : adjustment.matrix)
                QVERIFY(isWithin(elements, -4, 4));
        }
    }

    void numberThatIsNone()
    {
        Asked<LVCorvelMainPDE> asked(mode_);
        asked.dialog.show(*asked.panel);
        const Adjustment::Matrix red = asked.with(text("Red=-3")).matrix;
        asked.dialog.mark(text("Red"), text("-3"));
        asked.dialog.type(81, text("-"));
        QCOMPARE(asked.panel->recorded(text("Red")), text("-"));
        QCOMPARE(asked.adjustment().matrix, red);
        QTest::keyClicks(asked.dialog.field(81), text("4"));
        QVERIFY(asked.adjustment().matrix != red);
        for (const char *choice : {"", "x", "nan", "1,5"}) {
            asked.panel->setChoiceForKey(text(choice), text("Red"));
            QCOMPARE(asked.adjustment().matrix, asked.with({}).matrix);
        }
        const Adjustment::Matrix most = asked.with(text("Red=25")).matrix;
        asked.panel->setChoiceForKey(text("1e9"), text("Red"));
        QCOMPARE(asked.adjustment().matrix, most);
    }

    void sharpness_data()
    {
        addRows<QString, double, double>({
            {"defaults", {}, 1, 1},
            {"least", text("SharpnessRadius=1 SharpnessIntensity=0.01"), 1, 0.01},
            {"most", text("SharpnessRadius=3 SharpnessIntensity=3.00"), 3, 3},
            {"more", text("SharpnessRadius=4 SharpnessIntensity=9.00"), 3, 3},
            {"off", text("SharpnessRadius=3 SharpnessEnabled=False"), 0, 0},
            {"no radius", text("SharpnessRadius=0"), 0, 0},
            {"no intensity", text("SharpnessIntensity=0.00"), 0, 0},
        });
    }

    void sharpness()
    {
        const auto [choices, radius, amount] = row<QString, double, double>();
        const Adjustment adjustment = Asked<LVSharpnessCorvelPDE>(mode_).with(choices);
        QCOMPARE(adjustment.isIdentity(), amount == 0);
        if (amount > 0) {
            QCOMPARE(adjustment.sharpeningRadius, radius);
            QCOMPARE(adjustment.sharpeningAmount, amount);
            QVERIFY(adjustment.sharpeningUnit == Adjustment::Unit::Dots);
        }
    }

    void finish_data()
    {
        addRows<QString, double, bool>({
            {"defaults", {}, 0, false},
            {"glossy", text("Overcoat=Glossy MatteValue=25"), 0, false},
            {"matte", text("Overcoat=Matte"), 0.6, false},
            {"least matte", text("Overcoat=Matte MatteValue=-25"), 0.2, false},
            {"most matte", text("Overcoat=Matte MatteValue=25"), 1, false},
            {"more", text("Overcoat=Matte MatteValue=99"), 1, false},
            {"printer's own", text("Overcoat=Matte UsePrinterPanel=True"), 0, true},
        });
    }

    void finish()
    {
        const auto [choices, matte, hasRemark] = row<QString, double, bool>();
        const Adjustment adjustment = Asked<LVCorvelLaminationPDE>(mode_).with(choices);
        QCOMPARE(adjustment.matte, matte);
        QCOMPARE(adjustment.isIdentity(), matte == 0);
        QCOMPARE(adjustment.remark.startsWith(text("The finish is shown glossy: ")), hasRemark);
        QCOMPARE(adjustment.remark.isEmpty(), !hasRemark);
    }

    void finishOnTheDialogsPage()
    {
        Asked<LVCorvelLaminationPDE> asked(mode_);
        asked.dialog.printer.description = QUrl(text("ppd:x"));
        asked.dialog.printer.data = printerPpd();
        asked.dialog.show(*asked.panel);
        QVERIFY(asked.panel->retiredOptionKeys().contains(text("Overcoat")));
        asked.panel->PPDOptionKeyValueDidChangePpdChoice(text("Overcoat"), text("Matte"));
        QCOMPARE(asked.adjustment().matte, 0.6);
    }

    void printerWithoutTheOptions()
    {
        const QByteArray ppd = PanelHarness::ppdHead() + PanelHarness::ppdOption("Other", "A", {"A", "B"});
        QVERIFY(Asked<LVCorvelMainPDE>(mode_, ppd).adjustment().isIdentity());
        QVERIFY(Asked<LVSharpnessCorvelPDE>(mode_, ppd).adjustment().isIdentity());
        QVERIFY(Asked<LVCorvelLaminationPDE>(mode_, ppd).adjustment().isIdentity());
    }
};

CORVEL_WIDGETS_TEST(AdjustmentTest)
#include "AdjustmentTest.moc"
