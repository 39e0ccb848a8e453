// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"
#include "PdfWriter.h"
#include "PhotoTable.h"
#include "PhotoThreads.h"
#include "PhotoThumbnails.h"
#include "PreviewWidget.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QMimeData>
#include <QtCore/QProcess>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtCore/QThreadPool>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <sys/resource.h>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

const PageGeometry bordered{QSizeF(200, 300), QRectF(10, 20, 180, 250)};
const PageGeometry borderless{QSizeF(200, 300), QRectF(0, 0, 200, 300)};

/// Colors that run differently along both sides, so that a shift, a turn or a mirrored side shows.
QImage gradients(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(
                x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), x * y % 900 < 450 ? 40 : 60));
    }
    return image;
}

} // namespace

/// The photo side of the dialog, with real keys and mouse.
class PhotoPaneTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_.filePath(name); }
    Photo photoOf(const QString &name, const QSize &size = QSize(300, 200), int orientation = 1)
    {
        samples::store(pathOf(name),
                       samples::withOrientation(samples::encoded(gradients(size), "jpeg"), orientation));
        return *Photo::open(pathOf(name));
    }
    /// A pane with the photos on the page, shown.
    static std::unique_ptr<PhotoPane> shown(const QList<Photo> &photos, const PlacementChoice &placement = {},
                                            const PageGeometry &page = bordered)
    {
        auto pane = std::make_unique<PhotoPane>();
        pane->resize(500, 600);
        pane->setPage(page);
        pane->setPhotos(photos, {placement});
        pane->QWidget::show();
        return QTest::qWaitForWindowExposed(pane.get()) ? std::move(pane) : nullptr;
    }
    QStringList namesIn(const PhotoPane &pane) const
    {
        QStringList names;
        for (const PlacedPhoto &placed : pane.photos())
            names += placed.photo.fileName();
        return names;
    }
    void drop(QWidget &widget, const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &event);
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void previewIsWhatIsPrinted_data();
    void previewIsWhatIsPrinted();
    void moreDetailWhenLarger();
    void cropByMouseAndKeys();
    void paperIsWhiteInDarkThemes();
    void paintsWhilePhotosAreDecoded();
    void photosGiveWay();
    void placementByControls();
    void table();
    void manyPhotos();
    void droppedFiles();
};

void PhotoPaneTest::previewIsWhatIsPrinted_data()
{
    const QSize usual(300, 200);
    const QPointF middle(0.5, 0.5);
    addRows<PageGeometry, QSize, int, PlacementChoice>({
        {"fit", bordered, usual, 1, {Scaling::Fit, 0, middle}},
        {"fit, turned by hand", bordered, usual, 1, {Scaling::Fit, 1, middle}},
        {"fit, mirrored by Exif", bordered, usual, 5, {Scaling::Fit, 0, middle}},
        {"fill", bordered, usual, 1, {Scaling::Fill, 0, middle}},
        {"fill, to the left, turned", borderless, QSize(400, 200), 1, {Scaling::Fill, 1, QPointF(0, 0.3)}},
        {"fill, by Exif, upside down", bordered, QSize(400, 200), 6, {Scaling::Fill, 2, QPointF(1, 0.2)}},
        {"actual size, smaller", bordered, usual, 1, {Scaling::ActualSize, 0, QPointF(0.2, 0.9)}},
        {"actual size, cut", bordered, QSize(1500, 400), 8, {Scaling::ActualSize, 3, QPointF(0.3, 0.5)}},
    });
}

