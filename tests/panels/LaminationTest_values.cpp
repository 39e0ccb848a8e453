// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Feedback.h"
#include "LVCorvelLaminationPDE.h"
#include "LaminationTest.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QRadioButton>

#include <algorithm>
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

} // namespace

void LaminationTest::qualIsClamped()
{
    LVCorvelLaminationPDE panel;
    QStringList notices;
    record(panel, notices);
    QList<int> seen; // by who is told
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

void LaminationTest::boundValueIsStored()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, ppd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    dialog.log.clear();
    panel->setValueForBoundControlWithKey(text("Matte"), text("Overcoat"));
    QCOMPARE(panel->recorded(text("Overcoat")), text("Matte"));
    QVERIFY(cell(dialog, "glossy")->isChecked());                  // no control is touched
    panel->setValueForBoundControlWithKey(text("%1"), text("%2")); // is not taken for a placeholder
    QCOMPARE(panel->recorded(text("%2")), text("%1"));
    QCOMPARE(dialog.log, dialog.constraints ? QStringList({text("changed Overcoat setting to Matte"),
                                                           text("changed %2 setting to %1")})
                                            : QStringList());
    if (dialog.constraints)
        QCOMPARE(dialog.constraints->offers, QStringList({text("Overcoat=Matte"), text("%2=%1")}));
}

void LaminationTest::boundValueNamesAMember()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode, ppd());
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

void LaminationTest::boundValueIsRefused_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

// With the desktop's own alert, which a key dismisses.
void LaminationTest::boundValueIsRefused()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(int, key);
    if (mode == Mode::Settings)
        return; // nobody refuses
    PanelHarness dialog(mode, ppd());
    auto panel = dialog.make<LVCorvelLaminationPDE>();
    dialog.show(*panel);
    pdekit::Feedback::install(nullptr);
    QStringList shown;
    bool isModal = false;
    bool isPlain = false;
    bool wasDismissed = false;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        // Whatever a plug-in has to say, it is no markup.
        const QList<QLabel *> labels = box->findChildren<QLabel *>();
        isPlain = std::all_of(labels.begin(), labels.end(),
                              [](const QLabel *label) { return label->textFormat() == Qt::PlainText; });
        isModal = box->isModal() && box->parentWidget() == &dialog.window;
        shown << box->text() << box->informativeText();
        const QList<QAbstractButton *> buttons = box->buttons();
        for (const QAbstractButton *button : buttons)
            shown << button->text();
        std::ignore = QTest::qWaitFor([box] { return box->isActiveWindow() && box->focusWidget(); });
        QTest::keyClick(box->windowHandle(), Qt::Key(key));
        wasDismissed = !box->isVisible();
        box->reject(); // lest the test hang
    });
    dialog.constraints->refused = {text("Overcoat")};
    dialog.log.clear();
    panel->setOvercoat(text("Matte"));
    panel->setValueForBoundControlWithKey(text("Matte"), text("Overcoat"));
    QCOMPARE(shown, QStringList({text("setting change failed!"),
                                 text("I tried to make the change you requested but the printing system "
                                      "rejected my efforts. Sorry."),
                                 text("Bummer!")}));
    QVERIFY(isModal && isPlain && wasDismissed && !QApplication::activeModalWidget());
    QCOMPARE(dialog.log, QStringList{text("Failed to change Overcoat setting to = Matte")});
    QCOMPARE(panel->recorded(text("Overcoat")), text("Glossy"));
    QVERIFY(cell(dialog, "matte")->isChecked()); // no control is put back
}

#include "LaminationTest_values.moc"
