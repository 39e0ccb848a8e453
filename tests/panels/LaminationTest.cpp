// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LaminationTest.h"

#include "LVCorvelLaminationPDE.h"
#include "PanelHarness.h"
#include "RKTPPRMatrixPDEcorvel.h"
#include "RadioMatrix.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

QByteArray LaminationTest::ppd()
{
    QList<QByteArray> levels;
    for (int i = -25; i <= 25; ++i)
        levels << QByteArray::number(i);
    return PanelHarness::colorPpd(PanelHarness::ppdOption("Quality", "Standard", {"Standard", "Fine"}) +
                                  PanelHarness::ppdOption("Overcoat", "Glossy", {"Glossy", "Matte"}) +
                                  PanelHarness::ppdOption("MatteValue", "0", levels) +
                                  PanelHarness::ppdOption("UsePrinterPanel", "False", {"True", "False"}));
}

QRadioButton *LaminationTest::cell(const PanelHarness &dialog, const char *name)
{
    return dialog.view->findChild<QRadioButton *>(text(name));
}

void LaminationTest::click(QRadioButton *cell)
{
    QTest::mouseClick(cell, Qt::LeftButton, {}, QPoint(8, cell->height() / 2));
}

void LaminationTest::record(pdekit::KeyValueObject &panel, QStringList &notices)
{
    QObject::connect(&panel, &pdekit::KeyValueObject::valueWillChange,
                     [&notices](const QString &key) { notices << text("<") + key; });
    QObject::connect(&panel, &pdekit::KeyValueObject::valueDidChange,
                     [&notices](const QString &key) { notices << text(">") + key; });
}

void LaminationTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

void LaminationTest::tables()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, ppd());
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
    PanelHarness dialog(mode, ppd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    click(cell(dialog, "fine"));
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
    PanelHarness dialog(Mode::Constraint, ppd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    QStringList notices;
    record(*panel, notices);
    dialog.constraints->refused = {text("Overcoat")};
    for (const bool byKey : {false, true}) {
        cell(dialog, "glossy")->setFocus();
        if (byKey)
            QTest::keyClick(cell(dialog, "glossy"), Qt::Key_Right);
        else
            click(cell(dialog, "matte"));
        QVERIFY(cell(dialog, "glossy")->isChecked());
        QCOMPARE(panel->recorded(text("Overcoat")), text("Glossy"));
        QCOMPARE(notices, QStringList());
        QCOMPARE(std::exchange(dialog.feedback->beeps, 0), 1);
    }
    // A slider goes back, too, and with it both values that are bound to it.
    dialog.constraints->refused << text("MatteValue");
    panel->setOvercoat(text("Matte"));
    notices.clear();
    QTest::keyClick(dialog.slider(3), Qt::Key_End);
    QCOMPARE(dialog.slider(3)->value(), 0);
    QCOMPARE(notices, QStringList());
    QCOMPARE(panel->qual(), 0);
    panel->setOvercoat(text("Glossy"));
    notices.clear();
    dialog.constraints->refused.clear();
    click(cell(dialog, "matte"));
    QCOMPARE(notices,
             QStringList({text("<Overcoat"), text("<isMatte"), text(">Overcoat"), text(">isMatte")}));
}

void LaminationTest::enablerIsInverted()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, ppd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    auto *box = qobject_cast<QCheckBox *>(dialog.control(32));
    QVERIFY(dialog.control(1)->isEnabled());
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(panel->recorded(text("UsePrinterPanel")), text("True"));
    QVERIFY(!dialog.control(1)->isEnabled() && !dialog.control(2)->isEnabled());
    QVERIFY(dialog.control(16)->isEnabled());
    for (const auto &[state, enabled] : {std::pair(Qt::PartiallyChecked, false),
                                         std::pair(Qt::Checked, false), std::pair(Qt::Unchecked, true)}) {
        box->setTristate();
        box->setCheckState(state);
        panel->changePrinterSetting(box); // which shows the box as it was recorded: mixed is on
        QCOMPARE(panel->recorded(text("UsePrinterPanel")), enabled ? text("False") : text("True"));
        QCOMPARE(dialog.control(1)->isEnabled(), enabled);
        QCOMPARE(panel->enablerState(box), enabled ? 1 : 0);
    }
    box->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(panel->enablerState(box), 0);
}