/// Every pixel of the page that the printer can reach, but for those beside an edge.
void PhotoPaneTest::previewIsWhatIsPrinted()
{
    const auto [page, size, orientation, choice] = row<PageGeometry, QSize, int, PlacementChoice>();
    const Photo photo = photoOf(u"photo.jpg"_s, size, orientation);
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QVERIFY(PdfWriter::write(photo, page, pdf, choice));
    samples::store(pathOf(u"page.pdf"_s), pdf.data());
    constexpr int perPoint = 2;
    QCOMPARE(QProcess::execute(u"pdftoppm"_s, {u"-r"_s, u"144"_s, u"-png"_s, u"-singlefile"_s,
                                               pathOf(u"page.pdf"_s), pathOf(u"page"_s)}),
             0);
    const QImage printed(pathOf(u"page.png"_s));

    PreviewWidget preview;
    preview.resize(1100, 1000);
    preview.setPage(page);
    preview.setSheet(PrintSheet::of(photo, page, choice), 0, choice);
    QTRY_VERIFY(preview.isReady());
    const QImage shown = preview.grab().toImage();
    const QTransform toWidget = preview.pageToWidget();
    const QRectF target = preview.placement()->target;
    qint64 difference = 0;
    qint64 count = 0;
    constexpr int edge = 3;
    const QRect area = QRectF(page.printed().topLeft() * perPoint, page.printed().size() * perPoint)
                           .toAlignedRect()
                           .adjusted(edge, edge, -edge, -edge);
    for (int y = area.top(); y < area.bottom(); y += 3) {
        for (int x = area.left(); x < area.right(); x += 3) {
            const QPointF point = QPointF(x + 0.5, y + 0.5) / perPoint;
            const double toEdge =
                std::min({std::abs(point.x() - target.left()), std::abs(point.x() - target.right()),
                          std::abs(point.y() - target.top()), std::abs(point.y() - target.bottom())});
            if (toEdge < edge)
                continue;
            const QPoint there = toWidget.map(point).toPoint();
            const QRgb one = printed.pixel(x, y);
            const QRgb other = shown.pixel(there);
            const int apart =
                std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other))});
            difference += apart;
            ++count;
            QVERIFY2(apart < 40,
                     qPrintable(u"%1,%2: %3 %4"_s.arg(x).arg(y).arg(one, 0, 16).arg(other, 0, 16)));
        }
    }
    QVERIFY(count > 5000);
    QVERIFY2(double(difference) / double(count) < 8,
             qPrintable(QString::number(double(difference) / double(count))));
}

// Lines as thin as a pixel are grey in a small preview, and black on white in one as large as the photo.
void PhotoPaneTest::moreDetailWhenLarger()
{
    QImage lines(1800, 1200, QImage::Format_Grayscale8);
    for (int y = 0; y < lines.height(); ++y) {
        for (int x = 0; x < lines.width(); ++x)
            lines.scanLine(y)[x] = x % 2 == 0 ? 0 : 255;
    }
    samples::store(pathOf(u"lines.png"_s), samples::encoded(lines, "png"));
    PreviewWidget preview;
    const PageGeometry page{QSizeF(300, 200), QRectF(0, 0, 300, 200)};
    preview.setPage(page);
    preview.setSheet(PrintSheet::of(*Photo::open(pathOf(u"lines.png"_s)), page, {}), 0);
    const auto contrast = [&preview] {
        const QImage shown = preview.grab().toImage();
        const QPoint middle = shown.rect().center();
        int darkest = 255;
        int lightest = 0;
        for (int x = 0; x < 20; ++x) {
            const int grey = qGray(shown.pixel(middle + QPoint(x, 0)));
            darkest = std::min(darkest, grey);
            lightest = std::max(lightest, grey);
        }
        return lightest - darkest;
    };
    preview.resize(400, 300);
    QTRY_VERIFY(preview.isReady());
    QVERIFY2(contrast() < 40, qPrintable(QString::number(contrast())));
    preview.resize(1800 + 32, 1200 + 32); // with the preview's margins
    QTRY_VERIFY2(contrast() > 200, qPrintable(QString::number(contrast())));
}

