// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramRun.h"
#include "StubServer.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QStringList printSample = {u"--batch"_s, u"--output"_s, u"out"_s, QStringLiteral(CORVEL_SAMPLE_PHOTO)};

} // namespace

/// What becomes of a print for which no printer is named, when the default one or the server that may have it
/// is not there.
class DefaultPrinterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void failsRatherThanPrintIntoFiles_data();
    void failsRatherThanPrintIntoFiles();
    void builtInPrinterOfAMachineWithoutServer();
    void builtInPrinterWithAPreset();

private:
    /// Makes the queue "mine" the user's default.
    void setDefault() const { QVERIFY(store(home_->filePath(u".cups/lpoptions"_s), "Default mine\n")); }

    std::unique_ptr<QTemporaryDir> home_;
};

void DefaultPrinterTest::init()
{
    home_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(home_->path()).mkdir(u".cups"_s));
    qputenv("HOME", QFile::encodeName(home_->path()));
    for (const char *name : {"LPDEST", "PRINTER"})
        qunsetenv(name);
}

void DefaultPrinterTest::failsRatherThanPrintIntoFiles_data()
{
    using Manner = std::optional<StubServer::Manner>;
    QTest::addColumn<Manner>("server"); // nothing: absent
    QTest::addColumn<QString>("reason");
    QTest::newRow("absent") << Manner() << u"nothing answers at"_s;
    QTest::newRow("closing") << Manner(StubServer::Manner::Closing) << u"the connection broke"_s;
    QTest::newRow("401") << Manner(StubServer::Manner::Forbidding) << u"refused"_s;
    QTest::newRow("500") << Manner(StubServer::Manner::Failing) << u"Internal Server Error"_s;
}

void DefaultPrinterTest::failsRatherThanPrintIntoFiles()
{
    QFETCH(std::optional<StubServer::Manner>, server);
    QFETCH(QString, reason);
    const auto stub = server ? std::make_unique<StubServer>(*server) : nullptr;
    // A server that is not there has no default.
    const QStringList named =
        server ? QStringList() : QStringList{u"--server"_s, u"/nonexistent/cups.sock"_s};
    QByteArray wrong =
        wrongInRefusal(runProgram(printSample + named, {}, home_->path()), 1, {reason, u"built-in"_s});
    QVERIFY2(wrong.isEmpty(), wrong.constData());
    wrong = wrongInRefusal(runProgram(QStringList{u"--list-printers"_s} + named), 1, {reason});
    QVERIFY2(wrong.isEmpty(), wrong.constData());

    const QStringList words = {reason, u"\"mine\""_s, u"your default printer"_s, u"built-in"_s};
    wrong = wrongInRefusal(runProgram(printSample, {{u"LPDEST"_s, u"mine"_s}}, home_->path()), 1, words);
    QVERIFY2(wrong.isEmpty(), wrong.constData());
    setDefault();
    wrong = wrongInRefusal(runProgram(printSample, {}, home_->path()), 1, words);
    QVERIFY2(wrong.isEmpty(), wrong.constData());
    QVERIFY(!QFile::exists(home_->filePath(u"out"_s)));
    QCOMPARE(runProgram(printSample, {{u"LPDEST"_s, u"built-in"_s}}, home_->path()).status, 0);
    QVERIFY(QFile::exists(home_->filePath(u"out/sample.pdf"_s)));
}

void DefaultPrinterTest::builtInPrinterOfAMachineWithoutServer()
{
    const QMap<QString, QString> noServer = {{u"CUPS_SERVER"_s, u"/nonexistent/cups.sock"_s}};
    QCOMPARE(runProgram({u"--list-printers"_s}, noServer).out,
             "built-in\tBuilt-in printer (files)\tready\tdefault\n");
    const QJsonArray printers = runProgram({u"--list-printers"_s, u"--json"_s}, noServer).json().array();
    QCOMPARE(printers.size(), 1);
    QCOMPARE(printers[0][u"name"].toString(), u"built-in"_s);
    QCOMPARE(printers[0][u"default"].toBool(), true);
    QCOMPARE(runProgram(printSample, noServer, home_->path()).status, 0);
    QVERIFY(QFile::exists(home_->filePath(u"out/sample.pdf"_s)));

    // Somebody has chosen the port.
    for (const QStringList &arguments : {printSample, QStringList{u"--list-printers"_s}}) {
        const QByteArray wrong =
            wrongInRefusal(runProgram(arguments, {{u"CUPS_SERVER"_s, u"localhost:1"_s}}, home_->path()), 1,
                           {u"nothing answers at localhost:1)"_s});
        QVERIFY2(wrong.isEmpty(), wrong.constData());
    }
    setDefault();
    for (const QStringList &arguments : {printSample, QStringList{u"--list-printers"_s}}) {
        const QByteArray wrong =
            wrongInRefusal(runProgram(arguments, noServer, home_->path()), 1, {u"print server is running"_s});
        QVERIFY2(wrong.isEmpty(), wrong.constData());
    }
}

void DefaultPrinterTest::builtInPrinterWithAPreset()
{
    const QString folder = u".config/corvel-print"_s;
    QVERIFY(QDir(home_->path()).mkpath(folder));
    const QString presets = home_->filePath(folder + u"/lpoptions"_s);
    QVERIFY(store(presets, "Dest built-in/10%20%2F%2015 Red=7 copies=3\n"));
    const QString name = u"built-in/10 / 15"_s;
    for (const bool isDefault : {false, true}) {
        const ProgramRun run =
            isDefault ? runProgram({u"--summary"_s}, {{u"LPDEST"_s, name}, {u"XDG_CONFIG_HOME"_s, {}}})
                      : runProgram({u"--summary"_s, u"--printer"_s, name}, {{u"XDG_CONFIG_HOME"_s, {}}});
        QCOMPARE(run.err, QByteArray());
        QVERIFY2(run.out.contains("\nRed: 7\n") && run.out.contains("\nCopies: 3\n"), run.err.constData());
    }
    // Whatever there is to leave out of it is one line.
    QVERIFY(store(presets, "Dest built-in/odd Red=99 copies=none Gone=1\n"));
    const ProgramRun odd =
        runProgram({u"--summary"_s, u"--printer"_s, u"built-in/odd"_s}, {{u"XDG_CONFIG_HOME"_s, {}}});
    const QByteArray wrong = wrongInRefusal({1, {}, odd.err}, 1, {u"\"none\""_s, u"Red"_s, u"Gone"_s});
    QVERIFY2(wrong.isEmpty(), wrong.constData());
}

CORVEL_TEST(DefaultPrinterTest)
#include "DefaultPrinterTest.moc"
