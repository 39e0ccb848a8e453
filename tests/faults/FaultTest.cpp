// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BackendRun.h"
#include "FaultInjection.h"
#include "Faults.h"
#include "OpenedDialog.h"
#include "PhotoThreads.h"
#include "PlatformException.h"
#include "PresetStore.h"
#include "QueueSettings.h"

#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThreadPool>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <functional>
#include <malloc.h>
#include <unistd.h>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

using Options = QMap<QString, QString>;

#ifdef __SANITIZE_ADDRESS__
constexpr qint64 residentGrowthLimit = 300 * 1024; // KiB: the sanitizer keeps what was freed
#else
constexpr qint64 residentGrowthLimit = 1024; // KiB
#endif

const QString printer = QStringLiteral("photo");
const QString preset = QStringLiteral("portrait");

/// A set of choices as large as the printer's, all of one value.
Options choices(const QString &value)
{
    Options options;
    for (int i = 0; i < 40; ++i)
        options.insert(u"Option%1"_s.arg(i), value);
    return options;
}

/// A place where choices are kept: the settings of a printer, or a preset.
struct Place
{
    std::function<SettingsFailure(const Options &, bool isFirst)> save;
    std::function<Options()> load;
};

Place placeNamed(const QString &name)
{
    if (name == "settings"_L1)
        return {[](const Options &options, bool) { return QueueSettings::save(printer, options); },
                [] {
                    return QueueSettings::load(printer);
                }};
    const std::shared_ptr<PresetStore> store = PresetStore::open(printer, name == "built-in preset"_L1);
    const auto load = [store] {
        const auto presets = store->presets();
        return presets && !presets->isEmpty() ? presets->constFirst().options : Options();
    };
    const auto save = [store](const Options &options, bool isFirst) {
        return isFirst ? store->add(preset, options) : store->update(preset, options);
    };
    return {save, load};
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext())
        files << all.next();
    files.sort();
    return files;
}

bool isLong()
{
    return qEnvironmentVariableIsSet("CORVEL_FAULTS_LONG");
}

/// Of this process, in KiB.
struct Memory
{
    qint64 heap = 0; ///< in use
    qint64 resident = 0;

    static Memory now()
    {
        photoThreads().waitForDone();
        malloc_trim(0);
        QFile file(u"/proc/self/statm"_s);
        const qint64 pages =
            file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
        const auto info = mallinfo2();
        return {qint64((info.uordblks + info.hblkhd) / 1024), pages * (sysconf(_SC_PAGESIZE) / 1024)};
    }
};

/// Saves one set of choices and another one in turn, until it is killed. Says so after the first time.
int saveForEver(const QString &place)
{
    const Place target = placeNamed(place);
    for (int i = 0;; ++i) {
        target.save(choices(i % 2 == 0 ? u"even"_s : u"odd"_s), false);
        if (i == 0 && ::write(STDOUT_FILENO, "\n", 1) != 1)
            return 1;
    }
}

} // namespace

/// What is kept, and what is started, when the system refuses something at any one moment.
class FaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void savesWholeOrNotAtAll_data();
    void savesWholeOrNotAtAll();
    void killedWhileSaving_data();
    void killedWhileSaving();
    void launchesOrSaysWhy_data();
    void launchesOrSaysWhy();
    void dialogsLeaveNothing();

private:
    std::unique_ptr<QTemporaryDir> home_;
};

void FaultTest::init()
{
    home_ = std::make_unique<QTemporaryDir>();
    qputenv("HOME", home_->path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home_->filePath(u"config"_s).toUtf8());
}

void FaultTest::savesWholeOrNotAtAll_data()
{
    QTest::addColumn<bool>("isFirst");
    for (const char *place : {"settings", "preset", "built-in preset"}) {
        QTest::addRow("%s", place) << false;
        QTest::addRow("%s, the first", place) << true;
    }
}

// Each call fails in turn, with each error that it can have.
void FaultTest::savesWholeOrNotAtAll()
{
    QFETCH(bool, isFirst);
    const Place place = placeNamed(QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0));
    int faults = 0;
    QSet<QByteArray> calls;
    for (const CallFault &each : fileFaults()) {
        for (int number = 1;; ++number) {
            const Fault fault{each.call, each.error, number, home_->path().toUtf8()};
            if (isFirst)
                QVERIFY(QDir(home_->path()).removeRecursively() && QDir().mkpath(home_->path()));
            else
                QVERIFY(!place.save(choices(u"old"_s), place.load().isEmpty()));
            const Options before = place.load();
            const QStringList files = filesBelow(home_->path());

            armFault(fault.call.constData(), fault.error, fault.number, fault.folder.constData());
            const SettingsFailure failure = place.save(choices(u"new"_s), isFirst);
            if (!disarmFault())
                break;
            ++faults;
            calls << each.call;
            const QStringList filesNow = filesBelow(home_->path());
            const QByteArray found = textOf(fault) + ": " + (failure ? failure->text : u"saved"_s).toUtf8() +
                                     "; " + filesNow.join(u' ').toUtf8();
            const bool isWhole = place.load() == (failure ? before : choices(u"new"_s));
            const bool isClean = failure ? filesNow == files : filesNow.size() == 1;
            const bool isClear =
                !failure || (failure->text.contains(home_->path()) && failure->text.endsWith(u'.'));
            QVERIFY2(isWhole && isClean && isClear, found.constData());
        }
    }
    for (const char *call : {"open", "write", "close", "fsync", "rename"})
        QVERIFY2(calls.contains(call), call);
    qInfo("%d faults", faults);
}

