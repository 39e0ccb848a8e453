// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "PdfSamples.h"
#include "ProgramRun.h"
#include "Rows.h"
#include "TestMain.h"
#include "WindowRun.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

/// Photos on the command line: how they are placed, and what they are called.
class PhotoArgumentsTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder_;

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void nameAsUrl_data()
    {
        const auto add = rows<QString, QString>();
        add("path", u"a b.jpg"_s, u"a b.jpg"_s);
        add("escaped", u"file:///tmp/a%20b%C3%A9.jpg"_s, u"/tmp/a b\u00e9.jpg"_s);
        add("not escaped", u"file:///tmp/a b.jpg"_s, u"/tmp/a b.jpg"_s);
        add("without a host", u"file:/tmp/a.jpg"_s, u"/tmp/a.jpg"_s);
        add("with this host", u"file://localhost/tmp/a.jpg"_s, u"/tmp/a.jpg"_s);
        add("bytes", u"file:///tmp/%E9.jpg"_s, u"/tmp/\ufffd.jpg"_s);
        add("number sign", u"file:///tmp/a%23b.jpg"_s, u"/tmp/a#b.jpg"_s);
    }

    void nameAsUrl()
    {
        const auto [argument, path] = row<QString, QString>();
        const auto commandLine = CommandLine::parse({u"corvel-print"_s, argument});
        QVERIFY(commandLine);
        QCOMPARE(commandLine->photos.value(0), path);
    }

    void badPhotosLeaveTheWindowToTheGoodOnes()
    {
        QVERIFY(store(pathOf(u"bad.jpg"_s), "no photo"));
        const QStringList bad = {pathOf(u"none.jpg"_s), pathOf(u"bad.jpg"_s)};
        const PrintDialogSetup setup =
            windowSetup(*CommandLine::parse({u"corvel-print"_s, bad[0], samplePhoto, bad[1]}));
        QCOMPARE(setup.photos.size(), 1);
        QCOMPARE(setup.photoFailures.size(), 1);
        QVERIFY2(setup.photoFailures.at(0).contains(bad.at(0)), qPrintable(setup.photoFailures.at(0)));
        QCOMPARE(setup.furtherPaths, QStringList{bad[1]}); // which the window opens
        // Without a good one there is nothing to show.
        const ProgramRun none = runProgram(bad, {{u"QT_QPA_PLATFORM"_s, u"offscreen"_s}});
        QCOMPARE(wrongInRefusal(none, 1, bad), QByteArray());
    }

    void lockedDocumentsAreLeftToTheWindow()
    {
        QVERIFY(store(pathOf(u"plain.pdf"_s), pdf_samples::text(2)));
        const QString locked = pathOf(u"locked.pdf"_s);
        QCOMPARE(QProcess::execute(u"qpdf"_s, {u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s,
                                               pathOf(u"plain.pdf"_s), locked}),
                 0);
        const auto setupOf = [](const QStringList &files) {
            return windowSetup(*CommandLine::parse(QStringList{u"corvel-print"_s, u"--pages=2"_s} + files));
        };
        const PrintDialogSetup setup = setupOf({locked, pathOf(u"plain.pdf"_s), samplePhoto});
        QCOMPARE(setup.photos.size(), 2);
        QCOMPARE(setup.photoFailures, QStringList());
        QCOMPARE(setup.furtherPaths, (QStringList{locked, samplePhoto}));
        QVERIFY(setup.pages.contains(2) && !setup.pages.contains(1));
        PrintList list;
        list.photos = {{locked, {}, 3, 1}, {samplePhoto}};
        QVERIFY(!list.save(pathOf(u"list.json"_s)));
        const PrintDialogSetup listed =
            windowSetup(*CommandLine::parse({u"corvel-print"_s, pathOf(u"list.json"_s)}));
        QCOMPARE(listed.arrangement->photos.size(), 1);
        QCOMPARE(listed.lockedEntries.size(), 1);
        QCOMPARE(listed.lockedEntries.at(0).page, 1);
        QCOMPARE(listed.lockedEntries.at(0).copies, 3);
    }

    // What a user of the window prints is not left in the folder that the desktop happens to start programs
    // in.
    void outputFolder()
    {
        const auto folderOf = [](const QStringList &arguments) {
            return CommandLine::parse(QStringList{u"corvel-print"_s} + arguments)->outputFolder();
        };
        const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
        QCOMPARE(folderOf({samplePhoto}), pictures + u"/Prints"_s);
        QCOMPARE(folderOf({samplePhoto, u"--batch"_s}), u"."_s);
        QCOMPARE(folderOf({samplePhoto, u"--output=there"_s}), u"there"_s);
    }
};

CORVEL_TEST(PhotoArgumentsTest)
#include "PhotoArgumentsTest.moc"
