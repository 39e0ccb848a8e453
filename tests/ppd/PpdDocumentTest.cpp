// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdDocument.h"
#include "CupsPpd.h"
#include "PpdCheck.h"
#include "PpdFile.h"
#include "Rows.h"
#include "SmallPpd.h"
#include "TestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace printdialog;
using namespace smallppd;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(printdialog::PpdFault)
Q_DECLARE_METATYPE(std::optional<printdialog::PpdFault>)

namespace {

QByteArray gzip(const QByteArray &data)
{
    QProcess process;
    process.start(u"gzip"_s, {u"-c"_s});
    process.write(data);
    process.closeWriteChannel();
    process.waitForFinished();
    return process.readAllStandardOutput();
}

bool store(const QString &path, const QByteArray &data)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(data) == data.size();
}

} // namespace

class PpdDocumentTest : public QObject
{
    Q_OBJECT

    static Result<PpdDocument, PpdFault> trusted(const QByteArray &data, const QString &name)
    {
        const auto ppd = trustPpd(data, name);
        if (!ppd)
            return ppd.failure();
        return PpdDocument::open(*ppd);
    }

    static PpdDocument opened(const QByteArray &data)
    {
        auto document = trusted(data, u"queue"_s);
        if (!document)
            qFatal("%s", qPrintable(document.failure().text));
        return *std::move(document);
    }

private Q_SLOTS:
    void refusesFiles_data()
    {
        const auto add = rows<QString, PpdFault, QString>();
        add("missing", u"none.ppd"_s, PpdFault::NotFound, u"There is no"_s);
        add("below a file", u"empty.ppd/x"_s, PpdFault::NotFound, u"There is no"_s);
        add("directory", u"folder"_s, PpdFault::NotReadable, u"is a directory"_s);
        add("pipe that nobody writes to", u"pipe"_s, PpdFault::NotReadable, u"device or a pipe"_s);
        add("device", u"../../dev/zero"_s, PpdFault::NotReadable, u"device or a pipe"_s);
        add("empty", u"empty.ppd"_s, PpdFault::Empty, u"is empty"_s);
        add("sparse, huge", u"huge.ppd"_s, PpdFault::TooLarge, u"larger than 32 MiB"_s);
        add("expands too far", u"bomb.ppd.gz"_s, PpdFault::TooLarge, u"larger than 32 MiB"_s);
        add("compressed, cut off", u"cut.ppd.gz"_s, PpdFault::CutOff, u"its end is missing"_s);
        add("compressed, damaged", u"bad.ppd.gz"_s, PpdFault::CutOff, u"it is damaged"_s);
    }

    void refusesFiles()
    {
        const auto [name, fault, reason] = row<QString, PpdFault, QString>();
        const QTemporaryDir folder(u"/tmp/ppdXXXXXX"_s);
        const auto path = [&](const QString &file) {
            return folder.filePath(file);
        };
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        QCOMPARE(::mkfifo(qPrintable(path(u"pipe"_s)), 0600), 0);
        QFile empty(path(u"empty.ppd"_s));
        QFile huge(path(u"huge.ppd"_s));
        QVERIFY(empty.open(QFile::WriteOnly) && huge.open(QFile::WriteOnly) && huge.resize(1LL << 40));
        const QByteArray compressed = gzip(minimal());
        QVERIFY(
            store(path(u"bomb.ppd.gz"_s), gzip(QByteArray(64 << 20, '*'))) &&
            store(path(u"cut.ppd.gz"_s), compressed.chopped(9)) &&
            store(path(u"bad.ppd.gz"_s), QByteArray(compressed).replace(compressed.size() / 2, 4, "oops")));
        const auto document = PpdDocument::openFile(path(name));
        QVERIFY(!document);
        QCOMPARE(document.failure().reason, fault);
        QVERIFY2(document.failure().text.contains(reason), qPrintable(document.failure().text));
        QVERIFY2(document.failure().text.contains(name), qPrintable(document.failure().text));
    }

