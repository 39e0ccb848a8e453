// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramRun.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString samplePhoto = QStringLiteral(CORVEL_SAMPLE_PHOTO);

QStringList optionArguments(const QStringList &options)
{
    QStringList arguments;
    for (const QString &option : options)
        arguments += {u"-o"_s, option};
    return arguments;
}

/// --list-options --json, by keyword.
QMap<QString, QJsonObject> listedOptions(const QStringList &arguments)
{
    QMap<QString, QJsonObject> options;
    for (const auto &value :
         runProgram(arguments + QStringList{u"--list-options"_s, u"--json"_s}).json().array())
        options.insert(value[u"keyword"].toString(), value.toObject());
    return options;
}

} // namespace

/// What corvel-print prints and lists, without a print server.
class CommandLineTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_->filePath(name); }
    ProgramRun print(const QStringList &arguments) const
    {
        return runProgram(QStringList{u"--batch"_s, u"--output"_s, pathOf(u"out"_s)} + arguments);
    }

    std::unique_ptr<QTemporaryDir> folder_;

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }
    void printsThePhotoWithItsTicket();
    void takesChoicesInAnySpelling_data();
    void takesChoicesInAnySpelling();
    void replacesNoFileOfOthers();
    void namesWhatWasPrintedBeforeAFailure();
    void leavesDamagedPhotosOut();
    void listsOptions();
    void showsTheSummary();
    void takesPicturesOfTheDialog();
    void helpAndVersionGoToStandardOutput();
    void keepsControlCharactersFromTheTerminal();
    void hearsOfItsHelpersEnd();
    void failsWhenItsOutputCannotBeWritten();
};

void CommandLineTest::printsThePhotoWithItsTicket()
{
    for (const QString &mode : {u"constraint"_s, u"settings"_s}) {
        QMap<QString, QString> expected{{u"PageSize"_s, u"4x6.Fullbleed"_s}};
        for (const QJsonObject &option : listedOptions({u"--mode"_s, mode})) {
            if (option[u"panel"_s].isString())
                expected.insert(option[u"keyword"_s].toString(), option[u"default"_s].toString());
        }
        QVERIFY(expected.contains(u"Red"_s) && expected.contains(u"Gamma"_s) &&
                expected.contains(u"Contrast"_s));
        expected.insert({{u"Red"_s, u"12"_s}, {u"Gamma"_s, u"-3"_s}});

        const ProgramRun run =
            print({u"--overwrite"_s, u"--mode"_s, mode, u"-d"_s, u"built-in"_s, u"-n"_s, u"3"_s, u"-o"_s,
                   u"Red=12"_s, u"--option"_s, u"Gamma=-3"_s, QUrl::fromLocalFile(samplePhoto).toString()});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        const QString pdf = pathOf(u"out/sample.pdf"_s);
        QCOMPARE(QString::fromUtf8(run.out), u"Printed sample.jpg: %1\n"_s.arg(pdf));
        const QString ticket = pathOf(u"out/sample.ticket.json"_s);
        QCOMPARE(ticketEntries(ticket), expected);
        QCOMPARE(ticketEntries(ticket, u"summary"_s).value(u"Red"_s), u"12"_s);
        QCOMPARE(ticketEntries(ticket, u"summary"_s).size(), expected.size() - 1); // what the panels say
        const QJsonDocument json = QJsonDocument::fromJson(contentOf(ticket));
        QCOMPARE(json[u"printer"].toString(), u"built-in"_s);
        QCOMPARE(json[u"document"].toString(), samplePhoto);
        QCOMPARE(json[u"copies"].toInt(), 3);
        QVERIFY(contentOf(pdf).contains(contentOf(samplePhoto)));
    }
}

void CommandLineTest::takesChoicesInAnySpelling_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("choice");
    QTest::newRow("plus sign") << QStringList{u"Red=+12"_s} << u"Red"_s << u"12"_s;
    QTest::newRow("leading zero") << QStringList{u"Red=012"_s} << u"Red"_s << u"12"_s;
    QTest::newRow("fewer decimals") << QStringList{u"SharpnessIntensity=1.5"_s} << u"SharpnessIntensity"_s
                                    << u"1.50"_s;
    QTest::newRow("last one counts") << QStringList{u"Red=1"_s, u"Red=2"_s} << u"Red"_s << u"2"_s;
    QTest::newRow("option of no panel")
        << QStringList{u"Resolution=300x600dpi"_s} << u"Resolution"_s << u"300x600dpi"_s;
    QTest::newRow("page size") << QStringList{u"PageSize=5x7"_s} << u"PageSize"_s << u"5x7"_s;
    QTest::newRow("conflict resolved before")
        << QStringList{u"Quality=Fine"_s, u"Overcoat=Matte"_s} << u"Overcoat"_s << u"Matte"_s;
}

