// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BackendRun.h"
#include "BuiltInPrinter.h"
#include "FailingCalls.h"
#include "OpenedDialog.h"
#include "PhotoThreads.h"
#include "PlatformException.h"
#include "PresetStore.h"
#include "Rows.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThreadPool>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <cstring>
#include <malloc.h>
#include <unistd.h>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr qint64 residentGrowthLimit = 300 * 1024; // KiB: the sanitizer keeps what was freed
#else
constexpr qint64 residentGrowthLimit = 1024; // KiB
#endif

using Contents = QMap<QString, QByteArray>;

/// Of all files in the folder, by their names.
Contents contentsOf(const QString &folder)
{
    Contents contents;
    for (const QString &name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        QFile file(folder + u'/' + name);
        contents.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return contents;
}

/// The pair of the sample photo.
Result<PrintedFiles, OutputFault> print(const QString &folder, bool overwrites)
{
    PrintJob job;
    job.page = {QSizeF(288, 432), QRectF(0, 0, 288, 432)};
    PrintedNames names({folder, overwrites});
    constexpr bool isAccepted = true; // checks run on threads that a forked process does not have
    const PrintSheet sheet =
        PrintSheet::of(*Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO)), job.page, {}, isAccepted);
    return BuiltInPrinter::print(sheet, job, names);
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

} // namespace

