// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltInPrinter.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "SheetPrinter.h"
#include "TestMain.h"

#include <QtCore/QDirIterator>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

PrintJob usualJob()
{
    PrintJob job;
    job.destination = u"Booth \"A\""_s;
    job.page = {QSizeF(288, 432), QRectF(0, 0, 288, 432)};
    job.options = {{u"PageSize"_s, u"w288h432"_s}, {u"Note"_s, u"a\\b \n\u00e9"_s}};
    job.summary = {{u"Finish"_s, u"Matte"_s}};
    job.copies = 3;
    return job;
}

/// Every file and folder below a folder, with the files' content.
QMap<QString, QByteArray> contentOf(const QString &folder)
{
    QMap<QString, QByteArray> content;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        content.insert(path, entries.fileInfo().isFile() ? samples::load(path) : QByteArray());
    }
    return content;
}

/// While it lives, no file of this process can get longer.
class FullDisk
{
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{2000, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_ = {};
};

} // namespace

class BuiltInPrinterTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder_;

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void leavesThePair()
    {
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(30, 20)), "jpeg");
        const QString output = pathOf(u"new/out"_s);
        PrintedNames names({output});
        for (const QString &source : {u"a"_s, u"b"_s}) {
            QDir(folder_->path()).mkdir(source);
            samples::store(pathOf(source + u"/photo.jpg"_s), jpeg);
            const auto photo = Photo::open(pathOf(source + u"/photo.jpg"_s));
            const auto files =
                BuiltInPrinter::print(PrintSheet::of(*photo, usualJob().page, {}), usualJob(), names);
            QVERIFY2(files, files ? "" : qPrintable(files.failure().text));
            const QString name = source == u"a" ? u"photo"_s : u"photo-2"_s;
            QCOMPARE(files->pdf, output + u'/' + name + u".pdf"_s);
            QCOMPARE(files->ticket, output + u'/' + name + u".ticket.json"_s);
            QVERIFY(samples::load(files->pdf).endsWith("%%EOF\n"));

            const QByteArray ticket = samples::load(files->ticket);
            const QJsonObject expected{
                {u"printer"_s, u"Booth \"A\""_s},
                {u"document"_s, pathOf(source + u"/photo.jpg"_s)},
                {u"options"_s, QJsonObject{{u"PageSize"_s, u"w288h432"_s}, {u"Note"_s, u"a\\b \n\u00e9"_s}}},
                {u"summary"_s, QJsonObject{{u"Finish"_s, u"Matte"_s}}},
                {u"copies"_s, 3}};
            QCOMPARE(QJsonDocument::fromJson(ticket).object(), expected);
            QVERIFY(ticket.contains("\n    \"printer\""));
        }
        QCOMPARE(contentOf(output).size(), 4);
    }

    void keepsWhatIsThere_data()
    {
        const auto add = rows<QStringList, bool, QString>();
        const QString pdf = u"photo.pdf"_s;
        add("nothing", {}, false, u"photo"_s);
        add("a page", {pdf}, false, u"photo-2"_s);
        add("a ticket", {u"photo.ticket.json"_s}, false, u"photo-2"_s);
        add("half of each", {pdf, u"photo-2.ticket.json"_s}, false, u"photo-3"_s);
        add("overwritten", {pdf, u"photo.ticket.json"_s}, true, u"photo"_s);
        // Photos may have such names; they are JPEG files all the same.
        add("a photo", {pdf, u"a photo"_s}, false, u"photo-2"_s);
        add("a photo, overwritten", {pdf, u"a photo"_s}, true, u"photo-2"_s);
        add("a photo that is a link, overwritten", {pdf, u"a photo"_s, u"a link"_s}, true, u"photo-2"_s);
    }

    void keepsWhatIsThere()
    {
        auto [earlier, isOverwritten, name] = row<QStringList, bool, QString>();
        OutputFolder folder{folder_->path(), isOverwritten};
        if (earlier.removeOne(u"a photo"_s))
            folder.photos.append(folder_->path() +
                                 u"/./photo.pdf"_s); // named otherwise than its page would be
        const bool isLink = earlier.removeOne(u"a link"_s);
        for (const QString &file : std::as_const(earlier))
            samples::store(pathOf(file), "earlier");
        if (isLink)
            QVERIFY(QFile::rename(pathOf(u"photo.pdf"_s), pathOf(u"real"_s)) &&
                    QFile::link(pathOf(u"real"_s), pathOf(u"photo.pdf"_s)));
        samples::store(pathOf(u"photo.jpg"_s), samples::encoded(samples::quarters(QSize(30, 20)), "jpeg"));
        const auto before = contentOf(folder_->path());

        PrintedNames names(folder);
        const auto files = BuiltInPrinter::print(
            PrintSheet::of(*Photo::open(pathOf(u"photo.jpg"_s)), usualJob().page, {}), usualJob(), names);
        QVERIFY2(files, files ? "" : qPrintable(files.failure().text));
        QCOMPARE(files->pdf, pathOf(name + u".pdf"_s));
        QCOMPARE(files->ticket, pathOf(name + u".ticket.json"_s));
        auto after = contentOf(folder_->path());
        QVERIFY(after.take(files->pdf).startsWith("%PDF") && after.take(files->ticket).startsWith('{'));
        QCOMPARE(QFileInfo(pathOf(u"photo.pdf"_s)).isSymLink(), isLink);
        for (const QString &file : std::as_const(earlier))
            QVERIFY(!after.contains(pathOf(file)) || after.value(pathOf(file)) == "earlier");
        QCOMPARE(after.size(), before.size() - (name == u"photo"_s ? earlier.size() : 0));
    }

    void names()
    {
        PrintedNames names({folder_->path()});
        names.markTaken(u"taken"_s);
        names.markTaken(u"taken-2"_s);
        names.markTaken(QString(243, u't'));
        const QString smile = u"\U0001f600"_s;
        for (const auto &[photo, name] :
             {std::pair(u"photo.jpg"_s, u"photo"_s),
              {u"Tag 1.v2 \u65e5\U0001f600.JPG"_s, u"Tag 1.v2 \u65e5\U0001f600"_s},
              {u"photo"_s, u"photo"_s},
              {u"..photo.jpg"_s, u"photo"_s},
              {u"\n.x.jpg"_s, u"x"_s},
              {u".jpg"_s, u"photo"_s},
              {u"x\r\n\u202egpj\u2028.jpg"_s, u"x gpj"_s},
              {u"taken.jpg"_s, u"taken-3"_s},
              // The longest name has 255 bytes: of letters, of large characters, and of bytes that are no
              // text.
              {QString(250, u'n') + u".jpg"_s, QString(243, u'n')},
              {smile.repeated(62) + u".jpg"_s, smile.repeated(60)},
              {QString(250, u't'), QString(241, u't') + u"-2"_s}})
            QCOMPARE(names.nameFor(u"/a/"_s + photo), name);
    }

    void failuresLeaveNothing_data()
    {
        // Within the test's folder; what the message names.
        const auto add = rows<QString, QString, OutputFault>();
        add("folder is a file", u"file"_s, u"file"_s, OutputFault::NotAFolder);
        add("folder below a file", u"file/new"_s, u"file/new"_s, OutputFault::NotAFolder);
        add("link to nowhere", u"link"_s, u"link"_s, OutputFault::FolderMissing);
        add("no permission", u"locked"_s, u"locked/photo.pdf"_s, OutputFault::NotWritable);
        add("no permission to make it", u"locked/new"_s, u"locked/new"_s, OutputFault::NotWritable);
        add("folder in the ticket's place", u"taken"_s, u"photo.ticket.json"_s, OutputFault::NameTaken);
        add("name too long", QString(300, u'n'), u"nnn"_s, OutputFault::NameTooLong);
        add("disk full, in new folders", u"new/out"_s, u"photo.pdf"_s, OutputFault::DiskFull);
        add("disk full, over an earlier pair", u"pair"_s, u"photo.pdf"_s, OutputFault::DiskFull);
        add("damaged photo", u"pair"_s, u"photo.jpg"_s, OutputFault::PhotoUnusable);
        add("no page", u"new/out"_s, u"page"_s, OutputFault::PageUnusable);
    }

    void failuresLeaveNothing()
    {
        const auto [output, named, fault] = row<QString, QString, OutputFault>();
        QDir folder(folder_->path());
        for (const QString &name : {u"pair"_s, u"taken"_s, u"locked"_s, u"taken/photo.ticket.json"_s})
            QVERIFY(folder.mkdir(name));
        for (const QString &name : {u"file"_s, u"pair/photo.pdf"_s, u"pair/photo.ticket.json"_s,
                                    u"taken/photo.pdf"_s, u"taken/photo.ticket.json/inside"_s})
            samples::store(pathOf(name), "earlier");
        QVERIFY(QFile::link(u"/nonexistent/folder"_s, pathOf(u"link"_s)));
        const QByteArray content = fault == OutputFault::PhotoUnusable
                                       ? samples::undecodableJpeg()
                                       : samples::encoded(samples::quarters(QSize(300, 200)), "jpeg");
        samples::store(pathOf(u"photo.jpg"_s), content);
        const auto photo = Photo::open(pathOf(u"photo.jpg"_s));
        QVERIFY(photo);
        PrintJob job = usualJob();
        if (fault == OutputFault::PageUnusable)
            job.page = {};

        const auto before = contentOf(folder_->path());
        PrintedNames names({pathOf(output), true});
        const auto files = [&, fault = fault] {
            std::optional<FullDisk> fullDisk;
            std::optional<samples::OrdinaryRights> rights;
            if (fault == OutputFault::DiskFull)
                fullDisk.emplace();
            if (fault == OutputFault::NotWritable) {
                QFile::setPermissions(folder_->path(), QFile::Permissions(0x7755));
                QFile::setPermissions(pathOf(u"locked"_s), QFile::Permissions(0x5555));
                rights.emplace();
            }
            return BuiltInPrinter::print(PrintSheet::of(*photo, job.page, {}), job, names);
        }();
        QVERIFY(!files);
        QCOMPARE(files.failure().reason, fault);
        QVERIFY2(files.failure().text.contains(named), qPrintable(files.failure().text));
        QCOMPARE(contentOf(folder_->path()), before);
        QCOMPARE(names.nameFor(u"photo.jpg"_s), u"photo"_s);
    }

    void unusablePhotosLeaveTheDocumentAlone_data()
    {
        // Photos: whole, gone before they are printed, or a PNG with too few rows.
        const auto add = rows<QString, int>();
        add("none", u"www"_s, 3);
        add("the first one is gone", u"gww"_s, 2);
        add("one is gone", u"wgw"_s, 2);
        add("the last one is gone", u"wwg"_s, 2);
        add("one lacks rows", u"wrw"_s, 2);
        add("all are gone", u"gg"_s, 0);
    }

    void unusablePhotosLeaveTheDocumentAlone()
    {
        const auto [photos, pages] = row<QString, int>();
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(30, 20)), "jpeg");
        PrintJob job = usualJob();
        job.destination = Destination::builtIn();
        job.folder = {pathOf(u"out"_s)};
        job.folder.document = u"all"_s;
        SheetPrinter printer(job);
        for (const QChar kind : photos) {
            const QString path = pathOf(u"photo"_s);
            samples::store(
                path, kind == u'r' ? samples::pngOf(samples::pngHeader({2, 2}, 2), QByteArray(7, 0)) : jpeg);
            const auto photo = Photo::open(path);
            QVERIFY(photo);
            if (kind == u'g')
                QFile::remove(path);
            const auto printed = printer.print(PrintSheet::of(*photo, job.page, {}, true));
            QCOMPARE(bool(printed), kind == u'w');
            QVERIFY(printed || printed.failure().reason.isPhotoFault);
        }
        QCOMPARE(printer.hasDocument(), pages > 0);
        QCOMPARE(QFile::exists(job.folder.path), pages > 0);
        if (pages == 0)
            return;
        const auto document = printer.finishDocument();
        QVERIFY(document);
        const QByteArray pdf = samples::load(*document);
        QCOMPARE(pdf.count("/Type /Page /"), pages);
        QCOMPARE(pdf.count(" 0 obj\n"), pdf.count("\nendobj\n"));
        const QByteArrayList table = pdf.sliced(pdf.lastIndexOf("xref\n0 ")).split('\n');
        for (qsizetype i = 3; !table.at(i).startsWith("trailer"); ++i) {
            const QByteArray object = QByteArray::number(i - 2) + " 0 obj\n";
            QVERIFY(table.at(i).endsWith("f ") ||
                    pdf.sliced(table.at(i).first(10).toLongLong()).startsWith(object));
        }
    }
};

CORVEL_TEST(BuiltInPrinterTest)
#include "BuiltInPrinterTest.moc"
