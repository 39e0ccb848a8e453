// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentIntake.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <functional>
#include <sys/socket.h>
#include <thread>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

using pdekit::FileDescriptor;

const QByteArray pdf = "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n";
const QByteArray postScript =
    "%!PS-Adobe-3.0\n%%Pages: 1\n%%Page: 1 1\n/Times-Roman findfont 40 scalefont setfont\n"
    "72 600 moveto (Page) show showpage\n%%EOF\n";

QByteArray contentOf(const FileDescriptor &file)
{
    QFile read;
    return read.open(file.number(), QIODevice::ReadOnly) ? read.readAll() : QByteArray();
}

/// Writes with pauses of a few milliseconds, then closes.
void trickle(FileDescriptor end, const QByteArrayList &parts, std::chrono::milliseconds pause = 5ms)
{
    for (const QByteArray &part : parts) {
        std::this_thread::sleep_for(pause);
        if (::send(end.number(), part.constData(), size_t(part.size()), MSG_NOSIGNAL) < 0)
            return;
    }
}

} // namespace

/// Documents as programs hand them over.
class DocumentIntakeTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder_;

    FileDescriptor fileWith(const QByteArray &content, int flags = O_RDONLY)
    {
        QFile file(folder_.filePath(u"document"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return {};
        file.close();
        return FileDescriptor(::open(QFile::encodeName(file.fileName()).constData(), flags | O_CLOEXEC));
    }

private Q_SLOTS:
    void filesPipesAndSocketsAreCopied()
    {
        const QByteArray large = pdf + QByteArray(3'000'000, 'x');
        FileDescriptor file = fileWith(large);
        QVERIFY(::lseek(file.number(), 0, SEEK_END) > 0); // as after writing
        const auto ofFile = takeDocument(std::move(file), u"x"_s);
        QVERIFY(ofFile);
        QVERIFY(contentOf(*ofFile) == large);
        QVERIFY(::pwrite(ofFile->number(), "x", 1, 0) < 0); // sealed

        auto pipe = pdekit::Pipe::make();
        QVERIFY(pipe);
        std::thread writer([end = std::move(pipe->writing), &large]() mutable {
            for (qsizetype at = 0; at < large.size();)
                at += ::write(end.number(), large.constData() + at, size_t(large.size() - at));
            end.close();
        });
        const auto ofPipe = takeDocument(std::move(pipe->reading), u"x"_s);
        writer.join();
        QVERIFY(ofPipe);
        QVERIFY(contentOf(*ofPipe) == large);

        int ends[2] = {};
        QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
        std::thread sender([end = ends[1]] { trickle(FileDescriptor(end), {pdf.first(3), pdf.sliced(3)}); });
        const auto ofSocket = takeDocument(FileDescriptor(ends[0]), u"x"_s);
        sender.join();
        QVERIFY(ofSocket);
        QCOMPARE(contentOf(*ofSocket), pdf);
    }

    void whatCannotBePrintedIsRefused_data()
    {
        using Make = std::function<FileDescriptor()>;
        using Row = std::tuple<const char *, Make, IntakeFault, QString>;
        addRows<Make, IntakeFault, QString>({
            Row{"empty", [this] { return fileWith({}); }, IntakeFault::Empty, u"nothing"_s},
            Row{"a text", [this] { return fileWith("Dear all,\n"); }, IntakeFault::NotADocument, u"PDF"_s},
            Row{"too large", [this] { return fileWith(pdf + QByteArray(200'000, 'x')); },
                IntakeFault::TooLarge, u"KiB"_s},
            Row{"only for writing", [this] { return fileWith(pdf, O_WRONLY); }, IntakeFault::NotReadable,
                u"read"_s},
            Row{"closed", [] { return FileDescriptor(); }, IntakeFault::NotReadable, u"read"_s},
            Row{"a folder", [] { return FileDescriptor(::open("/", O_RDONLY | O_CLOEXEC)); },
                IntakeFault::NotReadable, u"read"_s},
            Row{"an endless device", [] { return FileDescriptor(::open("/dev/zero", O_RDONLY | O_CLOEXEC)); },
                IntakeFault::NotReadable, u"read"_s},
            Row{"PostScript that is none", [this] { return fileWith("%!PS\nquack\n"); },
                IntakeFault::Unconverted, u"Ghostscript"_s},
            Row{"PostScript without an end", [this] { return fileWith("%!PS\n{} loop\n"); },
                IntakeFault::Unconverted, u"Ghostscript"_s},
            Row{"PostScript that reads files",
                [this] { return fileWith("%!PS\n(/etc/passwd) (r) file pop showpage\n"); },
                IntakeFault::Unconverted, u"Ghostscript"_s},
        });
    }
    void whatCannotBePrintedIsRefused()
    {
        const auto [make, fault, word] = row<std::function<FileDescriptor()>, IntakeFault, QString>();
        IntakeLimits limits;
        limits.largest = 100'000;
        limits.conversion = 2s;
        const auto taken = takeDocument(make(), u"Letter"_s, limits);
        QVERIFY(!taken);
        QCOMPARE(taken.failure().reason, fault);
        QVERIFY2(taken.failure().text.contains(u"\"Letter\""_s) && taken.failure().text.contains(word),
                 qPrintable(taken.failure().text));
    }

    void aPipeThatBlocksIsGivenUp()
    {
        IntakeLimits limits;
        limits.quiet = 100ms;
        auto pipe = pdekit::Pipe::make();
        QCOMPARE(::write(pipe->writing.number(), pdf.constData(), 8), 8);
        const auto stuck = takeDocument(std::move(pipe->reading), u"x"_s, limits);
        QVERIFY(!stuck);
        QCOMPARE(stuck.failure().reason, IntakeFault::Stuck);

        auto other = pdekit::Pipe::make();
        std::atomic<bool> isCanceled = false;
        std::thread canceler([&isCanceled] { isCanceled = true; });
        const auto canceled = takeDocument(std::move(other->reading), u"x"_s, {}, &isCanceled);
        canceler.join();
        QVERIFY(!canceled);
        QCOMPARE(canceled.failure().reason, IntakeFault::Canceled);
    }

    void postScriptIsConverted()
    {
        IntakeLimits limits;
        if (!QFile::exists(limits.ghostscript))
            QSKIP("Ghostscript is missing; apt-get install ghostscript.");
        const auto taken = takeDocument(fileWith(postScript), u"x"_s, limits);
        QVERIFY2(taken, qPrintable(taken ? QString() : taken.failure().text));
        const QByteArray converted = contentOf(*taken);
        QVERIFY(converted.startsWith("%PDF-") && converted.contains("/Page"));
        limits.ghostscript = u"/nonexistent/gs"_s;
        const auto refused = takeDocument(fileWith(postScript), u"x"_s, limits);
        QVERIFY(!refused);
        QCOMPARE(refused.failure().reason, IntakeFault::NoConverter);
        QVERIFY(refused.failure().text.contains(u"package ghostscript"_s));
    }
};

CORVEL_TEST(DocumentIntakeTest)
#include "DocumentIntakeTest.moc"
