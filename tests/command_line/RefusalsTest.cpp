// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramRun.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString samplePhoto = QStringLiteral(CORVEL_SAMPLE_PHOTO);

} // namespace

/// What corvel-print refuses: with the right status, one line that names the thing, and nothing printed.
class RefusalsTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_->filePath(name); }
    void verifyRefusal(const ProgramRun &run, int status, const QStringList &words) const;

    std::unique_ptr<QTemporaryDir> folder_;

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }
    void wrongUsage_data();
    void wrongUsage();
    void choice_data();
    void choice();
    void photo_data();
    void photo();
    void libraryThatComplains();
    void ppd_data();
    void ppd();
    void plugin_data();
    void plugin();
    void panelsThatAreNotInstalledAreNoLoss();
    void missingFormPrintsAllTheSame();
    void noDisplay();
    void place_data();
    void place();
    void fileThatGrowsTooLarge();
    void picture_data();
    void picture();
};

void RefusalsTest::verifyRefusal(const ProgramRun &run, int status, const QStringList &words) const
{
    const QByteArray wrong = wrongInRefusal(run, status, words);
    QVERIFY2(wrong.isEmpty(), wrong.constData());
    QVERIFY(!QFile::exists(pathOf(u"out"_s)));
}

void RefusalsTest::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("word");
    const auto row = [](const char *name, const QStringList &arguments, const QString &word) {
        QTest::newRow(name) << arguments << word;
    };
    row("unknown option", {u"--bacth"_s, samplePhoto}, u"bacth"_s);
    row("value missing", {samplePhoto, u"--printer"_s}, u"printer"_s);
    row("value empty", {u"--batch"_s, u"--ppd="_s, samplePhoto}, u"--ppd"_s);
    row("value for a flag", {u"--batch=yes"_s, samplePhoto}, u"batch"_s);
    row("unknown scaling", {u"--batch"_s, u"--scaling=big"_s, samplePhoto}, u"fit, fill or actual"_s);
    row("crop of one number", {u"--batch"_s, u"--scaling=fill"_s, u"--crop=50"_s, samplePhoto}, u"\"50\""_s);
    row("crop outside", {u"--batch"_s, u"--scaling=fill"_s, u"--crop=50,101"_s, samplePhoto}, u"101"_s);
    row("crop of no number", {u"--batch"_s, u"--scaling=fill"_s, u"--crop=nan,5"_s, samplePhoto}, u"nan"_s);
    row("crop without need", {u"--batch"_s, u"--crop=50,50"_s, samplePhoto}, u"--scaling"_s);
    row("choice without =", {u"--batch"_s, u"-o"_s, u"Red"_s, samplePhoto}, u"KEY=CHOICE"_s);
    row("choice without keyword", {u"--batch"_s, u"-o"_s, u"=12"_s, samplePhoto}, u"KEY=CHOICE"_s);
    row("mode", {u"--batch"_s, u"--mode"_s, u"strict"_s, samplePhoto}, u"strict"_s);
    row("mode with escapes", {u"--batch"_s, u"--mode"_s, u"\x1b[31m\nx"_s, samplePhoto}, u"[31m x"_s);
    row("no photo", {u"--batch"_s, u"-o"_s, u"Red=12"_s}, u"photo"_s);
    row("PPD and queue", {u"--batch"_s, u"--ppd"_s, u"a.ppd"_s, u"--printer"_s, u"office"_s, samplePhoto},
        u"office"_s);
    row("printing and listing", {u"--batch"_s, u"--list-printers"_s, samplePhoto}, u"--list-printers"_s);
    row("printing and pictures", {u"--batch"_s, u"--screenshot"_s, u"d"_s, samplePhoto}, u"--screenshot"_s);
    row("two lists", {u"--list-options"_s, u"--list-printers"_s}, u"--list-options"_s);
    row("JSON of nothing", {u"--json"_s, samplePhoto}, u"--json"_s);
    row("dry run of nothing", {u"--dry-run"_s}, u"--dry-run"_s);
    row("dry run of a list", {u"--dry-run"_s, u"--list-printers"_s, samplePhoto}, u"--dry-run"_s);
    row("waiting for nothing", {u"--wait"_s, u"5"_s, samplePhoto}, u"--wait"_s);
    row("waiting for no time", {u"--batch"_s, u"--wait"_s, u"-1"_s, samplePhoto}, u"\"-1\""_s);
    row("waiting without a number", {u"--batch"_s, u"--wait"_s, u"1h"_s, samplePhoto}, u"\"1h\""_s);
    row("copies of nothing", {u"--batch"_s, u"-n"_s, u"0"_s, samplePhoto}, u"1 to 999"_s);
    row("copies without a number", {u"--batch"_s, u"--copies=two"_s, samplePhoto}, u"\"two\""_s);
    row("photo of another computer", {u"--batch"_s, u"file://server/a.jpg"_s}, u"file://server/a.jpg"_s);
    row("photo with NUL in its name", {u"--batch"_s, u"file:///tmp/a.jpg%00b"_s}, u"a.jpg%00b"_s);
    row("overwriting without --batch", {u"--overwrite"_s, samplePhoto}, u"--overwrite"_s);
    row("no check of nothing", {u"--no-check"_s, samplePhoto}, u"--no-check"_s);
    row("server without a name", {u"--server"_s, u":631"_s, samplePhoto}, u"\":631\""_s);
    row("server with a bad port", {u"--server"_s, u"host:99999"_s, samplePhoto}, u"host:99999"_s);
    row("server with more in it", {u"--server"_s, u"host/ipp print"_s, samplePhoto}, u"HOST:PORT"_s);
    row("JSON of printing", {u"--json"_s, u"--summary"_s, u"--batch"_s, samplePhoto}, u"--json"_s);
}

