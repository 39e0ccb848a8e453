// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "KitTest.h"
#include "TestMain.h"

#include "Bundle.h"
#include "FormLoader.h"
#include "NumericText.h"
#include "SignalLog.h"
#include "SystemLog.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>

#include <cerrno>
#include <cmath>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

using pdekit::Bundle;
using pdekit::BundleFault;
Q_DECLARE_METATYPE(BundleFault)

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

void write(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

void KitTest::leadingNumbers_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<int>("integer");
    QTest::addColumn<double>("real");
    const auto row = [](const char *written, int integer, double real) {
        QTest::newRow(written) << QString::fromUtf8(written) << integer << real;
    };
    const double infinity = std::numeric_limits<double>::infinity();
    row(" 12x", 12, 12);
    row("\t-7", -7, -7);
    row("+5", 5, 5);
    row("012", 12, 12);
    row("", 0, 0);
    row("-", 0, 0);
    row("+-5", 0, 0);
    row("- 5", 0, 0);
    row("3.7", 3, 3.7);
    row(".5", 0, 0.5);
    row("-.5", 0, -0.5);
    row("5.", 5, 5);
    row(".", 0, 0);
    row("1,5", 1, 1);
    row("1e3", 1, 1000);
    row("1e", 1, 1);
    row("2e-1x", 2, 0.2);
    row("0x10", 0, 0);
    row("nan", 0, 0);
    row("inf", 0, 0);
    row("1e999", 1, infinity);
    row("-1e999", -1, -infinity);
    row("99999999999", 2147483647, 99999999999.0);
    row("-99999999999999999999999", -2147483648, -1e23);
    row("18446744073709551617", 2147483647, 18446744073709551617.0);
    row("-2147483648", -2147483648, -2147483648.0);
    row("\u0663", 0, 0); // an Arabic 3
    row("\u00a0\u20034", 4, 4);
}

void KitTest::leadingNumbers()
{
    QFETCH(QString, written);
    QFETCH(double, real);
    QLocale::setDefault(QLocale(QLocale::German));
    QTEST(pdekit::leadingInteger(written), "integer");
    QLocale::setDefault(QLocale::c());
    const double found = pdekit::leadingDouble(written);
    QVERIFY2(found == real, qPrintable(QString::number(found)));
}

void KitTest::bundleFaults_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<std::optional<BundleFault>>("fault");
    const auto row = [](const char *name, const QByteArray &info, std::optional<BundleFault> fault) {
        QTest::newRow(name) << info << fault;
    };
    const QByteArray id = R"({"CFBundleIdentifier": "a.b", )";
    row("sound", id + R"("CFBundleExecutable": "x"})", std::nullopt);
    row("largest", (id + R"("CFBundleExecutable": "x"})").leftJustified(qsizetype(64) * 1024, ' '),
        std::nullopt);
    row("too large", (id + R"("CFBundleExecutable": "x"})").leftJustified(qsizetype(64) * 1024 + 1, ' '),
        BundleFault::InfoTooLarge);
    row("huge", QByteArray(10'000'000, '['), BundleFault::InfoTooLarge);
    row("deep", QByteArray(30'000, '[') + QByteArray(30'000, ']'), BundleFault::BrokenInfo);
    row("empty", "", BundleFault::BrokenInfo);
    row("list", "[]", BundleFault::BrokenInfo);
    row("cut off", id, BundleFault::BrokenInfo);
    row("no identifier", R"({"CFBundleExecutable": "x"})", BundleFault::NoIdentifier);
    row("number as identifier", R"({"CFBundleIdentifier": 1, "CFBundleExecutable": "x"})",
        BundleFault::NoIdentifier);
    row("no executable", R"({"CFBundleIdentifier": "a.b"})", BundleFault::BadExecutable);
    for (const char *executable : {"", ".", "..", ".x", "/bin/sh", "../x", "a/b", "a\\u0000b"})
        row(executable, id + "\"CFBundleExecutable\": \"" + executable + "\"}", BundleFault::BadExecutable);
}

void KitTest::bundleFaults()
{
    QFETCH(QByteArray, info);
    QFETCH(std::optional<BundleFault>, fault);
    QTemporaryDir folder;
    write(folder.filePath(text("Contents/Info.json")), info);
    BundleFault found = BundleFault::NotFound;
    const auto bundle = Bundle::open(folder.path(), &found);
    QCOMPARE(bundle.has_value(), !fault);
    if (fault)
        QCOMPARE(found, *fault);
    else
        QCOMPARE(bundle->identifier(), text("a.b"));
    QVERIFY(bundle || !Bundle::open(folder.path()));
}

