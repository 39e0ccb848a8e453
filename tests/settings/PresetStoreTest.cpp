// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetStore.h"
#include "LpoptionsFile.h"
#include "PresetName.h"
#include "QueueSettings.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cups/cups.h>
#include <cups/file.h>

#include <array>
#include <csignal>
#include <sys/resource.h>
#include <thread>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

using Options = QMap<QString, QString>;

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// The options of one destination, read with the parts of libcups that read its own file.
Options readByCups(const QString &path, const QByteArray &destination)
{
    Options read;
    cups_file_t *file = cupsFileOpen(QFile::encodeName(path).constData(), "r");
    std::array<char, 8192> line = {};
    char *value = nullptr;
    int number = 0;
    while (file && cupsFileGetConf(file, line.data(), line.size(), &value, &number)) {
        const QByteArray words = value ? value : "";
        if (!words.startsWith(destination + ' '))
            continue;
        cups_option_t *options = nullptr;
        const int count = cupsParseOptions(words.constData() + destination.size(), 0, &options);
        for (int i = 0; i < count; ++i)
            read.insert(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
        cupsFreeOptions(count, options);
    }
    if (file)
        cupsFileClose(file);
    return read;
}

/// The number of a process that has ended.
qint64 gone()
{
    QProcess process;
    process.start(u"true"_s);
    const qint64 number = process.waitForStarted() ? process.processId() : 0;
    return process.waitForFinished() ? number : 0;
}

QStringList namesOf(const PresetStore &store)
{
    QStringList names;
    const auto presets = store.presets();
    if (presets) {
        for (const Preset &preset : *presets)
            names += preset.name;
    }
    return names;
}

} // namespace

