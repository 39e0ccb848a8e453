// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltPanel.h"
#include "LVCorvelLaminationPDE.h"
#include "PanelHarness.h"
#include "RKTPPRMatrixPDEcorvel.h"
#include "RadioMatrix.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

namespace {

QByteArray laminationPpd()
{
    QList<QByteArray> levels;
    for (int i = -25; i <= 25; ++i)
        levels << QByteArray::number(i);
    return PanelHarness::colorPpd(PanelHarness::ppdOption("Quality", "Standard", {"Standard", "Fine"}) +
                                  PanelHarness::ppdOption("Overcoat", "Glossy", {"Glossy", "Matte"}) +
                                  PanelHarness::ppdOption("MatteValue", "0", levels) +
                                  PanelHarness::ppdOption("UsePrinterPanel", "False", {"True", "False"}));
}

QRadioButton *cell(const PanelHarness &dialog, const char *name)
{
    return dialog.view->findChild<QRadioButton *>(text(name));
}

/// The notices of a panel, as they come: "<" before a change of a key, ">" after it.
void record(pdekit::KeyValueObject &panel, QStringList &notices)
{
    QObject::connect(&panel, &pdekit::KeyValueObject::valueWillChange,
                     [&notices](const QString &key) { notices << text("<") + key; });
    QObject::connect(&panel, &pdekit::KeyValueObject::valueDidChange,
                     [&notices](const QString &key) { notices << text(">") + key; });
}

} // namespace

class LaminationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void tables();
    void cellsReachTheRecord();
    void refusedCellIsNeverSeen();
    void enablerIsInverted();
    void matteLevelNeedsMatteAndTheEnabler();
    void qualIsClamped();
    void boundValueIsStored();
    void boundValueIsRefused();
    void modelRetiresControls();
    void otherModelsKeepControls();
    void matrixVariant();
};

void LaminationTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

void LaminationTest::tables()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, laminationPpd());
    const auto panel = dialog.make<LVCorvelLaminationPDE>();
    const QHash<int, QString> keys = {
        {1, text("Quality")}, {2, text("Overcoat")}, {3, text("MatteValue")}, {32, text("UsePrinterPanel")}};
    const QHash<int, QString> choices = {
        {10, text("Standard")}, {11, text("Fine")}, {12, text("Glossy")}, {13, text("Matte")}};
    for (int tag = -1; tag < 300; ++tag) {
        QCOMPARE(panel->ppdOptionKeyForTag(tag).value_or(QString()), keys.value(tag));
        QCOMPARE(panel->ppdChoiceForTag(tag).value_or(QString()), choices.value(tag));
    }
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
        QCOMPARE(panel->tagForStringValue(*choice), choice.key());
    QCOMPARE(panel->tagForStringValue(text("fine")), 0);
    QCOMPARE(panel->tagForStringValue(std::nullopt), 0);
    QCOMPARE(panel->supportedPPDOptionKeys(),
             QStringList({text("Overcoat"), text("Quality"), text("UsePrinterPanel"), text("MatteValue")}));
    QCOMPARE(panel->panelName(), text("Print Quality and Finish"));
    QCOMPARE(panel->panelKind(), text("org.corvel.printing.Corvel9031.matte"));
}

void LaminationTest::cellsReachTheRecord()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, laminationPpd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    QTest::mouseClick(cell(dialog, "fine"), Qt::LeftButton, {}, QPoint(8, 10));
    QCOMPARE(panel->recorded(text("Quality")), text("Fine"));
    QCOMPARE(panel->property("Quality").toString(), text("Fine"));
    cell(dialog, "glossy")->setFocus();
    QTest::keyClick(cell(dialog, "glossy"), Qt::Key_Right);
    QCOMPARE(panel->recorded(text("Overcoat")), text("Matte"));
    QVERIFY(panel->isMatte());
    QTest::mouseClick(dialog.control(16), Qt::LeftButton);
    QCOMPARE(panel->recorded(text("Overcoat")), text("Glossy"));
    QVERIFY(cell(dialog, "glossy")->isChecked() && cell(dialog, "standard")->isChecked());
    QVERIFY(!panel->isMatte());
}

