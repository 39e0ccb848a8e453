// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Document.h"

#include "DocumentHelpers.h"
#include "PageRendering.h"
#include "PdfSamples.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>

#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>

using namespace printdialog;
using namespace pdf_samples;
using namespace Qt::StringLiterals;

namespace {

QByteArray boxed(const QByteArray &dictionary)
{
    return withPages({{marks(), dictionary}});
}

/// The number of pages that is claimed, in a tree of one that leads back to itself or not.
QByteArray tree(const QByteArray &kids, const QByteArray &count)
{
    return joined({"<< /Type /Catalog /Pages 2 0 R >>",
                   "<< /Type /Pages /Kids [" + kids + "] /Count " + count + " >>",
                   "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] >>"});
}

QByteArray manyPages(int count)
{
    return tree(QByteArray("3 0 R ").repeated(count), QByteArray::number(count));
}

QByteArray withWrongBytes(QByteArray pdf, int count)
{
    QRandomGenerator random(1);
    for (int i = 0; i < count; ++i)
        pdf[random.bounded(int(pdf.size() - 20)) + 10] = char(random.bounded(256));
    return pdf;
}

qsizetype openDescriptors()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size();
}

} // namespace

class DocumentTest final : public QObject
{
    Q_OBJECT

private:
    QString written(const QByteArray &content, const QString &name = u"document.pdf"_s) const
    {
        const QString path = folder_.filePath(name);
        QFile::remove(path);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s", qPrintable(file.errorString()));
        return path;
    }

