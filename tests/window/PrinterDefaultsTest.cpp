// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetBar.h"
#include "PresetStore.h"
#include "ProgramRun.h"
#include "QueueTest.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>

#include <cups/ppd.h>
#include <memory>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

using namespace testing_support;

namespace {

const QByteArray officeOptions =
    "*OpenUI *Duplex: PickOne\n*DefaultDuplex: None\n*Duplex None: \"\"\n"
    "*Duplex DuplexNoTumble: \"\"\n*Duplex DuplexTumble: \"\"\n*CloseUI: *Duplex\n"
    "*OpenUI *OutputBin: PickOne\n*DefaultOutputBin: Upper\n*OutputBin Upper: \"\"\n"
    "*OutputBin Rear: \"\"\n*CloseUI: *OutputBin\n"
    "*OpenUI *cupsPrintQuality: PickOne\n*DefaultcupsPrintQuality: Normal\n"
    "*cupsPrintQuality Draft: \"\"\n*cupsPrintQuality Normal: \"\"\n"
    "*cupsPrintQuality High: \"\"\n*CloseUI: *cupsPrintQuality\n";

/// What the filters of a job with these options print with: "PageSize=5x7 Red=0 ...".
QStringList inEffect(const QString &ppd, const QByteArray &options)
{
    const std::unique_ptr<ppd_file_t, void (*)(ppd_file_t *)> record(
        ppdOpenFile(QFile::encodeName(ppd).constData()), ppdClose);
    if (!record)
        return {};
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(options.constData(), 0, &parsed);
    ppdMarkDefaults(record.get());
    cupsMarkOptions(record.get(), count, parsed);
    cupsFreeOptions(count, parsed);
    QStringList choices;
    for (const ppd_option_t *option = ppdFirstOption(record.get()); option;
         option = ppdNextOption(record.get())) {
        const ppd_choice_t *choice = ppdFindMarkedChoice(record.get(), option->keyword);
        if (choice && qstrcmp(option->keyword, "PageRegion") != 0)
            choices += QString::fromLatin1(option->keyword) + u'=' + QString::fromLatin1(choice->choice);
    }
    choices.sort();
    return choices;
}

} // namespace

