// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentComposer.h"

#include "PdfSamples.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QDateTime>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <sys/mman.h>

using namespace printdialog;
using namespace pdf_samples;
using namespace Qt::StringLiterals;

namespace {

const QByteArray plain = "/MediaBox [0 0 200 100]";

Document inMemory(const QByteArray &pdf)
{
    pdekit::FileDescriptor memory(::memfd_create("test", MFD_CLOEXEC));
    if (::write(memory.number(), pdf.constData(), size_t(pdf.size())) != pdf.size())
        qFatal("memory");
    const auto document = Document::open(std::move(memory), u"document"_s);
    if (!document)
        qFatal("%s", qPrintable(document.failure().text));
    return *document;
}

QTransform onto(const QRectF &place)
{
    return QTransform(place.width(), 0, 0, place.height(), place.x(), place.y());
}

ComposedPage placed(const Document &document, int page, const QTransform &toSheet,
                    const QRectF &clip = {-1000, -1000, 3000, 3000})
{
    return {document, page, toSheet, clip};
}

/// Each page alone on a sheet of its size.
QList<ComposedSheet> asItIs(const Document &document)
{
    QList<ComposedSheet> sheets;
    for (int page = 0; page < document.pageCount(); ++page) {
        const QSizeF size = document.pageSize(page);
        sheets += {size, {placed(document, page, onto({{}, size}))}};
    }
    return sheets;
}

/// Two pages to a sheet.
QList<ComposedSheet> inPairs(const Document &document)
{
    QList<ComposedSheet> sheets;
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page % 2 == 0)
            sheets += ComposedSheet{{842, 595}};
        sheets.last().pages += placed(document, page, onto({page % 2 == 0 ? 0.0 : 421, 0, 421, 595}));
    }
    return sheets;
}

/// The part of a picture that is mostly of one color, in pixels.
QRectF inkOf(const QImage &picture, QRgb color)
{
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (qAbs(qRed(pixel) - qRed(color)) + qAbs(qGreen(pixel) - qGreen(color)) +
                    qAbs(qBlue(pixel) - qBlue(color)) <
                255)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

bool isNear(const QRectF &a, const QRectF &b)
{
    constexpr double halfADot = .5;
    return qAbs(a.left() - b.left()) <= halfADot && qAbs(a.top() - b.top()) <= halfADot &&
           qAbs(a.right() - b.right()) <= halfADot && qAbs(a.bottom() - b.bottom()) <= halfADot;
}

} // namespace