void RefusalsTest::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, word);
    verifyRefusal(runProgram(arguments, {}, folder_->path()), 2, {word, u"corvel-print --help"_s});
    QVERIFY(QDir(folder_->path()).isEmpty());
}

void RefusalsTest::choice_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("settingsToo");
    const auto row = [](const char *name, const QStringList &options, const QStringList &words,
                        bool settingsToo = true) {
        QTest::newRow(name) << options << words << settingsToo;
    };
    row("out of range", {u"Red=99"_s}, {u"\"Red\""_s, u"\"99\""_s, u"-25 to 25"_s});
    row("unknown option", {u"Nope=1"_s}, {u"\"Nope\""_s});
    row("other letter case", {u"red=1"_s}, {u"\"red\""_s});
    row("unknown choice", {u"Overcoat=Silk"_s}, {u"Overcoat"_s, u"Silk"_s, u"Glossy, Matte"_s});
    row("conflict", {u"Overcoat=Matte"_s}, {u"Overcoat"_s, u"Matte"_s, u"Quality"_s});
    row("resolved too late", {u"Overcoat=Matte"_s, u"Quality=Fine"_s}, {u"Overcoat"_s, u"Quality"_s}, false);
    row("beginning of a number", {u"Red=-"_s}, {u"Red"_s, u"-25 to 25"_s});
    row("nothing", {u"Red="_s}, {u"Red"_s, u"-25 to 25"_s});
    row("more than a number", {u"Red=12x"_s}, {u"Red"_s, u"12x"_s});
    row("only the second is wrong", {u"Red=12"_s, u"Gamma=26"_s}, {u"Gamma"_s});
    row("escapes in a choice", {u"Red=\x1b[31m\n12"_s}, {u"Red"_s});
    row("escapes in a keyword", {u"R\x1b[31m\ned=12"_s}, {u"R"_s});
    row("no page size left", {u"PageRegion=4x6"_s}, {u"PageSize"_s});
}

void RefusalsTest::choice()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, words);
    QFETCH(bool, settingsToo);
    for (const QString &mode :
         settingsToo ? QStringList{u"constraint"_s, u"settings"_s} : QStringList{u"constraint"_s}) {
        QStringList arguments{u"--batch"_s, u"--mode"_s, mode, u"--output"_s, pathOf(u"out"_s), samplePhoto};
        for (const QString &option : options)
            arguments += {u"-o"_s, option};
        verifyRefusal(runProgram(arguments), 1, words);
    }
}

