// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobDocument.h"
#include "Arrangement.h"
#include "DocumentHelpers.h"
#include "PageRendering.h"
#include "PdfSamples.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

const PageGeometry sheet{{200, 100}, QRectF(0, 0, 200, 100)};

/// A red, a green and a blue page, each from its left edge to a little behind the middle of the paper.
QByteArray colors(int width = 200)
{
    QList<pdf_samples::Page> pages;
    const QByteArray end = QByteArray::number(width / 2 + 2);
    for (const char *color : {"1 0 0", "0 1 0", "0 0 1"})
        pages += {color + QByteArray(" rg 0 0 ") + end + " 100 re f",
                  "/MediaBox [0 0 " + QByteArray::number(width) + " 100]"};
    return pdf_samples::withPages(pages);
}

/// A letter for each page's color, "-" for an empty one; with ">" behind those that have been moved to the
/// right.
QString pagesOf(const QByteArray &pdf)
{
    const auto document = Document::open(memoryWith(pdf), u"sent"_s);
    QString pages;
    for (int page = 0; document && page < document->pageCount(); ++page) {
        const auto image = renderPage(*document, page, {200, 100});
        const auto letter = [&image](int x) {
            const QRgb color = image ? image->pixel(x, 50) : 0;
            return color == qRgb(255, 0, 0)   ? u'r'
                   : color == qRgb(0, 255, 0) ? u'g'
                   : color == qRgb(0, 0, 255) ? u'b'
                                              : u'-';
        };
        pages += letter(100);
        if (letter(100) != u'-' && letter(1) == u'-' && letter(104) != u'-')
            pages += u'>';
    }
    return pages;
}

struct Asked
{
    Arrangement arrangement;
    PrintJob job;
};

} // namespace

/// What a job sends of pages of documents.
class JobDocumentTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsWhatIsChosen_data()
    {
        using Change = std::function<void(Asked &)>;
        const auto add = rows<Change, QString>();
        const auto reverse = [](Asked &asked) {
            asked.arrangement.pages.isReversed = true;
        };
        add(
            "a whole document as it is", [](Asked &) {}, u"the document"_s);
        add(
            "some pages", [](Asked &asked) { asked.arrangement.photos.removeLast(); }, u"rg"_s);
        add(
            "as many pages, but others",
            [](Asked &asked) { asked.arrangement.photos[1] = asked.arrangement.photos[0]; }, u"rrb"_s);
        add(
            "moved",
            [](Asked &asked) {
                asked.job.offset = {5, 0};
            },
            u"r>g>b>"_s);
        add(
            "turned", [](Asked &asked) { asked.arrangement.photos[0].placement.turns = 2; }, u"r>gb"_s);
        add(
            "on paper of another size",
            [](Asked &asked) {
                asked.job.page = {{300, 200}, QRectF(0, 0, 300, 200)};
            },
            u"rgb"_s);
        add(
            "one of them twice", [](Asked &asked) { asked.arrangement.photos[1].copies = 2; }, u"r|g 2|b"_s);
        add(
            "all of them twice",
            [](Asked &asked) {
                for (PlacedPhoto &page : asked.arrangement.photos)
                    page.copies = 2;
            },
            u"the document 2"_s);
        add("the last one first", reverse, u"bgr"_s);
        add(
            "on both sides",
            [=](Asked &asked) {
                reverse(asked);
                asked.job.options.insert(u"Duplex"_s, u"DuplexTumble"_s);
            },
            u"b-rg"_s);
        add(
            "on both sides, by attributes",
            [=](Asked &asked) {
                reverse(asked);
                asked.job.ipp.emplace().attributes.insert(
                    u"sides"_s, {{IppValue::Kind::Keyword, 0, 0, u"two-sided-long-edge"_s, {}}});
            },
            u"b-rg"_s);
        add(
            "to a printer that takes files as they are",
            [](Asked &asked) {
                asked.job.ppd = QByteArray();
                asked.job.page = {{300, 200}, QRectF(0, 0, 300, 200)};
            },
            u"the document"_s);
    }

    void sendsWhatIsChosen()
    {
        const auto [change, sent] = row<std::function<void(Asked &)>, QString>();
        const auto document = Document::open(memoryWith(colors()), u"colors"_s);
        QVERIFY(document);
        Asked asked;
        asked.job.page = sheet;
        for (int page = 0; page < document->pageCount(); ++page)
            asked.arrangement.photos += PlacedPhoto{Photo::ofPage(*document, page)};
        change(asked);
        const SheetPlan plan = asked.arrangement.plan(asked.job.page);
        QStringList jobs;
        for (const auto &range : asked.arrangement.jobs(plan)) {
            const JobSheets sheets = asked.arrangement.jobSheets(plan, range);
            const auto made = jobDocument(sheets, asked.job);
            QVERIFY2(made, qPrintable(made ? QString() : made.failure().text));
            QCOMPARE(made->mimeType, "application/pdf");
            QCOMPARE(made->isUntouched, made->data == colors());
            jobs += made->isUntouched ? u"the document"_s : pagesOf(made->data);
            if (sheets.copies > 1)
                jobs.last() += u' ' + QString::number(sheets.copies);
        }
        QCOMPARE(jobs.join(u'|'), sent);
    }

    /// What is cut off is cut off where the page has been moved to.
    void movesWhatIsCutOff()
    {
        const auto document = Document::open(memoryWith(colors(400)), u"wide"_s);
        QVERIFY(document);
        Asked asked{{{PlacedPhoto{Photo::ofPage(*document, 0), {Scaling::Fill}}}}, {}};
        asked.job.page = sheet;
        asked.job.offset = {5, 0};
        const SheetPlan plan = asked.arrangement.plan(sheet);
        const auto made = jobDocument(asked.arrangement.jobSheets(plan, {0, 1}), asked.job);
        QVERIFY(made);
        QCOMPARE(pagesOf(made->data), u"r>"_s);
    }
};

CORVEL_TEST(JobDocumentTest)
#include "JobDocumentTest.moc"
