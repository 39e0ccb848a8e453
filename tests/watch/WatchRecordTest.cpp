// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WatchRecord.h"
#include "TestMain.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <csignal>
#include <sys/resource.h>

using namespace printdialog;
using namespace Qt::StringLiterals;
using State = PhotoRecord::State;

namespace {

PhotoIdentity numbered(int number)
{
    return {number, 1000, 1'795'698'083'653'028'681, {}};
}

QList<FolderFile> files(std::initializer_list<int> numbers)
{
    QList<FolderFile> all;
    for (const int number : numbers)
        all.append({"photo.jpg", numbered(number)});
    return all;
}

/// The states of the photos 1, 2 and so on: "-" without a record, otherwise the first letter.
QByteArray statesIn(const WatchRecord &record, int count)
{
    QByteArray states;
    for (int number = 1; number <= count; ++number) {
        const PhotoRecord *known = record.find(numbered(number));
        states += known ? "LBSPA"[static_cast<int>(known->state)] : '-';
    }
    return states;
}

} // namespace

class WatchRecordTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        place_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_STATE_HOME", place_->filePath(u"state"_s).toUtf8());
        QVERIFY(QDir(place_->path()).mkdir(u"photos"_s));
        folder_ = place_->filePath(u"photos"_s);
    }

    // Cut off anywhere: a whole line counts, another one does not, and what is added then
    // does.
    void isReadWhereverItIsCutOff()
    {
        QByteArray content;
        {
            auto record = WatchRecord::open(folder_);
            QVERIFY(record && record->isNew() && !record->compact(files({1}), PhotoRecord{}));
            QVERIFY(!record->add(numbered(2), {.state = State::Began, .name = u"Größe\n.jpg"_s}));
            QVERIFY(!record->add(numbered(2), {.state = State::Sent, .job = 7, .printer = u"photo"_s}));
            QVERIFY(!record->forget(numbered(1)));
            QVERIFY(!record->add(numbered(3), {.state = State::Aside, .reason = u"torn"_s}));
            content = read(record->path());
        }
        const QByteArrayList expected = {"---", "L--", "LB-", "LS-", "-S-", "-SA"};
        for (qsizetype size = 0; size <= content.size(); size += 3) {
            QString path;
            {
                const auto record = WatchRecord::open(folder_);
                QVERIFY(record);
                path = record->path();
            }
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content.left(size)) == size);
            file.close();
            auto record = WatchRecord::open(folder_);
            QVERIFY(record && !record->isNew());
            const QByteArray states = statesIn(*record, 3);
            const auto lines = content.left(size).count('\n');
            // A line that lacks only its end is whole.
            QVERIFY2(states == expected.at(lines) ||
                         (content.mid(size).startsWith('\n') && states == expected.at(lines + 1)),
                     states.constData());
            QVERIFY(!record->compact({}) && !record->add(numbered(4), {.state = State::Printed}));
            record = WatchRecord::open(place_->path()); // lets go of the other one
            record = WatchRecord::open(folder_);
            QVERIFY(record);
            QCOMPARE(statesIn(*record, 4), states + 'P');
        }
    }

    void forgetsWhatIsLongGone()
    {
        auto record = WatchRecord::open(folder_);
        QVERIFY(record && !record->compact({}));
        for (int number = 1; number <= 3; ++number)
            QVERIFY(!record->add(numbered(number), {.state = State::Printed}));
        const QString path = record->path();
        record = WatchRecord::open(place_->path());
        // The first two were printed long ago; the disk of the third may be away.
        QByteArrayList lines = read(path).split('\n');
        for (const int line : {0, 1}) {
            const auto when = lines.at(line).indexOf("\"when\":");
            QVERIFY(when > 0);
            lines[line] = lines.at(line).left(when) + "\"when\":1700000000}";
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(lines.join('\n')) > 0);
        file.close();
        record = WatchRecord::open(folder_);
        QCOMPARE(statesIn(*record, 3), "PPP");
        QVERIFY(!record->compact(files({2})));
        QCOMPARE(statesIn(*record, 3), "-PP");
        QCOMPARE(read(path).count('\n'), 2);
    }

    void tellsPhotosApart()
    {
        auto record = WatchRecord::open(folder_);
        QVERIFY(record && !record->compact({}) && !record->add(numbered(1), {.state = State::Printed}));
        PhotoIdentity other = numbered(1);
        QVERIFY(record->find(other));
        ++other.modified; // the number of a removed file's inode, given again
        QVERIFY(!record->find(other));
        const PhotoIdentity named = {0, 1000, 5, "a\xff%.jpg"}; // not UTF-8
        QVERIFY(!record->add(named, {.state = State::Printed}));
        record = WatchRecord::open(place_->path());
        record = WatchRecord::open(folder_);
        QVERIFY(record->find(named) && record->find(numbered(1)));
    }

    void isForOneProgramAtATime()
    {
        const auto record = WatchRecord::open(folder_);
        QVERIFY(record);
        QVERIFY(QFile::link(folder_, place_->filePath(u"link"_s)));
        const auto other = WatchRecord::open(place_->filePath(u"link"_s));
        QVERIFY(!other && other.failure().reason == RecordFault::InUse);
    }

    // What could not be written is not in the way of what comes next.
    void survivesAFullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        auto record = WatchRecord::open(folder_);
        QVERIFY(record && !record->compact({}) && !record->add(numbered(1), {.state = State::Began}));
        rlimit before = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit tight = {static_cast<rlim_t>(read(record->path()).size() + 20), before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
        const auto failure = record->add(numbered(2), {.state = State::Began});
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QVERIFY(failure && failure->reason == RecordFault::NotWritten);
        QVERIFY(failure->text.contains(record->path()));
        QVERIFY(!record->add(numbered(3), {.state = State::Began}));
        record = WatchRecord::open(place_->path());
        record = WatchRecord::open(folder_);
        QCOMPARE(statesIn(*record, 3), "B-B");
    }

private:
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> place_;
    QString folder_;
};

CORVEL_TEST(WatchRecordTest)
#include "WatchRecordTest.moc"
