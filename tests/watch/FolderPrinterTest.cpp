// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FolderPrinter.h"
#include "PdfSamples.h"
#include "QueueList.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <sys/stat.h>
#include <sys/time.h>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

/// What becomes of the photos of a folder, with the built-in printer.
class FolderPrinterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        place_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_STATE_HOME", at(u"state"_s).toUtf8());
        for (const QString &name : {u"new"_s, u"done"_s, u"out"_s})
            QVERIFY(QDir(place_->path()).mkdir(name));
        QImage picture(30, 20, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        QVERIFY(picture.save(at(u"sample.jpg"_s)));
        order_ = {};
        order_.folder = at(u"new"_s);
        order_.job.destination = Destination::builtIn();
        order_.job.page = PageGeometry{QSizeF(288, 432), QRectF(0, 0, 288, 432)};
        order_.job.folder.path = at(u"out"_s);
        order_.pace = {.look = 20ms, .settling = 100ms, .scan = 50ms};
    }

    // What is there at first is left; what arrives while nobody watches is printed later, and each photo
    // once.
    void printsWhatArrives()
    {
        QVERIFY(arrive(u"old.jpg"_s));
        {
            FolderPrinter printer;
            start(printer);
            QVERIFY(arrive(u"1.jpg"_s));
            QTRY_COMPARE(printed(), u"1.pdf"_s);
        }
        QVERIFY(arrive(u"2.jpg"_s));
        order_.printed = at(u"done"_s);
        QVERIFY(QFile::copy(at(u"sample.jpg"_s), at(u"done/1.jpg"_s)));
        {
            FolderPrinter printer;
            start(printer);
            QTRY_COMPARE(names(u"done"_s), u"1-2.jpg 1.jpg 2.jpg"_s); // it does not replace another one
            QCOMPARE(printed(), u"1.pdf 2.pdf"_s);
            QVERIFY(QFile::rename(at(u"done/2.jpg"_s), at(u"new/2.jpg"_s))); // it arrives again
            QTRY_COMPARE(printed(), u"1.pdf 2-2.pdf 2.pdf"_s);
        }
        order_.printsExisting = true;
        FolderPrinter printer;
        start(printer);
        QTRY_COMPARE(printed(), u"1.pdf 2-2.pdf 2.pdf old.pdf"_s);
        QTRY_COMPARE(names(u"new"_s), QString());
    }

    // The pages of a document are one job.
    void printsDocuments()
    {
        order_.pages = {PageChoice::Which::Ranges, *PageRanges::fromText(u"2-"_s)};
        order_.setStyle({{}, SheetLayout::usual(SheetLayout::Kind::Pages)});
        FolderPrinter printer;
        start(printer);
        QVERIFY(write(u"report.pdf"_s, pdf_samples::text(4)));
        QTRY_COMPARE(printed(), u"report.pdf"_s);
        const auto document = Document::open(at(u"out/report.pdf"_s));
        QVERIFY(document);
        QCOMPARE(document->pageCount(), 2);
    }

    void movesToAnotherDisk()
    {
        const QTemporaryDir other(u"/dev/shm/done-XXXXXX"_s);
        struct stat here = {};
        struct stat there = {};
        if (!other.isValid() || ::stat(qPrintable(other.path()), &there) != 0 ||
            ::stat(qPrintable(place_->path()), &here) != 0 || here.st_dev == there.st_dev)
            QSKIP("There is no other file system to write to.");
        order_.printed = other.path();
        FolderPrinter printer;
        start(printer);
        QVERIFY(QFile(other.filePath(u"1.jpg"_s)).open(QIODevice::WriteOnly));
        QVERIFY(arrive(u"1.jpg"_s));
        QTRY_VERIFY(QFile::exists(other.filePath(u"1-2.jpg"_s)));
        QTRY_COMPARE(names(u"new"_s), QString());
        QCOMPARE(contentOf(other.filePath(u"1-2.jpg"_s)), contentOf(at(u"sample.jpg"_s)));
        QVERIFY(contentOf(other.filePath(u"1.jpg"_s)).isEmpty());
    }

    void setsAsideWhatIsNoPhoto()
    {
        QByteArray half = contentOf(at(u"sample.jpg"_s));
        half.truncate(half.size() / 2);
        FolderPrinter printer;
        QSignalSpy complaints(&printer, &FolderPrinter::complained);
        start(printer);
        QVERIFY(write(u"half.jpg"_s, half));
        QTRY_COMPARE(names(u"new/unprintable"_s), u"half.jpg half.jpg.reason.txt"_s);
        QVERIFY(contentOf(at(u"new/unprintable/half.jpg.reason.txt"_s)).contains("half.jpg"));
        QTRY_COMPARE(complaints.size(), 1);
        // A program that writes it in two steps.
        QVERIFY(write(u"steps.jpg"_s, half));
        QTest::qWait(20);
        QVERIFY(arrive(u"steps.jpg"_s));
        QTRY_COMPARE(printed(), u"steps.pdf"_s);
        QCOMPARE(complaints.size(), 1);
        // Moved back, it is tried again.
        QVERIFY(QFile::rename(at(u"new/unprintable/half.jpg"_s), at(u"new/half.jpg"_s)));
        QTRY_COMPARE(complaints.size(), 2);
    }

    // Nothing was made of it: another run prints it.
    void takesBackWhatHasNotBegun()
    {
        QVERIFY(QDir(place_->path()).rmdir(u"out"_s) && QFile(at(u"out"_s)).open(QIODevice::WriteOnly));
        {
            FolderPrinter printer;
            QSignalSpy complaints(&printer, &FolderPrinter::complained);
            start(printer);
            QVERIFY(arrive(u"1.jpg"_s));
            QTRY_COMPARE(complaints.size(), 1);
        }
        QVERIFY(QFile::remove(at(u"out"_s)));
        FolderPrinter printer;
        start(printer);
        QTRY_COMPARE(printed(), u"1.pdf"_s);
    }

    void reportsWhatIsUnclear_data()
    {
        using enum PhotoRecord::State;
        const auto add = rows<PhotoRecord, QString>();
        add("no printer", {.state = Began}, u"was ended while"_s);
        add("files", {.state = Began, .printer = Destination::builtIn().id(), .server = printServerAddress()},
            u"was ended while"_s);
        for (const auto state : {Began, Sent})
            add(state == Began ? "begun on another server" : "sent to another server",
                {.state = state, .job = 7, .printer = u"photo"_s, .server = u"other.example"_s},
                u"other.example"_s);
    }

    // Its files may have been made: it is not printed again before somebody says so.
    void reportsWhatIsUnclear()
    {
        const auto [known, words] = row<PhotoRecord, QString>();
        QVERIFY(arrive(u"1.jpg"_s));
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(at(u"new/1.jpg"_s)), &status), 0);
        {
            auto record = WatchRecord::open(order_.folder);
            QVERIFY(record && !record->compact({}));
            QVERIFY(!record->add(PhotoIdentity::of(status, "1.jpg", {}), known));
        }
        FolderPrinter printer;
        QSignalSpy complaints(&printer, &FolderPrinter::complained);
        start(printer);
        QTRY_COMPARE(complaints.size(), 1);
        QVERIFY(complaints.at(0).at(0).toString().contains(u"unclear whether \"1.jpg\" was printed"_s));
        QVERIFY(complaints.at(0).at(0).toString().contains(words));
        QVERIFY(arrive(u"2.jpg"_s));
        QTRY_COMPARE(printed(), u"2.pdf"_s);
        QCOMPARE(::utimes(qPrintable(at(u"new/1.jpg"_s)), nullptr), 0);
        QTRY_COMPARE(printed(), u"1.pdf 2.pdf"_s);
    }

    void endsWhereItCannotWatch()
    {
        FolderPrinter printer;
        start(printer);
        FolderPrinter other;
        QSignalSpy finished(&other, &FolderPrinter::finished);
        other.start(order_);
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(finished.at(0).at(0).toString().contains(u"watches the folder"_s));
        QSignalSpy ended(&printer, &FolderPrinter::finished);
        printer.stop();
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(ended.at(0).at(0).toString(), QString());
    }

private:
    QString at(const QString &name) const { return place_->filePath(name); }

    void start(FolderPrinter &printer)
    {
        QSignalSpy said(&printer, &FolderPrinter::said);
        printer.start(order_);
        QTRY_VERIFY(!said.isEmpty());
    }

    bool write(const QString &name, const QByteArray &content) const
    {
        QFile file(at(u"new/"_s + name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }
    bool arrive(const QString &name) const { return write(name, contentOf(at(u"sample.jpg"_s))); }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString names(const QString &folder) const
    {
        return QDir(at(folder)).entryList(QDir::Files, QDir::Name).join(u' ');
    }
    QString printed() const
    {
        return QDir(at(u"out"_s)).entryList({u"*.pdf"_s}, QDir::Files, QDir::Name).join(u' ');
    }

    std::unique_ptr<QTemporaryDir> place_;
    WatchOrder order_;
};

CORVEL_TEST(FolderPrinterTest)
#include "FolderPrinterTest.moc"
