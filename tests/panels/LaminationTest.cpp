// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Feedback.h"
#include "LVCorvelLaminationPDE.h"
#include "PanelHarness.h"
#include "RKTPPRMatrixPDEcorvel.h"
#include "RadioMatrix.h"
#include "TestMain.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

#include <climits>
#include <tuple>

namespace {

/// The panel with a member more that a form might name.
class NamedPanel : public LVCorvelLaminationPDE
{
    Q_OBJECT

public:
    Q_INVOKABLE void probe() { ++probes; }
    int probes = 0;
};

/// Notes which of the operations that take no argument are performed.
class ListeningPanel : public LVCorvelLaminationPDE
{
public:
    std::optional<QByteArray> ppdDataCopy() override
    {
        return note<std::optional<QByteArray>>("ppdDataCopy");
    }
    QString printerDeviceURI() override { return note<QString>("printerDeviceURI"); }
    bool shouldShowHelp() override { return note<bool>("shouldShowHelp"); }
    void updateUI() override { note("updateUI"); }
    void setDefaults() override { note("setDefaults"); }
    void killCurrentTask() override { note("killCurrentTask"); }
    void willShow() override { note("willShow"); }
    bool shouldHide() override { return note<bool>("shouldHide"); }
    QStringList supportedPPDOptionKeys() override { return note<QStringList>("supportedPPDOptionKeys"); }
    Text nibName() override { return note<Text>("nibName"); }
    QWidget *panelView() override { return note<QWidget *>("panelView"); }
    Text panelName() override { return note<Text>("panelName"); }
    Text panelKind() const override { return note<Text>("panelKind"); }
    std::optional<Summary> summaryInfo() override { return note<std::optional<Summary>>("summaryInfo"); }
    ppd_file_s *getPPDOnTiger() override { return note<ppd_file_s *>("getPPDOnTiger"); }
    void getPPDSettingsFromPrintSettingsOnTiger() override { note("getPPDSettingsFromPrintSettingsOnTiger"); }
    void writePPDSettingsToPrintSettingsOnTiger() override { note("writePPDSettingsToPrintSettingsOnTiger"); }

    mutable QStringList performed;

private:
    template <class Answer = void>
    Answer note(const char *operation) const
    {
        performed << text(operation);
        return Answer();
    }
};

QByteArray ppd()
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

void click(QRadioButton *cell)
{
    QTest::mouseClick(cell, Qt::LeftButton, {}, QPoint(8, cell->height() / 2));
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

/// The panel of the print quality and the finish: its notices, its values, and what its model takes away.
class LaminationTest : public ModesTest
{
    Q_OBJECT

private Q_SLOTS:
    void refusedCellIsNeverSeen();
    void matrixVariant();
    void qualIsClamped();
    void isMatte();
    void boundValueNamesAMember();
    void boundValueNamesAnOperation_data();
    void boundValueNamesAnOperation();
};

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
    QVERIFY(dialog.slider(3)->isEnabled());
    QTest::keyClick(dialog.slider(3), Qt::Key_End);
    QCOMPARE(dialog.feedback->beeps, 1);
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

void LaminationTest::qualIsClamped()
{
    LVCorvelLaminationPDE panel;
    QStringList notices;
    record(panel, notices);
    QList<int> seen; // the value at each notice
    connect(&panel, &pdekit::KeyValueObject::valueWillChange, this, [&] { seen << panel.qual(); });
    connect(&panel, &pdekit::KeyValueObject::valueDidChange, this, [&] { seen << panel.qual(); });
    QCOMPARE(panel.qual(), 0);
    const QStringList told = {text("<qual"), text(">qual")};
    const QList<std::tuple<int, int, QStringList>> rows = {{25, 25, {}},        {26, 25, told},
                                                           {-25, -25, {}},      {-26, -25, told},
                                                           {INT_MAX, 25, told}, {INT_MIN, -25, told}};
    for (const auto &[set, kept, expected] : rows) {
        const int before = panel.qual();
        notices.clear();
        seen.clear();
        panel.setQual(set);
        QCOMPARE(panel.qual(), kept);
        QCOMPARE(notices, expected);
        QCOMPARE(seen, expected.isEmpty() ? QList<int>() : QList<int>({before, kept}));
    }
}

void LaminationTest::isMatte()
{
    LVCorvelLaminationPDE panel;
    QVERIFY(!panel.isMatte());
    QStringList notices;
    record(panel, notices);
    for (const char *overcoat : {"Glossy", "matte", "Matte", ""}) {
        notices.clear();
        panel.setOvercoat(text(overcoat));
        QCOMPARE(panel.isMatte(), qstrcmp(overcoat, "Matte") == 0);
        QCOMPARE(notices,
                 QStringList({text("<Overcoat"), text("<isMatte"), text(">Overcoat"), text(">isMatte")}));
    }
    notices.clear();
    panel.setQuality(text("Fine"));
    QCOMPARE(notices, QStringList({text("<Quality"), text(">Quality")}));
}

void LaminationTest::boundValueNamesAMember()
{
    PanelHarness dialog(mode_, ppd());
    auto panel = dialog.make<NamedPanel>();
    panel->setValueForBoundControlWithKey(text("7"), text("probe"));
    QCOMPARE(panel->probes, 1);
    // A getter's answer is dropped; the value is stored as a choice all the same.
    for (const char *key : {"qual", "isMatte"}) {
        panel->setValueForBoundControlWithKey(text("7"), text(key));
        QCOMPARE(panel->recorded(text(key)), text("7"));
    }
    QCOMPARE(panel->qual(), 0);
    QVERIFY(!panel->isMatte());
    const QPointer<NamedPanel> alive = panel.get();
    panel->setValueForBoundControlWithKey(text("7"), text("deleteLater")); // every object has it
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(alive);
    QCOMPARE(panel->probes, 1);
}

void LaminationTest::boundValueNamesAnOperation_data()
{
    QTest::addColumn<bool>("isPerformed");
    for (const char *operation :
         {"ppdDataCopy", "printerDeviceURI", "shouldShowHelp", "updateUI", "setDefaults", "killCurrentTask",
          "willShow", "shouldHide", "supportedPPDOptionKeys", "nibName", "panelView", "panelName",
          "panelKind", "summaryInfo", "getPPDOnTiger", "getPPDSettingsFromPrintSettingsOnTiger",
          "writePPDSettingsToPrintSettingsOnTiger"})
        QTest::newRow(operation) << true;
    for (const char *other : {"Overcoat", "updateui", "updateUI()", "setQual", "restoreValuesAndReturnError"})
        QTest::newRow(other) << false;
}

// To the letter, and only what takes no argument; in print-settings mode nobody is asked first.
void LaminationTest::boundValueNamesAnOperation()
{
    QFETCH(bool, isPerformed);
    if (mode_ == Mode::Constraint)
        return;
    ListeningPanel panel;
    panel.setChoiceForKey({}, {}); // the record asks for the keys when it is made
    panel.performed.clear();
    const QString name = text(QTest::currentDataTag());
    panel.setValueForBoundControlWithKey(text("7"), name);
    QCOMPARE(panel.performed, isPerformed ? QStringList(name) : QStringList());
}

CORVEL_WIDGETS_TEST(LaminationTest)
#include "LaminationTest.moc"