/// What is printed, and what is started, when the system refuses something at any one moment.
class FaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("HOME", home_.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", home_.filePath(u"config"_s).toUtf8());
    }

    void savesOrKeepsSettings_data()
    {
        const auto add = rows<QByteArray, int>();
        for (const auto &[call, error] : {std::pair("read", EIO),
                                          {"read", EINTR},
                                          {"write", EIO},
                                          {"fsync", EIO},
                                          {"close", EIO},
                                          {"renameat", EIO},
                                          {"rename", EIO}})
            add((QByteArray(call) + ": " + std::strerror(error)).constData(), call, error);
    }

    // What was there before is always kept, whatever becomes of the new preset.
    void savesOrKeepsSettings()
    {
        const auto [call, error] = row<QByteArray, int>();
        for (const bool isBuiltIn : {false, true}) {
            PresetStore store = PresetStore::of(u"photo"_s, isBuiltIn);
            const QString name = QLatin1String(call) + QString::number(error) + u'.';
            QVERIFY(!store.add(name, {}));
            bool isInjected = true;
            for (int number = 1; isInjected; ++number) {
                const auto before = store.presets();
                armFault(call.constData(), error, number, Among::Files);
                const SettingsFailure failure =
                    store.add(name + QString::number(number), {{u"Red"_s, u"1"_s}});
                isInjected = disarmFault();
                QVERIFY(!failure || (isInjected && error != EINTR));
                const auto after = store.presets();
                QVERIFY(before && after);
                QCOMPARE(after->size(), before->size() + (failure ? 0 : 1));
            }
        }
    }

    void printsBothOrNeither_data()
    {
        const auto add = rows<QByteArray, int, bool>();
        // Met: the program has to get by without it.
        const auto row = [&add](const char *call, int error, bool isMet = false) {
            add((QByteArray(call) + ": " + std::strerror(error)).constData(), call, error, isMet);
        };
        row("openat", EMFILE);
        row("write", ENOSPC);
        row("write", EIO);
        row("write", EINTR, true);
        row("close", EIO);
        row("close", EINTR, true);
        row("fsync", EIO);
        row("fsync", EINTR, true);
        row("linkat", ENOSPC);
        row("renameat", EIO);
        row("renameat2", EIO);
        row("renameat2", EINVAL, true); // a file system that cannot
        row("renameat2", EEXIST, true); // another program is faster
    }

    // A page and its ticket: in an empty folder, in the place of an earlier pair, and beside it.
    void printsBothOrNeither()
    {
        const auto [call, error, isMet] = row<QByteArray, int, bool>();
        const QTemporaryDir whole;
        QVERIFY(print(whole.path(), false));
        const QByteArrayList expected = contentsOf(whole.path()).values();
        int faults = 0;
        int refusals = 0;
        for (const char *manner : {"new", "over", "beside"}) {
            for (int number = 1;; ++number) {
                const QTemporaryDir folder;
                for (const char *name : {"/sample.pdf", "/sample.ticket.json"}) {
                    QFile earlier(folder.path() + QLatin1String(name));
                    QVERIFY(qstrcmp(manner, "new") == 0 ||
                            (earlier.open(QFile::WriteOnly) && earlier.write(name) > 0));
                }
                const Contents before = contentsOf(folder.path());
                armFault(call.constData(), error, number, Among::Files);
                const auto files = print(folder.path(), qstrcmp(manner, "over") == 0);
                const bool isInjected = disarmFault();
                Contents after = contentsOf(folder.path());
                const QString found = u"%1 %2: "_s.arg(QLatin1String(manner)).arg(number) +
                                      (files ? u"printed"_s : files.failure().text) + after.keys().join(u' ');
                QVERIFY2(files || (isInjected && !isMet), qPrintable(found));
                if (files) {
                    const QByteArrayList printed{after.take(QFileInfo(files->pdf).fileName()),
                                                 after.take(QFileInfo(files->ticket).fileName())};
                    QVERIFY2(printed == expected &&
                                 after == (qstrcmp(manner, "beside") == 0 ? before : Contents()),
                             qPrintable(found));
                } else {
                    QVERIFY2(after == before && files.failure().text.contains(folder.path()) &&
                                 files.failure().text.endsWith(u'.'),
                             qPrintable(found));
                }
                if (!isInjected)
                    break;
                ++faults;
                refusals += files ? 0 : 1;
            }
        }
        QVERIFY(faults > 1);
        QVERIFY(isMet || call == "openat" || refusals > 0);
    }

    void killedWhilePrinting_data()
    {
        QTest::addColumn<QByteArray>("call");
        for (const char *call : {"write", "fsync", "linkat", "renameat"})
            QTest::newRow(call) << QByteArray(call);
    }

    // At each call, in the place of an earlier pair: each file is the old or the new one, and the next run
    // cleans up.
    void killedWhilePrinting()
    {
        QFETCH(const QByteArray, call);
        const QTemporaryDir folder;
        QVERIFY(print(folder.path(), true));
        const Contents whole = contentsOf(folder.path());
        bool isKilled = true;
        for (int number = 1; isKilled; ++number) {
            Contents old = whole;
            for (auto file = old.begin(); file != old.end(); ++file) {
                *file = "old";
                QFile earlier(folder.filePath(file.key()));
                QVERIFY(earlier.open(QFile::WriteOnly) && earlier.write(*file) == 3);
            }
            const pid_t child = fork();
            if (child == 0) {
                armFault(call.constData(), 0, number, Among::Files);
                _exit(print(folder.path(), true) ? 0 : 1);
            }
            int status = 0;
            QVERIFY(child > 0 && waitpid(child, &status, 0) == child);
            isKilled = WIFSIGNALED(status);
            QVERIFY(isKilled || number > 1);
            const Contents left = contentsOf(folder.path());
            for (auto file = whole.begin(); file != whole.end(); ++file)
                QVERIFY2(left.value(file.key()) == *file || (isKilled && left.value(file.key()) == "old"),
                         qPrintable(QString::number(number)));
            QVERIFY(print(folder.path(), true));
            QCOMPARE(contentsOf(folder.path()), whole);
        }
    }

    void launchesOrSaysWhy_data()
    {
        QTest::addColumn<int>("error");
        QTest::newRow("pipe2") << EMFILE;
        QTest::newRow("posix_spawn") << ENOMEM;
        QTest::newRow("write") << EPIPE;
        QTest::newRow("write interrupted") << EINTR;
        QTest::newRow("read") << EIO;
        QTest::newRow("read interrupted") << EINTR;
        QTest::newRow("close") << EIO;
    }

    // Whatever fails, the panel is idle in the end, nothing of the run is left, and the next one works.
    void launchesOrSaysWhy()
    {
        QFETCH(int, error);
        const QByteArray call = QByteArray(QTest::currentDataTag()).split(' ').constFirst();
        const bool isInterrupted = error == EINTR;
        BackendRun run("both streams");
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
            armFault(call.constData(), error, number, Among::Pipes);
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
            QVERIFY(call != "posix_spawn" || !isLaunched);
            run.dialog.log.clear();
            QVERIFY(run.start() == 0 && QTest::qWaitFor([&run] { return run.isIdle(); }) && hasWorked());
            QTRY_VERIFY(!hasChildren());
        }
        QVERIFY(hasWorked() && number > 1);
        qInfo("%d faults", number - 1);
    }

    // Memory, descriptors and threads, after enough dialogs to have filled whatever is kept for the next one.
    void dialogsLeaveNothing()
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
        openAndClose(100);
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

private:
    QTemporaryDir home_;
};

int main(int argc, char *argv[])
{
    // So that unused memory goes back to the system, and the resident size shows what is still held.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    const QApplication application(argc, argv);
    FaultTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FaultTest.moc"
