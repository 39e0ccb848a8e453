// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PrinterChooser.h"
#include "Rows.h"
#include "StubServer.h"
#include "TestMain.h"

#include <chrono>
#include <ctime>

using namespace testing_support;

/// The window when its printer, or the print server, is not there.
class MissingPrinterTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaultThatIsNotThere_data()
    {
        using Manner = StubServer::Manner;
        addRows<std::optional<Manner>, QString>({
            {"absent", std::nullopt, u"nothing answers at"_s},
            {"500", Manner::Failing, u"Internal Server Error"_s},
            {"nested answer", Manner::Nesting, u"malformed"_s},
            {"endless answer", Manner::EndlessValues, u"malformed"_s},
            {"without the queue", Manner::OddNames, u"There is no printer"_s},
        });
    }

    // Nothing is printed by another one before the user says so.
    void defaultThatIsNotThere()
    {
        const auto [server, reason] = row<std::optional<StubServer::Manner>, QString>();
        const auto stub = server ? std::make_unique<StubServer>(*server) : nullptr;
        qputenv("LPDEST", "mine");
        const OpenedDialog opened(setupForPrinter());
        opened.dialog->searchPrinters();
        // Under the sanitizers an endless answer reaches its time limit before its size.
        const QString slow = server == StubServer::Manner::EndlessValues ? u"in time"_s : reason;
        const auto says = [&opened](const QString &text) {
            return opened.message().contains(text);
        };
        QTRY_VERIFY2_WITH_TIMEOUT(says(reason) || says(slow), qPrintable(opened.message()), 10'000);
        QVERIFY2(opened.message().contains(u"\"mine\""_s), qPrintable(opened.message()));
        QVERIFY(!opened.message().contains(u"--"_s)); // no options of the command line
        auto *chooser = opened.find<QComboBox>(u"printer"_s);
        QCOMPARE(chooser->currentIndex(), -1);
        QCOMPARE(chooser->placeholderText(), u"mine"_s);
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
        QCOMPARE(opened.dialog->whyNotReady(), opened.message());

        opened.click(u"messageAction"_s);
        QCOMPARE(opened.dialog->printer(), u"built-in"_s);
        QVERIFY(opened.dialog->isReady());
        QCOMPARE(opened.message(), QString());
        QTest::keyClick(opened.dialog.get(), Qt::Key_P, Qt::ControlModifier);
        QTRY_VERIFY(opened.hasPrinted());
    }

    void noDefaultKnown()
    {
        const StubServer server(StubServer::Manner::Failing);
        const OpenedDialog opened(setupForPrinter());
        opened.dialog->searchPrinters();
        QTRY_VERIFY(opened.message().contains(u"Internal Server Error"_s));
        QCOMPARE(opened.dialog->printer(), u"built-in"_s);
        QVERIFY(opened.dialog->isReady());
    }

    // Of a queue nothing is printed then; the built-in printer shows the choices last used with it.
    void presetThatIsNotThere()
    {
        const StubServer server(StubServer::Manner::ManyQueues);
        for (const QString &printer : {u"photo"_s, u"built-in"_s}) {
            const OpenedDialog opened(setupForPrinter(PanelMode::Constraint, printer + u"/matte"_s));
            opened.dialog->searchPrinters();
            const bool isBuiltIn = printer == u"built-in"_s;
            const auto said = [&] {
                return isBuiltIn ? opened.find<QWidget>(u"presetError"_s)->accessibleName()
                                 : opened.message();
            };
            QTRY_VERIFY2(said().startsWith(u"The printer \"%1\" has no preset \"matte\""_s.arg(printer)),
                         qPrintable(said()));
            QCOMPARE(opened.dialog->isReady(), isBuiltIn);
            // Only presets have their names mapped.
            QTRY_VERIFY(opened.find<QComboBox>(u"printer"_s)->findText(u"7%20"_s) > 0);
        }
    }

    void manyQueuesThatGoAtOnce()
    {
        auto server = std::make_unique<StubServer>(StubServer::Manner::ManyQueues);
        const OpenedDialog opened;
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
};

CORVEL_WIDGETS_TEST(MissingPrinterTest)
#include "MissingPrinterTest.moc"
