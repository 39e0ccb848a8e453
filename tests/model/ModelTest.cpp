// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelMainPDE.h"
#include "PanelDriver.h"
#include "TestMain.h"

#include <QtTest/QTest>

#include <algorithm>

namespace {

using Steps = QList<Step>;
using Opener = std::function<void(PanelDriver &)>;

/// Where the panel and the model part.
struct Difference
{
    qsizetype step = 0; ///< index of the step after which they differ
    QString text;
};

/// Panel and model, new ones, taken through the steps as far as they agree.
std::optional<Difference> replay(const PanelTable &table, Mode mode, const Opener &open, const Steps &steps)
{
    PanelDriver driver(table, mode);
    open(driver);
    PanelModel model(table, mode == Mode::Constraint,
                     [&driver](const QString &key) { return driver.localized(key); });
    for (qsizetype i = 0; i < steps.size(); ++i) {
        model.take(steps.at(i));
        driver.take(steps.at(i));
        if (const QString text = firstDifference(model.sight(), driver.sight()); !text.isEmpty())
            return Difference{i, text};
    }
    return std::nullopt;
}

/// The shortest sequence that still shows a difference, found by delta debugging: steps are left out, and
/// stay out when panel and model part all the same.
QString shrunk(const PanelTable &table, Mode mode, const Opener &open, Steps steps, Difference difference)
{
    steps.resize(difference.step + 1);
    const auto shows = [&](const Steps &fewer) {
        const auto still = replay(table, mode, open, fewer);
        if (still) {
            steps = fewer.first(still->step + 1);
            difference = *still;
        }
        return still.has_value();
    };
    for (qsizetype piece = steps.size() / 2; piece > 0;) {
        const qsizetype before = steps.size();
        for (qsizetype at = 0; at < steps.size();) {
            if (!shows(steps.first(at) + steps.mid(at + piece)))
                at += piece;
        }
        // Two that undo each other.
        for (qsizetype second = 1; piece == 1 && steps.size() == before && second < before; ++second) {
            for (qsizetype first = 0; steps.size() == before && first < second; ++first)
                shows(steps.first(first) + steps.sliced(first + 1, second - first - 1) +
                      steps.mid(second + 1));
        }
        if (piece > 1 || steps.size() == before) // single steps are tried again while any can be left out
            piece /= 2;
    }
    QString lines;
    for (const Step &step : std::as_const(steps))
        lines += text("  ") + step.toText() + text("\n");
    return lines + difference.text;
}

/// Nothing, or the shortest sequence that shows a difference, as text.
QString searched(const PanelTable &table, Mode mode, const Opener &open, quint32 seed, int count)
{
    QRandomGenerator random(seed);
    constexpr int stepsOfOnePanel = 100;
    for (int done = 0; done < count; done += stepsOfOnePanel) {
        Steps steps;
        if (random.bounded(4) != 0)
            steps << Step{.act = Step::Restore} << Step{.act = Step::Show};
        while (steps.size() < std::min(stepsOfOnePanel, count - done))
            steps << Step::random(table, random);
        if (const auto difference = replay(table, mode, open, steps))
            return shrunk(table, mode, open, steps, *difference);
    }
    return {};
}

/// A panel that forgets the range of a typed number.
class RangelessPanel : public LVCorvelMainPDE
{
public:
    bool validateChoiceForPPDOptionKeyFromSender(const QString & /*choice*/, const QString & /*key*/,
                                                 QWidget * /*sender*/) override
    {
        return true;
    }
};

quint32 number(const char *variable, quint32 otherwise)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(variable, &isSet);
    return isSet ? quint32(value) : otherwise;
}

} // namespace

/// Random sequences of what users and dialogs do, done to the real panels and to a model of the rules; after
/// each step all that can be seen must be the same. CORVEL_MODEL_STEPS and CORVEL_MODEL_SEED choose how many
/// steps for each panel and mode, and which.
class ModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelDoesWhatTheModelDoes_data()
    {
        QTest::addColumn<PanelTable>("table");
        QTest::addColumn<Mode>("mode");
        PanelTable poor = PanelTable::color(); // of a PPD that lacks an option
        poor.options.removeFirst();
        const QList<std::pair<const char *, PanelTable>> tables = {
            {"color", PanelTable::color()},
            {"color, option missing", poor},
            {"sharpness", PanelTable::sharpness()},
            {"sharpness in thousandths", PanelTable::sharpness(true)},
            {"finish", PanelTable::lamination()},
            {"finish of the K9031", PanelTable::lamination("*ModelName: \"some k9031")},
            {"finish of another model", PanelTable::lamination("*ModelName: \"K9045\"\n*NickName: \"K903")},
            {"mixed controls", PanelTable::mixed()},
        };
        for (const auto &[name, table] : tables) {
            QTest::addRow("%s, constraint handling", name) << table << Mode::Constraint;
            QTest::addRow("%s, print settings", name) << table << Mode::Settings;
        }
    }

    void panelDoesWhatTheModelDoes()
    {
        QFETCH(PanelTable, table);
        QFETCH(Mode, mode);
        const quint32 seed = number("CORVEL_MODEL_SEED", 9031);
        const int steps = int(number("CORVEL_MODEL_STEPS", 600));
        const QString found = searched(
            table, mode, [](PanelDriver &driver) { driver.open(); }, seed, steps);
        if (!found.isEmpty())
            QFAIL(qUtf8Printable(text("seed %1:\n%2").arg(QString::number(seed), found)));
        qInfo("seed %u: %d steps alike", seed, steps);
    }

    void faultIsFoundAndShrunk()
    {
        const QString found = searched(
            PanelTable::color(), Mode::Settings, [](PanelDriver &driver) { driver.open<RangelessPanel>(); },
            1, 3000);
        // What is needed is a number beyond the range, no more.
        QVERIFY2(found.count(QLatin1Char('\n')) <= 2 &&
                     found.endsWith(QLatin1String("beeps should be \"1\" and is \"0\"")),
                 qUtf8Printable(found));
    }
};

CORVEL_WIDGETS_TEST(ModelTest)
#include "ModelTest.moc"