void LaminationTest::refusedCellIsNeverSeen()
{
    PanelHarness dialog(Mode::Constraint, laminationPpd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    QStringList notices;
    record(*panel, notices);
    dialog.constraints->refused = {text("Overcoat")};
    QTest::mouseClick(cell(dialog, "matte"), Qt::LeftButton, {}, QPoint(8, 10));
    QVERIFY(cell(dialog, "glossy")->isChecked());
    QCOMPARE(panel->recorded(text("Overcoat")), text("Glossy"));
    QCOMPARE(notices, QStringList());
    dialog.constraints->refused.clear();
    QTest::mouseClick(cell(dialog, "matte"), Qt::LeftButton, {}, QPoint(8, 10));
    QCOMPARE(notices,
             QStringList({text("<Overcoat"), text("<isMatte"), text(">Overcoat"), text(">isMatte")}));
}

void LaminationTest::enablerIsInverted()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, laminationPpd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    auto *box = qobject_cast<QCheckBox *>(dialog.control(32));
    QVERIFY(dialog.control(1)->isEnabled());
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(panel->recorded(text("UsePrinterPanel")), text("True"));
    QVERIFY(!dialog.control(1)->isEnabled() && !dialog.control(2)->isEnabled());
    QCOMPARE(panel->enablerState(box), 0);
    box->setTristate(true);
    box->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(panel->enablerState(box), 0);
    box->setCheckState(Qt::Unchecked);
    QCOMPARE(panel->enablerState(box), 1);
}

void LaminationTest::matteLevelNeedsMatteAndTheEnabler()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, laminationPpd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    QVERIFY(!dialog.slider(3)->isEnabled());
    QTest::mouseClick(cell(dialog, "matte"), Qt::LeftButton, {}, QPoint(8, 10));
    QVERIFY(dialog.slider(3)->isEnabled());
    QTest::keyClick(dialog.slider(3), Qt::Key_Left);
    QCOMPARE(panel->recorded(text("MatteValue")), text("-1"));
    QCOMPARE(panel->property("MatteValue").toString(), text("-1"));
    QCOMPARE(panel->qual(), -1);
    QCOMPARE(pdekit::stringValue(dialog.control(83)), text("-1"));
    QTest::keyClick(dialog.control(32), Qt::Key_Space);
    QVERIFY(!dialog.slider(3)->isEnabled());
}

void LaminationTest::qualIsClamped()
{
    LVCorvelLaminationPDE panel;
    QStringList notices;
    record(panel, notices);
    const QStringList told = {text("<qual"), text(">qual")};
    const QList<std::tuple<int, int, QStringList>> rows = {
        {25, 25, {}}, {26, 25, told}, {-25, -25, {}}, {-26, -25, told}, {INT_MIN, -25, told}};
    for (const auto &[set, kept, expected] : rows) {
        notices.clear();
        panel.setQual(set);
        QCOMPARE(panel.qual(), kept);
        QCOMPARE(notices, expected);
    }
    for (const char *overcoat : {"Glossy", "matte", ""}) {
        panel.setOvercoat(text(overcoat));
        QVERIFY(!panel.isMatte());
    }
    panel.setOvercoat(text("Matte"));
    QVERIFY(panel.isMatte());
}

void LaminationTest::boundValueIsStored()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, laminationPpd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    dialog.log.clear();
    panel->setValueForBoundControlWithKey(text("Matte"), text("Overcoat"));
    QCOMPARE(panel->recorded(text("Overcoat")), text("Matte"));
    QCOMPARE(dialog.log,
             dialog.constraints ? QStringList{text("changed Overcoat setting to Matte")} : QStringList());
    QVERIFY(cell(dialog, "glossy")->isChecked());                   // no control is touched
    panel->setValueForBoundControlWithKey(text("7"), text("qual")); // names a getter
    QCOMPARE(panel->qual(), 0);
}

