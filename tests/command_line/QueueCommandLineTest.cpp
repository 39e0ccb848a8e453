// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrivateCupsd.h"
#include "ProgramRun.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColorSpace>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <cups/cups.h>

#include <algorithm>
#include <csignal>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

/// The backend's fifth argument without what the scheduler adds to every job, sorted.
QByteArrayList optionsIn(const RecordedJob &job)
{
    QByteArrayList options = job.options.split(' ');
    options.removeIf([](const QByteArray &option) {
        return option.startsWith("job-") || option.contains("time-at-") || option.startsWith("document-");
    });
    std::sort(options.begin(), options.end());
    return options;
}

int jobIn(const ProgramRun &run)
{
    return run.out.trimmed().split(' ').constLast().toInt();
}

} // namespace

/// corvel-print with a real print server.
class QueueCommandLineTest : public QObject
{
    Q_OBJECT

private:
    /// Of the shape of the sheet, so that nothing has to be placed.
    QString uprightPhoto() const { return home_.filePath(u"upright.jpg"_s); }

    QTemporaryDir home_;
    PrivateCupsd cupsd_;

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : {"LPDEST", "PRINTER"})
            qunsetenv(name);
        qputenv("HOME", home_.path().toUtf8());
        const QString trouble = cupsd_.start(PrivateCupsd::Reach::Network);
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        const QByteArray ppd = contentOf(QStringLiteral(CORVEL_PPD));
        QVERIFY(cupsd_.addQueue(u"photo"_s, ppd, {u"-D"_s, u"Photo corner"_s}));
        QVERIFY(cupsd_.addQueue(u"closed"_s, ppd));
        QVERIFY(cupsd_.run(u"cupsreject"_s, {u"closed"_s}));
        QVERIFY(cupsd_.addQueue(u"raw"_s));
        QVERIFY(cupsd_.addQueue(u"odd"_s, ppd, {u"-v"_s, u"scripted:/"_s}));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"photo"_s, u"-c"_s, u"group"_s}));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-p"_s, u"group"_s, u"-E"_s}));
        QImage upright(600, 900, QImage::Format_RGB32);
        upright.fill(Qt::darkCyan);
        QImage wide = upright;
        wide.setColorSpace(QColorSpace::AdobeRgb);
        QImage named = upright;
        named.setColorSpace(QColorSpace::SRgb);
        QVERIFY(wide.save(home_.filePath(u"wide.jpg"_s)) && named.save(home_.filePath(u"named.jpg"_s)));
        QVERIFY(upright.save(uprightPhoto(), "JPEG") &&
                upright.save(home_.filePath(u"upright.webp"_s), "PNG"));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
    }

    void listsQueues()
    {
        const QByteArray text = runProgram({u"--list-printers"_s}).out;
        QVERIFY(text.startsWith("built-in\tBuilt-in printer (files)\tready\t\n"));
        QVERIFY(text.contains("\nphoto\tPhoto corner\tready\tdefault\n"));
        QVERIFY(text.contains("\nclosed\tclosed\trejects jobs\t\n"));
        QCOMPARE(runProgram({u"--list-printers"_s, u"--json"_s}).json().array().size(), 6);
    }

    // A queue without a PPD has them, too.
    void optionsOfTheJob()
    {
        const ProgramRun run =
            runProgram({u"--printer"_s, u"raw"_s, u"--batch"_s, u"--wait"_s, u"0"_s, u"-o"_s,
                        u"job-hold-until=indefinite"_s, u"-o"_s, u"job-sheets=none,form"_s, samplePhoto});
        QVERIFY2(run.status == 0 && run.err.isEmpty(), run.err.constData());
        QVERIFY(cupsd_.activeJobs().contains("raw-"));
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s}));
        const QJsonArray options =
            runProgram({u"--printer"_s, u"raw"_s, u"--list-options"_s, u"--json"_s}).json().array();
        QVERIFY(std::ranges::any_of(options, [](const QJsonValue &option) {
            return option[u"keyword"_s] == u"job-priority"_s && option[u"choice"_s] == u"50"_s;
        }));
        // Its title, in the plan and at the server.
        const QString title = u"Für Oma, \"10 x 15\""_s;
        for (const QString &queue : {u"raw"_s, u"photo"_s}) {
            const QStringList wanted = {u"--printer"_s, queue, u"--title"_s, title, samplePhoto};
            const QJsonValue plan =
                runProgram(wanted + QStringList{u"--dry-run"_s, u"--json"_s}).json().array().at(0);
            QCOMPARE(plan[u"title"_s], title);
            QVERIFY(!plan[u"options"_s].toObject().contains(u"job-name"_s));
            const ProgramRun titled = runProgram(wanted + QStringList{u"--batch"_s});
            QVERIFY2(titled.status == 0, titled.err.constData());
            QCOMPARE(cupsd_.job(jobIn(titled)).title, title.toUtf8());
        }
    }

    void refusesQueues_data()
    {
        const auto add = rows<QString, QString, QString>();
        add("unknown", u"nowhere"_s, u"Red=12"_s, u"does not exist"_s);
        add("unknown with a preset", u"nowhere/matte"_s, u"Red=12"_s, u"\"nowhere/matte\" does not exist"_s);
        add("unknown preset", u"photo/matte"_s, u"Red=12"_s,
            u"\"photo\" has no preset \"matte\". Its presets: \"My own\"."_s);
        add("unknown preset, and no other", u"odd/two sided"_s, u"Red=12"_s,
            u"\"odd\" has no preset \"two sided\", nor any other"_s);
        add("unknown preset of many", u"group/matte"_s, u"Red=12"_s,
            u"\"group\" has no preset \"matte\". Choose one of its 6 others"_s);
        add("unknown preset of the built-in printer", u"built-in/matte"_s, u"Red=12"_s,
            u"\"built-in\" has no preset \"matte\", nor any other"_s);
        add("without a PPD", u"raw"_s, u"Red=12"_s, u"PPD"_s);
        add("rejects jobs", u"closed"_s, u"Red=12"_s, u"does not accept"_s);
        add("choice", u"photo"_s, u"Red=99"_s, u"-25 to 25"_s);
    }

    void presetOfTheDefaultPrinter()
    {
        QVERIFY(QDir(home_.path()).mkpath(u".cups"_s) &&
                store(home_.filePath(u".cups/lpoptions"_s), "Dest photo/My%20own Red=7\n"));
        QVERIFY(cupsd_.run(u"lpadmin"_s, {u"-d"_s, u"photo"_s}));
        const QStringList wanted = {u"--preset"_s, u"My own"_s, u"--dry-run"_s, u"--json"_s, samplePhoto};
        for (const QString &own : {u"photo"_s, QString()}) { // the user's, the server's
            const ProgramRun run = runProgram(wanted, {{u"LPDEST"_s, own}}, home_.path());
            QVERIFY2(run.status == 0, run.err.constData());
            QCOMPARE(run.json().array().at(0)[u"options"_s][u"Red"_s], u"7"_s);
        }
        QVERIFY(QFile::remove(home_.filePath(u".cups/lpoptions"_s)));
    }

    void refusesQueues()
    {
        const auto [queue, option, word] = row<QString, QString, QString>();
        QByteArray presets = "Dest photo/My%20own Red=1\n";
        for (int i = 0; i < 6; ++i)
            presets += "Dest group/" + QByteArray::number(i) + " Red=1\n";
        QVERIFY(QDir(home_.path()).mkpath(u".cups"_s) &&
                store(home_.filePath(u".cups/lpoptions"_s), presets));
        const ProgramRun run =
            runProgram({u"--printer"_s, queue, u"--batch"_s, u"-o"_s, option, samplePhoto}, {}, home_.path());
        QVERIFY(QFile::remove(home_.filePath(u".cups/lpoptions"_s)));
        const QByteArray wrong = wrongInRefusal(run, 1, {word});
        QVERIFY2(wrong.isEmpty(), wrong.constData());
        QVERIFY2(cupsd_.activeJobs().isEmpty(), cupsd_.activeJobs().constData());
    }

    // In the spelling that CUPS reads, through the filters of an office printer.
    void customPage()
    {
        QByteArray ppd = contentOf(QStringLiteral(CORVEL_LASER_PPD));
        ppd.replace("*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n", {})
            .replace("*cupsFilter: \"image/jpeg 0 -\"\n*cupsFilter: \"application/pdf 0 -\"\n", {});
        QVERIFY(!ppd.contains("*cupsFilter:") && cupsd_.addQueue(u"office"_s, ppd));
        const ProgramRun run = runProgram({u"--printer"_s, u"office"_s, u"--batch"_s, u"-o"_s,
                                           u"PageSize=Custom.3.937inx15cm"_s, samplePhoto});
        QCOMPARE(run.status, 1); // two units
        const ProgramRun sent = runProgram(
            {u"--printer"_s, u"office"_s, u"--batch"_s, u"-o"_s, u"PageSize=Custom.10x15cm"_s, samplePhoto});
        QVERIFY2(sent.status == 0, sent.err.constData());
        QVERIFY(cupsd_.waitForJob(jobIn(sent)));
        const RecordedJob job = cupsd_.job(jobIn(sent));
        QVERIFY2(optionsIn(job).contains("PageSize=Custom.100x150mm"), job.options.constData());
        QVERIFY(job.document.startsWith("%!PS") && job.document.contains("*CustomPageSize True\n283.46"));
    }

    // As a filter reads them with libcups: several choices, values with spaces and quotes, and a PIN, which
    // the dry run does not show.
    void oddChoicesArrive()
    {
        QVERIFY(cupsd_.addQueue(u"laser"_s, contentOf(QStringLiteral(CORVEL_LASER_PPD))));
        const QMap<QByteArray, QByteArray> choices = {{"Finish", "Staple,Fold"},
                                                      {"Sharp", "Custom.2.5"},
                                                      {"Banner", "Custom.\"A, B\" = C\\D"},
                                                      {"Stamp", "{Label='Für uns' Angle=15}"},
                                                      {"JobCode", "Custom.4711"}};
        QStringList wanted = {u"--printer"_s, u"laser"_s, samplePhoto};
        for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
            wanted << u"-o"_s << QString::fromUtf8(choice.key() + '=' + *choice);
        const ProgramRun plan = runProgram(wanted + QStringList{u"--dry-run"_s});
        QVERIFY(plan.out.contains("Option: JobCode (not shown)") && !plan.out.contains("4711"));
        const ProgramRun sent = runProgram(wanted + QStringList{u"--batch"_s});
        QVERIFY2(sent.status == 0 && cupsd_.waitForJob(jobIn(sent)), sent.err.constData());
        cups_option_t *options = nullptr;
        const int count = cupsParseOptions(cupsd_.job(jobIn(sent)).options.constData(), 0, &options);
        for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
            QCOMPARE(QByteArray(cupsGetOption(choice.key().constData(), count, options)), *choice);
        QCOMPARE(QByteArray(cupsGetOption("Resolution", count, options)),
                 QByteArray("600dpi")); // behind them
        cupsFreeOptions(count, options);
    }

    void sendsWhatTheDryRunShows_data()
    {
        const auto add = rows<QString, QString, QStringList, QString>();
        const QStringList red = {u"-o"_s, u"Red=12"_s};
        const QStringList small = {u"-o"_s, u"PageSize=4x6"_s};
        add("default", QString(), samplePhoto, red, u"application/pdf"_s);
        add("placed", u"photo"_s, samplePhoto, red, u"application/pdf"_s);
        add("nothing to place", u"photo"_s, uprightPhoto(), red, u"image/jpeg"_s);
        add("class", u"group"_s, uprightPhoto(), red, u"image/jpeg"_s);
        add("with margins", u"photo"_s, uprightPhoto(), small, u"application/pdf"_s);
        add("colors of its own", u"photo"_s, home_.filePath(u"wide.jpg"_s), red, u"application/pdf"_s);
        add("colors named sRGB", u"photo"_s, home_.filePath(u"named.jpg"_s), red, u"image/jpeg"_s);
        add("no JPEG", u"photo"_s, home_.filePath(u"upright.webp"_s), red, u"application/pdf"_s);
        add("without a PPD", u"raw"_s, samplePhoto, QStringList(), u"image/jpeg"_s);
    }

    void sendsWhatTheDryRunShows()
    {
        const auto [queue, photo, options, format] = row<QString, QString, QStringList, QString>();
        QStringList arguments = QStringList(photo) + options;
        if (!queue.isEmpty())
            arguments += {u"--printer"_s, queue};
        const QString name = queue.isEmpty() ? u"photo"_s : queue;
        const QByteArray before = cupsd_.activeJobs();
        const ProgramRun dry = runProgram(arguments + QStringList{u"--dry-run"_s, u"--json"_s});
        QCOMPARE(dry.err, QByteArray());
        const QJsonObject plan = dry.json().array().at(0).toObject();
        QCOMPARE(plan[u"format"_s].toString(), format);
        QCOMPARE(plan[u"queue"_s].toString(), name);
        QCOMPARE(plan[u"server"_s].toString(), cupsd_.socketPath());
        QVERIFY(plan[u"uri"_s].toString().startsWith(u"ipp://"_s) &&
                plan[u"uri"_s].toString().endsWith(name));
        QCOMPARE(cupsd_.activeJobs(), before);

        const ProgramRun run = runProgram(arguments + QStringList{u"--batch"_s});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        const QString sent = u"Sent %1 to %2 as job "_s.arg(QFileInfo(photo).fileName(), name);
        QVERIFY2(run.out.startsWith(sent.toUtf8()), run.out.constData());
        QVERIFY(cupsd_.waitForJob(jobIn(run), 1)); // the run has followed it to its end
        const RecordedJob job = cupsd_.job(jobIn(run));
        const bool isUntouched = plan[u"untouched"_s].toBool();
        QCOMPARE(isUntouched, plan[u"format"_s].toString() == u"image/jpeg"_s);
        QCOMPARE(job.document.size(), plan[u"bytes"_s].toInteger());
        QCOMPARE(job.document == contentOf(photo), isUntouched);
        QVERIFY(isUntouched || job.document.contains(contentOf(photo)) || photo.endsWith(u".webp"_s));
        const QByteArray type = "CONTENT_TYPE=" + plan[u"format"_s].toString().toLatin1();
        QVERIFY2(job.environment.split('\n').contains(type), job.environment.constData());
        QCOMPARE(QString::fromUtf8(job.title), plan[u"title"_s].toString());
        QCOMPARE(job.copies.toInt(), plan[u"copies"_s].toInt());
        QByteArrayList planned;
        const QJsonObject choices = plan[u"options"_s].toObject();
        for (auto choice = choices.begin(); choice != choices.end(); ++choice)
            planned.append(choice.key().toUtf8() + '=' + choice->toString().toUtf8());
        std::sort(planned.begin(), planned.end());
        QCOMPARE(optionsIn(job).join(' '), planned.join(' '));
        QVERIFY(!options.contains(u"Red=12"_s) ||
                (planned.contains("Red=12") && planned.contains("Green=0")));

        const QByteArray text = runProgram(arguments + QStringList{u"--dry-run"_s}).out;
        for (const QByteArray &part : planned + QByteArrayList{QByteArray::number(job.document.size())})
            QVERIFY2(text.contains(": " + part + '\n'), part.constData());
    }

    // Neither as a PDF nor untouched.
    void sendsNoDamagedPhoto()
    {
        const QString path = home_.filePath(u"damaged.jpg"_s);
        const QByteArray jpeg = contentOf(samplePhoto);
        QVERIFY(store(path, QByteArray(jpeg).replace(jpeg.size() / 2, 4096, QByteArray(4096, '\0'))));
        for (const QString &queue : {u"photo"_s, u"raw"_s}) {
            const QStringList arguments{u"--batch"_s, u"--wait=0"_s, u"--printer"_s, queue, path};
            QTRY_COMPARE(cupsd_.activeJobs(), QByteArray());
            const QByteArray wrong = wrongInRefusal(runProgram(arguments), 1, {u"damaged.jpg"_s});
            QVERIFY2(wrong.isEmpty(), wrong.constData());
            QCOMPARE(cupsd_.activeJobs(), QByteArray());
            const ProgramRun unchecked = runProgram(arguments + QStringList{u"--no-check"_s});
            QVERIFY2(unchecked.out.startsWith("Sent damaged.jpg to "), unchecked.err.constData());
            QTRY_COMPARE(cupsd_.activeJobs(), QByteArray()); // nobody has followed it
        }
    }

    // A printer without a PPD places the photo itself.
    void previews()
    {
        const auto pictureOf = [this](const QString &queue, const QStringList &options) {
            const QString file = home_.filePath(u"page.png"_s);
            const ProgramRun run = runProgram(options + QStringList{u"--printer"_s, queue, u"--preview"_s,
                                                                    file, u"--overwrite"_s, uprightPhoto()});
            if (run.status == 0 && run.err.isEmpty())
                return contentOf(file);
            qWarning("%s", run.err.constData());
            return QByteArray();
        };
        const QStringList filled = {u"--scaling"_s,    u"fill"_s, u"-o"_s,
                                    u"PageSize=5x7"_s, u"-o"_s,   u"Red=9"_s};
        const QByteArray picture = pictureOf(u"photo"_s, filled);
        QVERIFY(!picture.isEmpty() && picture != pictureOf(u"photo"_s, {}));
        QCOMPARE(picture, pictureOf(u"built-in"_s, filled));
        const QByteArray raw = pictureOf(u"raw"_s, {});
        QVERIFY(!raw.isEmpty());
        QCOMPARE(pictureOf(u"raw"_s, {u"--scaling"_s, u"actual"_s, u"--crop"_s, u"0,0"_s}), raw);
    }

    void dryRunOfTheBuiltInPrinter()
    {
        const QStringList arguments = {u"--printer"_s,           u"built-in"_s, u"--output"_s,
                                       home_.filePath(u"out"_s), samplePhoto,   samplePhoto};
        const ProgramRun dry = runProgram(arguments + QStringList{u"--dry-run"_s, u"--json"_s});
        QVERIFY(!QDir(home_.filePath(u"out"_s)).exists());
        QCOMPARE(runProgram(arguments + QStringList{u"--batch"_s}).status, 0);
        const QJsonArray plans = dry.json().array();
        QCOMPARE(plans.size(), 2);
        for (const auto &plan : plans) {
            const QJsonArray files = plan[u"files"_s].toArray();
            QCOMPARE(files.size(), 2);
            for (const auto &file : files)
                QVERIFY2(QFile::exists(file.toString()), qPrintable(file.toString()));
        }
    }

    void asksTheServerNamed()
    {
        const QMap<QString, QString> elsewhere = {{u"CUPS_SERVER"_s, u"/nonexistent/cups.sock"_s}};
        const QStringList server = {u"--server"_s, cupsd_.networkAddress()};
        QVERIFY(runProgram(server + QStringList{u"--list-printers"_s}, elsewhere).out.contains("\nphoto\t"));
        const ProgramRun run = runProgram(
            server + QStringList{u"--printer"_s, u"photo"_s, u"--batch"_s, u"-o"_s, u"Red=7"_s, samplePhoto},
            elsewhere);
        QCOMPARE(run.err, QByteArray());
        QVERIFY(cupsd_.waitForJob(jobIn(run), 1));
        QVERIFY(optionsIn(cupsd_.job(jobIn(run))).contains("Red=7"));
        const ProgramRun none = runProgram(
            {u"--server"_s, u"127.0.0.1:9"_s, u"--printer"_s, u"photo"_s, u"--batch"_s, samplePhoto});
        const QByteArray wrong = wrongInRefusal(none, 1, {u"127.0.0.1"_s, u"\"photo\""_s});
        QVERIFY2(wrong.isEmpty(), wrong.constData());
    }

    void followsTheJob_data()
    {
        const auto add = rows<QByteArray, bool, QString, int, QByteArrayList>();
        add("failing printer", "echo 'ERROR: Ribbon torn' >&2; exit 1", false, u"60"_s, 1,
            {"\"odd\"", "Ribbon torn"});
        add("stopped queue", "sleep 2", true, u"1"_s, 0, {"not printed yet", "out of ribbon"});
        add("not followed", "sleep 2", false, u"0"_s, 0, {});
        add("server that ends", "kill -KILL $PPID; sleep 3", false, u"1"_s, 0, {"not printed yet"});
    }

    void followsTheJob()
    {
        const auto [backend, isStopped, wait, status, words] =
            row<QByteArray, bool, QString, int, QByteArrayList>();
        QVERIFY(cupsd_.setBackendScript(backend));
        if (isStopped)
            QVERIFY(cupsd_.run(u"cupsdisable"_s, {u"-r"_s, u"out of ribbon"_s, u"odd"_s}));
        QElapsedTimer timer;
        timer.start();
        const ProgramRun run =
            runProgram({u"--printer"_s, u"odd"_s, u"--batch"_s, uprightPhoto(), u"--wait"_s, wait});
        QVERIFY(timer.elapsed() < 2000);
        QVERIFY(run.out.startsWith("Sent upright.jpg to odd as job "));
        QCOMPARE(run.status, status);
        QCOMPARE(run.err.count('\n'), words.isEmpty() ? 0 : 1);
        for (const QByteArray &word : words)
            QVERIFY2(run.err.contains(word), run.err.constData());
        if (backend.startsWith("kill")) {
            cupsd_.goDown();
            QVERIFY(cupsd_.comeBack());
        }
        QVERIFY(cupsd_.run(u"cancel"_s, {u"-a"_s, u"odd"_s}));
        QVERIFY(cupsd_.run(u"cupsenable"_s, {u"odd"_s}));
        QTRY_COMPARE(cupsd_.activeJobs(), QByteArray());
    }

    void printsAPresetAsLpDoes()
    {
        QVERIFY(
            cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"photo/warm"_s, u"-o"_s, u"Red=5"_s, u"-o"_s,
                                        u"Quality=Fine"_s, u"-o"_s, u"copies=2"_s, u"-o"_s, u"Gone=1"_s}));
        QVERIFY(cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"raw/twice"_s, u"-o"_s, u"copies=2"_s}));
        const ProgramRun run =
            runProgram({u"--printer"_s, u"photo/warm"_s, u"--batch"_s, u"-o"_s, u"Blue=3"_s, samplePhoto});
        QCOMPARE(run.status, 0);
        // What the printer does not have is told, and never sent.
        QVERIFY2(run.err.count('\n') == 1 && run.err.contains("\"warm\"") && run.err.contains("Gone"),
                 run.err.constData());
        const RecordedJob job = cupsd_.job(jobIn(run));
        for (const char *option : {" Red=5 ", " Quality=Fine ", " Blue=3 ", " Green=0 "})
            QVERIFY2(job.options.contains(option), job.options.constData());
        QVERIFY(!job.options.contains("Gone"));
        QCOMPARE(job.copies.toInt(), 2);
        const ProgramRun summary = runProgram({u"--printer"_s, u"photo/warm"_s, u"--summary"_s});
        QVERIFY2(summary.out.contains("\nCopies: 2\n") && summary.out.contains("\nRed: 5\n"),
                 summary.out.constData());
        // By the name that people know it by, too.
        QVERIFY(cupsd_.run(u"lpoptions"_s,
                           {u"-p"_s, u"photo/my%20own"_s, u"-o"_s, u"Red=6"_s, u"-o"_s, u"Gone=1"_s}));
        for (const QString &name : {u"photo/My own"_s, u"photo/my%20own"_s}) {
            const ProgramRun named = runProgram({u"--printer"_s, name, u"--batch"_s, samplePhoto});
            QVERIFY2(named.err.contains("\"my own\""), named.err.constData());
            QVERIFY(cupsd_.job(jobIn(named)).options.contains(" Red=6 "));
        }
        const ProgramRun raw = runProgram({u"--printer"_s, u"raw/twice"_s, u"--batch"_s, samplePhoto});
        QCOMPARE(raw.err, QByteArray());
        QCOMPARE(cupsd_.job(jobIn(raw)).copies.toInt(), 2);
    }

    void interruptedRunTakesItsJobsBack()
    {
        QVERIFY(cupsd_.setBackendScript("trap 'exit 0' TERM; sleep 20 & wait"));
        QProcess program;
        program.start(printProgram(),
                      {u"--printer"_s, u"odd"_s, u"--batch"_s, uprightPhoto(), uprightPhoto()});
        QVERIFY(program.waitForStarted());
        QTRY_COMPARE(cupsd_.activeJobs().count('\n'), 2);
        ::kill(static_cast<pid_t>(program.processId()), SIGINT);
        QVERIFY(program.waitForFinished(5000));
        QCOMPARE(program.exitCode(), 1);
        const QByteArray err = program.readAllStandardError();
        QVERIFY2(err.count('\n') == 1 && err.contains("Canceled"), err.constData());
        QTRY_COMPARE(cupsd_.activeJobs(), QByteArray());
    }
};

CORVEL_TEST(QueueCommandLineTest)
#include "QueueCommandLineTest.moc"
