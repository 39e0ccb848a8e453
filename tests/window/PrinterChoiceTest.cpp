// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PrivateCupsd.h"
#include "SystemLog.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(PanelMode)

/// The dialog with queues of a real print server, and what it keeps for each printer.
class PrinterChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void init();
    void settingsAreKeptForTheirPrinter();
    void choiceThatThePpdLacksIsNotKept();
    void printsOnTheQueueAskedFor();
    void defaultQueueTakesTheOptions();
    void unknownQueue();

private:
    static void choose(const OpenedDialog &opened, const QString &printer);

    PrivateCupsd cupsd_;
    QByteArray ppd_;
    QTemporaryDir home_;
    std::unique_ptr<QTemporaryDir> config_;
};

void PrinterChoiceTest::initTestCase_data()
{
    QTest::addColumn<PanelMode>("mode");
    QTest::newRow("constraint") << PanelMode::Constraint;
    QTest::newRow("settings") << PanelMode::Settings;
}

void PrinterChoiceTest::initTestCase()
{
    pdekit::setSystemLogSink([](const QString &) {});
    for (const char *name : {"LPDEST", "PRINTER"})
        qunsetenv(name);
    qputenv("HOME", QFile::encodeName(home_.path()));
    QFile ppd(QStringLiteral(CORVEL_SIBLING_PPD));
    QVERIFY(ppd.open(QIODevice::ReadOnly));
    ppd_ = ppd.readAll();
    const QString trouble = cupsd_.start();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    QVERIFY(cupsd_.addQueue(u"photo"_s, ppd_));
}

void PrinterChoiceTest::init()
{
    pdekit::Feedback::install(std::make_shared<RecordingFeedback>());
    config_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_->path()));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(config_->filePath(u"cache"_s)));
}

// As a user does: the list has the queue when it was found.
void PrinterChoiceTest::choose(const OpenedDialog &opened, const QString &printer)
{
    auto *chooser = opened.find<QComboBox>(u"printer"_s);
    chooser->setFocus();
    QTRY_VERIFY(chooser->count() > 1);
    QTest::keyClick(chooser, printer == u"built-in"_s ? Qt::Key_Home : Qt::Key_End);
    QTRY_VERIFY(opened.dialog->printer() == printer && opened.dialog->isReady());
}

void PrinterChoiceTest::settingsAreKeptForTheirPrinter()
{
    QFETCH_GLOBAL(PanelMode, mode);
    PrintDialogSetup setup = setupFor(mode);
    setup.options = {{u"Quality"_s, u"Fine"_s}, {u"Overcoat"_s, u"Matte"_s}};
    {
        const OpenedDialog opened(setup);
        opened.type(81, u"9"_s);
        opened.click(u"save"_s);
        opened.type(81, u"10"_s);
    }
    setup = setupFor(mode);
    {
        const OpenedDialog again(setup);
        QCOMPARE(again.fieldText(81), u"9"_s);
        again.dialog->showPage(2);
        QVERIFY(again.find<QRadioButton>(u"matte"_s)->isChecked());
        again.dialog->print();
        QTRY_VERIFY(again.hasPrinted());
        QCOMPARE(again.options()[u"Overcoat"_s].toString(), u"Matte"_s);
    }
    setup.ppdFile = std::nullopt;
    setup.printer = u"built-in"_s;
    const OpenedDialog other(setup);
    other.dialog->searchPrinters();
    choose(other, u"photo"_s);
    QCOMPARE(other.fieldText(81), u"0"_s);
    choose(other, u"built-in"_s);
    QCOMPARE(other.fieldText(81), u"9"_s);
}