class DocumentComposerTest final : public QObject
{
    Q_OBJECT

private:
    QByteArray outputOf(const QString &program, const QStringList &arguments, const QByteArray &pdf,
                        const QStringList &behind = {}) const
    {
        QFile file(folder_.filePath(u"sheets.pdf"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size())
            qFatal("%s", qPrintable(file.errorString()));
        file.close();
        QProcess process;
        process.start(program, arguments + QStringList{file.fileName()} + behind);
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("%s: %s", qPrintable(program), process.readAllStandardError().constData());
        return process.readAllStandardOutput();
    }

    /// The PDF without compression, in which its objects can be looked for.
    QByteArray readable(const QByteArray &pdf) const
    {
        return outputOf(u"qpdf"_s, {u"--qdf"_s, u"--normalize-content=n"_s}, pdf, {u"-"_s});
    }

    /// The first sheet at 144 dots to the inch: two to the point.
    QImage printed(const QByteArray &pdf) const
    {
        return QImage::fromData(
            outputOf(u"pdftoppm"_s, {u"-r"_s, u"144"_s, u"-f"_s, u"1"_s, u"-l"_s, u"1"_s}, pdf));
    }

    QByteArray composed(const QList<ComposedSheet> &sheets) const
    {
        const auto pdf = composeDocument(sheets, u"Título"_s);
        if (!pdf)
            qFatal("%s", qPrintable(pdf.failure().text));
        return *pdf;
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void placesInk_data()
    {
        const QTransform half = onto({10, 20, 100, 50});
        const QTransform turned(0, 100, -50, 0, 210,
                                30); // clockwise, with its upper left corner at (210, 30)
        addRows<QByteArray, QTransform, QRectF, QRectF>({
            {"smaller", plain, half, {10, 60, 10, 10}, {20, 60, 10, 10}},
            {"turned", plain, turned, {160, 30, 10, 10}, {160, 40, 10, 10}},
            {"own turn", "/MediaBox [0 0 200 100] /Rotate 90", half, {10, 20, 20, 5}, {10, 25, 20, 5}},
            {"upside down", "/MediaBox [0 0 200 100] /Rotate 180", half, {100, 20, 10, 10}, {90, 20, 10, 10}},
            {"own turn back", "/MediaBox [0 0 200 100] /Rotate -90", half, {90, 65, 20, 5}, {90, 60, 20, 5}},
            {"moved", "/MediaBox [-50 -20 150 80]", half, {35, 50, 10, 10}, {45, 50, 10, 10}},
            {"cropped",
             "/MediaBox [-90 -90 90 90] /CropBox [0 0 50 25]",
             half,
             {10, 30, 40, 40},
             {50, 30, 40, 40}},
            {"cropped away",
             "/MediaBox [0 0 200 100] /CropBox [10 0 200 100]",
             onto({10, 20, 190, 100}),
             {10, 100, 10, 20},
             {20, 100, 20, 20}},
            {"larger units", "/MediaBox [0 0 200 100] /UserUnit 2", half, {10, 60, 10, 10}, {20, 60, 10, 10}},
        });
    }

    void placesInk()
    {
        const auto [dictionary, toSheet, redPlace, bluePlace] = row<QByteArray, QTransform, QRectF, QRectF>();
        const Document document = inMemory(withPages({{marks(), dictionary}}));
        const QImage picture = printed(composed({{{300, 200}, {placed(document, 0, toSheet)}}}));
        QCOMPARE(picture.size(), QSize(600, 400));
        const auto dots = [](const QRectF &place) {
            return QTransform::fromScale(2, 2).mapRect(place);
        };
        QVERIFY(isNear(inkOf(picture, red), dots(redPlace)));
        QVERIFY(isNear(inkOf(picture, blue), dots(bluePlace)));
    }

    void clipsPages()
    {
        const Document document = inMemory(withPages({{marks(), plain}}));
        const QImage picture =
            printed(composed({{{300, 200}, {placed(document, 0, onto({0, 0, 200, 100}), {5, 85, 20, 30})}}}));
        QVERIFY(isNear(inkOf(picture, red), QRectF(10, 170, 30, 30)));
        QVERIFY(isNear(inkOf(picture, blue), QRectF(40, 170, 10, 30)));
    }

    void leavesPagesAsTheyAre_data()
    {
        const QRectF all(0, 0, 200, 100);
        const QSizeF size(200, 100);
        addRows<QByteArray, QSizeF, QTransform, QRectF, bool>({
            {"same size", plain, size, onto(all), all, true},
            {"all but the same size",
             plain,
             {200.4, 99.6},
             onto({0, 0, 200.4, 99.6}),
             {.3, 0, 200, 100},
             true},
            {"turned by itself", "/MediaBox [0 0 100 200] /Rotate 90", size, onto(all), all, true},
            {"another size", plain, {200.6, 100}, onto({0, 0, 200.6, 100}), {0, 0, 300, 300}, false},
            {"moved", plain, size, onto({1, 0, 200, 100}), all, false},
            {"turned", plain, size, QTransform(-200, 0, 0, -100, 200, 100), all, false},
            {"clipped", plain, size, onto(all), {1, 0, 199, 100}, false},
            {"larger units", "/MediaBox [0 0 100 50] /UserUnit 2", size, onto(all), all, false},
        });
    }

    void leavesPagesAsTheyAre()
    {
        const auto [dictionary, size, toSheet, clip, isSame] =
            row<QByteArray, QSizeF, QTransform, QRectF, bool>();
        const QByteArray content = "% odd \x01 bytes  \n" + marks() + "(\xff\\)) pop\r\n% end";
        const Document document = inMemory(withPages({{content, dictionary}}));
        const QByteArray pdf = readable(composed({{size, {placed(document, 0, toSheet, clip)}}}));
        QCOMPARE(!pdf.contains("/Form"), isSame);
        QVERIFY(pdf.contains("stream\n" + content));
    }

    void leavesPackedContentAsItIs()
    {
        const QByteArray packed = qCompress(marks() + marks(50, 50), 1).mid(4);
        const Document document =
            inMemory(joined({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                             "<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + plain + " >>",
                             stream(packed, "/Filter /FlateDecode")}));
        QVERIFY(composed(asItIs(document)).contains(packed));
        QVERIFY(composed(inPairs(document)).contains(packed));
    }

    /// What a page does, or what comes with its document, is not printed.
    void takesPagesOnly()
    {
        const QByteArray act = "/A << /S /JavaScript /JS (app.beep\\(0\\)) >> /AA << /E 12 0 R >>";
        const QByteArray file =
            "/Names << /EmbeddedFiles << /Names [(a) << /Type /Filespec /F (a) /EF << /F 13 0 R >> >>] >> >>";
        const Document document = inMemory(withPages(
            {{marks(), plain + " /Annots [10 0 R 14 0 R 15 0 R] /AA << /O 12 0 R >>"}},
            {"<< /Type /Annot /Subtype /Widget /FT /Tx /T (field) /V (kept) /F 4 /Rect [100 50 150 100] "
             "/Parent 16 0 R "
             "/AP << /N 11 0 R >> " +
                 act + " >>",
             stream("0 1 0 rg 0 0 50 50 re f", "/Type /XObject /Subtype /Form /BBox [0 0 50 50]"),
             "<< /S /JavaScript /JS (app.beep\\(0\\)) >>", stream("attached", "/Type /EmbeddedFile"),
             "<< /Type /Annot /Subtype /Link /F 4 /Rect [0 0 9 9] /Border [0 0 0] /Dest [3 0 R /Fit] " + act +
                 " >>",
             "<< /Type /Annot /Subtype /Stamp /F 0 /Rect [150 0 200 50] /AP << /N 17 0 R >> >>",
             "<< /Kids [10 0 R] /T (parent) " + act + " >>",
             stream("0 1 0 rg 0 0 50 50 re f", "/Type /XObject /Subtype /Form /BBox [0 0 50 50]")},
            "/OpenAction 12 0 R /AcroForm << /Fields [16 0 R] /XFA (x) >> " + file));
        for (const auto &sheets :
             {asItIs(document),
              QList<ComposedSheet>{{{300, 200}, {placed(document, 0, onto({0, 0, 200, 100}))}}}}) {
            const QByteArray pdf = composed(sheets);
            const QByteArray text = readable(pdf);
            for (const char *unwanted : {"/JavaScript", "/OpenAction", "/AA", "/Embedded", "/AcroForm",
                                         "/Widget", "/Parent 16", "attached"})
                QVERIFY2(!text.contains(unwanted), unwanted);
            QVERIFY(isNear(inkOf(printed(pdf), qRgb(0, 255, 0)), QRectF(200, 0, 100, 100)));
        }
    }

    void printsTheLayersThatAreOn()
    {
        const QByteArray content = "/OC /L BDC 0 1 0 rg 100 0 50 50 re f EMC " + marks();
        for (const auto &[configuration, isOn] :
             {std::pair("/OFF [10 0 R]", false), std::pair("/ON [10 0 R]", true),
              std::pair("/BaseState /OFF", false), std::pair("/BaseState /OFF /ON [10 0 R]", true)}) {
            const Document document = inMemory(withPages(
                {{content, plain + " /Resources << /Properties << /L 10 0 R >> >>"}},
                {"<< /Type /OCG /Name (layer) >>"},
                "/OCProperties << /OCGs [2 0 R 10 0 R] /D << " + QByteArray(configuration) + " >> >>"));
            for (const auto &sheets : {asItIs(document), inPairs(document)})
                QCOMPARE(!inkOf(printed(composed(sheets)), qRgb(0, 255, 0)).isNull(), isOn);
        }
    }

    void sharesWhatPagesHaveInCommon()
    {
        const Document document = inMemory(pdf_samples::text(60));
        const QByteArray pdf = composed(inPairs(document) + inPairs(document));
        const auto sheets = Document::open(
            [&pdf] {
                pdekit::FileDescriptor memory(::memfd_create("test", MFD_CLOEXEC));
                return ::write(memory.number(), pdf.constData(), size_t(pdf.size())) == pdf.size()
                           ? std::move(memory)
                           : pdekit::FileDescriptor();
            }(),
            u"sheets"_s);
        QVERIFY(sheets);
        QCOMPARE(sheets->pageCount(), 60);
        QCOMPARE(sheets->title(), u"Título"_s);
        const QByteArray text = readable(pdf);
        QCOMPARE(text.count("/BaseFont"), 1);
        QCOMPARE(text.count("(Page 7, line 3 "), 1);
    }

    /// All pages have one list of pictures, as some programs write it.
    void takesNoPicturesOfOtherPages()
    {
        const QByteArray page = plain + " /Resources 10 0 R";
        const auto picture = [](const QByteArray &color) {
            return stream(color + " rg 0 0 100 100 re f",
                          "/Type /XObject /Subtype /Form /BBox [0 0 100 100]");
        };
        const Document document = inMemory(
            withPages({{"/A Do", page}, {"/B Do", page}},
                      {"<< /XObject << /A 11 0 R /B 12 0 R >> >>", picture("0 1 0"), picture("0 0 1")}));
        for (const auto &sheets : {asItIs(document), inPairs(document)}) {
            const QByteArray all = readable(composed(sheets));
            QVERIFY(all.contains("0 1 0 rg") && all.contains("0 0 1 rg"));
        }
        const QByteArray one = readable(composed({asItIs(document).constLast()}));
        QVERIFY(!one.contains("0 1 0 rg") && one.contains("0 0 1 rg"));
    }

    void isTheSameEachTime()
    {
        const Document document = inMemory(withPages({{marks(), plain}, {marks(9, 9), plain}}));
        const QList<ComposedSheet> sheets =
            inPairs(document) + QList<ComposedSheet>{{{300, 200}}} + asItIs(document);
        const QByteArray pdf = composed(sheets);
        const qint64 second = QDateTime::currentSecsSinceEpoch();
        QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() != second); // what the time leaves behind
        QCOMPARE(composed(sheets), pdf);
        QCOMPARE(readable(pdf).count("/MediaBox"), 4); // the empty side is one
        outputOf(u"qpdf"_s, {u"--check"_s}, pdf);
    }

    void reportsTheDocumentThatFails()
    {
        const Document good = inMemory(withPages({{marks(), plain}}));
        const auto missing = composeDocument({{{300, 200}, {placed(good, 7, onto({0, 0, 200, 100}))}}}, {});
        QCOMPARE(reasonOf(missing), DocumentFault::Broken);
        QVERIFY(missing.failure().text.contains(u"document"));
        const QTransform endless(qInf(), 0, 0, 1, 0, 0);
        QCOMPARE(reasonOf(composeDocument({{{300, 200}, {placed(good, 0, endless)}}}, {})),
                 DocumentFault::Broken);
        QVERIFY(!composeDocument({}, {}));
    }
};

CORVEL_TEST(DocumentComposerTest)
#include "DocumentComposerTest.moc"