/// What an untouched dialog prints with, beside lp.
class PrinterDefaultsTest : public QueueTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }

    void init()
    {
        WindowTest::init();
        QFile::remove(PresetStore::userFile());
        qputenv("CUPS_SERVERROOT", QFile::encodeName(system_.path()));
        QFile::remove(system_.filePath(u"lpoptions"_s));
        cupsd_.deleteQueue(u"photo"_s);
        QVERIFY(cupsd_.addQueue(u"photo"_s, ppd_ + officeOptions));
    }

    void printsLikeLp_data()
    {
        const auto add = rows<QString, QByteArray, QByteArray, QString, QString>();
        add("nothing is set", {}, {}, {}, u"photo"_s, u"Overcoat=Glossy"_s);
        add("the PPD's default", u"Overcoat=Matte Quality=Fine"_s, {}, {}, u"photo"_s, u"Overcoat=Matte"_s);
        add("the server's default", u"Blue-default=3 print-quality-default=5"_s, {}, {}, u"photo"_s,
            u"Blue=3"_s);
        add("the server's page, copies and case", u"media-default=5x7 copies-default=2 BLUE-default=4"_s, {},
            {}, u"photo"_s, u"PageSize=5x7"_s);
        add("the system's lpoptions", {}, "Dest photo Red=4 quality=FINE\n", {}, u"photo"_s,
            u"Quality=Fine"_s);
        add("the user's over the system's", u"Red-default=1"_s, "Dest photo Red=4 Blue=2\n",
            "Dest photo red=5 copies=3\nDest other Red=7\n", u"photo"_s, u"Red=5"_s);
        add("IPP names", {}, {},
            "Dest photo media=Rear,na_5x7_5x7in SIDES=two-sided-short-edge print-quality=5 "
            "output-bin=rear print-color-mode=monochrome ppi=300 number-up=1\n",
            u"photo"_s, u"Duplex=DuplexTumble"_s);
        add("a PPD's name over an IPP one", {}, {},
            "Dest photo media=5x7 PageSize=6x8 sides=two-sided-long-edge "
            "Duplex=none\n",
            u"photo"_s, u"PageSize=6x8"_s);
        add("an instance, and not its queue", u"Green-default=1"_s, "Dest photo Red=4\n",
            "Dest photo Blue=2\nDest photo/warm RED=6 media=8x10\n", u"photo/warm"_s, u"PageSize=8x10"_s);
        add("truth values", {}, {}, "Dest photo SharpnessEnabled=true noAdjustmentsEnabled\n", u"photo"_s,
            u"SharpnessEnabled=True"_s);
    }

    void printsLikeLp()
    {
        const auto [server, system, user, printer, expected] =
            row<QString, QByteArray, QByteArray, QString, QString>();
        for (const QString &option : server.split(u' ', Qt::SkipEmptyParts))
            QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-o"_s, option}));
        QVERIFY(store(system_.filePath(u"lpoptions"_s), system));
        QVERIFY(QDir().mkpath(QFileInfo(PresetStore::userFile()).path()) &&
                store(PresetStore::userFile(), user));
        const auto opened = openQueue(printer);
        QCOMPARE(opened->message(), QString());
        const int dialogs = print(*opened);
        QVERIFY(dialogs > 0);
        const ProgramRun batch =
            runProgram({u"--batch"_s, u"--printer"_s, printer, u"--mode"_s,
                        mode_ == PanelMode::Settings ? u"settings"_s : u"constraint"_s, samplePhoto});
        QVERIFY2(batch.status == 0 && batch.err.isEmpty(), batch.err.constData());
        QVERIFY(cupsd_.waitForJob(dialogs + 1));
        QVERIFY(cupsd_.run(u"lp"_s, {u"-d"_s, printer, samplePhoto}) && cupsd_.waitForJob(dialogs + 2));
        const QStringList choices = choicesOf(dialogs + 2);
        QVERIFY2(choices.contains(expected), qPrintable(choices.join(u' ')));
        QCOMPARE(choicesOf(dialogs), choices);
        QCOMPARE(choicesOf(dialogs + 1), choices);
        QCOMPARE(cupsd_.job(dialogs).copies, cupsd_.job(dialogs + 2).copies);
        QCOMPARE(cupsd_.job(dialogs + 1).copies, cupsd_.job(dialogs + 2).copies);
    }

    // The server reports the PPD's default behind it, which is the one that lp takes.
    void administratorsDefaultCounts()
    {
        QVERIFY(
            cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-o"_s, u"sides-default=two-sided-long-edge"_s}));
        const auto opened = openQueue(u"photo"_s);
        QVERIFY(choicesOf(print(*opened)).contains(u"Duplex=DuplexNoTumble"_s));
    }

    // The user's choices come back, over the defaults of the other options.
    void lastChoicesComeFirst()
    {
        QVERIFY(
            store(system_.filePath(u"lpoptions"_s), "Dest photo Red=4 Duplex=DuplexTumble Overcoat=Odd\n"));
        {
            const auto opened = openQueue(u"photo"_s);
            QVERIFY2(opened->message().contains(u"Odd"_s), qPrintable(opened->message()));
            opened->type(81, u"9"_s);
            QVERIFY(print(*opened) > 0);
        }
        QVERIFY(store(system_.filePath(u"lpoptions"_s), "Dest photo Red=5 Duplex=DuplexNoTumble\n"));
        const auto opened = openQueue(u"photo"_s);
        QCOMPARE(opened->fieldText(81), u"9"_s);
        QVERIFY(choicesOf(print(*opened)).contains(u"Duplex=DuplexTumble"_s));
        // By its name, and as a step.
        auto *presets = opened->find<QComboBox>(u"presets"_s);
        presets->setFocus();
        QTest::keyClick(presets, Qt::Key_P);
        QCOMPARE(opened->fieldText(81), u"5"_s);
        QCOMPARE(presets->currentText(), u"Printer Defaults"_s);
        opened->undo();
        QCOMPARE(opened->fieldText(81), u"9"_s);
        QCOMPARE(presets->currentText(), u"Printer Defaults (changed)"_s);
        opened->redo();
        QCOMPARE(presets->currentText(), u"Printer Defaults"_s);
        QVERIFY(choicesOf(print(*opened)).contains(u"Duplex=DuplexNoTumble"_s));
    }

private:
    std::unique_ptr<OpenedDialog> openQueue(const QString &printer) const
    {
        auto opened = std::make_unique<OpenedDialog>(setupForPrinter(mode_, printer));
        opened->dialog->searchPrinters();
        if (!showsReady(*opened, printer))
            qWarning("%s", qPrintable(opened->message()));
        return opened;
    }

    QStringList choicesOf(int job) const
    {
        return inEffect(cupsd_.ppdPath(u"photo"_s), cupsd_.job(job).options);
    }

    QTemporaryDir system_;
};

CORVEL_WIDGETS_TEST(PrinterDefaultsTest)
#include "PrinterDefaultsTest.moc"
