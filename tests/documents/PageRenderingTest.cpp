// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageRendering.h"

#include "PdfSamples.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>

#include <array>
#include <thread>

using namespace printdialog;
using namespace pdf_samples;
using namespace Qt::StringLiterals;

namespace {

/// The color of a place in the unit square of the page.
QRgb at(const QImage &image, double x, double y)
{
    return image.pixel(int(x * image.width()), int(y * image.height()));
}

constexpr QRgb white = qRgb(255, 255, 255);

QByteArray form(const QByteArray &content, const QByteArray &forms)
{
    return stream(content, "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Resources << /XObject << " +
                               forms + " >> >>");
}

/// Ten levels of forms, each of which draws the next ten times.
QByteArray deepForms()
{
    QByteArrayList further;
    for (int level = 0; level < 10; ++level)
        further += form(QByteArray("/F Do ").repeated(10), "/F " + QByteArray::number(11 + level) + " 0 R");
    further += form("0 0 m 100 100 l S", {});
    return withPages({{"/F Do", "/MediaBox [0 0 200 100] /Resources << /XObject << /F 10 0 R >> >>"}},
                     further);
}

QByteArray ownForm()
{
    return withPages(
        {{"/F Do " + marks(), "/MediaBox [0 0 200 100] /Resources << /XObject << /F 10 0 R >> >>"}},
        {form("/F Do", "/F 10 0 R")});
}

/// An image of 1.6 thousand million pixels from a few bytes.
QByteArray imageBomb()
{
    const QByteArray image =
        stream(qCompress(QByteArray(1 << 20, 'x')).mid(4),
               "/Type /XObject /Subtype /Image /Width 40000 /Height 40000 /BitsPerComponent 8 "
               "/ColorSpace /DeviceRGB /Filter /FlateDecode");
    return withPages(
        {{"100 0 0 100 0 0 cm /I Do", "/MediaBox [0 0 200 100] /Resources << /XObject << /I 10 0 R >> >>"}},
        {image});
}

QByteArray longDrawing()
{
    const QByteArray content = qCompress(QByteArray("0 0 m 200 100 l S ").repeated(30'000'000)).mid(4);
    return joined({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                   "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 4 0 R >>",
                   stream(content, "/Filter /FlateDecode")});
}

} // namespace