void RefusalsTest::photo_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<std::optional<QByteArray>>("content"); // nothing: there is no such file
    const auto row = [](const char *test, const QString &name, const std::optional<QByteArray> &content) {
        QTest::newRow(test) << name << content;
    };
    row("missing", u"gone.jpg"_s, std::nullopt);
    row("missing, escapes in its name", u"a\x1b[31m\nb.jpg"_s, std::nullopt);
    row("empty", u"bad.jpg"_s, QByteArray());
    row("cut off", u"bad.jpg"_s, contentOf(samplePhoto).chopped(contentOf(samplePhoto).size() / 2));
    row("text", u"bad.jpg"_s, "This is no photo.\n");
    row("zeros", u"bad.jpg"_s, QByteArray(100000, '\0'));
    row("text, escapes in its name", u"a\x1b[31m\nb.jpg"_s, "This is no photo.\n");
}

// The photo before it is not printed either.
void RefusalsTest::photo()
{
    QFETCH(QString, name);
    QFETCH(std::optional<QByteArray>, content);
    QVERIFY(!content || store(pathOf(name), *content));
    const ProgramRun run =
        runProgram({u"--batch"_s, u"--output"_s, pathOf(u"out"_s), samplePhoto, pathOf(name)});
    verifyRefusal(run, 1, {name.right(5)});
}

// libtiff writes to standard error by itself. Where nothing reads TIFF, that is the one line.
void RefusalsTest::libraryThatComplains()
{
    const auto entry = [](quint16 tag, quint16 value) {
        const QByteArray count("\1\0\0\0", 4);
        const auto bytes = [](quint16 word) {
            return QByteArray(1, char(word & 0xff)) + char(word >> 8);
        };
        return bytes(tag) + bytes(3) + count + bytes(value) + QByteArray(2, '\0');
    };
    // 64 x 64 grey pixels, compressed with LZW into bytes that are no codes.
    const QByteArray tiff = QByteArray("II*\0\x08\0\0\0\x09\0", 10) + entry(256, 64) + entry(257, 64) +
                            entry(258, 8) + entry(259, 5) + entry(262, 1) + entry(273, 122) + entry(277, 1) +
                            entry(278, 64) + entry(279, 500) + QByteArray(4, '\0') + QByteArray(500, '\x77');
    QVERIFY(store(pathOf(u"bad.tiff"_s), tiff));
    verifyRefusal(runProgram({u"--batch"_s, u"--output"_s, pathOf(u"out"_s), pathOf(u"bad.tiff"_s)}), 1,
                  {u"bad.tiff"_s});
}

void RefusalsTest::ppd_data()
{
    QTest::addColumn<std::optional<QByteArray>>("content");
    const QByteArray good = contentOf(QStringLiteral(CORVEL_PPD));
    QTest::newRow("missing") << std::optional<QByteArray>();
    QTest::newRow("binary") << std::optional(QByteArray::fromHex("7f454c46020101000000").repeated(500));
    QTest::newRow("cut off") << std::optional(good.left(good.size() / 2));
}

void RefusalsTest::ppd()
{
    QFETCH(std::optional<QByteArray>, content);
    const QString path = pathOf(u"bad.ppd"_s);
    QVERIFY(!content || store(path, *content));
    verifyRefusal(runProgram({u"--batch"_s, u"--ppd"_s, path, u"--output"_s, pathOf(u"out"_s), samplePhoto}),
                  1, {u"bad.ppd"_s});
    verifyRefusal(runProgram({u"--list-options"_s, u"--ppd"_s, path}), 1, {u"bad.ppd"_s});
}