void LaminationTest::matteLevelNeedsMatteAndTheEnabler()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, ppd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    QVERIFY(!dialog.slider(3)->isEnabled());
    click(cell(dialog, "matte"));
    QVERIFY(dialog.slider(3)->isEnabled());
    QTest::keyClick(dialog.slider(3), Qt::Key_Left);
    QCOMPARE(panel->recorded(text("MatteValue")), text("-1"));
    QCOMPARE(panel->property("MatteValue").toString(), text("-1"));
    QCOMPARE(panel->qual(), -1);
    QCOMPARE(pdekit::stringValue(dialog.control(83)), text("-1"));
    QTest::keyClick(dialog.control(32), Qt::Key_Space);
    QVERIFY(!dialog.slider(3)->isEnabled());
}

void LaminationTest::modelRetiresControls()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, ppd());
    dialog.printer.description = QUrl(text("ppd:x"));
    dialog.printer.data = "*ModelName: \"some k9031"; // lower case, and the data ends with it
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.view = panel->panelView(); // in no layout, which would have a say in its size
    panel->restoreValuesAndReturnError(nullptr);
    const auto frame = [&](int tag) {
        return dialog.control(tag)->geometry();
    };
    const QRect button = frame(16);
    const QRect quality = frame(1);
    const QRect box = frame(32);
    const QRect view = dialog.view->geometry();
    for (int shows = 1; shows <= 2; ++shows) {
        panel->willShow();
        QCOMPARE(frame(16), button.translated(0, -100 * shows));
        QCOMPARE(dialog.view->geometry(), view.adjusted(0, 0, 0, -100 * shows));
        for (const int tag : {2, 3, 83, 162, 163}) {
            QVERIFY(!dialog.control(tag));
            const QWidget *retired = dialog.control(tag | 256);
            QVERIFY(retired && retired->isHidden() && retired->testAttribute(Qt::WA_ForceDisabled));
        }
        QCOMPARE(frame(1), quality);
        QCOMPARE(frame(32), box);
        QVERIFY(!dialog.control(1)->isHidden() && dialog.control(16)->isEnabled());
    }
    // Nothing brings a retired control back.
    QTest::keyClick(dialog.control(32), Qt::Key_Space);
    QVERIFY(!dialog.control(1)->isEnabled());
    QTest::keyClick(dialog.control(32), Qt::Key_Space);
    QTest::mouseClick(dialog.control(16), Qt::LeftButton);
    panel->setOvercoat(text("Matte"));
    QVERIFY(dialog.control(1)->isEnabled() && panel->isMatte());
    for (const int tag : {258, 259})
        QVERIFY(!dialog.control(tag)->isEnabled() && dialog.control(tag)->isHidden());
}

// A panel whose form is missing has nothing to retire.
void LaminationTest::modelWithoutAForm()
{
    PanelHarness dialog(Mode::Constraint, ppd());
    dialog.printer.description = QUrl(text("ppd:x"));
    dialog.printer.data = "K9031";
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(text("Contents")));
    QFile info(folder.filePath(text("Contents/Info.json")));
    QVERIFY(info.open(QIODevice::WriteOnly));
    info.write(R"({"CFBundleIdentifier": "a.b", "CFBundleExecutable": "none"})");
    info.close();
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    panel->pdeBundle_ = pdekit::Bundle::open(folder.path());
    panel->willShow();
    QVERIFY(!panel->panelView());
    QVERIFY(!dialog.log.filter(text("Failed to load nib named corvelMatte")).isEmpty());
}

void LaminationTest::otherModelsKeepControls_data()
{
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("another model") << true << QByteArray("*ModelName: \"K9045\"\n");
    QTest::newRow("cut off within the name") << true << QByteArray("*ModelName: \"K903");
    QTest::newRow("no bytes") << true << QByteArray();
    QTest::newRow("no data") << false << QByteArray();
}

void LaminationTest::otherModelsKeepControls()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(bool, hasData);
    QFETCH(QByteArray, data);
    PanelHarness dialog(mode, ppd());
    dialog.printer.description = QUrl(text("ppd:x"));
    if (hasData)
        dialog.printer.data = data;
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.view = panel->panelView();
    const QRect before = dialog.view->geometry();
    const QRect button = dialog.control(16)->geometry();
    panel->setChoiceForKey(text("Fine"), text("Quality"));
    panel->willShow();
    QCOMPARE(dialog.view->geometry(), before);
    QCOMPARE(dialog.control(16)->geometry(), button);
    for (const int tag : {1, 2, 3, 16, 32, 83, 162, 163})
        QVERIFY(dialog.control(tag) && !dialog.control(tag)->isHidden());
    QVERIFY(!cell(dialog, "fine")->isChecked()); // showing refreshes nothing
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