class PageRenderingTest final : public QObject
{
    Q_OBJECT

private:
    Document opened(const QByteArray &pdf) const
    {
        QFile file(folder_.filePath(u"document.pdf"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size())
            qFatal("%s", qPrintable(file.errorString()));
        file.close();
        const auto document = Document::open(file.fileName());
        if (!document)
            qFatal("%s", qPrintable(document.failure().text));
        return *document;
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    /// The red mark stands at the lower left of the crop box, the blue one to the right of it.
    void showsWhatIsSeen_data()
    {
        addRows<QByteArray, QPointF, QPointF>({
            {"plain", "/MediaBox [0 0 200 100]", {.05, .9}, {.15, .9}},
            {"moved", "/MediaBox [-50 -20 150 80]", {.3, .7}, {.4, .7}},
            {"turned", "/MediaBox [0 0 200 100] /Rotate 90", {.1, .05}, {.1, .15}},
            {"upside down", "/MediaBox [0 0 200 100] /Rotate 180", {.95, .1}, {.85, .1}},
            {"turned back", "/MediaBox [0 0 200 100] /Rotate 270", {.9, .95}, {.9, .85}},
            {"cropped", "/MediaBox [-100 -100 300 300] /CropBox [0 0 50 50]", {.2, .8}, {.6, .8}},
            {"in larger units", "/MediaBox [0 0 200 100] /UserUnit 3", {.05, .9}, {.15, .9}},
        });
    }

    void showsWhatIsSeen()
    {
        const auto [dictionary, redPlace, bluePlace] = row<QByteArray, QPointF, QPointF>();
        const Document document = opened(withPages({{marks(), dictionary}}));
        const QSize whole = document.pageSize(0).scaled(400, 400, Qt::KeepAspectRatio).toSize();
        const auto image = renderPage(document, 0, whole);
        QVERIFY2(image, image ? "" : qPrintable(image.failure().text));
        QCOMPARE(image->size(), whole);
        QCOMPARE(image->format(), QImage::Format_RGB32);
        QCOMPARE(at(*image, redPlace.x(), redPlace.y()), red);
        QCOMPARE(at(*image, bluePlace.x(), bluePlace.y()), blue);
        QCOMPARE(at(*image, .999, .5), white);

        // A part is the same as that part of the whole.
        const QRect part(whole.width() / 4, whole.height() / 4, whole.width() / 2, whole.height() * 3 / 4);
        const QRectF unit(double(part.x()) / whole.width(), double(part.y()) / whole.height(),
                          double(part.width()) / whole.width(), double(part.height()) / whole.height());
        const auto partly = renderPage(document, 0, whole, unit);
        QVERIFY(partly);
        QCOMPARE(partly->size(), part.size());
        for (int y = 2; y < part.height(); y += 7) {
            for (int x = 2; x < part.width(); x += 7)
                QCOMPARE(partly->pixel(x, y), image->pixel(part.x() + x, part.y() + y));
        }
    }

    void limitsPixels()
    {
        const Document document = opened(withPages({{marks()}}));
        const auto whole = renderPage(document, 0, {100'000, 50'000});
        QVERIFY(whole);
        QCOMPARE(whole->size(), QSize(4096, 2048));
        const auto part = renderPage(document, 0, {100'000, 50'000}, {.09, .9, .02, .02});
        QVERIFY(part);
        QCOMPARE(part->size(), QSize(2000, 1000));
        QCOMPARE(at(*part, .49, .5), red);
        QCOMPARE(at(*part, .51, .5), blue);
        QVERIFY(renderPage(document, 0, {0, 0}));
    }

    void showsAnnotationsThatPrint_data()
    {
        addRows<QByteArray, QRgb>({
            {"printed", "/F 4", red},
            {"printed only", "/F 36", red},
            {"seen only", "/F 0", white},
            {"hidden", "/F 6", white},
        });
    }

    void showsAnnotationsThatPrint()
    {
        const auto [flags, color] = row<QByteArray, QRgb>();
        for (const QByteArray kind : {"/Stamp", "/Widget /FT /Btn /T (a)"}) {
            const Document document = opened(withPages(
                {{marks(), "/MediaBox [0 0 200 100] /Annots [10 0 R]"}},
                {"<< /Type /Annot /Subtype " + kind + " /Rect [100 0 200 100] /AP << /N 11 0 R >> " + flags +
                     " >>",
                 stream("1 0 0 rg 0 0 100 100 re f", "/Type /XObject /Subtype /Form /BBox [0 0 100 100]")},
                "/AcroForm << /Fields [10 0 R] >>"));
            const auto image = renderPage(document, 0, {200, 100});
            QVERIFY(image);
            QVERIFY2(at(*image, .75, .5) == color, kind.constData());
        }
    }

    /// A program that fills in a form may leave it to the viewer to show that.
    void showsWhatIsFilledIn()
    {
        const Document document = opened(withPages(
            {{"", "/MediaBox [0 0 200 100] /Annots [10 0 R]"}},
            {"<< /Type /Annot /Subtype /Widget /FT /Tx /T (a) /V (HHHHHHHH) /DA (/F 40 Tf 1 0 0 rg) /F 4 "
             "/Rect [0 0 200 100] >>",
             "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold >>"},
            "/AcroForm << /Fields [10 0 R] /NeedAppearances true /DR << /Font << /F 11 0 R >> >> >>"));
        const auto image = renderPage(document, 0, {400, 200});
        QVERIFY(image);
        int inked = 0;
        for (int x = 0; x < image->width(); ++x)
            inked += image->pixel(x, image->height() / 2) == red;
        QVERIFY2(inked > 40, qPrintable(QString::number(inked)));
    }

    void rendersOnSeveralThreads()
    {
        const Document document = opened(withPages({{marks(), "/MediaBox [0 0 200 100]"}}));
        std::array<std::atomic<bool>, 6> areRight = {};
        std::vector<std::jthread> threads;
        for (auto &isRight : areRight)
            threads.emplace_back([&isRight, document] {
                isRight = true;
                for (int i = 0; i < 8; ++i) {
                    const auto image = renderPage(document, 0, {200, 100});
                    isRight = isRight && image && image->pixel(10, 90) == red;
                }
            });
        threads.clear();
        QVERIFY(std::ranges::all_of(areRight, [](const auto &isRight) { return isRight.load(); }));
    }

    void survivesHostilePages_data()
    {
        addRows<QByteArray, DocumentFault>({
            {"forms that draw forms", deepForms(), DocumentFault::TooCostly},
            {"a form that draws itself", ownForm(), fine},
            {"an image of a huge size", imageBomb(), fine},
            {"a long drawing", longDrawing(), DocumentFault::TooCostly},
        });
    }

    void survivesHostilePages()
    {
        const auto [pdf, reason] = row<QByteArray, DocumentFault>();
        const auto image = renderPage(opened(pdf), 0, {1600, 800});
        QCOMPARE(reasonOf(image), reason);
        if (!image)
            QVERIFY(image.failure().text.contains(u"document.pdf"));
    }
};

CORVEL_TEST(PageRenderingTest)
#include "PageRenderingTest.moc"