void RefusalsTest::plugin_data()
{
    QTest::addColumn<QString>("script"); // run beside a copy of the bundle
    QTest::addColumn<QString>("word");
    QTest::newRow("wrong identifier")
        << u"sed -i s/org.corvel.printing/org.example/ Corvel9031.bundle/Contents/Info.json"_s
        << u"org.example.Corvel9031"_s;
    QTest::newRow("broken information")
        << u"echo '{ \"CFBundle' > Corvel9031.bundle/Contents/Info.json"_s << u"Info.json"_s;
    QTest::newRow("no information") << u"rm Corvel9031.bundle/Contents/Info.json"_s << u"Info.json"_s;
    QTest::newRow("no module") << u"rm Corvel9031.bundle/Contents/Linux/*.so"_s << u"module"_s;
    QTest::newRow("broken module") << u"echo x > Corvel9031.bundle/Contents/Linux/Corvel9031PDE.so"_s
                                   << u"plug-in"_s;
}

// The options could not go through its panels.
void RefusalsTest::plugin()
{
    QFETCH(QString, script);
    QFETCH(QString, word);
    const QString copy = u"cd \"$0\" && cp -r \"$CORVEL_PDE_PATH/Corvel9031.bundle\" . && "_s;
    QCOMPARE(QProcess::execute(u"/bin/sh"_s, {u"-c"_s, copy + script, folder_->path()}), 0);
    const QMap<QString, QString> environment{{u"CORVEL_PDE_PATH"_s, folder_->path()}};
    const QStringList words{u"Corvel9031.bundle"_s, word};
    verifyRefusal(runProgram({u"--batch"_s, u"--output"_s, pathOf(u"out"_s), samplePhoto}, environment), 1,
                  words);
    verifyRefusal(runProgram({u"--list-options"_s}, environment), 1, words);
}

// Nor are the extensions of other systems' dialogs, which a PPD may name as well.
void RefusalsTest::panelsThatAreNotInstalledAreNoLoss()
{
    const QMap<QString, QString> nowhere{{u"CORVEL_PDE_PATH"_s, folder_->path()}};
    const ProgramRun own = runProgram(
        {u"--batch"_s, u"-o"_s, u"Red=12"_s, u"--output"_s, pathOf(u"out"_s), samplePhoto}, nowhere);
    QCOMPARE(own.status, 0);
    QCOMPARE(wrongInRefusal({1, {}, own.err}, 1, {u"Corvel9031.bundle"_s, u"not installed"_s}), QByteArray());
    QCOMPARE(ticketEntries(pathOf(u"out/sample.ticket.json"_s)).value(u"Red"_s), u"12"_s);

    const QByteArray other = "*APDialogExtension: \"/Library/Printers/Maker/PDEs/Photo.plugin\"\n";
    QVERIFY(store(
        pathOf(u"other.ppd"_s),
        contentOf(QStringLiteral(CORVEL_PPD)).replace("*APDialogExtension", other + "*APDialogExtension")));
    const ProgramRun both = runProgram({u"--list-options"_s, u"--ppd"_s, pathOf(u"other.ppd"_s)});
    QCOMPARE(both.err, QByteArray());
    QVERIFY2(both.out.contains("Color Adjustments"), both.out.constData());
}

// It is missed only where it is shown.
void RefusalsTest::missingFormPrintsAllTheSame()
{
    const QString script = u"cd \"$0\" && cp -r \"$CORVEL_PDE_PATH/Corvel9031.bundle\" . && "
                           "rm Corvel9031.bundle/Contents/Resources/*.ui"_s;
    QCOMPARE(QProcess::execute(u"/bin/sh"_s, {u"-c"_s, script, folder_->path()}), 0);
    const ProgramRun run =
        runProgram({u"--batch"_s, u"-o"_s, u"Red=12"_s, u"--output"_s, pathOf(u"out"_s), samplePhoto},
                   {{u"CORVEL_PDE_PATH"_s, folder_->path()}});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(ticketEntries(pathOf(u"out/sample.ticket.json"_s)).value(u"Red"_s), u"12"_s);
}