void KitTest::bundleFiles()
{
    QTemporaryDir folder;
    BundleFault fault = BundleFault::BrokenInfo;
    QVERIFY(!Bundle::open(folder.filePath(text("none")), &fault));
    QCOMPARE(fault, BundleFault::NotFound);
    const QString info = folder.filePath(text("Contents/Info.json"));
    QVERIFY(QDir(folder.path()).mkdir(text("Contents")));
    QCOMPARE(mkfifo(QFile::encodeName(info).constData(), 0600), 0); // must not be waited for
    QVERIFY(!Bundle::open(folder.path(), &fault));
    QCOMPARE(fault, BundleFault::NoInfo);
    QVERIFY(QFile::remove(info));

    write(folder.filePath(text("Contents/Info.json")),
          R"({"CFBundleIdentifier": "a", "CFBundleExecutable": "x"})");
    const QString helper = folder.filePath(text("Contents/Linux/velta"));
    write(helper, "#!/bin/sh\n");
    write(folder.filePath(text("Contents/run")), "#!/bin/sh\n");
    QVERIFY(QFile::setPermissions(folder.filePath(text("Contents/run")), QFile::ReadOwner | QFile::ExeOwner));
    const auto bundle = Bundle::open(folder.path() + text("/./"));
    QVERIFY(bundle);
    QCOMPARE(bundle->path(), folder.path());
    QCOMPARE(bundle->executablePath(), folder.filePath(text("Contents/Linux/x")));
    QCOMPARE(bundle->pathForAuxiliaryExecutable(text("velta")), helper);
    QVERIFY(!bundle->pathForAuxiliaryExecutable(text("../run")));
    QVERIFY(!bundle->pathForAuxiliaryExecutable(QString()));
    QVERIFY(bundle->infoValue(text("CFBundleHelpBookName")).isUndefined());
    QCOMPARE(Bundle::bundleForClass(staticMetaObject).identifier(), text("org.corvel.printing.Corvel9031"));
    // A class of a library that stands in no bundle.
    QVERIFY(Bundle::bundleForClass(QObject::staticMetaObject).identifier().isEmpty());
    QVERIFY(QFileInfo(Bundle::bundleForClass(QObject::staticMetaObject).path()).isDir());
}

void KitTest::languages()
{
    const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    const Bundle bundle = Bundle::bundleForClass(staticMetaObject);
    const QString key = text("Brightness");
    for (const auto &[locale, expected] :
         {std::pair("C", "Brightness"), std::pair("de_AT", "Helligkeit"), std::pair("fr", "Luminosit\u00e9"),
          std::pair("tlh", "Brightness"), std::pair("de", "Helligkeit")}) {
        QLocale::setDefault(QLocale(text(locale)));
        QCOMPARE(bundle.localizedString(key), QString::fromUtf8(expected));
    }
    // English is what a language without a table gets, not the keys.
    QLocale::setDefault(QLocale(text("sw")));
    QCOMPARE(bundle.localizedString(text("AdjustmentsEnabled")), text("Adjust colors"));
    QCOMPARE(bundle.localizedString(text("adjustmentsenabled")), text("adjustmentsenabled"));
    QCOMPARE(bundle.localizedString(text("none"), text("instead")), text("instead"));
    QCOMPARE(bundle.localizedString(QString()), QString());
}

void KitTest::signalLog()
{
    QStringList log;
    const auto before = pdekit::setSystemLogSink([&log](const QString &line) { log << line; });
    const auto restore = qScopeGuard([&before] { pdekit::setSystemLogSink(before); });
    QVERIFY(pdekit::prepareSignalLog());
    QVERIFY(pdekit::prepareSignalLog());
    errno = ERANGE;
    const QByteArray longLine(400, 'x');
    pdekit::systemLogFromSignal("two\nlines\n", 10);
    pdekit::systemLogFromSignal(longLine.constData(), size_t(longLine.size()));
    pdekit::systemLogFromSignal("", 0);
    const int errnoAfter = errno;
    QCOMPARE(errnoAfter, ERANGE);
    QVERIFY(log.isEmpty());
    QTRY_COMPARE(log, QStringList({text("two\nlines\n"), QString(255, u'x'), QString()}));
    // More than the pipe holds: some are lost, those that come are whole, and nothing waits.
    log.clear();
    errno = ERANGE;
    for (int i = 0; i < 1000; ++i)
        pdekit::systemLogFromSignal(longLine.constData(), 255);
    const int errnoWhenFull = errno;
    QCOMPARE(errnoWhenFull, ERANGE);
    QTRY_VERIFY(!log.isEmpty());
    QTest::qWait(1);
    QVERIFY(log.size() >= 200 && log.size() < 1000);
    QCOMPARE(log.count(QString(255, u'x')), log.size());
}

void KitTest::systemLogOnStandardError()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const int standardError = dup(STDERR_FILENO);
    qputenv("PDEKIT_LOG_STDERR", "1");
    dup2(file.handle(), STDERR_FILENO);
    pdekit::systemLog(text("50 % of %s"));
    pdekit::systemLog(text("fed\n"));
    pdekit::systemLog(text("\033]0;title\a\tand\nmore"));
    dup2(standardError, STDERR_FILENO);
    close(standardError);
    QVERIFY(file.seek(0));
    // Escape sequences of a terminal do not get there.
    QCOMPARE(file.readAll(), QByteArray("50 % of %s\nfed\n?]0;title?\tand\nmore\n"));
}

void KitTest::forms()
{
    const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    QLocale::setDefault(QLocale(QLocale::German));
    const Bundle bundle = Bundle::bundleForClass(staticMetaObject);
    QVERIFY(!pdekit::loadForm(bundle, text("missing"), this));
    QVERIFY(!pdekit::loadForm(bundle, text("notNamed"), this));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text(".*")));
    QVERIFY(!pdekit::loadForm(bundle, text("notXml"), this));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("HoloProjector")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("HoloLayout")));
    const auto view = pdekit::loadForm(bundle, text("controls"), this);
    QVERIFY(view);
    QVERIFY(view->findChild<QLabel *>(text("inUnknownLayout")));
    QVERIFY(!view->findChild<QWidget *>(text("projector")));
    QCOMPARE(view->accessibleName(), text("Rot"));
    auto *slider = view->findChild<QSlider *>(text("slider"));
    QCOMPARE(slider->accessibleDescription(), text("no entry"));
    QCOMPARE(view->findChild<QLabel *>(text("label"))->text(), text("Red")); // left to the owner
    slider->setValue(3);
    QCOMPARE(actedOn, QObjectList{slider});
}

CORVEL_WIDGETS_TEST(KitTest)