    // As the PPDs that CUPS brings with it; gzip(1) itself reads several such files in one, and ignores
    // padding.
    void readsCompressedFiles()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"printer.ppd.gz"_s);
        const QByteArray ppd = minimal() + option("Red", {"1", "2"});
        QVERIFY(store(path, gzip(ppd.first(100)) + gzip(ppd.sliced(100)) + QByteArray(300, 0)));
        const auto document = PpdDocument::openFile(path);
        QVERIFY2(document, document ? "" : qPrintable(document.failure().text));
        QCOMPARE(document->data(), ppd);
        QCOMPARE(document->options(), QStringList({u"PageSize"_s, u"Red"_s}));
    }

    void refusesData_data()
    {
        const auto add = rows<QByteArray, PpdFault, QString>();
        QByteArray options;
        for (int i = 0; i < 100'000; ++i)
            options += option("O" + QByteArray::number(i), {"a"});
        const QByteArray manyChoices = option("Big", numbered(0, 200'000));
        const QByteArray big = option("Big", numbered(0, 100'000, "c"));
        add("other text", "Hello\n", PpdFault::NotAPpd, u"is not a PPD"_s);
        add("100,000 options", minimal() + options, PpdFault::TooManyOptions, u"2000 options"_s);
        add("200,001 choices", minimal() + manyChoices, PpdFault::TooManyChoices, u"200000 choices"_s);
        add("5,000 page sizes", header + option("PageSize", numbered(1, 5'000, "s")),
            PpdFault::TooManyChoices, u"page sizes"_s);
        add("5,000 page sizes of an option that nothing opens",
            header + option("PageSize", numbered(1, 5'000, "s")).replace("*OpenUI *PageSize: PickOne\n", {}),
            PpdFault::TooManyChoices, u"page sizes"_s);
        add("20,001 constraints", minimal() + QByteArray("*UIConstraints: *A b *C d\n").repeated(20'001),
            PpdFault::TooManyConstraints, u"20000 constraints"_s);
        add("costly constraints",
            minimal() + big + QByteArray("*UIConstraints: *Big c1 *A b\n").repeated(600),
            PpdFault::TooManyConstraints, u"too many choices"_s);
        add("many other entries", minimal() + QByteArray("*A: \"\"\n").repeated(100'001), PpdFault::Malformed,
            u"100000 entries"_s);
        add("UTF-8 option keyword", minimal() + option("R\xc3\xb6t", {"1"}), PpdFault::BadKeyword,
            u"line 16"_s);
        add("long option keyword", minimal() + option(QByteArray(41, 'k'), {"1"}), PpdFault::BadKeyword,
            u"40"_s);
        add("long line", minimal() + "*Foo: " + QByteArray(5'000, 'x') + "\n", PpdFault::Malformed,
            u"4096"_s);
        add("long value", minimal() + "*Foo: \"" + QByteArray("abc\n").repeated(70'000) + "\"\n",
            PpdFault::Malformed, u"250000"_s);
        add("told by libcups", minimal() + "*Foo \xff: \"a\nb\"\n*End\nnot an entry\n", PpdFault::Malformed,
            u"line 19: Missing asterisk"_s);
    }

    void refusesData()
    {
        const auto [data, fault, reason] = row<QByteArray, PpdFault, QString>();
        const auto document = trusted(data, u"my\u202equ\u001beue"_s);
        QVERIFY(!document);
        QCOMPARE(document.failure().reason, fault);
        const QString text = document.failure().text;
        QVERIFY2(text.contains(reason) && text.contains(u"\"myqueue\""_s), qPrintable(text));
    }

    void keepsOddPpds_data()
    {
        const auto add = rows<QByteArray, QString>();
        const QByteArray odd = minimal() + option("Red", {"1", "2(b)/Two (b)"});
        const auto with = [&odd](const QByteArray &before, const QByteArray &after) {
            return QByteArray(odd).replace(before, after);
        };
        add("LF, parentheses", odd, {});
        add("quote in a comment", odd + "*% a: \"\n", {});
        add("quote before the colon", odd + "*Foo \"a\n", {});
        add("CR", with("\n", "\r"), {});
        add("CRLF, Ctrl-Z", with("\n", "\r\n") + "\x1a", {});
        add("no end of the last line", odd.chopped(1), {});
        add("no end of a last line that is left out", odd + "*ImageableArea \xff: \"0 0 1 1\"",
            u"ImageableArea"_s);
        add("option and group that never close",
            with("*OpenUI *Red", "*OpenGroup: G/g\n*OpenUI *Red").replace("*CloseUI: *Red\n", {}),
            u"The option \"Red\" opened in line 17 never closes.\nThe group opened in line 16 never closes."_s);
        add("cut off in an option", odd.chopped(16), u"The PPD seems to be cut off in line 19."_s);
        add("cut off in a group", with("*OpenUI *Red", "*OpenGroup: G/g\n*OpenUI *Red").chopped(1),
            u"The PPD seems to be cut off in line 21."_s);
        add("cut off in a quote", odd.chopped(17), u"The quote opened in line 19 never closes."_s);
        add("cut off in a quote that is left out", odd + "*ImageableArea \xff: \"0 0", u"ImageableArea"_s);
        add("NUL", with("*Red 1:", QByteArray("*Foo\0o 1: \"\"\n*Red 1:", 20)), u"Line 18"_s);
        add("NULs at the end", odd + QByteArray(300, '\0'), {});
        add("Ctrl-Z in a keyword", with("*OpenUI *Red", "*OpenUI *\x1aRed"), {});
        add("space before the first colon", with("*PPD-Adobe:", "*PPD-Adobe :"), {});
        add("option without keyword", odd + "*OpenUI: PickOne\n*CloseUI:\n", u"it has no keyword"_s);
        add("text that cannot be read", with("ISOLatin1", "None").replace("*Red 1:", "*Red 1/\xb1\xde:"),
            u"another encoding"_s);
        add("page sizes that are empty in another group",
            with(pageSizes(), "*OpenGroup: A/a\n*OpenUI *PageSize: PickOne\n*CloseGroup: A\n" + pageSizes()),
            {});
        add("bad choice", with("*Red 1:", "*Red \xc3\xa9:\x20\"a\nb\"\n*End\n*Red 1:"),
            u"Line 18: the choice \"é\" of the option \"Red\" is left out"_s);
        add("long choice", with("*Red 1:", "*Red " + QByteArray(41, 'a') + ": \"\"\n*Red 1:"),
            u"longer than 40 characters"_s);
        add("long lines",
            odd + "*%" + QByteArray(300, 'x') + "\n*Foo: \"\n" + QByteArray(9'000, 'x') + "\"\n*End\n",
            u"\"Foo\""_s);
        add("many languages", odd + QByteArray("*de.Foo a/b: \"\"\n*fr.Foo a/b: \"\"\n").repeated(60'000),
            {});
        add("bad entry", odd + "*ImageableArea \xff: \"0 0 1 1\"\n", u"ImageableArea"_s);
        add("repeated choice", with("*CloseUI: *Red", "*Red 1: \"\"\n*CloseUI: *Red"), u"repeats 1"_s);
        add("option without choices", odd + "*OpenUI *Nil: PickOne\n*CloseUI: *Nil\n", u"\"Nil\""_s);
        add("many bad entries", odd + QByteArray("*Foo \xff: \"\"\n").repeated(1'000), u"left out: 950"_s);
    }

    void keepsOddPpds()
    {
        const auto [data, note] = row<QByteArray, QString>();
        const PpdDocument document = opened(data);
        QCOMPARE(document.data(), data);
        QCOMPARE(document.options(), QStringList({u"PageSize"_s, u"Red"_s}));
        const QList<Choice> choices{{u"1"_s, u"1"_s}, {u"2(b)"_s, u"Two (b)"_s}};
        QCOMPARE(document.choices(u"Red"_s), choices);
        QVERIFY2(note.isEmpty() ? document.notes().isEmpty() : document.notes().join(u'\n').contains(note),
                 qPrintable(document.notes().join(u'\n')));
        QVERIFY(document.notes().size() <= PpdLimits::notes + 1);
    }

    // Random PPDs that are cut off, and that lack or gain something.
    void opensWhatLibcupsOpens()
    {
        const QByteArray good = header + "*OpenGroup: G/g\n" + pageSizes() + option("Red", {"1/One", "2"}) +
                                "*CloseGroup: G\n*CustomPageSize True: \"a\nb\"\n*End\n*% c: \"\n"
                                "*UIConstraints: *Red 2 *PageSize w360h504\n";
        const QByteArrayList strange{"\"",        "\n",
                                     "\r",        "*",
                                     "\x1a",      "\xff",
                                     "/",         ":",
                                     " ",         "<41>",
                                     "*End\n",    QByteArray(1, '\0'),
                                     "\n*\n",     "\n*JCL",
                                     "\n*OpenUI", "\n*OpenUI *: PickOne\n",
                                     "PageSize",  "\n*OpenGroup: X\n"};
        const qsizetype firstLine = good.indexOf('\n') + 1;
        QRandomGenerator random(9031);
        int count = 0;
        ppdSetConformance(PPD_CONFORM_RELAXED);
        for (int round = 0; round < 4'000; ++round) {
            QByteArray ppd = good;
            for (int change = random.bounded(1, 4); change > 0; --change) {
                const qsizetype at = random.bounded(firstLine, ppd.size() + 1);
                switch (random.bounded(3)) {
                case 0:
                    ppd.remove(at, random.bounded(1, 30));
                    break;
                case 1:
                    ppd.insert(at, strange.at(random.bounded(strange.size())));
                    break;
                default:
                    ppd.truncate(at);
                }
            }
            ppd_file_t *record = ppdOpenFd(ppdInMemory(ppd));
            ppdClose(record);
            if (!record)
                continue;
            ++count;
            const auto document = trusted(ppd, u"queue"_s);
            QVERIFY2(document,
                     document ? "" : qPrintable(document.failure().text + QString::fromLatin1(ppd)));
        }
        QVERIFY(count > 1'000);
    }

    // What a program that tries out a PPD may come to.
    void triesOutPpds_data()
    {
        // No script: the real one.
        const auto add = rows<QByteArray, QByteArray, std::optional<PpdFault>, QString>();
        const QByteArray good = minimal() + option("Red", {"1", "2"});
        add("good", {}, good, std::nullopt, {});
        add("in another alphabet", {}, QByteArray(good).replace("ISOLatin1", "ISOLatin2"), std::nullopt, {});
        add("left to the parser", {}, good + "*UIConstraints: *Red\n", std::nullopt, {});
        add("not even inspected", {}, "%!PS", PpdFault::NotAPpd, u"queue"_s);
        add("crashes", "kill -SEGV $$", good, PpdFault::Harmful, u"makes libcups crash"_s);
        add("aborts", "kill -ABRT $$", good, PpdFault::Harmful, u"makes libcups crash"_s);
        add("takes too much time", "ulimit -S -t 1; while :; do :; done", good, PpdFault::Harmful,
            u"does not finish reading it"_s);
        add("is ended by the system", "kill -KILL $$", good, PpdFault::NotTried, u"too busy"_s);
        add("gets no time", "exec sleep 60", good, PpdFault::NotTried, u"too busy"_s);
        add("lacks a library", "exit 127", good, PpdFault::NotTried, u"status 127"_s);
        add("no sandbox", "exit 2", good, PpdFault::NotTried, u"no sandbox"_s);
        add("not installed", "-", good, PpdFault::NotTried, u"Install corvel-print again"_s);
        // It gets the PPD and nothing else that is open here. The shell has some descriptors of its own.
        add("descriptors",
            "read line && [ \"$line\" = '*PPD-Adobe: \"4.3\"' ] && [ $(ls /proc/$$/fd | wc -l) -le 8 ]", good,
            std::nullopt, {});
    }

    void triesOutPpds()
    {
        const auto [script, data, fault, reason] =
            row<QByteArray, QByteArray, std::optional<PpdFault>, QString>();
        const QTemporaryDir folder;
        QString program = folder.filePath(u"check"_s);
        if (script.isEmpty()) {
            program = ppdCheckProgram();
        } else if (script != "-") {
            QFile file(program);
            QVERIFY(file.open(QFile::WriteOnly) && file.write("#!/bin/sh\n" + script + "\n") > 0);
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        }
        std::array<int, 10> open = {}; // and not closed by exec(3)
        std::ranges::generate(open, [] { return ::dup(STDERR_FILENO); });
        const auto closing = qScopeGuard([&open] { std::ranges::for_each(open, ::close); });
        QElapsedTimer timer;
        timer.start();
        const auto ppd = checkPpd(data, u"queue"_s, program, script.contains("sleep") ? 400ms : 20s);
        QVERIFY(timer.elapsed() < 20'000);
        QCOMPARE(!ppd, fault.has_value());
        if (ppd)
            return;
        QVERIFY(ppd.failure().reason == *fault);
        const QString text = ppd.failure().text;
        QVERIFY2(text.contains(reason) && text.contains(u"queue"_s), qPrintable(text));
    }

    // Whoever started the program may have it ignore the ends of its children.
    void triesNothingUnheard()
    {
        const auto before = std::signal(SIGCHLD, SIG_IGN);
        const auto ppd = checkPpd(minimal(), u"queue"_s);
        std::signal(SIGCHLD, before);
        QVERIFY(!ppd && ppd.failure().reason == PpdFault::NotTried);
    }

    void sandboxLeavesNoWayOut_data()
    {
        QTest::addColumn<QString>("with");
        for (const char *with : {"opening", "output"})
            QTest::newRow(with) << QString::fromLatin1(with);
    }

    void sandboxLeavesNoWayOut()
    {
        QFETCH(QString, with);
        const QTemporaryDir folder;
        QProcess probe;
        probe.setStandardInputFile(u"/dev/zero"_s);
        probe.start(QStringLiteral(SANDBOX_PROBE), {folder.filePath(u"written"_s), with});
        QVERIFY(probe.waitForFinished());
        QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
        QCOMPARE(probe.exitCode(), 0);
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void tellsWhatThePpdHas()
    {
        const PpdDocument document = opened(
            header + pageSizes() + "*OpenGroup: Photo/Photo\n" +
            option("Overcoat", {"Glossy/Gl\xe4nzend", "Matte/\x01"}, "Lamination").replace("\x01", "<01>") +
            option("Lacking", {"Nope/n", "Yes"}).replace("*Lacking Nope/n: \"\"\n", "") +
            option("Many", {"a", "b", "c"}).replace("PickOne", "PickMany") + "*CloseGroup: Photo\n" +
            "*CustomMany True: \"pop\"\n*ParamCustomMany Value/Value: 1 int 1 9\n");
        QCOMPARE(document.options(), QStringList({u"PageSize"_s, u"Overcoat"_s, u"Lacking"_s, u"Many"_s}));
        QCOMPARE(document.optionText(u"Overcoat"_s), u"Lamination"_s);
        QCOMPARE(document.choice(u"Overcoat"_s, u"Glossy"_s)->text, u"Glänzend"_s);
        QCOMPARE(document.choice(u"Overcoat"_s, u"Matte"_s)->text,
                 u"Matte"_s); // nothing of the text may be shown
        QVERIFY(!document.choice(u"Overcoat"_s, u"matte"_s) && !document.choice(u"overcoat"_s, u"Matte"_s));
        QCOMPARE(document.markedChoice(u"Overcoat"_s), u"Glossy"_s);
        QCOMPARE(document.defaultChoice(u"Overcoat"_s), u"Glossy"_s);
        QVERIFY(!document.defaultChoice(u"Lacking"_s) && !document.markedChoice(u"Nope"_s));
        QCOMPARE(document.choices(u"Many"_s).size(), 3);
        QVERIFY(document.customParameters(u"Many"_s).isEmpty());
        QVERIFY(document.requestedBundles().isEmpty());
    }

    void pageSizesRunFromTheTopLeft()
    {
        const PpdDocument document =
            opened(header + option("PageSize", {"Gone", "w288h432/4 x 6", "Spill", "Bare"}) +
                   "*ImageableArea w288h432: \"6 12 280 420\"\n*PaperDimension w288h432: \"288 432\"\n"
                   "*ImageableArea Spill: \"-9 -9 109 209\"\n*PaperDimension Spill: \"100 200\"\n"
                   "*PaperDimension Bare: \"100 200\"\n" +
                   option("PageRegion", {"Bare"}) + "*CustomPageSize True: \"pop\"\n");
        QCOMPARE(document.pageSizes().size(), 3);
        const PageSize first = document.pageSizes().constFirst();
        QCOMPARE(first.text, u"4 x 6"_s);
        QCOMPARE(first.points, QSizeF(288, 432));
        QCOMPARE(first.imageable, QRectF(6, 12, 274, 408));
        QCOMPARE(document.pageSize(u"Spill"_s)->imageable, QRectF(-9, -9, 118, 218));
        QCOMPARE(document.pageSize(u"Bare"_s)->imageable, QRectF(0, 0, 100, 200));
        QVERIFY(!document.pageSize(u"Gone"_s) && !document.choice(u"PageSize"_s, u"Custom"_s));
        QVERIFY(!document.choice(u"PageRegion"_s, u"Custom"_s));       // libcups adds it there, too
        QCOMPARE(document.markedChoice(u"PageSize"_s), u"w288h432"_s); // the default cannot be printed on
    }

    void customPageRange_data()
    {
        addRows<QByteArray, bool>({
            {"usable", "1 points 100 500", true},
            {"upside down", "1 points 500 100", false},
            {"nothing is the smallest", "1 points 0 500", false},
            {"negative", "1 points -9 500", false},
            {"not a number", "1 points nan nan", false},
            {"endless", "1 points 100 1e39", false},
        });
    }

    void customPageRange()
    {
        const auto [width, isUsable] = row<QByteArray, bool>();
        const PpdDocument document =
            opened(header + option("PageSize", {"A5"}) + "*PaperDimension A5: \"420 595\"\n" +
                   "*CustomPageSize True: \"pop\"\n*ParamCustomPageSize Width: " + width +
                   "\n*ParamCustomPageSize Height: 2 points 100 500\n"
                   "*ParamCustomPageSize WidthOffset: 3 points 0 0\n"
                   "*ParamCustomPageSize HeightOffset: 4 points 0 0\n"
                   "*ParamCustomPageSize Orientation: 5 int 0 0\n");
        QCOMPARE(document.customPageRange().has_value(), isUsable);
        QCOMPARE(document.pageSize(u"Custom.300x400"_s).has_value(), isUsable);
    }

    // libcups opens these, and there has to be a page to print on.
    void assumesPageSizes_data()
    {
        const auto add = rows<QByteArray, const char *, QString, QSize>();
        const QByteArray red = option("Red", {"1"});
        const QByteArray open = "*OpenGroup: G/g\n*OpenUI *PageSize: PickOne\n*DefaultPageSize: Custom\n";
        add("none", header + red, "de_DE", u"A4"_s, {595, 842});
        add("none, in America", header + red, "en_US", u"Letter"_s, {612, 792});
        add("none, cut off in a quote", header + red + "*Foo: \"x", "C", u"A4"_s, {595, 842});
        add("none, in a group that never closes", header + open, "C", u"A4"_s, {595, 842});
        add("only custom ones", header + open + "*CloseUI: *PageSize\n*CustomPageSize True: \"pop\"\n", "C",
            u"A4"_s, {595, 842});
        add("known by name", header + option("PageSize", {"A5", "Odd"}), "C", u"A5"_s, {420, 595});
        add("not even by name", header + option("PageSize", {"Odd", "A5"}), "en_US", u"Odd"_s, {612, 792});
        for (const char *size : {"1e30 200", "100 nan", "-100 200", "0 200"})
            add(size, header + option("PageSize", {"A5"}) + "*PaperDimension A5: \"" + size + "\"\n", "C",
                u"A5"_s, {420, 595});
    }

    void assumesPageSizes()
    {
        const auto [data, locale, keyword, points] = row<QByteArray, const char *, QString, QSize>();
        const auto before = qScopeGuard([] { QLocale::setDefault(QLocale::system()); });
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        const PpdDocument document = opened(data);
        QCOMPARE(document.markedChoice(u"PageSize"_s), keyword);
        const PageSize size = document.pageSize(keyword).value();
        QCOMPARE(size.points.toSize(), points);
        QCOMPARE(size.imageable, QRectF(QPointF(), size.points));
        QVERIFY(document.notes().join(u'\n').contains(u"age size"_s));
    }

    void believesOnlyTheBundlesName_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("bundle");
        QTest::newRow("plain") << QByteArray("Corvel9031.bundle") << u"Corvel9031.bundle"_s;
        QTest::newRow("upwards") << QByteArray("../../evil.bundle") << u"evil.bundle"_s;
        QTest::newRow("several") << QByteArray(
                                        "/Printers/x.plugin\"\n*APDialogExtension: \"Corvel9031.bundle")
                                 << u"x.plugin Corvel9031.bundle"_s;
        QTest::newRow("absolute") << QByteArray("/x/y/Corvel9031.bundle") << u"Corvel9031.bundle"_s;
        for (const char *none : {"", "/x/y/", "..", "/x/..", "/x/.hidden", "a\\b", "a\x1b[1m", "a\nb"})
            QTest::addRow("none in %s", QByteArray(none).toPercentEncoding().constData())
                << QByteArray(none) << QString();
    }

    void believesOnlyTheBundlesName()
    {
        QFETCH(QByteArray, value);
        const PpdDocument document = opened(minimal() + "*APDialogExtension: \"" + value + "\"\n");
        QTEST(document.requestedBundles().join(u' '), "bundle");
    }

    void labelsStandardNames_data()
    {
        // The option as the PPD has it, its text, and those of its choices.
        addRows<QByteArray, QString, QString>({
            {"a PPD without texts", option("MediaType", {"PhotographicGlossy", "Com.exampleLuster"}),
             u"Paper type"_s, u"Glossy photo paper|Com.exampleLuster"_s},
            {"its own texts", option("MediaType", {"PhotographicGlossy/Shiny", "Stationery"}, "Stock"),
             u"Stock"_s, u"Shiny|Plain paper"_s},
            {"quality", option("cupsPrintQuality", {"Draft", "High"}), u"Print quality"_s, u"Draft|High"_s},
            {"colors", option("ColorModel", {"FastGray", "RGB"}), u"Color mode"_s,
             u"Black and white|Color"_s},
            {"sides", option("Duplex", {"None", "DuplexNoTumble"}), u"Two-sided printing"_s,
             u"One side|Both sides, turned on the long edge"_s},
            {"trays", option("InputSlot", {"Auto", "ByPassTray", "Tray3", "Cellar"}), u"Paper source"_s,
             u"Automatic|Bypass tray|Tray 3|Cellar"_s},
            {"a maker's own option", option("Overcoat", {"None", "Auto"}), u"Overcoat"_s, u"None|Auto"_s},
        });
    }

    void labelsStandardNames()
    {
        const auto [lines, text, choices] = row<QByteArray, QString, QString>();
        const PpdDocument document = opened(minimal() + lines);
        const QString key = document.options().constLast();
        QCOMPARE(document.optionText(key), text);
        QStringList texts;
        for (const Choice &choice : document.choices(key))
            texts += choice.text;
        QCOMPARE(texts.join(u'|'), choices);
    }

    void labelsStandardPageSizes()
    {
        const PpdDocument document =
            opened(header + option("PageSize", {"4x6.Borderless", "A4", "w100h200", "Giant"}) +
                   "*PaperDimension 4x6.Borderless: \"288 432\"\n*PaperDimension A4: \"595 842\"\n"
                   "*PaperDimension w100h200: \"100 200\"\n*PaperDimension Giant: \"900 900\"\n");
        QStringList texts = {document.optionText(u"PageSize"_s)};
        for (const PageSize &size : document.pageSizes())
            texts += size.text;
        const QStringList expected = {u"Paper size"_s, u"4 × 6 in (10 × 15 cm), borderless"_s, u"A4"_s,
                                      u"35.3 × 70.6 mm"_s, u"Giant"_s};
        QCOMPARE(texts, expected);
    }

    void survivesAMove()
    {
        PpdDocument first = opened(minimal());
        PpdDocument second = opened(header + pageSizes() + option("Red", {"1"}));
        first = std::move(second);
        QCOMPARE(first.markedChoice(u"Red"_s), u"1"_s);
    }
};

CORVEL_TEST(PpdDocumentTest)
#include "PpdDocumentTest.moc"
