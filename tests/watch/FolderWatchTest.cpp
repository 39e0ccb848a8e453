// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FolderWatch.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr WatchPace pace = {.look = 20ms, .settling = 80ms, .scan = 40ms};

/// A real folder that is watched.
class WatchedFolder
{
public:
    explicit WatchedFolder(const std::optional<FolderKind> &kind = std::nullopt)
        : watch(
              place_.filePath(u"new"_s),
              [this](const PhotoIdentity &photo) { return returned_.contains(photo); }, pace, kind)
    {
        QDir(place_.path()).mkdir(u"new"_s);
    }

    QString path(const QString &name) const { return place_.filePath(u"new/"_s + name); }
    QString aside(const QString &name) const { return place_.filePath(name); }
    bool write(const QString &name, const QByteArray &content = "photo") const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write(content) == content.size();
    }
    /// The names of what arrives, until nothing more does for a while.
    QByteArray arrivals()
    {
        QByteArrayList names;
        while (next(200ms, names)) {
        }
        return names.join(' ');
    }
    bool next(WatchPace::Time longest, QByteArrayList &names)
    {
        const auto file = watch.next(-1, longest);
        if (file) {
            names += file->name;
            returned_.insert(file->identity);
        }
        return file.has_value();
    }

private:
    QTemporaryDir place_;
    QSet<PhotoIdentity> returned_;

public:
    FolderWatch watch;
};

} // namespace

class FolderWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrives_data()
    {
        using Act = std::function<bool(const WatchedFolder &)>;
        const auto add = rows<Act, QByteArray>();
        add(
            "written, in their order", [](auto &f) { return f.write(u"b"_s) && f.write(u"a"_s); }, "b a");
        add(
            "moved",
            [](auto &f) { return f.write(u".a"_s) && QFile::rename(f.path(u".a"_s), f.path(u"a"_s)); }, "a");
        add(
            "linked",
            [](auto &f) {
                return f.write(u".a"_s) &&
                       ::link(qPrintable(f.path(u".a"_s)), qPrintable(f.path(u"a"_s))) == 0;
            },
            "a");
        add(
            "partial until it has its name",
            [](auto &f) {
                return f.write(u"a.jpg.part"_s) && f.write(u"b.JPG.CrDownload"_s) && f.write(u"c~"_s) &&
                       QFile::rename(f.path(u"a.jpg.part"_s), f.path(u"a.jpg"_s));
            },
            "a.jpg");
        add(
            "filled later", [](auto &f) { return f.write(u"a"_s, {}) && f.write(u"b"_s) && f.write(u"a"_s); },
            "b a");
        add(
            "neither file nor whole",
            [](auto &f) {
                return f.write(u"a"_s, {}) && f.write(u".b"_s) &&
                       QFile::link(f.path(u".b"_s), f.path(u"link"_s)) &&
                       QDir(f.path({})).mkdir(u"folder"_s) && f.write(u"folder/d"_s) &&
                       ::mkfifo(qPrintable(f.path(u"pipe"_s)), 0600) == 0;
            },
            "");
        add(
            "gone again", [](auto &f) { return f.write(u"a"_s) && QFile::remove(f.path(u"a"_s)); }, "");
        add(
            "its time set",
            [](auto &f) {
                QFile file(f.path(u"before"_s));
                return file.open(QIODevice::ReadWrite) &&
                       file.setFileTime(QDateTime::currentDateTime().addDays(-1),
                                        QFile::FileModificationTime);
            },
            "before");
    }

    void arrives()
    {
        const auto [act, names] = row<std::function<bool(const WatchedFolder &)>, QByteArray>();
        WatchedFolder folder;
        QVERIFY(folder.write(u"before"_s) && folder.watch.begin());
        QCOMPARE(folder.arrivals(), "before");
        QVERIFY(act(folder));
        QCOMPARE(folder.arrivals(), names);
    }

    // Also one that was begun before the folder was watched.
    void isNotReturnedWhileItIsWritten()
    {
        WatchedFolder folder;
        QFile before(folder.path(u"before"_s));
        QVERIFY(before.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && before.write("half") == 4);
        QVERIFY(folder.watch.begin());
        QFile later(folder.path(u"later"_s));
        QVERIFY(later.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && later.write("half") == 4);
        QCOMPARE(folder.arrivals(), "");
        later.close();
        QCOMPARE(folder.arrivals(), "later");
        before.close();
        QCOMPARE(folder.arrivals(), "before");
    }

    // As on a network's file system, where neither events nor leases say anything.
    void isScannedWhereNothingIsReported()
    {
        WatchedFolder folder(FolderKind{.reportsChanges = false, .keepsInodes = false});
        QVERIFY(folder.watch.begin());
        QVERIFY(folder.write(u"still"_s));
        QFile growing(folder.path(u"growing"_s));
        QVERIFY(growing.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        QByteArrayList names;
        for (int part = 0; part < 10; ++part) {
            QCOMPARE(growing.write("part"), 4);
            folder.next(50ms, names);
        }
        QCOMPARE(names.join(' '), "still");
        QCOMPARE(folder.arrivals(), "growing");
        QCOMPARE(folder.watch.find("still")->identity.name, "still");
    }

    // The kernel keeps a limited number of events (16,384 by default), and drops the rest.
    void missesNothingInAStorm()
    {
        WatchedFolder folder;
        QVERIFY(folder.watch.begin());
        QFile limit(u"/proc/sys/fs/inotify/max_queued_events"_s);
        QVERIFY(limit.open(QIODevice::ReadOnly));
        const int most = limit.readAll().trimmed().toInt();
        for (int i = 0; i <= most; ++i) // different ones each time, since the kernel joins equal ones
            QVERIFY(folder.write(i % 2 == 0 ? u".even"_s : u".odd"_s));
        QVERIFY(folder.write(u"photo"_s));
        QCOMPARE(folder.arrivals(), "photo");
    }

    void folderGoesAndComesBack()
    {
        WatchedFolder folder;
        QVERIFY(folder.watch.begin());
        QVERIFY(QDir().rename(folder.path({}), folder.aside(u"other"_s)));
        QCOMPARE(folder.arrivals(), "");
        QVERIFY2(folder.watch.trouble().contains(u"is not there any more"_s),
                 qPrintable(folder.watch.trouble()));
        QVERIFY(QDir().mkdir(folder.path({})) && folder.write(u"a"_s));
        QVERIFY(!folder.watch.next(-1, 1s) && folder.watch.trouble().isEmpty());
        QCOMPARE(folder.arrivals(), "a");
        // Another one in its place, without a moment in between that is noticed.
        QVERIFY(QDir().rename(folder.path({}), folder.aside(u"third"_s)) &&
                QDir().rename(folder.aside(u"other"_s), folder.path({})) && folder.write(u"b"_s));
        QCOMPARE(folder.arrivals(), "b");
        QVERIFY(QDir(folder.path({})).removeRecursively() && QDir().mkdir(folder.path({})));
        QVERIFY(folder.write(u"c"_s));
        QByteArrayList names;
        QVERIFY(folder.next(1s, names) || folder.next(1s, names)); // its absence may be noticed first
        QCOMPARE(names.join(' '), "c");
    }

    void wakes()
    {
        WatchedFolder folder;
        QVERIFY(folder.watch.begin());
        int ends[2] = {};
        QVERIFY(::pipe(ends) == 0 && ::write(ends[1], "x", 1) == 1);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!folder.watch.next(ends[0], 60s));
        QVERIFY(timer.elapsed() < 10'000);
        ::close(ends[0]);
        ::close(ends[1]);
    }
};

CORVEL_TEST(FolderWatchTest)
#include "FolderWatchTest.moc"
