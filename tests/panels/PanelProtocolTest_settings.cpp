// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelMainPDE.h"
#include "PanelHarness.h"
#include "PanelProtocolTest.h"

#include <QtTest/QTest>

using Dictionary = pdekit::PPDDictionary;

namespace {

Dictionary allKeys(const char *choice)
{
    Dictionary dictionary;
    for (const char *key : {"Brightness", "Contrast", "Saturation", "Gamma", "Red", "Green", "Blue"})
        dictionary.insert(text(key), text(choice));
    dictionary.insert(text("AdjustmentsEnabled"), text("False"));
    return dictionary;
}

Dictionary choicesOf(const std::optional<QHash<QString, QString>> &choices)
{
    Dictionary dictionary;
    for (auto entry = choices->cbegin(); entry != choices->cend(); ++entry)
        dictionary.insert(entry.key(), entry.value());
    return dictionary;
}

} // namespace

void PanelProtocolTest::restoreFromThePpd()
{
    PanelHarness dialog(Mode::Constraint, PanelHarness::colorPpd().replace("*DefaultGamma: 0\n", ""));
    auto panel = dialog.make<LVCorvelMainPDE>();
    panel->panelView();
    dialog.mark(text("Red"), text("7"));
    panel->setChoiceForKey(text("3"), text("Gamma"));
    QVERIFY(panel->restoreValuesAndReturnError(nullptr));
    QCOMPARE(panel->recorded(text("Red")), text("7")); // the keyword, not "Level 7"
    QCOMPARE(panel->recorded(text("Gamma")), text("3"));
    QVERIFY(dialog.constraints->offers.isEmpty());
    QCOMPARE(pdekit::stringValue(pdekit::viewWithTag(panel->panelView(), 1)), text("7"));
    QVERIFY(panel->saveValuesAndReturnError(nullptr));
    QVERIFY(dialog.session.ticket.options.isEmpty());
}

void PanelProtocolTest::restoreFromTheSettings_data()
{
    QTest::addColumn<Dictionary>("settings");
    QTest::addColumn<int>("failure");
    QTest::addColumn<Dictionary>("recorded");
    Dictionary defaults = allKeys("0");
    defaults.insert(text("AdjustmentsEnabled"), text("True"));
    QTest::newRow("complete") << allKeys("5") << 0 << allKeys("5");
    Dictionary settings = allKeys("5");
    settings.insert(text("PageSize"), text("4x6"));
    QTest::newRow("other options are left there") << settings << 0 << allKeys("5");
    settings.remove(text("Blue"));
    QTest::newRow("one key short: the defaults") << settings << 0 << defaults;
    QTest::newRow("none") << Dictionary() << 0 << defaults;
    QTest::newRow("no ticket") << allKeys("5") << 1 << defaults;
    QTest::newRow("ticket fails") << allKeys("5") << 2 << defaults;
    QTest::newRow("no dictionary") << allKeys("5") << 3 << defaults;
}

void PanelProtocolTest::restoreFromTheSettings()
{
    QFETCH(Dictionary, settings);
    QFETCH(int, failure);
    QFETCH(Dictionary, recorded);
    PanelHarness dialog(Mode::Settings);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.session.ticket.options = settings;
    dialog.session.ticketStatus = failure == 1 ? -1 : 0;
    dialog.session.ticket.status = failure == 2 ? -1 : 0;
    dialog.session.ticket.hasDictionary = failure != 3;
    QVERIFY(panel->restoreValuesAndReturnError(nullptr));
    QCOMPARE(choicesOf(panel->choiceDict_), recorded);
    QCOMPARE(pdekit::stringValue(pdekit::viewWithTag(panel->panelView(), 81)), recorded[text("Red")]);

    // What has been recorded before: replaced or removed by a read that succeeds, but for foreign keys.
    panel->setChoiceForKey(text("9"), text("Blue"));
    panel->setChoiceForKey(text("9"), text("Foreign"));
    panel->getPPDSettingsFromPrintSettingsOnTiger();
    QCOMPARE(panel->recorded(text("Blue")), failure ? text("9") : settings.value(text("Blue")));
    QCOMPARE(panel->recorded(text("Foreign")), text("9"));
    QVERIFY(!panel->choiceDict_->contains(text("PageSize")));
    QCOMPARE(dialog.session.ticket.options, settings);
}