void CommandLineTest::takesChoicesInAnySpelling()
{
    QFETCH(QStringList, options);
    QFETCH(QString, key);
    QFETCH(QString, choice);
    for (const QString &mode : {u"constraint"_s, u"settings"_s}) {
        const ProgramRun run =
            print(QStringList{u"--mode"_s, mode, u"--overwrite"_s, samplePhoto} + optionArguments(options));
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(ticketEntries(pathOf(u"out/sample.ticket.json"_s)).value(key), choice);
        QVERIFY(QFile::remove(pathOf(u"out/sample.ticket.json"_s)));
    }
}

// The photo is a JPEG file whose name is that of its page.
void CommandLineTest::replacesNoFileOfOthers()
{
    const QString photo = pathOf(u"out/sample.pdf"_s);
    QVERIFY(QDir(folder_->path()).mkdir(u"out"_s) && QFile::copy(samplePhoto, photo));
    for (const auto &[options, name] : {std::pair(QStringList(), u"sample-2"_s),
                                        {QStringList(u"--dry-run"_s), u"sample-3"_s},
                                        {QStringList(u"--overwrite"_s), u"sample-2"_s},
                                        {QStringList(), u"sample-3"_s}}) {
        const ProgramRun run = print(options + QStringList(photo));
        QCOMPARE(run.err, QByteArray());
        QVERIFY2(run.out.contains('/' + name.toUtf8() + ".pdf"), run.out.constData());
        QVERIFY(contentOf(photo) == contentOf(samplePhoto));
    }
    QCOMPARE(QDir(pathOf(u"out"_s)).entryList(QDir::Files),
             QStringList({u"sample-2.pdf"_s, u"sample-2.ticket.json"_s, u"sample-3.pdf"_s,
                          u"sample-3.ticket.json"_s, u"sample.pdf"_s}));
}

