// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltPanel.h"
#include "LVCorvelMainPDE.h"
#include "PanelHarness.h"
#include "RadioMatrix.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QLocale>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>

using Tags = QList<int>;

/// What a panel makes of a view: the walks by tag, the wiring of text fields, the localisation.
class PanelViewsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German)); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void updateUIWalksTwoRuns()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        panel->updateUI(); // no view yet
        auto *first = panel->add<QLineEdit>(1);
        panel->add<QWidget>(2); // a view that is no control is a gap, too
        auto *third = panel->add<QLineEdit>(3);
        auto *box = panel->add<QCheckBox>(32);
        // No run of tags, however full, keeps the walk from ending.
        for (int tag = 33; tag < 64; ++tag)
            panel->add<QLabel>(tag);
        for (const char *key : {"Key1", "Key3"})
            panel->setChoiceForKey(text("9"), text(key));
        panel->setChoiceForKey(text("tRUE"), text("Enabler"));
        panel->updateUI();
        QCOMPARE(first->text(), text("9"));
        QCOMPARE(third->text(), QString());
        QVERIFY(box->isChecked());
        panel->updateControlWithValue(box, std::nullopt);
        panel->updateControlWithValue(nullptr, text("False"));
        QVERIFY(box->isChecked() && box->toolTip().isEmpty());
    }

    void toggleReaches_data()
    {
        // How many options there are; what the check box' state is said to be; the tags that are disabled
        // then.
        addRows<int, std::optional<int>, Tags>({
            {"gap at 4 goes on to the partners", 3, {}, {1, 2, 3, 81, 82}},
            {"no options", 0, {}, {81, 82}},
            {"gap at 14 goes on", 13, {}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 81, 82}},
            {"gap at 15 ends the walk", 14, {}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
            {"gap at 16 ends the walk", 15, {}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
            {"mixed enables", 3, -1, {}},
            {"any state enables", 3, 2, {}},
            {"of which one byte counts", 1, 256, {1, 81, 82}},
        });
    }

    void toggleReaches()
    {
        const auto [options, state, disabled] = row<int, std::optional<int>, Tags>();
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        panel->fixedEnablerState = state;
        auto *group = panel->add<QWidget>(pdekit::noTag);
        auto *box = panel->add<QCheckBox>(32, group);
        Tags tags = {81, 82, 84};
        for (int tag = options; tag > 0; --tag)
            tags.prepend(tag);
        for (const int tag : std::as_const(tags))
            panel->add<QWidget>(tag, group);              // any kind of view is enabled
        auto *outside = panel->add<QSlider>(options + 1); // not beside the check box
        panel->setControlsEnabledByToggle(box);
        Tags found;
        for (const int tag : std::as_const(tags)) {
            if (!pdekit::viewWithTag(group, tag)->isEnabled())
                found << tag;
        }
        QCOMPARE(found, disabled);
        QVERIFY(outside->isEnabled() && box->isEnabled());
    }

    void textFieldsWired_data()
    {
        addRows<Tags, Tags>({
            // that are there, and that are wired
            {"none", {1, 79}, {}},
            {"80, 82", {80, 82}, {80, 82}},
            {"only 82", {82}, {}},
            {"81 without 80", {81, 82, 83}, {81, 82, 83}},
            {"two missing", {80, 83}, {80}},
            {"single gaps", {81, 83, 85, 88}, {81, 83, 85}},
        });
    }

    void textFieldsWired()
    {
        const auto [present, wired] = row<Tags, Tags>();
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        QPalette dark;
        dark.setColor(QPalette::Base, Qt::black);
        for (const int tag : present) {
            auto *field = panel->add<QLineEdit>(tag);
            field->setReadOnly(true);
            field->setPalette(dark);
        }
        panel->enableTextFieldsForEditingInView(panel->root());
        panel->enableTextFieldsForEditingInView(panel->root()); // wires once, however often it is asked
        Tags found;
        for (const int tag : present) {
            auto *field = qobject_cast<QLineEdit *>(pdekit::viewWithTag(panel->root(), tag));
            panel->events.clear();
            QTest::keyClick(field, Qt::Key_4);
            if (panel->events.isEmpty())
                continue;
            QCOMPARE(panel->events.size(), 1);
            QCOMPARE(field->palette().color(QPalette::Base), QColor(Qt::white));
            found << tag;
        }
        QCOMPARE(found, wired);
    }

    void lastChildDecides()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        auto *first = new QLabel(QStringLiteral("Red"), panel->root());
        QVERIFY(panel->localizeStringsInViewAndSubviewsResizeTofit(panel->root(), true, false));
        QCOMPARE(first->text(), QStringLiteral("Rot"));
        first->setText(QStringLiteral("Green"));
        new QLabel(QStringLiteral("no entry"), panel->root());
        QVERIFY(!panel->localizeStringsInViewAndSubviewsResizeTofit(panel->root(), true, false));
        QCOMPARE(first->text(), QStringLiteral("Grün"));
        first->setText(QStringLiteral("Blue"));
        QVERIFY(!panel->localizeStringsInViewAndSubviewsResizeTofit(panel->root(), false, false));
        QCOMPARE(first->text(), QStringLiteral("Blue"));
        QGroupBox box(QStringLiteral("Red")); // the view's own text counts, whatever its last child was
        new QLabel(QStringLiteral("no entry"), &box);
        QVERIFY(panel->localizeStringsInViewAndSubviewsResizeTofit(&box, true, false));
        QVERIFY(!panel->localizeStringsInViewAndSubviewsResizeTofit(&box, true, false));
    }

    void titleBeforeText()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        QCheckBox box(QStringLiteral("Red"));
        box.setChecked(true); // its string value is its state
        QVERIFY(panel->localizeStringsInViewAndSubviewsResizeTofit(&box, true, false));
        QCOMPARE(box.text(), QStringLiteral("Rot"));
        QVERIFY(box.isChecked());
        QPushButton untitled;
        QVERIFY(!panel->localizeStringsInViewAndSubviewsResizeTofit(&untitled, true, false));
    }

    void toolTips()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        QWidget view;
        view.setToolTip(QStringLiteral("Red"));
        QVERIFY(
            !panel->localizeStringsInViewAndSubviewsResizeTofit(&view, true, true)); // no change of the text
        QCOMPARE(view.toolTip(), QStringLiteral("Rot"));

        // A choice is not markup, even if it looks so.
        const QString choice = text("<b><img src=/dev/zero>&amp;");
        QLineEdit field;
        panel->updateControlWithValue(&field, choice);
        QCOMPARE(field.text(), choice);
        QCOMPARE(QTextDocumentFragment::fromHtml(field.toolTip()).toPlainText(), choice);
        panel->setToolTipFromSender(text("1<2"), &field);
        QCOMPARE(field.toolTip(), text("1<2"));

        // In the test's own table "first" is "second", and "second" is "third": nothing is looked up twice.
        QLocale::setDefault(QLocale(QLocale::Swedish));
        auto *matrix = panel->add<pdekit::RadioMatrix>(1);
        auto *cell = new QRadioButton(text("first"), matrix);
        cell->setToolTip(text("first"));
        auto *notACell = new QLabel(text("first"), matrix);
        QVERIFY(panel->localizeStringsInViewAndSubviewsResizeTofit(matrix, true, false));
        QCOMPARE(cell->text(), text("second"));
        QCOMPARE(cell->toolTip(), text("second"));
        QCOMPARE(notACell->text(), text("first"));
    }

    void resizedOnlyWhenAsked()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<BuiltPanel>();
        for (const bool resize : {false, true}) {
            auto *label = new QLabel(QStringLiteral("UsePrinterPanel"), panel->root());
            auto *same = new QLabel(QStringLiteral("no entry"), panel->root());
            label->resize(1, 1);
            same->resize(1, 1);
            panel->localizeStringsInViewAndSubviewsResizeTofit(panel->root(), true, resize);
            QCOMPARE(label->size(), resize ? label->sizeHint() : QSize(1, 1));
            QCOMPARE(same->size(), QSize(1, 1));
        }
    }

    void germanPanel()
    {
        PanelHarness dialog(Mode::Constraint);
        auto panel = dialog.make<LVCorvelMainPDE>();
        dialog.show(*panel);
        QCOMPARE(panel->panelName(), QStringLiteral("Farbanpassung"));
        QCOMPARE(dialog.view->findChild<QLabel *>(QStringLiteral("redLabel"))->text(), QStringLiteral("Rot"));
        QCOMPARE(pdekit::stringValue(dialog.control(81)), QStringLiteral("0"));
        QCOMPARE(dialog.control(81)->accessibleName(), QStringLiteral("Wert für Rot"));
        const auto summary = panel->summaryInfo();
        QCOMPARE(summary->value(QStringLiteral("Farben anpassen")), QStringLiteral("Ein"));
        QCOMPARE(summary->value(QStringLiteral("Sättigung")), QStringLiteral("Level 0"));
        QLocale::setDefault(QLocale(QLocale::French));
        QCOMPARE(panel->panelName(), QStringLiteral("Farbanpassung")); // kept once it is known
    }
};

CORVEL_WIDGETS_TEST(PanelViewsTest)
#include "PanelViewsTest.moc"