    /// A folder with a program in the place of a helper, and the real other one.
    QString withHelper(const QString &name, const QByteArray &script) const
    {
        const QString folder = folder_.filePath(u"helpers"_s);
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        for (const char *each : {"corvel-pdf-pages", "corvel-pdf-view"})
            QFile::link(documentHelper(each), folder + u'/' + text(each));
        if (!name.isEmpty())
            QFile::remove(folder + u'/' + name);
        if (!script.isEmpty()) {
            const QString path = written("#!/bin/sh\n" + script + '\n', u"helpers/"_s + name);
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        return folder;
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void cleanup()
    {
        useDocumentHelpers({});
        QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1); // no helper is left behind
        QCOMPARE(errno, ECHILD);
    }

    void readsSizes_data()
    {
        addRows<QByteArray, QSizeF>({
            {"plain", boxed("/MediaBox [0 0 200 100]"), {200, 100}},
            {"turned", boxed("/MediaBox [0 0 200 100] /Rotate 90"), {100, 200}},
            {"turned back", boxed("/MediaBox [0 0 200 100] /Rotate -90"), {100, 200}},
            {"by no quarter", boxed("/MediaBox [0 0 200 100] /Rotate 45"), {200, 100}},
            {"corners exchanged", boxed("/MediaBox [200 100 0 0]"), {200, 100}},
            {"cropped", boxed("/MediaBox [0 0 200 100] /CropBox [50 -50 150 50]"), {100, 50}},
            {"cropped elsewhere", boxed("/MediaBox [0 0 200 100] /CropBox [500 500 600 600]"), {200, 100}},
            {"in larger units", boxed("/MediaBox [0 0 200 100] /UserUnit 2.5"), {500, 250}},
            {"no box", boxed(""), {612, 792}},
            {"empty box", boxed("/MediaBox [5 5 5 5]"), {612, 792}},
            {"huge", boxed("/MediaBox [0 0 1000000000 500000000]"), {14400, 7200}},
            {"huge strip", boxed("/MediaBox [0 0 10 100000000]"), {1, 14400}},
            {"pages claimed", tree("3 0 R", "2000000000"), {200, 100}},
            {"garbage before", "\n\n12345\n" + boxed("/MediaBox [0 0 200 100]"), {200, 100}},
        });
    }

    void readsSizes()
    {
        const auto [pdf, size] = row<QByteArray, QSizeF>();
        const auto document = Document::open(written(pdf));
        QVERIFY2(document, document ? "" : qPrintable(document.failure().text));
        QCOMPARE(document->pageCount(), 1);
        QCOMPARE(document->pageSize(0), size);
        const auto image = renderPage(*document, 0, {40, 20});
        QVERIFY2(image, image ? "" : qPrintable(image.failure().text));
    }

    void refuses_data()
    {
        const QByteArray whole = boxed("/MediaBox [0 0 200 100]");
        addRows<QByteArray, DocumentFault>({
            {"empty", "", DocumentFault::Empty},
            {"text", "A letter about %PDF", DocumentFault::NotADocument},
            {"head too late", QByteArray(2000, ' ') + whole, DocumentFault::NotADocument},
            {"no pages", tree("", "0"), DocumentFault::Empty},
            {"too many pages", manyPages(Document::mostPages + 1), DocumentFault::TooLarge},
            {"as many pages as can be", manyPages(Document::mostPages), fine},
            {"cut off", whole.left(whole.size() / 2), DocumentFault::Broken},
            {"head only", "%PDF-1.7\n", DocumentFault::Broken},
            {"pages in a loop", tree("2 0 R", "1"), DocumentFault::Broken},
            {"wrong bytes", withWrongBytes(pdf_samples::text(100), 100), fine},
            {"table elsewhere", QByteArray(whole).replace("startxref\n", "startxref\n1"), fine},
        });
    }

    void refuses()
    {
        const auto [pdf, reason] = row<QByteArray, DocumentFault>();
        const auto document = Document::open(written(pdf));
        QVERIFY2(document || document.failure().text.contains(u"document.pdf"),
                 "a failure names the document");
        QCOMPARE(reasonOf(document), reason);
        if (document)
            QVERIFY(renderPage(*document, document->pageCount() - 1, {40, 20}));
    }

    void refusesWhatIsNoFileOrTooLarge()
    {
        const QString pipe = folder_.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        const QString large = written("%PDF-1.7\n", u"large.pdf"_s);
        QVERIFY(QFile::resize(large, Document::largestFile + 1)); // without blocks on the disk
        for (const auto &[path, reason] :
             {std::pair(folder_.filePath(u"none"_s), DocumentFault::NotFound),
              std::pair(folder_.path(), DocumentFault::NotReadable),
              std::pair(pipe, DocumentFault::NotReadable), std::pair(large, DocumentFault::TooLarge)}) {
            const auto document = Document::open(path);
            QVERIFY(!document);
            QCOMPARE(document.failure().reason, reason);
        }
    }

    void opensWithPassword_data()
    {
        addRows<QStringList, QString, QString, DocumentFault>({
            {"none given", {u"secret"_s, u"owner"_s, u"256"_s}, {}, {}, DocumentFault::NeedsPassword},
            {"wrong", {u"secret"_s, u"owner"_s, u"256"_s}, {}, u"Secret"_s, DocumentFault::WrongPassword},
            {"right", {u"secret"_s, u"owner"_s, u"256"_s}, {}, u"secret"_s, fine},
            {"owner's", {u"secret"_s, u"owner"_s, u"256"_s}, {}, u"owner"_s, fine},
            {"for owners only", {u""_s, u"owner"_s, u"256"_s}, {}, {}, fine},
            {"not needed", {u""_s, u"owner"_s, u"256"_s}, {}, u"any"_s, fine},
            {"umlaut", {u"für"_s, u"owner"_s, u"256"_s}, {}, u"für"_s, fine},
            {"umlaut, old", {u"für"_s, u"owner"_s, u"128"_s}, u"--password-mode=unicode"_s, u"für"_s, fine},
        });
    }

    void opensWithPassword()
    {
        const auto [keys, mode, password, reason] = row<QStringList, QString, QString, DocumentFault>();
        const QString plain = written(boxed("/MediaBox [0 0 200 100]"), u"plain.pdf"_s);
        const QString path = folder_.filePath(u"document.pdf"_s);
        QStringList arguments = QStringList{u"--encrypt"_s} + keys + QStringList{u"--"_s, plain, path};
        if (!mode.isEmpty())
            arguments = QStringList{u"--allow-weak-crypto"_s, mode} + arguments;
        QProcess qpdf;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        qpdf.setProcessEnvironment(environment);
        qpdf.start(u"qpdf"_s, arguments);
        QVERIFY(qpdf.waitForFinished() && qpdf.exitCode() == 0);

        const auto document = Document::open(path, password);
        QCOMPARE(reasonOf(document), reason);
        if (!document)
            return;
        const auto image = renderPage(*document, 0, {200, 100});
        QVERIFY(image);
        QCOMPARE(image->pixel(10, 90), qRgb(255, 0, 0));
    }

    void readsTitle()
    {
        const QByteArray title =
            "<FEFF004500780061006D0070006C00E9000A202E0031>"; // with a break and an override
        const auto document = Document::open(
            written(joined({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                            "<< /Type /Page /Parent 2 0 R >>", "<< /Title " + title + " >>"},
                           "/Info 4 0 R")));
        QVERIFY(document);
        QCOMPARE(document->title(), u"Examplé 1"_s);
    }

    void noticesChanges()
    {
        const QByteArray pdf = boxed("/MediaBox [0 0 200 100]");
        const QString path = written(pdf);
        const auto document = Document::open(path);
        QVERIFY(document && document->content());
        QVERIFY(QFile::rename(path, folder_.filePath(u"elsewhere"_s)));
        QVERIFY(document->content()); // what was opened is still there
        written(pdf);
        const auto replaced = renderPage(*document, 0, {20, 10});
        QVERIFY(!replaced && replaced.failure().reason == DocumentFault::Changed);
        QFile::remove(path);
        QFile opened(folder_.filePath(u"elsewhere"_s));
        QVERIFY(opened.open(QIODevice::ReadWrite) && opened.write(" ") == 1);
        opened.close();
        const auto writtenTo = document->content();
        QVERIFY(!writtenTo && writtenTo.failure().reason == DocumentFault::Changed);
    }

    void opensMemory()
    {
        const QByteArray pdf = boxed("/MediaBox [0 0 200 100]");
        const int memory = ::memfd_create("test", MFD_CLOEXEC);
        QCOMPARE(::write(memory, pdf.constData(), size_t(pdf.size())), pdf.size());
        const auto document = Document::open(pdekit::FileDescriptor(memory), u"A page"_s);
        QVERIFY(document);
        QCOMPARE(document->name(), u"A page"_s);
        QVERIFY(document->path().isEmpty());
        QCOMPARE(::write(*document->content(), "x", 1), -1);
        QVERIFY(renderPage(*document, 0, {20, 10}));
    }

    void survivesHelpers_data()
    {
        const QString pages = u"corvel-pdf-pages"_s;
        const QString view = u"corvel-pdf-view"_s;
        addRows<QString, QByteArray, DocumentFault>({
            {"missing", pages, "", DocumentFault::Unavailable},
            {"no sandbox", pages, "exit 2", DocumentFault::Unavailable},
            {"cannot be linked", pages, "exit 127", DocumentFault::Unavailable},
            {"out of memory", pages, "kill -ABRT $$", DocumentFault::TooCostly},
            {"out of time", pages, "kill -XCPU $$", DocumentFault::TooCostly},
            {"crash", pages, "kill -SEGV $$", DocumentFault::Broken},
            {"no answer", pages, "exit 0", DocumentFault::Broken},
            {"nonsense", pages, "head -c 3000 /dev/urandom >&3", DocumentFault::Broken},
            {"endless answer", pages, "head -c 3000000 /dev/zero >&3", DocumentFault::Broken},
            {"viewer missing", view, "", DocumentFault::Unavailable},
            {"viewer without sandbox", view, "exit 2", DocumentFault::Unavailable},
            {"viewer crashes", view, "kill -SEGV $$", DocumentFault::Broken},
            {"viewer out of time", view, "kill -XCPU $$", DocumentFault::TooCostly},
            {"viewer hangs", view, "exec sleep 100", DocumentFault::TooCostly},
            {"viewer without answer", view, "exit 0", DocumentFault::TooCostly},
            {"viewer's answer grows", view, "head -c 3000000 /dev/zero >&3; exit 0",
             DocumentFault::TooCostly},
        });
    }

    void survivesHelpers()
    {
        const auto [name, script, reason] = row<QString, QByteArray, DocumentFault>();
        const QString path = written(boxed("/MediaBox [0 0 200 100]"));
        useDocumentHelpers(withHelper(name, script));
        const qsizetype before = openDescriptors();
        {
            const auto document = Document::open(path);
            const auto image = document ? renderPage(*document, 0, {200, 100}) : document.failure();
            QVERIFY(!image);
            QCOMPARE(image.failure().reason, reason);
            QVERIFY(image.failure().text.contains(u"document.pdf"));
        }
        QCOMPARE(openDescriptors(), before);
    }

    void givesUp()
    {
        const auto document = Document::open(written(boxed("/MediaBox [0 0 200 100]")));
        QVERIFY(document);
        useDocumentHelpers(withHelper(u"corvel-pdf-view"_s, "exec sleep 100"));
        const std::atomic<bool> isGivenUp = true;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!renderPage(*document, 0, {20, 10}, {0, 0, 1, 1}, &isGivenUp));
        QVERIFY2(timer.elapsed() < 3000, "well before the limit");
    }

    /// One that the viewer refuses is shown from what libqpdf makes of it.
    void rewritesWhatIsRefused()
    {
        const QString path = written(boxed("/MediaBox [0 0 200 100]"));
        const auto document = Document::open(path);
        QVERIFY(document);
        useDocumentHelpers(
            withHelper(u"corvel-pdf-view"_s,
                       "if mkdir \"${0%/*}/refused\"; then printf '\\002\\000\\000\\000' >&3\nelse exec \"" +
                           documentHelper("corvel-pdf-view").toUtf8() + "\"\nfi"));
        const int original = *document->content();
        const auto image = renderPage(*document, 0, {200, 100});
        QVERIFY2(image, image ? "" : qPrintable(image.failure().text));
        QCOMPARE(image->pixel(10, 90), qRgb(255, 0, 0));
        QVERIFY(*document->content() != original);
    }
};

CORVEL_TEST(DocumentTest)
#include "DocumentTest.moc"
