// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PrinterChooser.h"
#include "StubServer.h"
#include "SystemLog.h"
#include "TestMain.h"

#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

#include <chrono>
#include <ctime>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

/// The window when its printer, or the print server, is not there.
class MissingPrinterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void defaultThatIsNotThere_data();
    void defaultThatIsNotThere();
    void noDefaultKnown();
    void presetThatIsNotThere();
    void manyQueuesThatGoAtOnce();

private:
    std::unique_ptr<QTemporaryDir> home_;
};

void MissingPrinterTest::initTestCase()
{
    pdekit::setSystemLogSink([](const QString &) {});
}

void MissingPrinterTest::init()
{
    pdekit::Feedback::install(std::make_shared<RecordingFeedback>());
    home_ = std::make_unique<QTemporaryDir>();
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(name, QFile::encodeName(home_->path()));
    for (const char *name : {"LPDEST", "PRINTER"})
        qunsetenv(name);
}

void MissingPrinterTest::defaultThatIsNotThere_data()
{
    using Manner = std::optional<StubServer::Manner>;
    QTest::addColumn<Manner>("server"); // nothing: absent
    QTest::addColumn<QString>("reason");
    QTest::newRow("absent") << Manner() << u"nothing answers at"_s;
    QTest::newRow("500") << Manner(StubServer::Manner::Failing) << u"Internal Server Error"_s;
    QTest::newRow("nested answer") << Manner(StubServer::Manner::Nesting) << u"malformed"_s;
    QTest::newRow("endless answer") << Manner(StubServer::Manner::EndlessValues) << u"malformed"_s;
    QTest::newRow("without the queue") << Manner(StubServer::Manner::OddNames) << u"There is no printer"_s;
}

// Nothing is printed by another one before the user says so.
void MissingPrinterTest::defaultThatIsNotThere()
{
    QFETCH(std::optional<StubServer::Manner>, server);
    QFETCH(QString, reason);
    const auto stub = server ? std::make_unique<StubServer>(*server) : nullptr;
    qputenv("LPDEST", "mine");
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.ppdFile = std::nullopt;
    const OpenedDialog opened(setup);
    opened.dialog->searchPrinters();
    // Under the sanitizers an endless answer reaches its time limit before its size.
    const QString slow = server == StubServer::Manner::EndlessValues ? u"in time"_s : reason;
    const auto says = [&opened](const QString &text) {
        return opened.dialog->message().contains(text);
    };
    QTRY_VERIFY2_WITH_TIMEOUT(says(reason) || says(slow), qPrintable(opened.dialog->message()), 10'000);
    QVERIFY2(opened.dialog->message().contains(u"\"mine\""_s), qPrintable(opened.dialog->message()));
    QVERIFY(!opened.dialog->message().contains(u"--"_s)); // no options of the command line
    auto *chooser = opened.find<QComboBox>(u"printer"_s);
    QCOMPARE(chooser->currentIndex(), -1);
    QCOMPARE(chooser->placeholderText(), u"mine"_s);
    QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
    QCOMPARE(opened.dialog->whyNotReady(), opened.dialog->message());

    opened.click(u"messageAction"_s);
    QCOMPARE(opened.dialog->printer(), u"built-in"_s);
    QVERIFY(opened.dialog->isReady());
    QCOMPARE(opened.dialog->message(), QString());
    QTest::keyClick(opened.dialog.get(), Qt::Key_P, Qt::ControlModifier);
    QTRY_VERIFY(opened.hasPrinted());
}

void MissingPrinterTest::noDefaultKnown()
{
    const StubServer server(StubServer::Manner::Failing);
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.ppdFile = std::nullopt;
    const OpenedDialog opened(setup);
    opened.dialog->searchPrinters();
    QTRY_VERIFY(opened.dialog->message().contains(u"Internal Server Error"_s));
    QCOMPARE(opened.dialog->printer(), u"built-in"_s);
    QVERIFY(opened.dialog->isReady());
}

// Of a queue nothing is printed then; the built-in printer shows the choices last used with it.
void MissingPrinterTest::presetThatIsNotThere()
{
    const StubServer server(StubServer::Manner::ManyQueues);
    for (const QString &printer : {u"photo"_s, u"built-in"_s}) {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.ppdFile = std::nullopt;
        setup.printer = printer + u"/matte"_s;
        const OpenedDialog opened(setup);
        opened.dialog->searchPrinters();
        const bool isBuiltIn = printer == u"built-in"_s;
        const auto said = [&] {
            return isBuiltIn ? opened.find<QWidget>(u"presetError"_s)->accessibleName()
                             : opened.dialog->message();
        };
        QTRY_VERIFY2(said().startsWith(u"The printer \"%1\" has no preset \"matte\""_s.arg(printer)),
                     qPrintable(said()));
        QCOMPARE(opened.dialog->isReady(), isBuiltIn);
        // Only presets have their names mapped.
        QTRY_VERIFY(opened.find<QComboBox>(u"printer"_s)->findText(u"7%20"_s) > 0);
    }
}

void MissingPrinterTest::manyQueuesThatGoAtOnce()
{
    auto server = std::make_unique<StubServer>(StubServer::Manner::ManyQueues);
    const OpenedDialog opened(PanelMode::Constraint);
    auto *chooser = opened.find<PrinterChooser>(u"printer"_s);
    chooser->search(std::nullopt);
    QTRY_COMPARE_WITH_TIMEOUT(chooser->count(), 10'001, 20'000);
    const auto timeHere = [] {
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    };
    const auto start = timeHere();
    server.reset();
    server = std::make_unique<StubServer>(StubServer::Manner::OddNames);
    QTRY_COMPARE_WITH_TIMEOUT(chooser->count(), 2, 20'000);
    QVERIFY(timeHere() - start < std::chrono::seconds(1));
}

CORVEL_WIDGETS_TEST(MissingPrinterTest)
#include "MissingPrinterTest.moc"
