// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AtomicFiles.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype contentSize = 300'000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool replace(const QString &folder, char letter)
{
    auto files = AtomicFiles::open(folder);
    if (!files)
        return false;
    auto device = files->add(u"file"_s);
    return device && (*device)->write(QByteArray(contentSize, letter)) == contentSize && files->commit();
}

} // namespace

class AtomicFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSeenBeforeItIsWhole()
    {
        const QTemporaryDir folder;
        const auto seen = [&folder] {
            return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        };
        QVERIFY(replace(folder.path(), 'a'));
        {
            auto files = AtomicFiles::open(folder.path());
            QVERIFY(files);
            auto device = files->add(u"other"_s);
            QVERIFY(device && (*device)->write("x") == 1);
            QCOMPARE(seen(), QStringList{u"file"_s});
        }
        QCOMPARE(seen(), QStringList{u"file"_s});
        QVERIFY(replace(folder.path(), 'b'));
        QCOMPARE(contentOf(folder.filePath(u"file"_s)), QByteArray(contentSize, 'b'));
        QCOMPARE(seen(), QStringList{u"file"_s});
    }

    void keepsAFileThatAppearsMeanwhile()
    {
        const QTemporaryDir folder;
        auto files = AtomicFiles::open(folder.path());
        QVERIFY(files && files->add(u"first"_s) && files->add(u"file"_s));
        QVERIFY(replace(folder.path(), 'a'));
        const auto failed = files->commit(AtomicFiles::Earlier::Kept);
        QVERIFY(!failed);
        QCOMPARE(failed.failure().reason, OutputFault::NameTaken);
        QCOMPARE(contentOf(folder.filePath(u"file"_s)), QByteArray(contentSize, 'a'));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"file"_s});
    }

    void staleFilesGo()
    {
        const QTemporaryDir folder;
        const auto exists = [&folder](const QString &name) {
            return QFile::exists(folder.filePath(name));
        };
        {
            // Another one is at work: the new one may be its.
            const auto other = AtomicFiles::open(folder.path());
            for (const auto &[name, age] : {std::pair(u".corvel-print-old"_s, 7200),
                                            {u".corvel-print-new"_s, 0},
                                            {u".corvel-print-earlier-1"_s, 7200}}) {
                QFile file(folder.filePath(name));
                QVERIFY(file.open(QIODevice::WriteOnly));
                QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age),
                                         QFile::FileModificationTime));
            }
            QVERIFY(replace(folder.path(), 'a'));
            QVERIFY(!exists(u".corvel-print-old"_s) && exists(u".corvel-print-new"_s));
            QVERIFY(exists(u".corvel-print-earlier-1"_s)); // a photo of the user's, as old as it is
        }
        QVERIFY(replace(folder.path(), 'a'));
        QVERIFY(!exists(u".corvel-print-new"_s) && !exists(u".corvel-print-earlier-1"_s));
    }
};

CORVEL_TEST(AtomicFilesTest)
#include "AtomicFilesTest.moc"