void PhotoPaneTest::cropByMouseAndKeys()
{
    const auto pane =
        shown({photoOf(u"photo.jpg"_s, QSize(400, 200))}, {Scaling::Fill, 0, {0.5, 0.5}}, borderless);
    auto *preview = pane->findChild<PreviewWidget *>();
    QTRY_VERIFY(preview->isReady());
    const auto onScreen = [preview] {
        return preview->pageToWidget().mapRect(preview->placement()->target);
    };
    const auto distance = [&](const QRectF &before) {
        return onScreen().topLeft() - before.topLeft();
    };
    // The page lies on its side, as the photo does: what is dragged follows the mouse.
    QRectF before = onScreen();
    const QPoint from = preview->rect().center();
    QTest::mousePress(preview, Qt::LeftButton, {}, from);
    QTest::mouseMove(preview, from + QPoint(-20, 15));
    QTest::mouseRelease(preview, Qt::LeftButton, {}, from + QPoint(-20, 15));
    QVERIFY(std::abs(distance(before).x() + 20) < 0.5);
    QVERIFY(std::abs(distance(before).y()) < 0.5);
    QVERIFY(pane->photos().constFirst().placement.crop.x() > 0.5);
    QTest::mouseMove(preview, from); // no longer held
    QVERIFY(std::abs(distance(before).x() + 20) < 0.5);

    preview->setFocus();
    before = onScreen();
    QTest::keyClick(preview, Qt::Key_Right);
    QVERIFY(std::abs(distance(before).x() - 8) < 0.5);
    QTest::keyClick(preview, Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(std::abs(distance(before).x() - 6) < 0.5);
    QTest::keyClick(preview, Qt::Key_Home);
    QCOMPARE(pane->photos().constFirst().placement.crop, QPointF(0.5, 0.5));
    for (int i = 0; i < 200; ++i)
        QTest::keyClick(preview, Qt::Key_Left);
    QCOMPARE(pane->photos().constFirst().placement.crop.x(), 1.0);
    QVERIFY(!preview->accessibleDescription().isEmpty());
}

void PhotoPaneTest::paperIsWhiteInDarkThemes()
{
    PhotoPane pane;
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    pane.setPalette(dark);
    pane.resize(500, 600);
    pane.setPage(bordered);
    pane.setPhotos({photoOf(u"photo.jpg"_s)}, {{Scaling::ActualSize}});
    pane.QWidget::show();
    auto *preview = pane.findChild<PreviewWidget *>();
    QTRY_VERIFY(preview->isReady());
    const QImage shown = pane.grab().toImage();
    const QPoint corner = preview->pageToWidget().map(QPointF(4, 4)).toPoint();
    QCOMPARE(shown.pixelColor(preview->mapTo(&pane, corner)), QColor(Qt::white));
    QCOMPARE(shown.pixelColor(preview->mapTo(&pane, QPoint(2, 2))), QColor(30, 30, 30));
}

// Large areas, which Qt paints on several threads.
void PhotoPaneTest::paintsWhilePhotosAreDecoded()
{
    QSemaphore decoded;
    std::atomic<bool> isLate = false;
    const int threads = photoThreads().maxThreadCount();
    for (int i = 0; i < threads; ++i)
        photoThreads().start([&decoded] { decoded.acquire(); });
    // Nothing on the painting thread would release them.
    const std::unique_ptr<QThread> rescuer(QThread::create([&] {
        QDeadlineTimer limit(std::chrono::seconds(10));
        while (!limit.hasExpired() && !QThread::currentThread()->isInterruptionRequested())
            QThread::msleep(10);
        isLate = limit.hasExpired();
        decoded.release(threads);
    }));
    rescuer->start();
    PhotoPane pane;
    pane.resize(900, 900);
    pane.setPage(borderless);
    pane.grab();
    rescuer->requestInterruption();
    rescuer->wait();
    photoThreads().waitForDone();
    QVERIFY(!isLate);
}

void PhotoPaneTest::photosGiveWay()
{
    const int ours = getpriority(PRIO_PROCESS, 0);
    for (int i = 0; i < 2; ++i) { // a thread does many
        int theirs = ours;
        QSemaphore done;
        startPhotoTask(
            [&] {
                theirs = getpriority(PRIO_PROCESS, 0);
                done.release();
            },
            ShownPhoto);
        QVERIFY(done.tryAcquire(1, 10000));
        QCOMPARE(theirs, std::min(ours + 10, 19));
    }
    QCOMPARE(getpriority(PRIO_PROCESS, 0), ours);
}

void PhotoPaneTest::placementByControls()
{
    const auto pane = shown({photoOf(u"a.jpg"_s), photoOf(u"b.jpg"_s)});
    auto *scaling = pane->findChild<QComboBox *>(u"scaling"_s);
    QTest::keyClick(scaling, Qt::Key_Down);
    QTest::mouseClick(pane->findChild<QPushButton *>(u"turn"_s), Qt::LeftButton);
    QCOMPARE(pane->photos()[0].placement, (PlacementChoice{Scaling::Fill, 1, {0.5, 0.5}}));
    QCOMPARE(pane->photos()[1].placement, PlacementChoice()); // each its own
    pane->setCurrent(1);
    QCOMPARE(scaling->currentIndex(), 0);
    pane->setCurrent(0);
    QCOMPARE(scaling->currentIndex(), 1);
    auto *preview = pane->findChild<PreviewWidget *>();
    QCOMPARE(preview->placement()->quarterTurns, 2);
}

void PhotoPaneTest::table()
{
    const auto pane = shown({photoOf(u"a.jpg"_s), photoOf(u"b.jpg"_s), photoOf(u"c.jpg"_s)});
    auto *table = pane->findChild<PhotoTable *>();
    QVERIFY(table->isVisible());
    QTRY_VERIFY(table->isReady());
    const auto cell = [table](int row) {
        return table->model()->index(row, 0);
    };
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(cell(1)).center());
    QCOMPARE(pane->current(), 1);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Right);
    QCOMPARE(pane->current(), 2);
    QTest::keyClick(table, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(namesIn(*pane), (QStringList{u"a.jpg"_s, u"c.jpg"_s, u"b.jpg"_s}));
    QCOMPARE(pane->current(), 1);
    QCOMPARE(table->currentIndex().data(Qt::AccessibleTextRole).toString(), u"2: c.jpg"_s);
    QTest::keyClick(table, Qt::Key_Delete);
    QCOMPARE(namesIn(*pane), (QStringList{u"a.jpg"_s, u"b.jpg"_s}));
    QCOMPARE(pane->current(), 1);
    auto *remove = pane->findChild<QPushButton *>(u"removePhoto"_s);
    QTest::mouseClick(remove, Qt::LeftButton);
    QVERIFY(!table->isVisible());
    QTest::mouseClick(remove, Qt::LeftButton);
    QVERIFY(pane->photos().isEmpty() && !remove->isEnabled());
    QVERIFY(QFile::exists(pathOf(u"a.jpg"_s)));
    // A file's name is not markup.
    pane->setPhotos({photoOf(u"a & b.jpg"_s), photoOf(u"<img src=x>.jpg"_s)}, {});
    QCOMPARE(cell(0).data(Qt::ToolTipRole).toString(), u"1: a & b.jpg"_s);
    QCOMPARE(QTextDocumentFragment::fromHtml(cell(1).data(Qt::ToolTipRole).toString()).toPlainText(),
             u"2: <img src=x>.jpg"_s);
}