void FaultTest::killedWhileSaving_data()
{
    QTest::addColumn<int>("signal");
    for (const char *place : {"settings", "preset", "built-in preset"}) {
        QTest::addRow("%s, SIGKILL", place) << SIGKILL;
        QTest::addRow("%s, SIGTERM", place) << SIGTERM;
    }
}

void FaultTest::killedWhileSaving()
{
    QFETCH(int, signal);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    const Place place = placeNamed(name);
    QVERIFY(!place.save(choices(u"odd"_s), true));
    const int kills = isLong() ? 70 : 7;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(), {u"--save"_s, name});
        QVERIFY(saver.waitForReadyRead());
        usleep(static_cast<useconds_t>(QRandomGenerator::global()->bounded(20'000)));
        QCOMPARE(::kill(static_cast<pid_t>(saver.processId()), signal), 0);
        QVERIFY(saver.waitForFinished(10000));
        const Options found = place.load();
        QVERIFY(found == choices(u"odd"_s) || found == choices(u"even"_s));
        // The next one to save takes away what was left.
        QVERIFY(!place.save(choices(u"next %1"_s.arg(kill)), false));
        QCOMPARE(filesBelow(home_->path()).size(), 1);
        QVERIFY(!place.save(choices(u"odd"_s), false));
    }
}

void FaultTest::launchesOrSaysWhy_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("pipe2") << EMFILE;
    QTest::newRow("posix_spawn") << ENOMEM;
    QTest::newRow("open") << EMFILE;
    QTest::newRow("write") << EPIPE;
    QTest::newRow("write interrupted") << EINTR;
    QTest::newRow("read") << EIO;
    QTest::newRow("read interrupted") << EINTR;
    QTest::newRow("close") << EIO;
}

// Whatever fails, the panel is idle in the end, nothing of the run is left, and the next one works.
void FaultTest::launchesOrSaysWhy()
{
    QFETCH(int, error);
    const QByteArray call = QByteArray(QTest::currentDataTag()).split(' ').constFirst();
    const bool isInterrupted = error == EINTR;
    BackendRun run("both streams");
    run.installInBundle();
    run.command("print\n");
    QVERIFY(run.start() == 0 && QTest::qWaitFor([&run] { return run.isIdle(); }));
    QTRY_VERIFY(!hasChildren());
    const qsizetype descriptors = openDescriptors();
    const auto hasWorked = [&run] {
        return run.input() == "print\n" && run.dialog.log.contains(u"backend err = INFO: ready\n"_s);
    };
    int number = 1;
    for (;; ++number) {
        QFile::remove(run.folder.filePath(u"input"_s));
        run.dialog.log.clear();
        armFault(call.constData(), error, number, call == "open" ? "/dev/fd" : "pipe:");
        bool isLaunched = true;
        try {
            isLaunched = run.start() == 0;
        } catch (const pdekit::PlatformException &exception) {
            isLaunched = false;
            QVERIFY(QString::fromLocal8Bit(exception.what()).contains("cannot launch"_L1));
        }
        const bool isIdle = QTest::qWaitFor([&run] { return run.isIdle(); }, 15000);
        const bool isInjected = disarmFault();
        QVERIFY2(isIdle, qPrintable(QString::number(number)));
        QTRY_VERIFY(!hasChildren());
        QTRY_COMPARE(openDescriptors(), descriptors);
        if (!isInjected)
            break;
        QVERIFY2(!isInterrupted || (isLaunched && hasWorked()), qPrintable(QString::number(number)));
        run.dialog.log.clear();
        QVERIFY(run.start() == 0 && QTest::qWaitFor([&run] { return run.isIdle(); }) && hasWorked());
        QTRY_VERIFY(!hasChildren());
    }
    QVERIFY(hasWorked() && number > 1);
    qInfo("%d faults", number - 1);
}

// Memory, descriptors and threads, after enough dialogs to have filled whatever is kept for the next one.
void FaultTest::dialogsLeaveNothing()
{
    const auto openAndClose = [](int count) {
        for (int i = 0; i < count; ++i) {
            const PanelMode mode = i % 2 == 0 ? PanelMode::Constraint : PanelMode::Settings;
            PrintDialogSetup setup = setupFor(mode);
            if (i % 10 != 0)
                setup.photos.clear(); // reading one takes longer than all the rest
            OpenedDialog opened(setup);
            opened.type(81, u"12"_s);
            QCOMPARE(opened.fieldText(81), u"12"_s);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    const auto threads = [] {
        return QDir(u"/proc/self/task"_s).entryList(QDir::NoDotAndDotDot | QDir::Dirs).size();
    };
    openAndClose(20);
    const qsizetype descriptors = openDescriptors();
    const qsizetype threadsBefore = threads();
    const Memory before = Memory::now();
    openAndClose(isLong() ? 500 : 100);
    QTRY_COMPARE(openDescriptors(), descriptors);
    QTRY_COMPARE(threads(), threadsBefore);
    const Memory after = Memory::now();
    const qint64 heap = after.heap - before.heap;
    const qint64 resident = after.resident - before.resident;
    qInfo("%lld KiB more in use, %lld KiB more resident", static_cast<long long>(heap),
          static_cast<long long>(resident));
    QVERIFY(heap < 64);
    QVERIFY(resident < residentGrowthLimit);
}

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--save") == 0) {
        const QCoreApplication application(argc, argv);
        return saveForEver(QString::fromLocal8Bit(argv[2]));
    }
    // So that what is no longer in use goes back to the system, and what stays resident can be told.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    const QApplication application(argc, argv);
    FaultTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FaultTest.moc"
