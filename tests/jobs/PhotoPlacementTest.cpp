// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPlacement.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtTest/QTest>

#include <cmath>

using namespace printdialog;

Q_DECLARE_METATYPE(printdialog::PlacementChoice)
Q_DECLARE_METATYPE(printdialog::PageGeometry)

namespace {

const PageGeometry portrait{QSizeF(220, 340), QRectF(10, 20, 200, 300)};
const PageGeometry landscape{QSizeF(340, 220), QRectF(20, 10, 300, 200)};
const PageGeometry square{QSizeF(100, 100), QRectF(0, 0, 100, 100)};
const PageGeometry overprinted{QSizeF(200, 300), QRectF(-10, -10, 220, 320)};

bool isNear(const QRectF &a, const QRectF &b)
{
    return std::abs(a.x() - b.x()) + std::abs(a.y() - b.y()) + std::abs(a.width() - b.width()) +
               std::abs(a.height() - b.height()) <
           1e-6;
}

} // namespace

class PhotoPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        const auto add = rows<PageGeometry, QSize, PlacementChoice, QRectF, int>();

        const PlacementChoice fit;
        const PlacementChoice fill{Scaling::Fill, 0, {0.5, 0.5}};
        const PlacementChoice actual{Scaling::ActualSize, 0, {0.5, 0.5}};
        add("fit: same shape", portrait, QSize(2000, 3000), fit, portrait.imageable, 0);
        add("fit: landscape on portrait", portrait, QSize(3000, 2000), fit, portrait.imageable, 1);
        add("fit: portrait on landscape", landscape, QSize(2000, 3000), fit, landscape.imageable, 1);
        add("fit: square", portrait, QSize(999, 999), fit, QRectF(10, 70, 200, 200), 0);
        add("fit: any shape on a square", square, QSize(400, 200), fit, QRectF(0, 25, 100, 50), 0);
        add("fit: panorama, enlarged", portrait, QSize(30, 10), fit, QRectF(60, 20, 100, 300), 1);
        add("fit: turned by hand", portrait, QSize(3000, 2000), PlacementChoice{Scaling::Fit, 1, {}},
            QRectF(10, 103.3333333, 200, 133.3333333), 2);
        add("fit: turned back by hand", portrait, QSize(3000, 2000), PlacementChoice{Scaling::Fit, 3, {}},
            QRectF(10, 103.3333333, 200, 133.3333333), 0);
        add("fit: never beyond the sheet", overprinted, QSize(200, 300), fit, QRectF(0, 0, 200, 300), 0);
        add("fill: the middle", portrait, QSize(300, 300), fill, QRectF(-40, 20, 300, 300), 0);
        add("fill: the left", portrait, QSize(300, 300), PlacementChoice{Scaling::Fill, 0, {0, 0.5}},
            QRectF(10, 20, 300, 300), 0);
        add("fill: the bottom, which is on the left when turned", portrait, QSize(400, 200),
            PlacementChoice{Scaling::Fill, 0, {0.5, 1}}, QRectF(10, -30, 200, 400), 1);
        add("fill: the right, which is the bottom when turned", portrait, QSize(400, 200),
            PlacementChoice{Scaling::Fill, 0, {1, 0.5}}, QRectF(10, -80, 200, 400), 1);
        add("fill: turned by hand, kept to the left", square, QSize(200, 100),
            PlacementChoice{Scaling::Fill, 2, {0, 0.5}}, QRectF(-100, 0, 200, 100), 2);
        add("fill: beyond the sheet's edges", overprinted, QSize(220, 320), fill, overprinted.imageable, 0);
        add("actual: smaller than the page", portrait, QSize(300, 300), actual, QRectF(38, 98, 144, 144), 0);
        add("actual: fits either way", portrait, QSize(300, 150), actual, QRectF(38, 134, 144, 72), 0);
        add("actual: cut less when turned", portrait, QSize(600, 300), actual, QRectF(38, 26, 144, 288), 1);
        add("actual: cut", square, QSize(300, 150), PlacementChoice{Scaling::ActualSize, 0, {1, 0}},
            QRectF(-44, 0, 144, 72), 0);
    }

    void places()
    {
        const auto [page, photo, choice, target, turns] =
            row<PageGeometry, QSize, PlacementChoice, QRectF, int>();
        const auto placement = PhotoPlacement::place(photo, 150, page, choice);
        QVERIFY2(isNear(placement.target, target),
                 std::unique_ptr<char[]>(QTest::toString(placement.target)).get());
        QCOMPARE(placement.quarterTurns, turns);
        const QSizeF upright = turns % 2 ? placement.target.size().transposed() : placement.target.size();
        QVERIFY(std::abs(upright.width() / upright.height() * photo.height() / photo.width() - 1) < 1e-9);
        const QRectF mapped = placement.toPage().mapRect(QRectF(0, 0, 1, 1));
        QVERIFY(isNear(mapped, target));
    }

    void movesAsFarAsItGoes_data()
    {
        const auto add = rows<Scaling, int, QPointF, QPointF>();

        // 400 x 200 on 200 x 300: turned by the page, 400 of 300 points high when it fills the area.
        add("fit stays", Scaling::Fit, 0, QPointF(9, 9), QPointF(0, 0));
        add("fill moves along the page", Scaling::Fill, 0, QPointF(9, 20), QPointF(0, 20));
        add("fill, upside down", Scaling::Fill, 2, QPointF(9, -20), QPointF(0, -20));
        add("fill, across", Scaling::Fill, 1, QPointF(-30, 5), QPointF(-30, 0));
        add("no further than the photo's edge", Scaling::Fill, 0, QPointF(0, 900), QPointF(0, 50));
        add("actual size, within the page", Scaling::ActualSize, 0, QPointF(-9, 10), QPointF(-4, 10));
        add("actual size, to the page's edge", Scaling::ActualSize, 3, QPointF(-900, 900), QPointF(-52, 54));
    }

    void movesAsFarAsItGoes()
    {
        const auto [scaling, turns, distance, moved] = row<Scaling, int, QPointF, QPointF>();
        const QSize photo(400, 200);
        const PlacementChoice before{scaling, turns, {0.5, 0.5}};
        const auto from = PhotoPlacement::place(photo, 150, portrait, before);
        const PlacementChoice after = from.moved(before, distance);
        const auto to = PhotoPlacement::place(photo, 150, portrait, after);
        QVERIFY2(isNear(to.target, from.target.translated(moved)),
                 std::unique_ptr<char[]>(QTest::toString(to.target)).get());
        QCOMPARE(after.scaling, before.scaling);
        QCOMPARE(after.turns, before.turns);
    }
};

CORVEL_TEST(PhotoPlacementTest)
#include "PhotoPlacementTest.moc"