// They come in their order and in few steps, and only those that are seen get a thumbnail.
void PhotoPaneTest::manyPhotos()
{
    constexpr int count = 300;
    const Photo first = photoOf(u"0.jpg"_s, QSize(30, 20));
    QStringList names = {u"0.jpg"_s};
    QStringList further;
    for (int i = 1; i < count; ++i) {
        names += u"%1.jpg"_s.arg(i);
        QVERIFY(QFile::exists(pathOf(names.last())) || QFile::copy(first.path(), pathOf(names.last())));
        further += pathOf(names.last());
    }
    for (int i = 0; i < 5; ++i)
        further.insert(i * 50, pathOf(u"none%1.jpg"_s.arg(i)));
    const auto pane = std::make_unique<PhotoPane>();
    pane->resize(500, 600);
    pane->setPage(bordered);
    int steps = 0;
    QStringList failures;
    connect(pane.get(), &PhotoPane::photosChanged, pane.get(), [&steps] { ++steps; });
    connect(pane.get(), &PhotoPane::failed, pane.get(),
            [&failures](PhotoOpener::Use, const QStringList &sentences) { failures += sentences; });
    pane->setPhotos({first}, {{Scaling::Fill, 1, {0.1, 0.2}}}, further);
    QVERIFY(pane->isOpening());
    pane->QWidget::show();
    QTRY_VERIFY(!pane->isOpening());
    QVERIFY2(steps < count / 10, qPrintable(QString::number(steps)));
    QCOMPARE(namesIn(*pane), names);
    QCOMPARE(pane->photos().constLast().placement, (PlacementChoice{Scaling::Fill, 1, {0.1, 0.2}}));
    QCOMPARE(pane->current(), 0);
    QCOMPARE(failures.size(), 5);
    const QStringList lines = PhotoPane::failureText(failures).split(u'\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[0].contains(u"none0.jpg"_s) && lines[2].contains(u"none2.jpg"_s));
    QVERIFY2(lines[3].startsWith(u"2 more"_s), qPrintable(lines[3]));

    auto *table = pane->findChild<PhotoTable *>();
    const auto made = [table, &pane](int row) {
        return table->thumbnails().has(pane->photos().at(row).photo);
    };
    QTRY_VERIFY(pane->isReady() && made(0));
    QVERIFY(!made(150) && !made(count - 1));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_End);
    QTRY_VERIFY(pane->isReady() && made(count - 1));
    QVERIFY(!made(150));
}