/// The files of presets and settings: what stays in them, and what becomes of them when something goes wrong.
class PresetStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("HOME", QFile::encodeName(home_->path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home_->filePath(u"config"_s)));
        qputenv("CUPS_SERVERROOT", QFile::encodeName(home_->filePath(u"system"_s)));
    }

    void othersStayByteForByte()
    {
        const QByteArray others =
            "# mine\nDest office sides=two-sided-long-edge  media=A4\n\n"
            "Dest photo Stray=1 # why\nDefault office/draft  x='a b'\n"
            "Dest photo2/warm Red=1\ndest photo/Keep   odd=\"a \\\" b\"\nnonsense line\n";
        write(PresetStore::userFile(), others);
        PresetStore store(u"photo"_s);
        QCOMPARE(namesOf(store), QStringList{u"Keep"_s});
        QVERIFY(!store.add(u"warm"_s, {{u"Red"_s, u"5"_s}}));
        QCOMPARE(content(PresetStore::userFile()), others + "Dest photo/warm Red=5\n");
        QVERIFY(!store.update(u"WARM"_s, {{u"Red"_s, u"6"_s}}));
        QCOMPARE(content(PresetStore::userFile()), others + "Dest photo/warm Red=6\n");
        QVERIFY(!store.rename(u"warm"_s, u"hot"_s));
        QCOMPARE(content(PresetStore::userFile()), others + "Dest photo/hot Red=6\n");
        QVERIFY(!store.rename(u"Keep"_s, u"kept"_s));
        QVERIFY(content(PresetStore::userFile()).contains("dest photo/kept odd=\"a \\\" b\"\n"));
        QVERIFY(!store.rename(u"kept"_s, u"Keep"_s) && !store.remove(u"hot"_s));
        QCOMPARE(content(PresetStore::userFile()), QByteArray(others).replace("Keep   odd", "Keep odd"));
        const auto presets = store.presets();
        QCOMPARE(presets->constFirst().options, (Options{{u"odd"_s, u"a \" b"_s}}));
        QCOMPARE(store.queueOptions(), (Options{{u"Stray"_s, u"1"_s}}));
    }

    void valuesComeBackAsCupsReadsThem()
    {
        const Options options = {{u"Red"_s, u"-5"_s},
                                 {u"Gamma"_s, u"1.00"_s},
                                 {u"A"_s, u"two words"_s},
                                 {u"B"_s, u"a#b#c"_s},
                                 {u"C"_s, u"\"q\" 'r'"_s},
                                 {u"D"_s, u"back\\slash\\"_s},
                                 {u"E"_s, u"{x=y}"_s},
                                 {u"F"_s, u"a,b"_s},
                                 {u"G"_s, u"Glänzend 光沢"_s},
                                 {u"PageSize"_s, u"4x6.Fullbleed"_s},
                                 {u"H"_s, u"\\#"_s}};
        PresetStore store(u"photo"_s);
        QVERIFY(!store.add(u"光沢"_s, options));
        QCOMPARE(readByCups(PresetStore::userFile(), u"photo/光沢"_s.toUtf8()), options);
        QCOMPARE(store.presets()->constFirst().options, options);
    }

    void aTakenOrLostNameIsRefused()
    {
        PresetStore queue(u"photo"_s);
        PresetStore builtIn = PresetStore::builtIn();
        for (PresetStore *store : {&queue, &builtIn}) {
            QVERIFY(!store->add(u"warm"_s, {{u"Red"_s, u"5"_s}}) && !store->add(u"cold"_s, {}));
            QCOMPARE(store->add(u"Warm"_s, {})->reason, SettingsFault::NameTaken);
            QCOMPARE(store->rename(u"cold"_s, u"WARM"_s)->reason, SettingsFault::NameTaken);
            QCOMPARE(store->rename(u"gone"_s, u"new"_s)->reason, SettingsFault::NotThere);
            QCOMPARE(store->update(u"gone"_s, {})->reason, SettingsFault::NotThere);
            QCOMPARE(store->remove(u"gone"_s)->reason, SettingsFault::NotThere);
            QVERIFY(!store->rename(u"warm"_s, u"Warm"_s)); // only its case
            QCOMPARE(namesOf(*store), (QStringList{u"cold"_s, u"Warm"_s}));
            QCOMPARE(store->presets()->constLast().options, (Options{{u"Red"_s, u"5"_s}}));
        }
    }

    void namesAreMapped_data()
    {
        const auto add = rows<QString, QString>();
        add("as it is", u"10x15+Glänzend"_s, u"10x15+Glänzend"_s);
        add("space", u"My preset"_s, u"My%20preset"_s);
        add("slash", u"../10/15"_s, u"..%2F10%2F15"_s);
        add("dots", u".."_s, u".."_s);
        add("quotes and signs", u"it's \"#1\"? \\"_s, u"it%27s%20%22%231%22%3F%20%5C"_s);
        add("per cent", u"50% and 100%"_s, u"50%%20and%20100%"_s);
        add("looks mapped", u"a%20b%2fc%25"_s, u"a%2520b%252fc%25"_s);
        add("looks mapped twice", u"a%2520b"_s, u"a%252520b"_s);
        add("Hebrew", u"תמונה מבריקה"_s, u"תמונה%20מבריקה"_s);
        add("Japanese space", u"光沢\u3000厚い"_s, u"光沢\u3000厚い"_s);
        add("emoji of several parts", u"👨\u200d👩\u200d👧 ☀\ufe0f"_s, u"👨\u200d👩\u200d👧%20☀\ufe0f"_s);
    }

    // CUPS finds the preset by its instance, people by its name and by both in "queue/preset".
    void namesAreMapped()
    {
        const auto [name, instance] = row<QString, QString>();
        const Options red{{u"Red"_s, u"5"_s}};
        PresetStore store(u"photo"_s);
        QCOMPARE(PresetName::cleaned(name), name);
        QVERIFY(!store.add(u"first"_s, red) && !store.rename(u"first"_s, name));
        QCOMPARE(readByCups(PresetStore::userFile(), u"photo/%1"_s.arg(instance).toUtf8()), red);
        QCOMPARE(namesOf(store), QStringList{name});
        for (const QString &typed : {name, instance})
            QCOMPARE(PresetStore::destination(u"photo/"_s + typed).id(), u"photo/"_s + instance);
        QVERIFY(!store.update(name, {}) && !store.remove(name));
        QCOMPARE(content(PresetStore::userFile()), QByteArray());
        QVERIFY(!store.add(name, red));
        QCOMPARE(content(PresetStore::userFile()), u"Dest photo/%1 Red=5\n"_s.arg(instance).toUtf8());
        PresetStore builtIn = PresetStore::builtIn();
        QVERIFY(!builtIn.add(name, red));
        QCOMPARE(namesOf(builtIn), QStringList{name});
        QCOMPARE(PresetStore::destination(u"built-in/"_s + name).id(), u"built-in/"_s + instance);
    }

    void mappedNamesDoNotCollide()
    {
        PresetStore store(u"photo"_s);
        const QStringList names = {u"a b"_s, u"a%20b"_s, u"a%2520b"_s, u"a+b"_s, u"a-b"_s, u"a_b"_s, u"ab"_s};
        for (const QString &name : names)
            QVERIFY2(!store.add(name, {{u"Red"_s, QString::number(names.indexOf(name))}}), qPrintable(name));
        QCOMPARE(store.add(u"A B"_s, {})->reason, SettingsFault::NameTaken);
        QVERIFY(!store.remove(u"A%20B"_s));
        QCOMPARE(namesOf(store).size(), names.size() - 1);
        QCOMPARE(store.presets()->constFirst().options.value(u"Red"_s), u"0"_s);
        // As CUPS reads it, the instance goes first.
        QCOMPARE(PresetStore::destination(u"photo/a%20b"_s).id(), u"photo/a%20b"_s);
    }

    void lpoptionsKeepsItsNames()
    {
        write(PresetStore::userFile(),
              "Dest photo/it's Red=1\nDest photo/IT%27S Red=2\nDest photo/50%25 Red=3\n"
              "Dest photo/a%2fb Red=4\n");
        PresetStore store(u"photo"_s);
        QCOMPARE(namesOf(store), (QStringList{u"50%25"_s, u"a/b"_s, u"IT%27S"_s, u"it's"_s}));
        QCOMPARE(store.add(u"It's"_s, {})->reason, SettingsFault::NameTaken);
        QCOMPARE(store.add(u"A/B"_s, {})->reason, SettingsFault::NameTaken);
        QVERIFY(!store.update(u"it's"_s, {{u"Red"_s, u"5"_s}}) && !store.remove(u"it%27s"_s));
        QVERIFY(!store.remove(u"a/b"_s));
        QCOMPARE(content(PresetStore::userFile()), "Dest photo/it's Red=5\nDest photo/50%25 Red=3\n");
    }

    void noPresetHasSuchAName_data()
    {
        const auto add = rows<QString, QString>();
        add("nothing", u" \n "_s, u"needs a name"_s);
        add("tab", u"a\tb"_s, u"control character"_s);
        add("line break", u"a\nDest photo"_s, u"control character"_s);
        add("escape", u"\x1b[31m"_s, u"control character"_s);
        add("too long when mapped", QString(43, u'/'), u"129 bytes"_s);
        add("too long in UTF-8", QString(43, u'光'), u"129 bytes"_s);
    }

    void noPresetHasSuchAName()
    {
        const auto [typed, reason] = row<QString, QString>();
        const QString name = PresetName::cleaned(typed);
        const auto failure = PresetStore(u"photo"_s).add(name, {});
        QVERIFY2(failure && failure->reason == SettingsFault::BadName && failure->text.contains(reason),
                 failure ? qPrintable(failure->text) : "taken");
        QCOMPARE(PresetStore::builtIn().add(name, {})->text, failure->text);
        if (reason.endsWith("bytes"_L1)) // 126 are not too many
            QVERIFY(!PresetStore(u"photo"_s).add(name.first(42), {}));
    }

    void systemPresetsAreReadOnly()
    {
        write(home_->filePath(u"system/lpoptions"_s), "Dest photo Blue=2 Red=3\nDest photo/house Red=1\n");
        PresetStore store(u"photo"_s);
        QCOMPARE(namesOf(store), QStringList{u"house"_s});
        QCOMPARE(store.presets()->constFirst().options, (Options{{u"Red"_s, u"1"_s}}));
        QCOMPARE(store.update(u"house"_s, {})->reason, SettingsFault::ReadOnly);
        QCOMPARE(store.remove(u"house"_s)->reason, SettingsFault::ReadOnly);
        QCOMPARE(store.add(u"house"_s, {})->reason, SettingsFault::NameTaken);
        QVERIFY(!QFile::exists(PresetStore::userFile()));
    }

    void tooLongForCups()
    {
        Options options;
        for (int i = 0; i < 500; ++i)
            options.insert(u"Option%1"_s.arg(i), QString(20, u'x'));
        PresetStore store(u"photo"_s);
        QCOMPARE(store.add(u"long"_s, options)->reason, SettingsFault::TooLong);
        QCOMPARE(content(PresetStore::userFile()), QByteArray());
        // A name that is longer once mapped makes the line too long, too.
        const QByteArray full = "Dest photo/x Red=" + QByteArray(LpoptionsFile::longestLine - 20, 'x') + '\n';
        write(PresetStore::userFile(), full);
        QCOMPARE(store.rename(u"x"_s, u"/////"_s)->reason, SettingsFault::TooLong);
        QCOMPARE(content(PresetStore::userFile()), full);
        QVERIFY(!store.rename(u"x"_s, u"/"_s));
    }

    void twoDialogsLoseNothing()
    {
        constexpr int each = 15;
        const auto work = [](const QString &prefix) {
            PresetStore store(u"photo"_s);
            PresetStore builtIn = PresetStore::builtIn();
            for (int i = 0; i < each; ++i) {
                for (PresetStore *presets : {&store, &builtIn}) {
                    SettingsFailure failure = presets->add(prefix + QString::number(i), {{u"Red"_s, u"1"_s}});
                    while (failure && failure->reason == SettingsFault::Busy)
                        failure = presets->add(prefix + QString::number(i), {{u"Red"_s, u"1"_s}});
                }
            }
        };
        std::thread one(work, u"one"_s);
        std::thread two(work, u"two"_s);
        one.join();
        two.join();
        QCOMPARE(namesOf(PresetStore(u"photo"_s)).size(), 2 * each);
        QCOMPARE(namesOf(PresetStore::builtIn()).size(), 2 * each);
        QCOMPARE(QDir(QFileInfo(PresetStore::userFile()).path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"lpoptions"_s});
    }

    // As on a disk that is full: the write stops in the middle.
    void failedWriteLeavesTheOldFile()
    {
        PresetStore queue(u"photo"_s);
        PresetStore builtIn = PresetStore::of(u"photo"_s, true);
        const Options old{{u"Red"_s, QString(100, u'x')}};
        const Options large{{u"Red"_s, QString(3000, u'y')}};
        QVERIFY(!queue.add(u"first"_s, old) && !builtIn.add(u"first"_s, old) &&
                !QueueSettings::save(u"photo"_s, old));
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = {};
        getrlimit(RLIMIT_FSIZE, &limit);
        const auto back = qScopeGuard([limit, handler] {
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, handler);
        });
        const auto leaves = [&limit](const QString &path, const auto &save) {
            const QDir folder = QFileInfo(path).dir();
            const QByteArray before = content(path);
            const rlimit small = {static_cast<rlim_t>(before.size() + 40), limit.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
            const SettingsFailure failure = save();
            setrlimit(RLIMIT_FSIZE, &limit);
            QVERIFY(failure);
            QCOMPARE(failure->reason, SettingsFault::NotWritable);
            QVERIFY2(failure->text.contains(path), qPrintable(failure->text));
            QCOMPARE(content(path), before);
            QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden), QStringList{QFileInfo(path).fileName()});
        };
        leaves(PresetStore::userFile(), [&] { return queue.add(u"second"_s, large); });
        leaves(builtIn.file(), [&] { return builtIn.add(u"second"_s, large); });
        leaves(QueueSettings::fileFor(u"photo"_s), [&] { return QueueSettings::save(u"photo"_s, large); });
    }

    void unreadableFileIsNotWrittenOver()
    {
        QVERIFY(QDir().mkpath(PresetStore::userFile())); // a folder in the file's place
        PresetStore queue(u"photo"_s);
        QCOMPARE(queue.presets().failure().reason, SettingsFault::NotReadable);
        QCOMPARE(queue.add(u"warm"_s, {})->reason, SettingsFault::NotReadable);
        write(home_->filePath(u"blocked"_s), {});
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home_->filePath(u"blocked"_s)));
        QCOMPARE(QueueSettings::save(u"photo"_s, {})->reason, SettingsFault::NotWritable);
    }

    void waitsNoLongerThanASecond()
    {
        PresetStore store(u"photo"_s);
        QVERIFY(!store.add(u"warm"_s, {}));
        QLockFile other(PresetStore::userFile() + u".lock"_s);
        QVERIFY(other.tryLock());
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(store.add(u"cold"_s, {})->reason, SettingsFault::Busy);
        QVERIFY(timer.elapsed() < 3000);
        other.unlock();
        // Left by one that was killed, before or after it had written who it is.
        for (const QString &by :
             {QString(), u"%1\nPresetStoreTest\n%2\n"_s.arg(gone()).arg(QSysInfo::machineHostName())}) {
            write(other.fileName(), by.toUtf8());
            QVERIFY(!store.update(u"warm"_s, {{u"Red"_s, QString::number(by.size())}}));
        }
    }

    // As people have who keep their settings elsewhere.
    void linkStaysOne()
    {
        const QString kept = home_->filePath(u"kept/options"_s);
        write(kept, "Dest photo Red=1\n");
        QVERIFY(QDir(home_->path()).mkpath(QFileInfo(PresetStore::userFile()).path()));
        QVERIFY(QFile::link(u"../kept/options"_s, PresetStore::userFile()));
        for (const QString &name : {u"warm"_s, u"cold"_s}) {
            QVERIFY(!PresetStore(u"photo"_s).add(name, {}));
            QVERIFY(QFileInfo(PresetStore::userFile()).isSymLink());
            QVERIFY(content(kept).contains(name.toUtf8()));
            QVERIFY(name != "warm"_L1 || QFile::remove(kept)); // then the link leads nowhere
        }
    }

    void filesAreTheOwners()
    {
        QVERIFY(!PresetStore(u"photo"_s).add(u"warm"_s, {}));
        QVERIFY(!PresetStore::builtIn().add(u"warm"_s, {}));
        QVERIFY(!QueueSettings::save(u"photo"_s, {{u"Red"_s, u"1"_s}}));
        QCOMPARE(QueueSettings::load(u"photo"_s), (Options{{u"Red"_s, u"1"_s}}));
        QCOMPARE(QueueSettings::load(u"other"_s), Options());
        for (const QString &path :
             {PresetStore::userFile(), PresetStore::builtIn().file(), QueueSettings::fileFor(u"photo"_s)}) {
            const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
            QVERIFY2(!(QFileInfo(path).permissions() & others), qPrintable(path));
        }
        const QString shared = PresetStore::userFile();
        QVERIFY(QFile::setPermissions(shared, QFileInfo(shared).permissions() | QFile::ReadOther));
        QVERIFY(!PresetStore(u"photo"_s).add(u"cold"_s, {}));
        QVERIFY(QFileInfo(shared).permissions() & QFile::ReadOther);
    }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

CORVEL_TEST(PresetStoreTest)
#include "PresetStoreTest.moc"
