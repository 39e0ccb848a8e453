// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "KitTest.h"
#include "TestMain.h"

#include "NumericText.h"
#include "SignalLog.h"

#include <QtCore/QTemporaryFile>

#include <cerrno>
#include <cmath>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

using pdekit::Bundle;
using pdekit::BundleFault;

void KitTest::init()
{
    log_.clear();
    pdekit::setSystemLogSink([this](const QString &line) { log_ << line; });
}

void KitTest::cleanup()
{
    pdekit::setSystemLogSink({});
    QLocale::setDefault(QLocale::c());
}

void KitTest::makeBundle(const QTemporaryDir &folder, const QByteArray &info)
{
    write(folder.filePath(text("Contents/Info.json")), info);
}

void KitTest::write(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

std::unique_ptr<QWidget> KitTest::loadControls()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("HoloProjector")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("HoloLayout")));
    return pdekit::loadForm(Bundle::bundleForClass(staticMetaObject), text("controls"), this);
}

void KitTest::leadingNumbers_data()
{
    const double infinity = std::numeric_limits<double>::infinity();
    addRows<int, double>({
        {" 12x", 12, 12},
        {"\t-7", -7, -7},
        {"+5", 5, 5},
        {"012", 12, 12},
        {"", 0, 0},
        {"-", 0, 0},
        {"+-5", 0, 0},
        {"- 5", 0, 0},
        {"3.7", 3, 3.7},
        {".5", 0, 0.5},
        {"-.5", 0, -0.5},
        {"5.", 5, 5},
        {".", 0, 0},
        {"1,5", 1, 1},
        {"1e3", 1, 1000},
        {"1e", 1, 1},
        {"2e-1x", 2, 0.2},
        {"0x10", 0, 0},
        {"nan", 0, 0},
        {"inf", 0, 0},
        {"1e999", 1, infinity},
        {"-1e999", -1, -infinity},
        {"99999999999", 2147483647, 99999999999.0},
        {"-99999999999999999999999", -2147483648, -1e23},
        {"18446744073709551617", 2147483647, 18446744073709551617.0},
        {"-2147483648", -2147483648, -2147483648.0},
        {"\u0663", 0, 0}, // an Arabic 3
        {"\u00a0\u20034", 4, 4},
    });
}

void KitTest::leadingNumbers()
{
    const QString written = QString::fromUtf8(QTest::currentDataTag());
    const auto [integer, real] = row<int, double>();
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(pdekit::leadingInteger(written), integer);
    const double found = pdekit::leadingDouble(written);
    QVERIFY2(found == real, qPrintable(QString::number(found)));
}

void KitTest::bundleFaults_data()
{
    const QByteArray id = R"({"CFBundleIdentifier": "a.b", )";
    addRows<QByteArray, std::optional<BundleFault>>({
        {"sound", id + R"("CFBundleExecutable": "x"})", std::nullopt},
        {"largest", (id + R"("CFBundleExecutable": "x"})").leftJustified(qsizetype(64) * 1024, ' '),
         std::nullopt},
        {"too large", (id + R"("CFBundleExecutable": "x"})").leftJustified(qsizetype(64) * 1024 + 1, ' '),
         BundleFault::InfoTooLarge},
        {"huge", QByteArray(10'000'000, '['), BundleFault::InfoTooLarge},
        {"deep", QByteArray(30'000, '[') + QByteArray(30'000, ']'), BundleFault::BrokenInfo},
        {"empty", "", BundleFault::BrokenInfo},
        {"list", "[]", BundleFault::BrokenInfo},
        {"cut off", id, BundleFault::BrokenInfo},
        {"no identifier", R"({"CFBundleExecutable": "x"})", BundleFault::NoIdentifier},
        {"number as identifier", R"({"CFBundleIdentifier": 1, "CFBundleExecutable": "x"})",
         BundleFault::NoIdentifier},
        {"no executable", R"({"CFBundleIdentifier": "a.b"})", BundleFault::BadExecutable},
    });
    for (const char *executable : {"", ".", "..", ".x", "/bin/sh", "../x", "a/b", "a\\u0000b"})
        addRows<QByteArray, std::optional<BundleFault>>(
            {{executable, id + "\"CFBundleExecutable\": \"" + executable + "\"}",
              BundleFault::BadExecutable}});
}

void KitTest::bundleFaults()
{
    const auto [info, fault] = row<QByteArray, std::optional<BundleFault>>();
    QTemporaryDir folder;
    makeBundle(folder, info);
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

    makeBundle(folder);
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
    QVERIFY(pdekit::prepareSignalLog());
    QVERIFY(pdekit::prepareSignalLog());
    errno = ERANGE;
    const QByteArray longLine(400, 'x');
    pdekit::systemLogFromSignal("two\nlines\n", 10);
    pdekit::systemLogFromSignal(longLine.constData(), size_t(longLine.size()));
    pdekit::systemLogFromSignal("", 0);
    const int errnoAfter = errno;
    QCOMPARE(errnoAfter, ERANGE);
    QVERIFY(log_.isEmpty());
    QTRY_COMPARE(log_, QStringList({text("two\nlines\n"), QString(255, u'x'), QString()}));
    // More than the pipe holds: some are lost, those that come are whole, and nothing waits.
    log_.clear();
    errno = ERANGE;
    for (int i = 0; i < 1000; ++i)
        pdekit::systemLogFromSignal(longLine.constData(), 255);
    const int errnoWhenFull = errno;
    QCOMPARE(errnoWhenFull, ERANGE);
    QTRY_VERIFY(!log_.isEmpty());
    QTest::qWait(1);
    QVERIFY(log_.size() >= 200 && log_.size() < 1000);
    QCOMPARE(log_.count(QString(255, u'x')), log_.size());
}

void KitTest::systemLogOnStandardError()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const int standardError = dup(STDERR_FILENO);
    qputenv("PDEKIT_LOG_STDERR", "1");
    pdekit::setSystemLogSink({});
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
    QLocale::setDefault(QLocale(QLocale::German));
    const Bundle bundle = Bundle::bundleForClass(staticMetaObject);
    QVERIFY(!pdekit::loadForm(bundle, text("missing"), this));
    QVERIFY(!pdekit::loadForm(bundle, text("notNamed"), this));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text(".*")));
    QVERIFY(!pdekit::loadForm(bundle, text("notXml"), this));
    const auto view = loadControls();
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
