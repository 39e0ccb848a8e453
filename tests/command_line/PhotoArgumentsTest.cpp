// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "FileName.h"
#include "ProgramRun.h"
#include "TestMain.h"
#include "WindowRun.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QTest>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString samplePhoto = QStringLiteral(CORVEL_SAMPLE_PHOTO);

} // namespace

/// Photos on the command line: how they are placed, and what they are called.
class PhotoArgumentsTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder_;

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }
    void nameAsUrl_data();
    void nameAsUrl();
    void badPhotosLeaveTheWindowToTheGoodOnes();
    void outputFolder();
    void takesPicturesOfTheDialog();
};

void PhotoArgumentsTest::nameAsUrl_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("path");
    QTest::newRow("path") << u"a b.jpg"_s << u"a b.jpg"_s;
    QTest::newRow("escaped") << u"file:///tmp/a%20b%C3%A9.jpg"_s << u"/tmp/a b\u00e9.jpg"_s;
    QTest::newRow("not escaped") << u"file:///tmp/a b.jpg"_s << u"/tmp/a b.jpg"_s;
    QTest::newRow("without a host") << u"file:/tmp/a.jpg"_s << u"/tmp/a.jpg"_s;
    QTest::newRow("with this host") << u"file://localhost/tmp/a.jpg"_s << u"/tmp/a.jpg"_s;
    QTest::newRow("bytes") << u"file:///tmp/%E9.jpg"_s << fileNameFromBytes("/tmp/\xe9.jpg");
    QTest::newRow("number sign") << u"file:///tmp/a%23b.jpg"_s << u"/tmp/a#b.jpg"_s;
}

void PhotoArgumentsTest::nameAsUrl()
{
    QFETCH(QString, argument);
    const auto commandLine = CommandLine::parse({u"corvel-print"_s, argument});
    QVERIFY(commandLine);
    QTEST(commandLine->photos.value(0), "path");
}

void PhotoArgumentsTest::badPhotosLeaveTheWindowToTheGoodOnes()
{
    QVERIFY(store(pathOf(u"bad.jpg"_s), "no photo"));
    const QStringList bad = {pathOf(u"none.jpg"_s), pathOf(u"bad.jpg"_s)};
    const PrintDialogSetup setup =
        windowSetup(*CommandLine::parse({u"corvel-print"_s, bad[0], samplePhoto, bad[1]}));
    QCOMPARE(setup.photos.size(), 1);
    QCOMPARE(setup.photoFailures.size(), 2);
    for (int i : {0, 1})
        QVERIFY2(setup.photoFailures.at(i).contains(bad.at(i)), qPrintable(setup.photoFailures.at(i)));
    // Without a good one there is nothing to show.
    const ProgramRun none = runProgram(bad, {{u"QT_QPA_PLATFORM"_s, u"offscreen"_s}});
    QCOMPARE(wrongInRefusal(none, 1, bad), QByteArray());
}

// What a user of the window prints is not left in the folder that the desktop happens to start programs in.
void PhotoArgumentsTest::outputFolder()
{
    const auto folderOf = [](const QStringList &arguments) {
        return CommandLine::parse(QStringList{u"corvel-print"_s} + arguments)->outputFolder();
    };
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    QCOMPARE(folderOf({samplePhoto}), pictures + u"/Prints"_s);
    QCOMPARE(folderOf({samplePhoto, u"--batch"_s}), u"."_s);
    QCOMPARE(folderOf({samplePhoto, u"--output=there"_s}), u"there"_s);
}

void PhotoArgumentsTest::takesPicturesOfTheDialog()
{
    const auto picture = [this](const QString &folder, const QString &page) {
        return QImage(pathOf(u"%1/%2.png"_s.arg(folder, page)));
    };
    const QStringList options = {u"-o"_s, u"Red=7"_s, u"-o"_s, u"Quality=Fine"_s};
    for (const auto &[folder, arguments] :
         {std::pair(u"plain"_s, QStringList()), std::pair(u"chosen"_s, options)}) {
        const ProgramRun run =
            runProgram(arguments + QStringList{u"--screenshot"_s, pathOf(folder), samplePhoto});
        QCOMPARE(run.err + run.out, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(QDir(pathOf(folder)).entryList(QDir::Files),
                 QStringList({u"coloradjust.png"_s, u"matte.png"_s, u"sharpness.png"_s, u"summary.png"_s}));
    }
    QVERIFY(picture(u"plain"_s, u"summary"_s).width() > 500 &&
            picture(u"plain"_s, u"summary"_s).height() > 400);
    QVERIFY(picture(u"plain"_s, u"coloradjust"_s) != picture(u"plain"_s, u"summary"_s));
    QVERIFY(picture(u"plain"_s, u"coloradjust"_s) != picture(u"chosen"_s, u"coloradjust"_s));
    QVERIFY(picture(u"plain"_s, u"sharpness"_s) == picture(u"chosen"_s, u"sharpness"_s));
    // A page that is wider than those before moves nothing in its picture.
    runProgram({u"--ppd"_s, QStringLiteral(CORVEL_SIBLING_PPD), u"--screenshot"_s, pathOf(u"spanish"_s),
                samplePhoto},
               {{u"LANG"_s, u"es_ES.UTF-8"_s}, {u"LC_ALL"_s, {}}});
    const auto photo = [&picture](const QString &page) {
        return picture(u"spanish"_s, page).copy(0, 0, 300, 400);
    };
    QVERIFY(photo(u"coloradjust"_s) == photo(u"matte"_s));
}

CORVEL_TEST(PhotoArgumentsTest)
#include "PhotoArgumentsTest.moc"
