// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetPlan.h"
#include "PdfWriter.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>

using namespace printdialog;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(printdialog::LayoutFault::Kind)

namespace {

constexpr double mm = pointsPerMillimeter;

/// 10 x 15 cm to the edges, 20 x 30 cm with margins of 5 mm.
const PageGeometry smallPage{QSizeF(100, 150) * mm, QRectF(0, 0, 100 * mm, 150 * mm)};
const PageGeometry largePage{QSizeF(200, 300) * mm, QRectF(5 * mm, 5 * mm, 190 * mm, 290 * mm)};

SheetLayout layoutOf(const QString &text)
{
    const auto layout = SheetLayout::fromText(text);
    if (!layout)
        qFatal("no such layout: %s", qPrintable(text));
    return *layout;
}

LayoutItem item(const QSize &pixels, const PlacementChoice &choice = {}, int copies = 1)
{
    return {pixels, 300, choice, copies};
}

PlacementChoice sized(const QString &size, Scaling scaling = Scaling::Fill)
{
    PlacementChoice choice{scaling};
    choice.size = PrintSize::fromText(size);
    return choice;
}

/// The items of each sheet, "0012 3": sheets are separated by spaces, copies of a sheet follow an asterisk.
QString itemsOf(const SheetPlan &plan)
{
    QStringList sheets;
    for (const LaidSheet &sheet : plan.sheets()) {
        QString items;
        for (const LaidPhoto &photo : sheet.photos)
            items += QString::number(photo.item);
        sheets += sheet.copies == 1 ? items : u"%1*%2"_s.arg(items).arg(sheet.copies);
    }
    return sheets.join(u' ');
}

/// In whole millimeters: "left,top,width,height".
QString millimeters(const QRectF &rect)
{
    const auto number = [](double points) {
        return QString::number(qRound(points / mm));
    };
    return QStringList{number(rect.x()), number(rect.y()), number(rect.width()), number(rect.height())}.join(
        u',');
}

} // namespace

class SheetPlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreReadAndWritten_data()
    {
        const auto add = rows<QString, QString>();
        for (const QString &text :
             {u"single"_s, u"2x3"_s, u"20x1"_s, u"fit"_s, u"contact:6x4"_s, u"strips:3"_s,
              u"2x2,repeat,marks,gap=0mm"_s, u"strips:2,follow,nomarks,gap=2mm"_s,
              u"contact:5x4,gap=0.5in,caption=both"_s, u"single,caption=date"_s, u"pages:16"_s, u"booklet"_s})
            add(qPrintable(text), text, text);
        add("the usual contact sheet", u"contact"_s, u"contact:5x4"_s);
        add("the usual strips", u"strips"_s, u"strips:4"_s);
        for (const QString &text :
             {u""_s, u"0x2"_s, u"21x2"_s, u"2x"_s, u"strips:1"_s, u"strips:5"_s, u"contact:"_s,
              u"2x2,gap=-1mm"_s, u"2x2,gap=nan"_s, u"2x2,gap=51mm"_s, u"pages:3"_s, u"pages:"_s, u"2x2,,"_s,
              u"2x2,caption=all"_s, u"single:2x2"_s, u"2x2\n"_s})
            add(qPrintable(u"refused: '%1'"_s.arg(text)), text, QString());
    }

    void textsAreReadAndWritten()
    {
        const auto [text, written] = row<QString, QString>();
        const auto layout = SheetLayout::fromText(text);
        QCOMPARE(layout ? layout->toText() : QString(), written);
        if (layout)
            QVERIFY(SheetLayout::fromText(written) == layout);
    }

    void sizesAndBordersAreReadAndWritten_data()
    {
        const auto add = rows<QString, QString, QString>();
        add("centimeters", u"size"_s, u"9x13cm"_s, u"9x13cm"_s);
        add("a known size in another unit", u"size"_s, u"100x150mm"_s, u"10x15cm"_s);
        add("inches", u"size"_s, u"2.5 x 4.25IN"_s, u"2.5x4.25in"_s);
        add("upright", u"size"_s, u"40x60mm!"_s, u"4x6cm!"_s);
        add("passport", u"size"_s, u"35x45mm!"_s, u"passport"_s);
        for (const QString &text : {u"0x5cm"_s, u"-1x5cm"_s, u"nanxnancm"_s, u"infx5cm"_s, u"1e9x1cm"_s,
                                    u"5x5"_s, u"5cm"_s, u"300x10cm"_s, u"4mmx9mm"_s, u"4x9mm"_s, u""_s})
            add(qPrintable(u"no size: '%1'"_s.arg(text)), u"size"_s, text, QString());
        add("a border", u"border"_s, u"3mm"_s, u"3mm"_s);
        add("a colored one", u"border"_s, u"0.1in,Black"_s, u"0.1in,#000000"_s);
        add("none", u"border"_s, u"0mm"_s, u"none"_s);
        for (const QString &text :
             {u"-1mm"_s, u"3"_s, u"101mm"_s, u"3mm,nocolor"_s, u"3mm,transparent"_s, u"nanmm"_s})
            add(qPrintable(u"no border: '%1'"_s.arg(text)), u"border"_s, text, QString());
    }

    void sizesAndBordersAreReadAndWritten()
    {
        const auto [kind, text, written] = row<QString, QString, QString>();
        const auto size = PrintSize::fromText(text);
        const auto border = PhotoBorder::fromText(text);
        if (kind == u"size")
            QCOMPARE(size ? size->toText() : QString(), written);
        else
            QCOMPARE(border ? border->toText() : QString(), written);
    }

    void sheetsHoldTheirPhotos_data()
    {
        const auto add = rows<QString, QList<int>, PlacementChoice, QString>();
        const PlacementChoice fit;
        add("one on each", u"single"_s, {1, 3}, fit, u"0 1*3"_s);
        add("the next ones follow", u"2x2"_s, {1, 1, 1, 1, 1}, fit, u"0123 4"_s);
        add("copies follow", u"2x2"_s, {3, 2}, fit, u"0001 1"_s);
        add("each fills its sheet", u"2x2,repeat"_s, {1, 2}, fit, u"0000 1111*2"_s);
        add("as many as fit, one after the other", u"fit,follow"_s, {9}, sized(u"passport"_s),
            u"00000000 0"_s);
        add("as many as fit", u"fit"_s, {1}, sized(u"passport"_s), u"00000000"_s);
        add("both strips alike", u"strips:2"_s, {1, 1, 1}, fit, u"0101 22"_s);
        add("strips that follow", u"strips:2,follow"_s, {1, 1, 1}, fit, u"012"_s);
        add("as many as fit but for rounding errors", u"fit,gap=0mm"_s, {1}, sized(u"3.3334x5cm"_s),
            u"000000000"_s);
        add("copies of a sheet are one print", u"single"_s, {100'001}, fit, u"0*100001"_s);
        add("no copies count as one", u"single"_s, {0}, fit, u"0"_s);
    }

    void sheetsHoldTheirPhotos()
    {
        const auto [text, copies, choice, expected] = row<QString, QList<int>, PlacementChoice, QString>();
        QList<LayoutItem> items;
        for (const int count : copies)
            items += item(QSize(2000, 3000), choice, count);
        const SheetPlan plan = SheetPlan::make(items, layoutOf(text), smallPage);
        QVERIFY2(!plan.failure(), plan.failure() ? qPrintable(plan.failure()->text) : "");
        QCOMPARE(itemsOf(plan), expected);
        QCOMPARE(plan.sheetWith(items.size()), -1);
    }

    void anotherSizeBeginsAnotherSheet()
    {
        const QSize tall(2000, 3000);
        const SheetPlan plan =
            SheetPlan::make({item(tall, sized(u"passport"_s), 3), item(tall, sized(u"5x7cm"_s))},
                            layoutOf(u"fit,follow"_s), smallPage);
        QCOMPARE(itemsOf(plan), u"000 1"_s);
    }

    void printsLieWhereTheyShould_data()
    {
        const auto add = rows<PageGeometry, QString, LayoutItem, QString, int>();
        const QSize wide(3000, 2000);
        const QSize tall(2000, 3000);
        add("a wide print in the middle of the page", largePage, u"single"_s, item(wide, sized(u"10x15cm"_s)),
            u"25,100,150,100"_s, 0);
        add("a wide print that has room only on its side", smallPage, u"single"_s,
            item(wide, sized(u"9x13cm"_s)), u"5,10,90,130"_s, 1);
        add("passports stay upright", smallPage, u"single"_s, item(wide, sized(u"passport"_s)),
            u"33,53,35,45"_s, 0);
        add("the first place of a grid", smallPage, u"2x2,gap=4mm"_s, item(tall, {Scaling::Fill}),
            u"0,0,48,73"_s, 0);
        add("a wide photo is turned into an upright place", smallPage, u"2x2,gap=4mm"_s,
            item(wide, {Scaling::Fill}), u"0,0,48,73"_s, 1);
        add("a print within its place", largePage, u"2x2,gap=10mm"_s, item(tall, sized(u"5x7cm"_s)),
            u"25,40,50,70"_s, 0);
        add("as many of the smallest size as fit", smallPage, u"fit,gap=0mm,nomarks"_s,
            item(QSize(100, 100), sized(u"5x5mm"_s)), u"0,0,5,5"_s, 0);
        add("contact sheets turn nothing", smallPage, u"contact:2x2,gap=4mm"_s, item(wide), u"0,18,48,32"_s,
            0);
        add("a strip is read along the longer side",
            PageGeometry{QSizeF(150, 100) * mm, QRectF(0, 0, 150 * mm, 100 * mm)}, u"strips:3,gap=2mm"_s,
            item(wide, {Scaling::Fill}), u"101,2,47,46"_s, 1);
        PlacementChoice bordered = sized(u"10x10cm"_s, Scaling::Fit);
        bordered.border.width = 10 * mm;
        add("a border is within the size", largePage, u"single"_s, item(QSize(100, 100), bordered),
            u"50,100,100,100"_s, 0);
        PlacementChoice half = sized(u"10x10cm"_s, Scaling::Fit);
        half.scale = 0.5;
        add("a size does not change with its photo's scale", largePage, u"single"_s,
            item(QSize(100, 100), half), u"50,100,100,100"_s, 0);
    }

    void printsLieWhereTheyShould()
    {
        const auto [page, text, wanted, outline, turns] =
            row<PageGeometry, QString, LayoutItem, QString, int>();
        const SheetPlan plan = SheetPlan::make({wanted}, layoutOf(text), page);
        QVERIFY2(!plan.failure(), plan.failure() ? qPrintable(plan.failure()->text) : "");
        const PhotoPlacement placement = plan.sheets().constFirst().photos.constFirst().placement;
        QCOMPARE(millimeters(placement.outline), outline);
        QCOMPARE(placement.quarterTurns, turns);
        const double scale = wanted.placement.scale;
        if (wanted.placement.border.isThere())
            QCOMPARE(millimeters(placement.target), u"60,110,80,80"_s);
        if (scale != 1)
            QCOMPARE(millimeters(placement.target), u"75,125,50,50"_s);
    }

    void captionsLieBelowTheirPhotos_data()
    {
        const auto add = rows<QString, QString>();
        add("a line", u"2x2,gap=4mm,caption=name"_s, u"0,68,48,5"_s);
        add("two lines", u"2x2,gap=4mm,caption=both"_s, u"0,63,48,10"_s);
        add("none where a print has its size", u"fit,caption=name"_s, u"0,0,0,0"_s);
        add("half of a low place", u"20x1,gap=0mm,caption=both"_s, u"0,4,100,4"_s);
    }

    void captionsLieBelowTheirPhotos()
    {
        const auto [text, caption] = row<QString, QString>();
        const SheetPlan plan =
            SheetPlan::make({item(QSize(100, 100), {Scaling::Fill})}, layoutOf(text), smallPage);
        const LaidPhoto &photo = plan.sheets().constFirst().photos.constFirst();
        QCOMPARE(millimeters(photo.caption), caption);
        if (!photo.caption.isEmpty())
            QVERIFY(qAbs(photo.placement.outline.bottom() - photo.caption.top()) < layoutTolerance);
    }

    void borderlessPlacesReachBeyondTheSheet()
    {
        const PageGeometry page{QSizeF(100, 150) * mm, QRectF(-2 * mm, -3 * mm, 104 * mm, 156 * mm)};
        const SheetPlan plan =
            SheetPlan::make({item(QSize(100, 100), {Scaling::Fill}, 4)}, layoutOf(u"2x2,gap=0mm"_s), page);
        const auto &photos = plan.sheets().constFirst().photos;
        QCOMPARE(millimeters(photos.at(0).placement.clip), u"-2,-3,52,78"_s);
        QCOMPARE(millimeters(photos.at(3).placement.clip), u"50,75,52,78"_s);
        PlacementChoice bordered{Scaling::Fill};
        bordered.border.width = 5 * mm;
        const auto placement = PhotoPlacement::place(QSize(100, 100), 300, page, bordered);
        QCOMPARE(millimeters(placement.outline), u"-2,-3,104,156"_s);
        QCOMPARE(millimeters(placement.clip), u"5,5,90,140"_s);
    }

    void faultsAreFound_data()
    {
        const auto add = rows<QString, LayoutItem, LayoutFault::Kind, QString>();
        using Kind = LayoutFault::Kind;
        const QSize tall(2000, 3000);
        add("larger than the paper", u"single"_s, item(tall, sized(u"13x18cm"_s)), Kind::SizeTooLarge,
            u"13 × 18 cm"_s);
        add("larger than its place", u"2x2"_s, item(tall, sized(u"9x13cm"_s)), Kind::SizeTooLarge,
            u"9 × 13 cm"_s);
        add("many of a size that is too largePage", u"fit"_s, item(tall, sized(u"13x18cm"_s)),
            Kind::SizeTooLarge, u"13 × 18 cm"_s);
        add("many of no size", u"fit"_s, item(tall), Kind::SizeMissing, {});
        PlacementChoice bordered = sized(u"passport"_s);
        bordered.border.width = 17.5 * mm;
        add("nothing but border", u"single"_s, item(tall, bordered), Kind::BorderTooWide, u"17"_s);
        bordered = sized(u"passport"_s, Scaling::Fit);
        bordered.border.width = 30 * mm;
        add("more border than print", u"single"_s, item(tall, bordered), Kind::BorderTooWide, u"30"_s);
        add("no room", u"20x20,gap=20mm"_s, item(tall), Kind::PlacesTooSmall, {});
        add("no room for rows", u"20x1,gap=6mm"_s, item(tall), Kind::PlacesTooSmall, {});
        add("strips without room", u"strips:4,gap=30mm"_s, item(tall), Kind::PlacesTooSmall, {});
        add("too many", u"2x2"_s, item(tall, {}, 100'001), Kind::TooMany, {});
    }

    void faultsAreFound()
    {
        const auto [text, wanted, kind, named] = row<QString, LayoutItem, LayoutFault::Kind, QString>();
        const SheetPlan plan =
            SheetPlan::make({item(QSize(10, 10), sized(u"2x2cm"_s)), wanted}, layoutOf(text), smallPage);
        QVERIFY(plan.failure());
        QCOMPARE(plan.failure()->reason.kind, kind);
        if (kind != LayoutFault::Kind::PlacesTooSmall)
            QCOMPARE(plan.failure()->reason.item, 1);
        QVERIFY2(plan.failure()->text.contains(named), qPrintable(plan.failure()->text));
        for (const LaidSheet &sheet : plan.sheets()) {
            for (const LaidPhoto &photo : sheet.photos)
                QVERIFY(std::isfinite(photo.placement.target.width()) && !photo.placement.target.isEmpty());
        }
    }

    void cutMarksAreBesideThePrints_data()
    {
        const auto add = rows<QString, PlacementChoice, int>();
        add("around each print", u"2x2,gap=6mm,marks"_s, sized(u"5x7cm"_s), 32);
        add("between prints", u"fit,gap=3mm"_s, sized(u"5x7cm"_s), 84);
        add("outside only where prints touch", u"fit,gap=0mm"_s, sized(u"5x7cm"_s), 28);
        add("between strips", u"strips:2"_s, {}, 2);
    }

    void cutMarksAreBesideThePrints()
    {
        const auto [text, choice, least] = row<QString, PlacementChoice, int>();
        const SheetPlan plan =
            SheetPlan::make({item(QSize(2000, 3000), choice, 12)}, layoutOf(text), largePage);
        QVERIFY(!plan.failure());
        const LaidSheet &sheet = plan.sheets().constFirst();
        QVERIFY2(sheet.cutMarks.size() >= least, qPrintable(QString::number(sheet.cutMarks.size())));
        for (const QLineF &mark : sheet.cutMarks) {
            const QRectF line = QRectF(mark.p1(), mark.p2()).normalized().adjusted(-0.1, -0.1, 0.1, 0.1);
            QVERIFY(largePage.printed().adjusted(-1, -1, 1, 1).contains(line));
            for (const LaidPhoto &photo : sheet.photos)
                QVERIFY(!line.intersects(photo.placement.outline));
        }
    }

    void photosOfOneNameAreDifferent()
    {
        const QTemporaryDir folder;
        QList<QByteArray> jpegs;
        PrintSheet sheet{u"sheet"_s};
        for (const QString &name : {u"a"_s, u"b"_s}) {
            QVERIFY(QDir(folder.path()).mkdir(name));
            const QString path = folder.filePath(name + u"/p.jpg"_s);
            jpegs += samples::encoded(samples::quarters(QSize(30 + 10 * int(jpegs.size()), 20)), "jpeg");
            samples::store(path, jpegs.constLast());
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(QDateTime::fromSecsSinceEpoch(1'700'000'000),
                                     QFileDevice::FileModificationTime));
            sheet.photos += PrintSheet::of(*Photo::open(path), smallPage, {}).photos;
        }
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        PdfWriter writer(pdf);
        QVERIFY(!writer.add(sheet, smallPage));
        sheet.name = u"another"_s;
        QVERIFY(!writer.add(sheet, smallPage) && !writer.finish());
        for (const QByteArray &jpeg : std::as_const(jpegs))
            QCOMPARE(pdf.data().count(jpeg), 1);
        QVERIFY(pdf.data().contains("/Title " + PdfFile::string(u"sheet"_s)));
    }

    void thePdfHasEverythingInItsPlace()
    {
        const QTemporaryDir folder;
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(300, 200)), "jpeg");
        samples::store(folder.filePath(u"a.jpg"_s), jpeg);
        const Photo photo = *Photo::open(folder.filePath(u"a.jpg"_s));
        PlacementChoice choice = sized(u"5x7cm"_s);
        choice.border = {2 * mm, qRgb(0, 0, 90)};
        const PageGeometry page = largePage;
        const SheetPlan plan =
            SheetPlan::make({item(photo.orientedSize(), choice, 3)}, layoutOf(u"3x2,gap=8mm,marks"_s), page);
        PrintSheet sheet{u"a"_s};
        for (const LaidPhoto &laid : plan.sheets().constFirst().photos)
            sheet.photos += SheetPhoto{photo, laid.placement};
        sheet.cutMarks = plan.sheets().constFirst().cutMarks;
        const QPointF offset(3 * mm, -1 * mm);
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        PdfWriter writer(pdf);
        QVERIFY(!writer.add(sheet, page, offset));
        QVERIFY(!writer.add(sheet, page));
        QVERIFY(!writer.finish());
        QCOMPARE(pdf.data().count(jpeg), 1); // byte for byte, and once for six prints
        samples::store(folder.filePath(u"sheet.pdf"_s), pdf.data());

        constexpr int perInch = 300;
        for (const bool isMoved : {true, false}) {
            QProcess::execute(u"pdftoppm"_s, {u"-r"_s, QString::number(perInch), u"-png"_s, u"-f"_s,
                                              isMoved ? u"1"_s : u"2"_s, u"-singlefile"_s,
                                              folder.filePath(u"sheet.pdf"_s), folder.filePath(u"page"_s)});
            const QImage pixels(folder.filePath(u"page.png"_s));
            QVERIFY(!pixels.isNull());
            const QTransform toPixels =
                QTransform::fromTranslate(isMoved ? offset.x() : 0, isMoved ? offset.y() : 0) *
                QTransform::fromScale(perInch / 72.0, perInch / 72.0);
            for (const SheetPhoto &laid : std::as_const(sheet.photos)) {
                const QRectF outline = toPixels.mapRect(laid.placement.outline);
                const QRectF inner = toPixels.mapRect(laid.placement.clip);
                const auto at = [&](double x, double y) {
                    return pixels.pixelColor(static_cast<int>(x), static_cast<int>(y));
                };
                const double middle = outline.center().y() + 20;
                // Dark blue border from its outer edge to the photo, white paper beside it: each within half
                // a dot.
                for (const double edge : {outline.left(), outline.right()}) {
                    const double inwards = edge < outline.center().x() ? 1 : -1;
                    QVERIFY(at(edge + inwards, middle).lightness() < 60);
                    QVERIFY(at(edge + inwards, middle).blue() > at(edge + inwards, middle).red() + 60);
                    QVERIFY(at(edge - inwards, middle).lightness() > 200);
                }
                for (const double edge : {inner.left(), inner.right()}) {
                    const double inwards = edge < inner.center().x() ? 1 : -1;
                    QVERIFY(at(edge - inwards, middle).lightness() < 60);
                    QVERIFY(at(edge + inwards * 2, middle).saturation() > 100);
                }
            }
            for (const QLineF &mark : std::as_const(sheet.cutMarks)) {
                const QPointF middle = toPixels.map(mark.center());
                const QPoint pixel(static_cast<int>(middle.x()), static_cast<int>(middle.y()));
                QVERIFY(pixels.pixelColor(pixel).lightness() < 200);
            }
        }
    }
};

CORVEL_TEST(SheetPlanTest)
#include "SheetPlanTest.moc"