// Neither a crash nor Qt's advice to install the program again.
void RefusalsTest::noDisplay()
{
    const QString without = u"env -u QT_QPA_PLATFORM -u DISPLAY -u WAYLAND_DISPLAY -u XDG_RUNTIME_DIR "_s;
    for (const QString &variables : {QString(), u"DISPLAY= "_s, u"WAYLAND_DISPLAY=wayland-9 "_s})
        verifyRefusal(runInShell(without + variables + u"\"$@\""_s, {samplePhoto}), 1,
                      {u"no display"_s, u"--batch"_s});
    verifyRefusal(runInShell(without + u"DISPLAY=:987 LANG=C.UTF-8 LANGUAGE=de \"$@\""_s, {samplePhoto}), 1,
                  {u"\u201e:987\u201c"_s, u"--batch"_s});
    verifyRefusal(runProgram({samplePhoto}, {{u"QT_QPA_PLATFORM"_s, u"nonesuch"_s}}), 1,
                  {u"cannot start"_s, u"\"nonesuch\""_s});
    verifyRefusal(runProgram({u"--ppd"_s, u"/nonexistent.ppd"_s}, {{u"QT_QPA_PLATFORM"_s, u"offscreen"_s}}),
                  1, {u"/nonexistent.ppd"_s});
    // A window that nobody can see waits for ever.
    const ProgramRun unseen = runInShell(
        u"cd '%1' && mkfifo err && { QT_QPA_PLATFORM=offscreen \"$@\" 2>err & head -n 1 err; kill $!; }"_s
            .arg(folder_->path()),
        {samplePhoto});
    QVERIFY2(unseen.out.contains("QT_QPA_PLATFORM") && unseen.out.contains("--batch"),
             unseen.out.constData());
}

void RefusalsTest::place_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("word");
    QTest::newRow("output is a file") << QStringList{u"--output"_s, samplePhoto} << u"sample.jpg"_s;
    QTest::newRow("output cannot be made")
        << QStringList{u"--output"_s, u"/proc/prints"_s} << u"/proc/prints"_s;
    QTest::newRow("photo named like an option of Qt")
        << QStringList{u"--"_s, u"-platform"_s, u"x"_s} << u"no photo \"-platform\""_s;
    QTest::newRow("unknown queue") << QStringList{u"--printer"_s, u"no\x1bwhere"_s} << u"\"nowhere\""_s;
}

void RefusalsTest::place()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, word);
    verifyRefusal(runProgram(QStringList{u"--batch"_s, samplePhoto} + arguments, {}, folder_->path()), 1,
                  {word});
}

// The system's signal for it would end the program. The smallest limit holds for the PPD, too, which libcups
// reads.
void RefusalsTest::fileThatGrowsTooLarge()
{
    const QStringList arguments{u"--batch"_s, u"--output"_s, pathOf(u"out"_s), samplePhoto};
    verifyRefusal(runInShell(u"ulimit -f 100 && exec \"$@\""_s, arguments), 1,
                  {u"sample.pdf"_s, u"ulimit -f"_s});
    verifyRefusal(runInShell(u"ulimit -f 0 && exec \"$@\""_s, arguments), 1, {});
}

void RefusalsTest::picture_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("word");
    QTest::newRow("photo") << QStringList{u"gone.jpg"_s} << u"gone.jpg"_s;
    QTest::newRow("choice") << QStringList{u"-o"_s, u"Red=99"_s} << u"\"Red\""_s;
    QTest::newRow("PPD") << QStringList{u"--ppd"_s, samplePhoto} << u"sample.jpg"_s;
    QTest::newRow("queue") << QStringList{u"--printer"_s, u"nowhere"_s} << u"\"nowhere\""_s;
    QTest::newRow("folder") << QStringList{u"--screenshot"_s, u"/proc/pictures"_s} << u"/proc/pictures"_s;
}

void RefusalsTest::picture()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, word);
    verifyRefusal(runProgram(QStringList{u"--screenshot"_s, pathOf(u"out"_s)} + arguments), 1, {word});
}

CORVEL_TEST(RefusalsTest)
#include "RefusalsTest.moc"