void PanelProtocolTest::saving()
{
    PanelHarness dialog(Mode::Settings);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.session.ticket.options = {{text("Red"), text("1")}, {text("PageSize"), text("4x6")}};
    const Dictionary before = dialog.session.ticket.options;
    QVERIFY(panel->saveValuesAndReturnError(nullptr)); // there is nothing to write yet
    panel->setChoiceForKey(std::nullopt, text("Red"));
    panel->setChoiceForKey(text("1"), std::nullopt);
    QVERIFY(panel->choiceDict_ && panel->choiceDict_->isEmpty());
    panel->writePPDSettingsToPrintSettingsOnTiger();
    QCOMPARE(dialog.session.ticket.options, before);
    panel->setChoiceForKey(text("8"), text("Red"));
    panel->setChoiceForKey(text("7"), text("Blue"));
    dialog.session.ticketStatus = -1;
    QVERIFY(panel->saveValuesAndReturnError(nullptr));
    QCOMPARE(dialog.session.ticket.options, before);
    dialog.session.ticketStatus = 0;
    QVERIFY(panel->saveValuesAndReturnError(nullptr));
    QCOMPARE(
        dialog.session.ticket.options,
        Dictionary({{text("Blue"), text("7")}, {text("Red"), text("8")}, {text("PageSize"), text("4x6")}}));
    // Without a session both ways do nothing.
    dialog.callback->session = nullptr;
    const auto choices = *panel->choiceDict_;
    QVERIFY(panel->saveValuesAndReturnError(nullptr));
    panel->getPPDSettingsFromPrintSettingsOnTiger();
    QCOMPARE(*panel->choiceDict_, choices);
}

void PanelProtocolTest::defaultsOfThePpd()
{
    QByteArray ppd = PanelHarness::colorPpd();
    ppd.replace("*DefaultRed: 0", "*DefaultRed: 4")
        .replace("*Gamma", "*OtherGamma")
        .replace("DefaultGamma", "DefaultOtherGamma");
    for (const Mode mode : {Mode::Constraint, Mode::Settings}) {
        PanelHarness dialog(mode, ppd);
        auto panel = dialog.make<LVCorvelMainPDE>();
        dialog.mark(text("Red"), text("9"));
        panel->setDefaults();
        QCOMPARE(panel->recorded(text("Red")), text("4"));
        QCOMPARE(panel->choiceDict_->size(), 7);
        QVERIFY(!panel->choiceDict_->contains(text("Gamma")));
        if (dialog.constraints) {
            QCOMPARE(dialog.marked(text("Red")), text("4"));
            QCOMPARE(dialog.constraints->offers.first(), text("Brightness=0"));
            QCOMPARE(dialog.constraints->offers.last(), text("AdjustmentsEnabled=True"));
        }
    }
}

void PanelProtocolTest::dialogChangesAChoice()
{
    PanelHarness dialog(Mode::Constraint);
    auto panel = dialog.make<LVCorvelMainPDE>();
    panel->PPDOptionKeyValueDidChangePpdChoice(text("Quality"), text("Fine"));
    panel->PPDOptionKeyValueDidChangePpdChoice(text("Red"), std::nullopt);
    panel->PPDOptionKeyValueDidChangePpdChoice(std::nullopt, text("1"));
    QVERIFY(!panel->choiceDict_);
    dialog.show(*panel);
    panel->PPDOptionKeyValueDidChangePpdChoice(text("Red"), text("11"));
    QCOMPARE(panel->recorded(text("Red")), text("11"));
    QCOMPARE(dialog.slider(1)->value(), 0); // not refreshed until it is shown
    panel->willShow();
    QCOMPARE(dialog.slider(1)->value(), 11);
}

void PanelProtocolTest::deviceUri()
{
    PanelHarness dialog(Mode::Settings);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.callback->printer = nullptr;
    QCOMPARE(panel->printerDeviceURI(), text("usb://"));
    dialog.callback->printer = &dialog.printer;
    QCOMPARE(panel->printerDeviceURI(), text("usb://"));
    dialog.printer.deviceUri = pdekit::URLReference(QString());
    QCOMPARE(panel->printerDeviceURI(), text("usb://"));
    const QString uri = text("usb://Corvel%20Inc/K9031?serial=A%2FB");
    dialog.printer.deviceUri = pdekit::URLReference(uri);
    QCOMPARE(panel->printerDeviceURI(), uri);
    dialog.printer.deviceUri = pdekit::URLReference(text("ipp://elsewhere/"));
    QCOMPARE(panel->printerDeviceURI(), uri); // asked for once it is known: never again

    panel = dialog.make<LVCorvelMainPDE>();
    dialog.printer.deviceUri =
        pdekit::URLReference(text("../K9031?serial=1"), text("ipp://host:631/printers/x/"));
    QCOMPARE(panel->printerDeviceURI(), text("ipp://host:631/printers/K9031?serial=1"));
    // An absolute one has no use for its base, and stays to the letter.
    panel = dialog.make<LVCorvelMainPDE>();
    dialog.printer.deviceUri = pdekit::URLReference(uri, text("ipp://host:631/printers/x/"));
    QCOMPARE(panel->printerDeviceURI(), uri);
}

void PanelProtocolTest::ppdData()
{
    PanelHarness dialog(Mode::Settings);
    auto panel = dialog.make<LVCorvelMainPDE>();
    QVERIFY(!panel->ppdDataCopy());
    dialog.printer.description = QUrl(text("file:///ppd"));
    QVERIFY(!panel->ppdDataCopy());
    dialog.printer.data = QByteArray("a\0b", 3);
    QCOMPARE(panel->ppdDataCopy(), QByteArray("a\0b", 3));
    dialog.callback->printer = nullptr;
    QVERIFY(!panel->ppdDataCopy());
}