void PrinterChoiceTest::choiceThatThePpdLacksIsNotKept()
{
    QFETCH_GLOBAL(PanelMode, mode);
    {
        const OpenedDialog opened(mode);
        opened.type(81, u"9"_s);
        opened.type(82, u"8"_s);
        opened.click(u"save"_s);
    }
    PrintDialogSetup setup = setupFor(mode);
    setup.ppdFile = home_.filePath(u"reduced.ppd"_s);
    QFile reduced(*setup.ppdFile);
    QVERIFY(reduced.open(QIODevice::WriteOnly));
    reduced.write(QByteArray(ppd_).replace("*Red 9/9: \"\"\n", ""));
    reduced.close();
    const OpenedDialog opened(setup);
    QCOMPARE(opened.fieldText(81), u"0"_s);
    opened.dialog->print();
    QTRY_VERIFY(opened.hasPrinted());
    QCOMPARE(opened.options()[u"Red"_s].toString(), u"0"_s);
    QCOMPARE(opened.options()[u"Green"_s].toString(), u"8"_s);
}

// Before the queue is found nothing can be printed: it would come out somewhere else.
void PrinterChoiceTest::printsOnTheQueueAskedFor()
{
    QFETCH_GLOBAL(PanelMode, mode);
    PrintDialogSetup setup = setupFor(mode);
    setup.ppdFile = std::nullopt;
    setup.printer = u"photo"_s;
    setup.options = {{u"Red"_s, u"12"_s}};
    const OpenedDialog opened(setup);
    QCOMPARE(opened.find<QComboBox>(u"printer"_s)->currentIndex(), -1);
    QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
    QVERIFY(opened.dialog->whyNotReady().contains(u"photo"_s));

    opened.dialog->searchPrinters();
    QTRY_VERIFY(opened.dialog->printer() == u"photo"_s && opened.dialog->isReady());
    QVERIFY(!opened.find<QWidget>(u"folder"_s)->isVisible());
    QCOMPARE(opened.fieldText(81), u"12"_s);
    QTest::keyClick(opened.dialog.get(), Qt::Key_Enter);
    QTRY_VERIFY(opened.dialog->message().contains(u"Printed"_s));
    static const QRegularExpression job(u"\\(job ([0-9]+)\\)"_s);
    const int id = job.match(opened.dialog->message()).captured(1).toInt();
    QVERIFY2(cupsd_.waitForJob(id), qPrintable(opened.dialog->message()));
    QVERIFY(cupsd_.job(id).options.split(' ').contains("Red=12"));
    QVERIFY(!opened.hasPrinted());
    choose(opened, u"built-in"_s);
    QCOMPARE(opened.fieldText(81), u"0"_s); // the options were for the other one
}

void PrinterChoiceTest::defaultQueueTakesTheOptions()
{
    QFETCH_GLOBAL(PanelMode, mode);
    QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
    PrintDialogSetup setup = setupFor(mode);
    setup.ppdFile = std::nullopt;
    setup.options = {{u"Red"_s, u"12"_s}};
    const OpenedDialog opened(setup);
    QCOMPARE(opened.fieldText(81), u"12"_s);
    opened.dialog->searchPrinters();
    QTRY_VERIFY(opened.dialog->printer() == u"photo"_s && opened.dialog->isReady());
    QCOMPARE(opened.fieldText(81), u"12"_s);
}

void PrinterChoiceTest::unknownQueue()
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.ppdFile = std::nullopt;
    setup.printer = u"nowhere"_s;
    const OpenedDialog opened(setup);
    opened.dialog->searchPrinters();
    QTRY_VERIFY(opened.dialog->message().contains(u"\"nowhere\""_s));
    QVERIFY(!opened.dialog->isReady());
    // It may come later.
    QVERIFY(cupsd_.addQueue(u"nowhere"_s, ppd_));
    QTRY_VERIFY_WITH_TIMEOUT(opened.dialog->printer() == u"nowhere"_s && opened.dialog->isReady(), 15000);
    QCOMPARE(opened.dialog->message(), QString());
    QVERIFY(cupsd_.deleteQueue(u"nowhere"_s));
}

CORVEL_WIDGETS_TEST(PrinterChoiceTest)
#include "PrinterChoiceTest.moc"
