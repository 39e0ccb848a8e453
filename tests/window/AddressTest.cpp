// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PresetStore.h"
#include "ProgramRun.h"
#include "StubPrinter.h"
#include "TestMain.h"

#include <QtCore/QJsonArray>

using namespace testing_support;

/// A printer by its address, in the window and without one. There is no print server.
class AddressTest : public WindowTest
{
    Q_OBJECT

    StubPrinter printer_{PrinterMessage::photoPrinter()};

    ProgramRun run(QStringList arguments) const
    {
        arguments.prepend(u"--printer=%1"_s.arg(printer_.address()));
        return runProgram(arguments, {{u"CUPS_SERVER"_s, u"/nowhere/cups.sock"_s}});
    }

private Q_SLOTS:
    void initTestCase() { qputenv("CUPS_SERVER", "/nowhere/cups.sock"); }

    void windowPrintsWithThePrintersOptions()
    {
        PrintDialogSetup wanted = setupForPrinter(PanelMode::Constraint, printer_.address());
        wanted.options = {{u"media-type"_s, u"stationery"_s}, {u"com.example-overcoat"_s, u"matte"_s}};
        wanted.copies = 2;
        const OpenedDialog opened(wanted);
        opened.dialog->searchPrinters();
        QTRY_VERIFY2(opened.dialog->isReady(), qPrintable(opened.dialog->whyNotReady()));
        QCOMPARE(opened.dialog->printer(), printer_.address());
        QCOMPARE(opened.find<QComboBox>(u"printer"_s)->currentText(), printer_.address());
        auto *size = opened.find<QComboBox>(u"pageSize"_s);
        QCOMPARE(size->currentText(), u"4 × 6 in (10 × 15 cm), borderless"_s);
        QVERIFY(opened.find<QWidget>(u"scaling"_s)->isEnabled());
        size->setFocus();
        QTest::keyClick(size, Qt::Key_Home);
        opened.dialog->print();
        QTRY_VERIFY2(opened.message().contains(u"Printed"_s), qPrintable(opened.message()));
        const StubPrinter::Job job = printer_.jobs().constLast();
        QCOMPARE(job.attributes.value(u"copies"_s), u"integer 2"_s);
        QCOMPARE(job.attributes.value(u"com.example-overcoat"_s), u"keyword matte"_s);
        const QString media = job.attributes.value(u"media-col"_s);
        QVERIFY2(media.contains(u"media-left-margin=318"_s) && media.contains(u"media-type=stationery"_s),
                 qPrintable(media));
    }

    // It can be chosen all the same.
    void paperThatIsNotLoadedIsMarked()
    {
        StubPrinter printer(PrinterMessage::photoPrinter().keywords("media-ready", {"na_index-4x6_4x6in"}));
        const OpenedDialog opened(setupForPrinter(PanelMode::Constraint, printer.address()));
        opened.dialog->searchPrinters();
        QTRY_VERIFY2(opened.dialog->isReady(), qPrintable(opened.dialog->whyNotReady()));
        auto *size = opened.find<QComboBox>(u"pageSize"_s);
        QVERIFY(size->findText(u"4 × 6 in (10 × 15 cm), borderless"_s) >= 0);
        const int a4 = size->findText(u"A4 (not loaded)"_s);
        QVERIFY2(a4 >= 0, qPrintable(size->itemText(0) + size->itemText(1) + size->itemText(2)));
        size->setFocus();
        QTest::keyClick(size, Qt::Key_A);
        QCOMPARE(size->currentIndex(), a4);
        QVERIFY(opened.message().isEmpty() && opened.dialog->isReady());
    }

    // CUPS would misread its name in its own file.
    void presetsAreTheProgramsOwn()
    {
        PresetStore store = PresetStore::of(printer_.address(), false);
        QVERIFY(!store.add(u"Matte"_s, {{u"print-quality"_s, u"5"_s}}));
        QCOMPARE(store.presets()->size(), 1);
        QVERIFY(!QFile::exists(QDir::homePath() + u"/.cups/lpoptions"_s));
        QVERIFY(PresetStore::of(u"ipp://localhost/other"_s, false).presets()->isEmpty());
        QVERIFY(PresetStore::builtIn().presets()->isEmpty());
    }

    void programListsShowsAndPrints()
    {
        const ProgramRun list = run({u"--list-options"_s});
        QVERIFY2(list.status == 0 && list.out.contains("com.example-sharpness"), list.err.constData());
        const ProgramRun plan =
            run({u"--dry-run"_s, u"--json"_s, u"-o"_s, u"print-quality=5"_s, samplePhoto});
        const QJsonObject options = plan.json().array().at(0).toObject().value(u"options"_s).toObject();
        QCOMPARE(options.value(u"print-quality"_s).toString(), u"high"_s);
        QVERIFY2(options.value(u"media-col"_s).toString().contains(u"media-size={"_s), plan.out.constData());
        const qsizetype before = printer_.jobs().size();
        const ProgramRun batch =
            run({u"--batch"_s, u"-o"_s, u"com.example-sharpness=Custom.3"_s, samplePhoto});
        QVERIFY2(batch.status == 0, batch.err.constData());
        QCOMPARE(printer_.jobs().size(), before + 1);
        QCOMPARE(printer_.jobs().constLast().attributes.value(u"com.example-sharpness"_s), u"integer 3"_s);
    }
};

CORVEL_WIDGETS_TEST(AddressTest)
#include "AddressTest.moc"