void CommandLineTest::namesWhatWasPrintedBeforeAFailure()
{
    QVERIFY(QFile::copy(samplePhoto, pathOf(u"second.jpg"_s)));
    QVERIFY(QDir(folder_->path()).mkpath(u"out/second.pdf"_s));
    const ProgramRun run = print({u"--overwrite"_s, samplePhoto, pathOf(u"second.jpg"_s), samplePhoto});
    QCOMPARE(run.out.count('\n'), 1);
    const QByteArray wrong = wrongInRefusal({run.status, {}, run.err}, 1, {u"second.pdf"_s, u"sample.jpg"_s});
    QVERIFY2(wrong.isEmpty(), wrong.constData());
    QCOMPARE(QDir(pathOf(u"out"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({u"sample.pdf"_s, u"sample.ticket.json"_s, u"second.pdf"_s}));
}

// Each with a line of its own; with --no-check they are printed as they are.
void CommandLineTest::leavesDamagedPhotosOut()
{
    QByteArray jpeg = contentOf(samplePhoto);
    jpeg.replace(jpeg.size() / 2, 4096, QByteArray(4096, '\0'));
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(store(pathOf(u"damaged.jpg"_s), jpeg) && picture.save(pathOf(u"damaged.png"_s)));
    QByteArray png = contentOf(pathOf(u"damaged.png"_s));
    png[png.indexOf("IDAT") + 10] ^= 1;
    QVERIFY(store(pathOf(u"damaged.png"_s), png));
    const QStringList photos{pathOf(u"damaged.jpg"_s), pathOf(u"damaged.png"_s), samplePhoto};
    const ProgramRun run = print(photos);
    QCOMPARE(run.status, 1);
    QCOMPARE(run.out.count('\n'), 1);
    const QList<QByteArray> lines = run.err.split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(0).contains("damaged.jpg") && lines.at(1).contains("damaged.png"), run.err.constData());
    QCOMPARE(QDir(pathOf(u"out"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({u"sample.pdf"_s, u"sample.ticket.json"_s}));

    const ProgramRun plan = runProgram(QStringList{u"--dry-run"_s, u"--json"_s} + photos);
    QCOMPARE(plan.status, 1);
    QCOMPARE(plan.err, run.err);
    QCOMPARE(plan.json().array().size(), 1);

    const ProgramRun unchecked = print({u"--no-check"_s, photos.constFirst()});
    QCOMPARE(unchecked.err, QByteArray());
    QVERIFY(QFile::exists(pathOf(u"out/damaged.pdf"_s)));
}

void CommandLineTest::listsOptions()
{
    const auto options = listedOptions({u"-o"_s, u"Red=7"_s, u"--mode"_s, u"settings"_s});
    const QJsonObject red = options[u"Red"_s];
    QCOMPARE(red[u"choice"_s].toString(), u"7"_s);
    QCOMPARE(red[u"default"_s].toString(), u"0"_s);
    QCOMPARE(red[u"panel"_s].toString(), u"Color Adjustments"_s);
    QCOMPARE(red[u"choices"_s].toArray().size(), 51);
    QCOMPARE(options[u"Overcoat"_s][u"choices"_s].toArray().at(1),
             QJsonValue(QJsonObject{{u"keyword"_s, u"Matte"_s}, {u"text"_s, u"Matte"_s}}));
    QVERIFY(options[u"PageSize"_s][u"panel"_s].isNull());

    const ProgramRun text = runProgram({u"--list-options"_s});
    QCOMPARE(text.status, 0);
    QCOMPARE(text.out.count('\n'), options.size() + 1);
    QVERIFY(text.out.contains("-25 to 25\n") && text.out.contains("  Standard, Fine\n"));
}

void CommandLineTest::showsTheSummary()
{
    const QStringList choice{u"-o"_s, u"Red=7"_s};
    const QStringList fill{u"--scaling"_s, u"fill"_s, u"--summary"_s};
    const QByteArray summary = runProgram(choice + fill).out;
    QVERIFY2(summary.startsWith("Paper size: 4 x 6 in, borderless\nCopies: 1\nPlacement: Fill the page\n"
                                "Brightness: 0\n") &&
                 summary.contains("\nRed: 7\n"),
             summary.constData());
    const ProgramRun json = runProgram(choice + fill + QStringList{u"--json"_s});
    QCOMPARE(json.json()[u"Red"].toString(), u"7"_s);
    QCOMPARE(json.json()[u"Copies"].toString(), u"1"_s);
    QVERIFY(print(choice + QStringList{u"--summary"_s, samplePhoto}).out.contains("\nRed: 7\n"));
}

void CommandLineTest::takesPicturesOfTheDialog()
{
    const auto picture = [this](const QString &folder, const QString &page) {
        return QImage(pathOf(u"%1/%2.png"_s.arg(folder, page)));
    };
    const QStringList options = optionArguments({u"Red=7"_s, u"Quality=Fine"_s});
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

void CommandLineTest::helpAndVersionGoToStandardOutput()
{
    const ProgramRun help = runProgram({u"--help"_s});
    QCOMPARE(help.status, 0);
    for (const char *part : {"--printer QUEUE", "--ppd FILE", "--mode constraint|settings",
                             "-o, --option KEY=CHOICE", "--output DIR", "--batch", "--list-printers",
                             "--list-options", "--summary", "--json", "--screenshot DIR", "--version"})
        QVERIFY2(help.out.contains(part), part);
    QVERIFY(runProgram({u"--version"_s}).out.startsWith("corvel-print "));
}

void CommandLineTest::keepsControlCharactersFromTheTerminal()
{
    const QString name = u"a\x1b[31m\nb\tc\u009b.jpg"_s;
    QVERIFY(QFile::copy(samplePhoto, pathOf(name)));
    const ProgramRun run = print({pathOf(name)});
    QCOMPARE(run.status, 0);
    QVERIFY2(run.out.startsWith("Printed a[31m b c.jpg: ") && run.out.endsWith(".pdf\n"),
             run.out.constData());
    QCOMPARE(run.out.count('\n'), 1);
    QVERIFY(!run.out.contains('\x1b') && !run.out.contains("\xc2\x9b"));

    QByteArray ppd = contentOf(QStringLiteral(CORVEL_PPD));
    ppd.replace("*OpenUI *Quality/Print Quality", "*OpenUI *Quality/Print\xc2\x9b[31m Quality");
    QVERIFY(store(pathOf(u"odd.ppd"_s), ppd));
    for (const QStringList &more : {QStringList(), QStringList{u"--json"_s}}) {
        const ProgramRun list =
            runProgram(QStringList{u"--ppd"_s, pathOf(u"odd.ppd"_s), u"--list-options"_s} + more);
        QVERIFY(list.out.contains("Print") && !list.out.contains("\xc2\x9b"));
    }
}

// Also when whoever starts the program has the ends of child processes ignored.
void CommandLineTest::hearsOfItsHelpersEnd()
{
    const ProgramRun run = runInShell(u"env --ignore-signal=CHLD \"$@\""_s,
                                      {u"--ppd"_s, QStringLiteral(CORVEL_PPD), u"--list-options"_s});
    QVERIFY2(run.status == 0, run.err.constData());
}

// No file may take the number of a closed stream either: the line would end up in the photo.
void CommandLineTest::failsWhenItsOutputCannotBeWritten()
{
    for (const QString &streams : {u"> /dev/full"_s, u">&-"_s, u"<&- >&-"_s}) {
        const ProgramRun run =
            runInShell(u"\"$@\" "_s + streams,
                       {u"--batch"_s, u"--overwrite"_s, u"--output"_s, pathOf(u"out"_s), samplePhoto});
        const QByteArray wrong = wrongInRefusal(run, 1, {u"Standard output"_s});
        QVERIFY2(wrong.isEmpty(), wrong.constData());
        QVERIFY(contentOf(pathOf(u"out/sample.pdf"_s)).startsWith("%PDF-"));
    }
    QCOMPARE(runInShell(u"\"$@\" --list-options > /dev/full"_s, {}).status, 1);
    const ProgramRun unread = runInShell(u"{ sleep 0.1; \"$@\" --help; echo $? >&2; } | true"_s, {});
    QVERIFY2(unread.err.contains("Standard output") && unread.err.endsWith("\n1\n"), unread.err.constData());
}

CORVEL_TEST(CommandLineTest)
#include "CommandLineTest.moc"