void PhotoPaneTest::droppedFiles()
{
    PhotoPane pane;
    pane.setPhotos({photoOf(u"a.jpg"_s)}, {{Scaling::Fill}});
    pane.place({Scaling::ActualSize, 1, {0, 0}});
    const QByteArray odd = QFile::encodeName(folder_.path()) + "/caf\xc3\xa9 %41.jpg";
    photoOf(u"source.jpg"_s);
    QCOMPARE(::rename(QFile::encodeName(pathOf(u"source.jpg"_s)).constData(), odd.constData()), 0);
    samples::store(pathOf(u"text.txt"_s), "Dear all,");
    QString failures;
    connect(&pane, &PhotoPane::failed, &pane, [&failures](PhotoOpener::Use, const QStringList &sentences) {
        failures = sentences.join(u'\n');
    });
    drop(pane, {QUrl(u"https://example.org/b.jpg"_s)});
    drop(pane, {QUrl::fromLocalFile(pathOf(u"text.txt"_s)),
                QUrl::fromEncoded("file://" + odd.toPercentEncoding("/"))});
    QTRY_COMPARE(pane.photos().size(), 2);
    QTRY_VERIFY(failures.contains(u"text.txt"_s));
    QCOMPARE(failures.count(u'\n'), 0);
    QCOMPARE(pane.current(), 1);
    QCOMPARE(pane.photos()[1].placement, (PlacementChoice{Scaling::ActualSize, 0, {0.5, 0.5}}));
    QVERIFY(pane.findChild<PreviewWidget *>()->accessibleName().contains(u"caf\u00e9 %41.jpg"_s));
}

CORVEL_WIDGETS_TEST(PhotoPaneTest)
#include "PhotoPaneTest.moc"
