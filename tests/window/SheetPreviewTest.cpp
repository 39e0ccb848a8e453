// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Arrangement.h"
#include "PlacementText.h"
#include "PreviewBar.h"
#include "PreviewWidget.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "SampleProfiles.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

const PageGeometry wideSheet{QSizeF(560, 420), QRectF(14, 14, 532, 392)};

bool isNear(const QColor &one, const QColor &other)
{
    constexpr int most = 6; // for JPEG and color tables
    return std::abs(one.red() - other.red()) <= most && std::abs(one.green() - other.green()) <= most &&
           std::abs(one.blue() - other.blue()) <= most;
}

} // namespace

/// A preview with its bar that shows an arrangement, as the window does.
struct ShownArrangement : QWidget
{
    explicit ShownArrangement(const Arrangement &shown, const PageGeometry &geometry = wideSheet)
        : arrangement(shown)
        , paper(geometry)
        , preview(new PreviewWidget(this))
        , bar(new PreviewBar(preview, this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(preview, 1);
        layout->addWidget(bar);
        connect(preview, &PreviewWidget::sheetWanted, this, [this](int number) { show(number, 0); });
        connect(preview, &PreviewWidget::photoPicked, this, [this](qsizetype index) { show(sheet, index); });
        connect(preview, &PreviewWidget::placementChanged, this, [this](const PlacementChoice &choice) {
            arrangement.photos[item()].placement = choice;
            show(sheet, current);
        });
        preview->setPage(paper);
        show(0, 0);
        resize(700, 600);
        QWidget::show();
    }

    void show(int number, qsizetype index)
    {
        sheet = number;
        current = index;
        laid = arrangement.plan(paper).sheets();
        preview->setSheetNumber(number, static_cast<int>(laid.size()));
        preview->setSheet(arrangement.sheet(laid.at(number)), index, arrangement.photos.at(item()).placement);
    }
    qsizetype item() const { return laid.at(sheet).photos.at(current).item; }
    /// Where the sheet's photo is in the preview.
    QPoint middleOf(qsizetype index) const
    {
        const QRectF outline = laid.at(sheet).photos.at(index).placement.outline;
        return preview->pageToWidget().map(outline.center()).toPoint();
    }
    QColor colorAt(const QPoint &point) const { return {preview->grab().toImage().pixel(point)}; }
    bool settle() const
    {
        constexpr int patience = 20000; // threads that decode photos give way to everything else
        return QTest::qWaitFor(
            [this] {
                (void)preview->grab();
                return preview->isComplete();
            },
            patience);
    }

    Arrangement arrangement;
    PageGeometry paper;
    PreviewWidget *preview;
    PreviewBar *bar;
    QList<LaidSheet> laid;
    int sheet = 0;
    qsizetype current = 0;
};

/// Sheets with several photos in the preview, with real keys and mouse.
class SheetPreviewTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_.filePath(name); }
    Photo photoOf(const QString &name, const QColor &color, const QSize &size = QSize(600, 400))
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        const QByteArray jpeg = samples::encoded(image, "jpeg");
        samples::store(pathOf(name), name.startsWith(u"swapped")
                                         ? samples::withProfile(jpeg, samples::swappedProfile())
                                         : jpeg);
        return *Photo::open(pathOf(name));
    }
    Arrangement arrangementOf(const QList<Photo> &photos, const QString &layout,
                              const PlacementChoice &choice = {Scaling::Fill})
    {
        Arrangement all;
        for (const Photo &photo : photos)
            all.photos += PlacedPhoto{photo, choice};
        all.layout = *SheetLayout::fromText(layout);
        return all;
    }
    QList<Photo> colored()
    {
        return {photoOf(u"red.jpg"_s, QColor(200, 40, 40)), photoOf(u"green.jpg"_s, QColor(40, 160, 40)),
                photoOf(u"blue.jpg"_s, QColor(40, 40, 200)), photoOf(u"yellow.jpg"_s, QColor(220, 200, 30)),
                photoOf(u"grey.jpg"_s, QColor(120, 120, 120))};
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void pickingPhotos()
    {
        ShownArrangement shown(arrangementOf(colored(), u"2x2"_s));
        QVERIFY(shown.settle());
        QVERIFY(isNear(shown.colorAt(shown.middleOf(0)), QColor(200, 40, 40)));
        QVERIFY(isNear(shown.colorAt(shown.middleOf(3)), QColor(220, 200, 30)));
        const auto hasFrame = [&shown](qsizetype index) {
            const QRectF print =
                shown.preview->pageToWidget().mapRect(shown.laid.at(0).photos.at(index).placement.outline);
            return isNear(shown.colorAt(QPointF(print.left() - 2, print.center().y()).toPoint()),
                          shown.palette().color(QPalette::Highlight));
        };
        QVERIFY(hasFrame(0) && !hasFrame(2));
        const QSignalSpy picked(shown.preview, &PreviewWidget::photoPicked);
        QTest::mouseClick(shown.preview, Qt::LeftButton, {}, shown.middleOf(2));
        QCOMPARE(picked.count(), 1);
        QVERIFY(hasFrame(2) && !hasFrame(0));
        QVERIFY(shown.preview->accessibleName().contains(u"blue.jpg"_s));
        QVERIFY(shown.preview->accessibleDescription().contains(u"Sheet 1 of 2. Photo 3 of 4"_s));
        // One that is dragged is not picked, nor is the current one, and nothing else moves.
        const Arrangement before = shown.arrangement;
        QTest::mousePress(shown.preview, Qt::LeftButton, {}, shown.middleOf(0));
        QTest::mouseMove(shown.preview, shown.middleOf(0) + QPoint(30, 20));
        QTest::mouseRelease(shown.preview, Qt::LeftButton, {}, shown.middleOf(0) + QPoint(30, 20));
        QTest::mouseClick(shown.preview, Qt::LeftButton, {}, shown.middleOf(2));
        QTest::mouseClick(shown.preview, Qt::LeftButton, {}, QPoint(3, 3));
        QCOMPARE(picked.count(), 1);
        for (qsizetype i = 0; i < before.photos.size(); ++i)
            QCOMPARE(shown.arrangement.photos.at(i).placement, before.photos.at(i).placement);
        // Also where the photos are seen enlarged, and where a drag moves what is seen.
        shown.preview->zoomTo(PreviewWidget::dotForDot);
        const QPoint corner = shown.preview->rect().center() - QPoint(200, 150);
        const auto under = [&](const QPoint &point) {
            return shown.laid.at(0).photos.at(0).placement.outline.contains(
                shown.preview->pageToWidget().inverted().map(QPointF(point)));
        };
        QVERIFY(under(corner));
        QTest::mouseClick(shown.preview, Qt::LeftButton, {}, corner);
        QCOMPARE(shown.current, 0);
    }

    void movingTheCurrentPhoto()
    {
        ShownArrangement shown(arrangementOf({photoOf(u"wide.jpg"_s, QColor(200, 40, 40), QSize(900, 300)),
                                              photoOf(u"green.jpg"_s, QColor(40, 160, 40))},
                                             u"2x2,gap=10mm"_s));
        QVERIFY(shown.settle());
        const auto target = [&shown] {
            return shown.laid.at(0).photos.at(shown.current).placement.target;
        };
        const QRectF before = target();
        const QPoint from = shown.middleOf(0);
        QTest::mousePress(shown.preview, Qt::LeftButton, {}, from);
        QTest::mouseMove(shown.preview, from + QPoint(25, 0));
        const QPoint beside = shown.middleOf(1);
        QVERIFY(
            !isNear(shown.colorAt(beside - QPoint(60, 0)), QColor(40, 160, 40))); // what is cut off covers it
        QTest::mouseRelease(shown.preview, Qt::LeftButton, {}, from + QPoint(25, 0));
        const double moved = shown.preview->pageToWidget().mapRect(target()).left() -
                             shown.preview->pageToWidget().mapRect(before).left();
        QVERIFY2(std::abs(moved - 25) < 0.5, qPrintable(QString::number(moved)));
        QVERIFY(isNear(shown.colorAt(beside - QPoint(60, 0)), QColor(40, 160, 40))); // and is covered again
        shown.preview->setFocus();
        const double left = target().left();
        QTest::keyClick(shown.preview, Qt::Key_Left);
        QVERIFY(target().left() < left);
        QTest::keyClick(shown.preview, Qt::Key_Home);
        QCOMPARE(shown.arrangement.photos.at(0).placement.crop, QPointF(0.5, 0.5));
        QCOMPARE(shown.arrangement.photos.at(1).placement.crop, QPointF(0.5, 0.5));
    }

    void turningSheets()
    {
        ShownArrangement shown(arrangementOf(colored(), u"2x1"_s));
        QVERIFY(shown.settle());
        auto *label = shown.bar->findChild<QLabel *>(u"sheetNumber"_s);
        auto *previous = shown.bar->findChild<QToolButton *>(u"previousSheet"_s);
        auto *next = shown.bar->findChild<QToolButton *>(u"nextSheet"_s);
        QCOMPARE(label->text(), u"Sheet 1 of 3"_s);
        QVERIFY(label->isVisible() && !previous->isEnabled());
        shown.preview->setFocus();
        QTest::keyClick(shown.preview, Qt::Key_PageDown);
        QVERIFY(shown.settle());
        QVERIFY(isNear(shown.colorAt(shown.middleOf(0)), QColor(40, 40, 200)));
        QTest::mouseClick(next, Qt::LeftButton);
        QCOMPARE(label->text(), u"Sheet 3 of 3"_s);
        QVERIFY(!next->isEnabled());
        const QSignalSpy wanted(shown.preview, &PreviewWidget::sheetWanted);
        QTest::keyClick(shown.preview, Qt::Key_PageDown);
        QCOMPARE(wanted.count(), 0);
        QTest::keyClick(shown.preview, Qt::Key_PageUp);
        QCOMPARE(shown.sheet, 1);
        shown.arrangement.photos.resize(1);
        shown.show(0, 0);
        QVERIFY(!label->isVisible());
    }

    // Each photo has colors of its own; all get the adjustment, and comparing takes it from all.
    void colorsOfEachPhoto()
    {
        ShownArrangement shown(arrangementOf(
            {photoOf(u"swapped.jpg"_s, QColor(200, 40, 40)), photoOf(u"red.jpg"_s, QColor(200, 40, 40))},
            u"1x2"_s));
        const auto shows = [&shown](const QColor &first, const QColor &second) {
            return shown.settle() && isNear(shown.colorAt(shown.middleOf(0)), first) &&
                   isNear(shown.colorAt(shown.middleOf(1)), second);
        };
        QVERIFY(shows(QColor(40, 200, 40), QColor(200, 40, 40)));
        pdekit::Adjustment half;
        half.matrix[0][0] = 0.5;
        shown.preview->setAdjustment(PictureAdjustment::of({half}));
        QVERIFY(shows(QColor(40, 100, 40), QColor(100, 40, 40)));
        shown.preview->setProfiles(samples::swappedProfile(), {});
        QVERIFY(shows(QColor(100, 40, 40), QColor(40, 100, 40)));
        shown.preview->setCompared(true);
        QVERIFY(shows(QColor(200, 40, 40), QColor(40, 200, 40)));
    }

    // Many small photos need few pixels, and get more when they are looked at closely.
    void detailAsSeen()
    {
        QList<Photo> photos;
        for (int i = 0; i < 30; ++i) {
            const QString path = pathOf(u"lines%1.png"_s.arg(i));
            QImage lines(1200, 900, QImage::Format_Grayscale8);
            for (int y = 0; y < lines.height(); ++y)
                std::fill_n(lines.scanLine(y), lines.width(), y / 2 % 2 == 0 ? 0 : 255);
            samples::store(path, samples::encoded(lines, "png"));
            photos += *Photo::open(path);
        }
        ShownArrangement shown(arrangementOf(photos, u"contact:5x6"_s, {}));
        shown.preview->setDotsPerInch(1200);
        QVERIFY(shown.settle());
        const auto contrast = [&shown](qsizetype index) {
            const QImage seen = shown.preview->grab().toImage();
            const QPoint middle = shown.middleOf(index);
            int darkest = 255;
            int lightest = 0;
            for (int y = -6; y <= 6; ++y) {
                const int grey = qGray(seen.pixel(middle + QPoint(0, y)));
                darkest = std::min(darkest, grey);
                lightest = std::max(lightest, grey);
            }
            return lightest - darkest;
        };
        QVERIFY(contrast(14) < 60);
        shown.show(0, 14);
        shown.preview->setFocus();
        shown.preview->zoomTo(1.0);
        const QPointF away = shown.preview->rect().center() - shown.middleOf(14);
        for (int i = 0; i < std::abs(away.x()) / 64; ++i)
            QTest::keyClick(shown.preview, away.x() > 0 ? Qt::Key_Left : Qt::Key_Right);
        for (int i = 0; i < std::abs(away.y()) / 64; ++i)
            QTest::keyClick(shown.preview, away.y() > 0 ? Qt::Key_Up : Qt::Key_Down);
        QVERIFY(shown.preview->rect().adjusted(20, 20, -20, -20).contains(shown.middleOf(14)));
        QVERIFY(shown.settle() && contrast(14) > 200);
    }

    // The print's size, where it has one, and not that of the photo, of which it shows a part.
    void textOfASizedPrint()
    {
        const Photo photo = photoOf(u"red.jpg"_s, QColor(200, 40, 40), QSize(900, 400));
        PlacementChoice choice{Scaling::Fill};
        choice.size = PrintSize::fromText(u"9x6cm"_s);
        const auto placement = PhotoPlacement::place(photo.orientedSize(), 300, wideSheet, choice);
        QString text = placementText(photo, placement, choice, wideSheet);
        text.replace(QChar(QChar::Nbsp), u' ');
        QCOMPARE(text, u"9.0 × 6.0 cm · 169 pixels per inch · 34 % cut off"_s);
    }

    void rulerAndBleed()
    {
        const PageGeometry borderless{QSizeF(288, 432), QRectF(-6, -6, 300, 444)};
        PlacementChoice choice{Scaling::Fill};
        choice.size = PrintSize{QSizeF(144, 216)};
        ShownArrangement shown(
            arrangementOf({photoOf(u"red.jpg"_s, QColor(200, 40, 40))}, u"single"_s, choice), borderless);
        QVERIFY(shown.settle());
        auto *note = shown.bar->findChild<QLabel *>(u"previewNote"_s);
        QVERIFY2(note->text().contains(u"2.12 mm"_s), qPrintable(note->text()));
        const QRectF before = shown.preview->pageToWidget().mapRect(QRectF(QPointF(), borderless.size));
        QTest::mouseClick(shown.bar->findChild<QToolButton *>(u"ruler"_s), Qt::LeftButton);
        QVERIFY(shown.settle());
        // The rulers stand beside the sheet, and their marks at the print's edges, at every zoom.
        const auto marked = [&shown](const QPointF &onPage, bool isAbove) {
            const QPoint at = shown.preview->pageToWidget().map(onPage).toPoint();
            const QImage seen = shown.preview->grab().toImage();
            const QColor highlight = shown.palette().color(QPalette::Highlight);
            const QRectF sheet = shown.preview->pageToWidget().mapRect(QRectF(QPointF(), shown.paper.size));
            for (int away = 4; away < 20; ++away) {
                const int edge = std::max(static_cast<int>(isAbove ? sheet.top() : sheet.left()), 20);
                const QPoint point = isAbove ? QPoint(at.x(), edge - away) : QPoint(edge - away, at.y());
                for (const QPoint beside : {QPoint(0, 0), QPoint(1, 1), QPoint(-1, -1)}) {
                    if (seen.rect().contains(point + beside) &&
                        isNear(QColor(seen.pixel(point + beside)), highlight))
                        return true;
                }
            }
            return false;
        };
        const QRectF print = shown.laid.at(0).photos.at(0).placement.outline;
        QVERIFY(shown.preview->pageToWidget().mapRect(QRectF(QPointF(), borderless.size)).width() <
                before.width());
        QVERIFY(marked(print.topLeft(), true) && marked(print.topLeft(), false));
        QVERIFY(marked(print.bottomRight(), true) && marked(print.bottomRight(), false));
        QVERIFY(!marked(print.center(), true) && !marked(QPointF(10, 10), true));
        QVERIFY2(shown.preview->accessibleDescription().contains(u"The print is"_s),
                 qPrintable(shown.preview->accessibleDescription()));
        shown.preview->zoomTo(0.4); // the sheet's top is not seen
        QVERIFY(marked(print.topLeft(), true) && marked(print.topLeft(), false));
    }
};

CORVEL_WIDGETS_TEST(SheetPreviewTest)
#include "SheetPreviewTest.moc"
