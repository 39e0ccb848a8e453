// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageChoice.h"
#include "PagePlaces.h"
#include "Rows.h"
#include "SheetPlan.h"
#include "TestMain.h"

#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double millimeter = pointsPerMillimeter;
const QSizeF a4 = QSizeF(210, 297) * millimeter;
const QSizeF a5 = QSizeF(148, 210) * millimeter;
const QSizeF slide = QSizeF(240, 180) * millimeter;

/// A4 with uneven margins: 5 mm at the left and the right, 4 mm at the top, 13 mm at the bottom.
const PageGeometry paper{a4, QRectF(5 * millimeter, 4 * millimeter, 200 * millimeter, 280 * millimeter)};

QList<LayoutItem> pagesOf(const QSizeF &size, int count, const PlacementChoice &wanted = {})
{
    return QList<LayoutItem>(count, LayoutItem{size, pointsPerInch, wanted, 1, true});
}

SheetPlan planOf(const QString &layout, const QList<LayoutItem> &items, const PageGeometry &page = paper)
{
    return SheetPlan::make(items, *SheetLayout::fromText(layout), page);
}

/// Each page's number, and the middle of its place as seen when the sheet is turned so that the pages are
/// upright, in per cent of the sheet: "0:25,50 1:75,50".
QString seenPlaces(const LaidSheet &sheet, const QSizeF &size)
{
    QStringList places;
    for (const LaidPhoto &laid : sheet.photos) {
        const QPointF middle = laid.placement.target.center();
        QPointF seen(middle.x() / size.width(), middle.y() / size.height());
        if (laid.placement.quarterTurns == 1)
            seen = QPointF(seen.y(), 1 - seen.x());
        places += u"%1:%2,%3"_s.arg(laid.item).arg(qRound(seen.x() * 100)).arg(qRound(seen.y() * 100));
    }
    return places.join(u' ');
}

QString millimetersOf(const QRectF &rect)
{
    const auto number = [](double points) {
        return QString::number(qRound(points / millimeter));
    };
    return QStringList{number(rect.x()), number(rect.y()), number(rect.width()), number(rect.height())}.join(
        u',');
}

} // namespace

class PagePlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rangesAreReadAndWritten_data()
    {
        // the text; as it is written; pages of the first fifteen
        const auto add = rows<QString, QString, QString>();
        add("pages and ranges", u"1-3,7,12-"_s, u"1-3,7,12-"_s, u"1 2 3 7 12 13 14 15"_s);
        add("in any order", u"7, 2 - 3 ,1"_s, u"1-3,7"_s, u"1 2 3 7"_s);
        add("overlapping", u"2-9,4,8-10"_s, u"2-10"_s, u"2 3 4 5 6 7 8 9 10"_s);
        add("from the first", u"-2"_s, u"1-2"_s, u"1 2"_s);
        add("a typographic dash", u"3\u20134"_s, u"3-4"_s, u"3 4"_s);
        add("beyond the end", u"14-20,30"_s, u"14-20,30"_s, u"14 15"_s);
        for (const QString &text : {u""_s, u"0"_s, u"3-1"_s, u"-"_s, u"1,,2"_s, u"1 2"_s, u"a"_s, u"1-2-3"_s,
                                    u"0-3"_s, u"1000001"_s, u"99999999999"_s, u"-1-2"_s, u"+1"_s})
            add(qPrintable(u"refused: '%1'"_s.arg(text)), text, QString(), QString());
    }

    void rangesAreReadAndWritten()
    {
        const auto [text, written, pages] = row<QString, QString, QString>();
        const auto ranges = PageRanges::fromText(text);
        QCOMPARE(ranges ? ranges->toText() : QString(), written);
        if (!ranges)
            return;
        QVERIFY(PageRanges::fromText(written) == ranges);
        QStringList numbers;
        for (int number = 1; number <= 15; ++number) {
            if (ranges->contains(number))
                numbers += QString::number(number);
        }
        QCOMPARE(numbers.join(u' '), pages);
    }

    void evenAndOddPagesOfRangesAreChosen()
    {
        PageChoice choice{PageChoice::Which::Ranges, *PageRanges::fromText(u"2-5"_s), PageChoice::Set::Even};
        QVERIFY(!choice.contains(1) && choice.contains(2) && !choice.contains(3) && choice.contains(4));
        choice.set = PageChoice::Set::Odd;
        QVERIFY(choice.contains(3) && !choice.contains(4) && !choice.contains(7));
        QVERIFY(PageChoice{PageChoice::Which::Selected}.contains(7));
    }

    void pagesShareASheetInReadingOrder_data()
    {
        const auto add = rows<QString, QSizeF, QString>();
        add("two upright pages side by side", u"pages:2"_s, a4, u"0:25,50 1:75,50"_s);
        add("two slides one below the other", u"pages:2"_s, slide, u"0:50,25 1:50,75"_s);
        add("four", u"pages:4"_s, a4, u"0:25,25 1:75,25 2:25,75 3:75,75"_s);
        add("six, in two rows", u"pages:6"_s, a4, u"0:17,25 1:50,25 2:83,25 3:17,75 4:50,75 5:83,75"_s);
        add("six slides, in three", u"pages:6"_s, slide,
            u"0:25,17 1:75,17 2:25,50 3:75,50 4:25,83 5:75,83"_s);
        add("nine", u"pages:9"_s, a4,
            u"0:17,17 1:50,17 2:83,17 3:17,50 4:50,50 5:83,50 6:17,83 7:50,83 8:83,83"_s);
    }

    void pagesShareASheetInReadingOrder()
    {
        const auto [layout, size, places] = row<QString, QSizeF, QString>();
        const PageGeometry whole{a4, QRectF(QPointF(), a4)};
        const auto plan = planOf(layout, pagesOf(size, 20), whole);
        QVERIFY(!plan.failure());
        QCOMPARE(seenPlaces(plan.sheets().constFirst(), a4), places);
        const int onSheet = SheetLayout::fromText(layout)->pagesPerSheet;
        QCOMPARE(plan.sheets().size(), (20 + onSheet - 1) / onSheet);
    }

    void aBookletIsReadInOrderWhenItIsFolded_data()
    {
        const auto add = rows<int, QString>();
        add("one page", 1, u"- 0"_s);
        add("two", 2, u"- 0 | 1 -"_s);
        add("four", 4, u"3 0 | 1 2"_s);
        add("five", 5, u"- 0 | 1 - | - 2 | 3 4"_s);
        add("eight", 8, u"7 0 | 1 6 | 5 2 | 3 4"_s);
    }

    void aBookletIsReadInOrderWhenItIsFolded()
    {
        const auto [count, wanted] = row<int, QString>();
        const PageGeometry whole{a4, QRectF(QPointF(), a4)};
        QStringList sides;
        const auto plan = planOf(u"booklet"_s, pagesOf(a5, count), whole);
        for (const LaidSheet &sheet : plan.sheets()) {
            QStringList pages = {u"-"_s, u"-"_s};
            for (const LaidPhoto &laid : sheet.photos) {
                QCOMPARE(laid.placement.quarterTurns, 1);
                const bool isLeft = laid.placement.target.center().y() < a4.height() / 2;
                pages[isLeft ? 0 : 1] = QString::number(laid.item);
            }
            sides += pages.join(u' ');
        }
        QCOMPARE(sides.join(u" | "), wanted);
    }

    void bothPagesOfABookletAreAsFarFromTheFold()
    {
        const LaidSheet side = planOf(u"booklet"_s, pagesOf(a5, 4)).sheets().constFirst();
        const QRectF first = side.photos.at(0).placement.target;
        const QRectF second = side.photos.at(1).placement.target;
        QCOMPARE(qRound(first.width()), qRound(second.width()));
        QVERIFY(std::abs((a4.height() / 2 - first.bottom()) - (second.top() - a4.height() / 2)) < 0.01);
        QVERIFY(paper.printed().contains(first) && paper.printed().contains(second));
    }

    void aPageAloneOnItsSheetIsWhereItWasMadeFor_data()
    {
        // its size, how it is wanted, where it lies in millimeters, its turns
        const auto add = rows<QSizeF, PlacementChoice, QString, int>();
        const PlacementChoice actual{Scaling::ActualSize};
        PlacementChoice half;
        half.scale = 0.5;
        add("of the paper's size: as it is", a4, {}, u"0,0,210,297"_s, 0);
        add("the same, rounded by its program", QSizeF(595, 842), {}, u"0,0,210,297"_s, 0);
        add("the same on its side", a4.transposed(), {}, u"0,0,210,297"_s, 1);
        add("smaller: as large as the printed area", a5, {}, u"6,4,197,280"_s, 0);
        add("smaller in its actual size: in the middle of the sheet", a5, actual, u"31,44,148,210"_s, 0);
        add("half as large: in the middle of the sheet", a4, half, u"53,74,105,149"_s, 0);
        add("filling the printed area", a4, {Scaling::Fill}, u"5,3,200,283"_s, 0);
    }

    void aPageAloneOnItsSheetIsWhereItWasMadeFor()
    {
        const auto [size, wanted, place, turns] = row<QSizeF, PlacementChoice, QString, int>();
        const auto plan = planOf(u"single"_s, pagesOf(size, 1, wanted));
        const PhotoPlacement &placement = plan.sheets().constFirst().photos.constFirst().placement;
        QCOMPARE(millimetersOf(placement.target), place);
        QCOMPARE(placement.quarterTurns, turns);
    }

    void aPhotoOfThePapersSizeIsFittedIntoThePrintedArea()
    {
        const auto plan = planOf(u"single"_s, {LayoutItem{a4, pointsPerInch}});
        const QRectF target = plan.sheets().constFirst().photos.constFirst().placement.target;
        QCOMPARE(millimetersOf(target), u"6,4,198,280"_s);
    }
};

CORVEL_TEST(PagePlanTest)
#include "PagePlanTest.moc"
