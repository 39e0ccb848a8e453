// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobDocument.h"
#include "SamplePhotos.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(PageGeometry)

/// What a queue is sent: the untouched file only where no printer could place it otherwise.
class JobDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void untouchedOnlyWhereNothingIsPlaced_data();
    void untouchedOnlyWhereNothingIsPlaced();

private:
    QTemporaryDir folder_;
};

void JobDocumentTest::untouchedOnlyWhereNothingIsPlaced_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<PageGeometry>("page");
    QTest::addColumn<QByteArrayList>("direct");
    QTest::addColumn<bool>("isUntouched");
    const PageGeometry sheet{QSizeF(288, 432), QRectF(0, 0, 288, 432)};
    const PageGeometry margins{QSizeF(288, 432), QRectF(9, 9, 270, 414)};
    const QByteArrayList types = {"image/jpeg", "image/png"};
    const QImage upright = samples::quarters(QSize(400, 600));
    const QByteArray jpeg = samples::encoded(upright, "jpeg");
    const QByteArray png = samples::encoded(upright, "png");
    const auto row = [&](const char *name, const QByteArray &content, const PageGeometry &page,
                         bool untouched) {
        QTest::newRow(name) << content << page << types << untouched;
    };
    row("the sheet's shape", jpeg, sheet, true);
    row("grey", samples::encoded(upright.convertToFormat(QImage::Format_Grayscale8), "jpeg"), sheet, true);
    row("upright by its note", samples::withOrientation(jpeg, 1), sheet, true);
    row("turned by its note", samples::withOrientation(jpeg, 6), sheet, false);
    row("mirrored by its note", samples::withOrientation(jpeg, 2), sheet, false);
    row("upside down by its note", samples::withOrientation(jpeg, 3), sheet, false);
    row("across the sheet", samples::encoded(samples::quarters(QSize(600, 400)), "jpeg"), sheet, false);
    row("a little too wide", samples::encoded(samples::quarters(QSize(404, 600)), "jpeg"), sheet, false);
    row("within a dot", samples::encoded(samples::quarters(QSize(2001, 3000)), "jpeg"), sheet, true);
    row("margins", jpeg, margins, false);
    row("progressive", samples::encoded(upright, "jpeg", true), sheet, false);
    row("no JPEG", png, sheet, false);
    QTest::newRow("a filter reads it") << jpeg << sheet << QByteArrayList{"application/pdf"} << false;
}

void JobDocumentTest::untouchedOnlyWhereNothingIsPlaced()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArrayList, direct);
    QFETCH(bool, isUntouched);
    samples::store(folder_.filePath(u"photo"_s), content);
    const auto photo = Photo::open(folder_.filePath(u"photo"_s));
    QVERIFY(photo);
    PrintJob job;
    QFETCH(PageGeometry, page);
    job.page = page;
    job.queue.directTypes = direct;
    const auto document = jobDocument(*photo, job);
    QVERIFY(document);
    QCOMPARE(document->data == content, isUntouched);
    QCOMPARE(document->mimeType, QByteArray(isUntouched ? "image/jpeg" : "application/pdf"));
    QCOMPARE(document->data.startsWith("%PDF-"), !isUntouched);
    // Without a PPD there is no page to place anything on.
    job.queue = QueueTerms::withoutPpd();
    const auto raw = jobDocument(*photo, job);
    QVERIFY(raw && raw->data == content);
}

QTEST_GUILESS_MAIN(JobDocumentTest)
#include "JobDocumentTest.moc"