void LaminationTest::boundValueIsRefused()
{
    PanelHarness dialog(Mode::Constraint, laminationPpd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    dialog.constraints->refused = {text("Overcoat")};
    dialog.log.clear();
    panel->setValueForBoundControlWithKey(text("Matte"), text("Overcoat"));
    QCOMPARE(dialog.log, QStringList{text("Failed to change Overcoat setting to = Matte")});
    QCOMPARE(dialog.feedback->alerts, QStringList{text("setting change failed!")});
    QCOMPARE(panel->recorded(text("Overcoat")), text("Glossy"));
    QCOMPARE(dialog.feedback->beeps, 0);
}

void LaminationTest::modelRetiresControls()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, laminationPpd());
    dialog.printer.description = QUrl(text("ppd:x"));
    dialog.printer.data = "*ModelName: \"some k9031 here\"\n";
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    QWidget *view = panel->panelView();
    QWidget *button = pdekit::viewWithTag(view, 16);
    const QPoint at = button->pos();
    const QSize size = view->size();
    for (int show = 1; show <= 2; ++show) {
        panel->willShow();
        QCOMPARE(button->pos(), at - QPoint(0, 100 * show));
        QCOMPARE(view->size(), size - QSize(0, 100 * show));
    }
    for (const int tag : {2, 3, 83, 162, 163}) {
        QVERIFY(!pdekit::viewWithTag(view, tag));
        QWidget *retired = pdekit::viewWithTag(view, tag | 256);
        QVERIFY(retired && retired->isHidden() && !retired->isEnabledTo(retired->parentWidget()));
    }
    QWidget *box = pdekit::viewWithTag(view, 32);
    QVERIFY(pdekit::viewWithTag(view, 1)->isEnabled() && box && !box->isHidden());
    pdekit::setState(box, 0);
    panel->setControlsEnabledByToggle(box);
    QWidget *overcoat = pdekit::viewWithTag(view, 2 | 256);
    QVERIFY(!overcoat->isEnabledTo(overcoat->parentWidget()));
}

void LaminationTest::otherModelsKeepControls()
{
    QFETCH_GLOBAL(Mode, mode);
    for (const auto &data :
         {std::optional<QByteArray>("*ModelName: \"K9045\"\n"), std::optional<QByteArray>()}) {
        PanelHarness dialog(mode, laminationPpd());
        dialog.printer.description = QUrl(text("ppd:x"));
        dialog.printer.data = data;
        auto panel = dialog.make<LVCorvelLaminationPDE>();
        QWidget *view = panel->panelView();
        const QRect before = view->geometry();
        panel->setChoiceForKey(text("Fine"), text("Quality"));
        panel->willShow();
        QCOMPARE(view->geometry(), before);
        QVERIFY(pdekit::viewWithTag(view, 2) && !pdekit::viewWithTag(view, 2)->isHidden());
        QVERIFY(!view->findChild<QRadioButton *>(text("fine"))->isChecked()); // showing refreshes nothing
    }
}

void LaminationTest::matrixVariant()
{
    struct MatrixPanel : RKTPPRMatrixPDEcorvel
    {
        Text ppdChoiceForTag(int tag) const override { return text("choice %1").arg(tag); }
        int tagForStringValue(const Text &value) const override { return value == text("second") ? 8 : 0; }
    } panel;
    QWidget root;
    QCheckBox box(&root);
    pdekit::setTag(&box, 32);
    QLineEdit field(text("kept"), &root);
    pdekit::setTag(&field, 81);
    pdekit::RadioMatrix matrix(&root);
    pdekit::setTag(&matrix, 32);
    QRadioButton first(&matrix);
    QRadioButton second(&matrix);
    first.setProperty("cellTag", 7);
    second.setProperty("cellTag", 8);
    first.setChecked(true);

    panel.updateControlWithValue(&box, text("True"));
    panel.updateControlWithValue(&field, text("second"));
    QVERIFY(!box.isChecked());
    QCOMPARE(field.text(), text("kept"));
    QCOMPARE(panel.newChoiceForSender(&matrix), text("choice 7"));
    matrix.setToolTip(text("old"));
    panel.updateControlWithValue(&matrix, text("second"));
    QVERIFY(second.isChecked() && matrix.toolTip().isEmpty());
    panel.updateControlWithValue(&matrix, std::nullopt);
    QCOMPARE(panel.newChoiceForSender(&matrix), text("choice 8"));
    QCOMPARE(panel.newChoiceForSender(&field), text("choice 81")); // by its own tag
    panel.setToolTipFromSender(text("new"), &field);
    QVERIFY(field.toolTip().isEmpty());
}

QTEST_MAIN(LaminationTest)
#include "LaminationTest.moc"
