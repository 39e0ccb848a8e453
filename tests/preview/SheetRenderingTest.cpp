// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Arrangement.h"
#include "JobDocument.h"
#include "JobSubmission.h"
#include "PagePainter.h"
#include "PagePicture.h"
#include "PrivateCupsd.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "SheetPdf.h"
#include "TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

constexpr double mm = pointsPerMillimeter;
constexpr int perInch = 300;
constexpr double perPoint = perInch / pointsPerInch;

/// 13 x 18 cm with margins, 10 x 15 cm lying, and 4 x 6 inches that are printed beyond their edges.
const PageGeometry bordered{QSizeF(130, 180) * mm, QRectF(4 * mm, 5 * mm, 122 * mm, 168 * mm)};
const PageGeometry lying{QSizeF(150, 100) * mm, QRectF(0, 0, 150 * mm, 100 * mm)};
const PageGeometry borderless{QSizeF(288, 432), QRectF(-6, -8, 300, 448)};

/// How far two pictures of a sheet are apart, in dots.
struct Distance
{
    int edges = 0; ///< that were compared
    double edge = 0;
    double ink = 0; ///< of captions and marks
};

/// Where the color changes along a row or a column, in dots; nothing where it does not.
std::optional<double> edgeNear(const QImage &image, double edge, double across, bool isUpright)
{
    constexpr int reach = 6;
    const auto at = [&](int along) {
        const int other = static_cast<int>(across);
        return image.pixelColor(isUpright ? QPoint(along, other) : QPoint(other, along));
    };
    const int first = static_cast<int>(std::floor(edge)) - reach;
    const int last = static_cast<int>(std::floor(edge)) + reach;
    if (first < 0 || last >= (isUpright ? image.width() : image.height()))
        return std::nullopt; // the paper's own edge
    const auto apart = [](const QColor &one, const QColor &other) {
        return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
               std::abs(one.blue() - other.blue());
    };
    const QColor outside = at(first);
    const double whole = apart(at(last), outside);
    constexpr double leastContrast = 100;
    if (whole < leastContrast)
        return std::nullopt;
    double behind = 0; // in dots, of the color behind the edge
    for (int i = first; i <= last; ++i)
        behind += std::clamp(apart(at(i), outside) / whole, 0.0, 1.0);
    return last + 1 - behind;
}

/// The middle of everything dark in an area of the page.
QPointF inkIn(const QImage &image, const QRectF &area, int around)
{
    const QRectF dots(area.topLeft() * perPoint, area.size() * perPoint);
    const QRect pixels = dots.toAlignedRect().adjusted(-around, -around, around, around) & image.rect();
    double all = 0;
    QPointF sum;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const double ink = 255 - qGray(image.pixel(x, y));
            all += ink;
            sum += QPointF(x, y) * ink;
        }
    }
    return all > 0 ? sum / all : QPointF(-1000, -1000);
}

Distance distanceOf(const QImage &one, const QImage &other, const PrintSheet &sheet, const PageGeometry &page)
{
    Distance distance;
    const auto compareEdges = [&](const QRectF &rect) {
        const QRectF dots(rect.topLeft() * perPoint, rect.size() * perPoint);
        for (const auto &[edge, across, isUpright] : {std::tuple(dots.left(), dots.center().y(), true),
                                                      {dots.right(), dots.center().y(), true},
                                                      {dots.top(), dots.center().x(), false},
                                                      {dots.bottom(), dots.center().x(), false}}) {
            const auto first = edgeNear(one, edge, across, isUpright);
            const auto second = edgeNear(other, edge, across, isUpright);
            if (!first && !second)
                continue;
            ++distance.edges;
            distance.edge = std::max(distance.edge, std::abs(first.value_or(-1e3) - second.value_or(1e3)));
        }
    };
    const auto compareInk = [&](const QRectF &area, int around) {
        const QPointF apart = inkIn(one, area, around) - inkIn(other, area, around);
        distance.ink = std::max({distance.ink, std::abs(apart.x()), std::abs(apart.y())});
    };
    for (const SheetPhoto &laid : sheet.photos) {
        compareEdges(laid.placement.seen(page));
        if (laid.placement.border.isThere())
            compareEdges(laid.placement.outline & page.printed());
        if (!laid.caption.isEmpty())
            compareInk(laid.captionArea, -1);
    }
    for (const QLineF &mark : sheet.cutMarks)
        compareInk(QRectF(mark.p1(), mark.p2()).normalized(), 4);
    return distance;
}

/// The sheet as the preview shows it, with a pixel for each dot.
QImage shown(const PrintSheet &sheet, const PageGeometry &page)
{
    PageView view;
    view.page = page;
    view.isShared = true; // as the paper lies
    const QSizeF dots = page.size * perPoint;
    view.room = QSizeF(std::ceil(dots.width()), std::ceil(dots.height()));
    view.zoom = 1;
    view.center = QRectF(QPointF(), page.size).center();
    PagePainter painter;
    painter.setSheet(sheet, -1);
    for (qsizetype i = 0; i < sheet.photos.size(); ++i) {
        // The edge of a page may lie between two of its pixels.
        const Photo &photo = sheet.photos.at(i).photo;
        const int detail = photo.document() ? PagePhoto::mostDetail : PagePhoto::usualDetail;
        painter.setPhoto(i, {photo.pixels({detail, detail}), {}, {}});
    }
    QImage picture(view.room.toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter canvas(&picture);
    PagePainter::Look look;
    look.outlinesArea = false;
    painter.paint(canvas, view, look);
    return picture;
}

} // namespace

/// A sheet's preview, its PDF, and what a printer gets, dot by dot.
class SheetRenderingTest : public QObject
{
    Q_OBJECT

private:
    Photo photoOf(const QString &name, const QSize &size, QRgb color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        samples::store(folder_.filePath(name), samples::encoded(image, "jpeg"));
        return *Photo::open(folder_.filePath(name));
    }

    /// A wide, a tall and another tall photo, each of one color.
    Arrangement arrangement(const QString &layout, const PlacementChoice &choice)
    {
        Arrangement all;
        for (const Photo &photo : {photoOf(u"wide.jpg"_s, QSize(600, 400), qRgb(170, 20, 20)),
                                   photoOf(u"tall.jpg"_s, QSize(400, 640), qRgb(20, 20, 150)),
                                   photoOf(u"other.jpg"_s, QSize(400, 500), qRgb(10, 110, 40))})
            all.photos += PlacedPhoto{photo, choice};
        all.layout = *SheetLayout::fromText(layout);
        return all;
    }

    /// A tall photo between two tall pages and a wide one, each of one color.
    Arrangement mixed(const QString &layout, const PlacementChoice &choice)
    {
        Arrangement all;
        const QString path = folder_.filePath(u"pages.pdf"_s);
        {
            QPdfWriter writer(path);
            writer.setPageMargins({});
            writer.setResolution(72);
            QPainter painter;
            for (const auto &[size, color] : {std::pair(QSizeF(100, 140), qRgb(170, 20, 20)),
                                              {QSizeF(100, 140), qRgb(10, 110, 40)},
                                              {QSizeF(150, 110), qRgb(90, 20, 120)}}) {
                writer.setPageSize(QPageSize(size, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
                painter.isActive() ? void(writer.newPage()) : void(painter.begin(&writer));
                painter.fillRect(QRectF(0, 0, 2000, 2000), QColor(color));
            }
        }
        const auto pages = Photo::openAll(path);
        if (!pages)
            qFatal("%s", qPrintable(pages.failure().text));
        for (const Photo &page : *pages)
            all.photos += PlacedPhoto{page, choice};
        all.photos.insert(1, {photoOf(u"tall.jpg"_s, QSize(400, 640), qRgb(20, 20, 150)), choice});
        all.layout = *SheetLayout::fromText(layout);
        return all;
    }

    /// The PDF's only page. Unlike pdftoppm, this program covers a part of a dot in part, so that edges are
    /// where they are.
    QImage printed(const QByteArray &pdf)
    {
        samples::store(folder_.filePath(u"sheet.pdf"_s), pdf);
        const bool isRendered =
            QProcess::execute(u"pdftocairo"_s,
                              {u"-r"_s, QString::number(perInch), u"-png"_s, u"-singlefile"_s,
                               folder_.filePath(u"sheet.pdf"_s), folder_.filePath(u"sheet"_s)}) == 0;
        return isRendered ? QImage(folder_.filePath(u"sheet.png"_s)) : QImage();
    }

    QTemporaryDir folder_;

private Q_SLOTS:
    void previewIsWhatIsPrinted_data()
    {
        const auto add = rows<QString, PlacementChoice, PageGeometry>();
        const auto addPages = [&add](const char *name, const QString &layout, const PlacementChoice &choice,
                                     const PageGeometry &page) {
            add(name, u"pages "_s + layout, choice, page);
        };
        const auto sized = [](const QString &size, Scaling scaling, double border = 0, QRgb color = 0) {
            PlacementChoice choice{scaling};
            choice.size = PrintSize::fromText(size);
            choice.border = {border, color};
            return choice;
        };
        const PlacementChoice fit;
        const PlacementChoice fill{Scaling::Fill};
        add("fitted", u"single"_s, fit, bordered);
        add("filled", u"single"_s, fill, bordered);
        add("sized, with a border", u"single"_s, sized(u"7x10cm"_s, Scaling::Fit, 3 * mm, qRgb(0, 0, 0)),
            bordered);
        add("filled beyond the edges, with a border", u"single"_s,
            PlacementChoice{Scaling::Fill, 0, {0.5, 0.5}, {}, 1, {4 * mm, qRgb(230, 160, 0)}}, borderless);
        add("2 x 2", u"2x2"_s, fill, bordered);
        add("3 x 2 with marks", u"3x2,gap=7mm,marks"_s, sized(u"passport"_s, Scaling::Fill), bordered);
        add("as many as fit", u"fit,gap=3.1mm,marks"_s, sized(u"passport"_s, Scaling::Fill), bordered);
        add("contact sheet", u"contact:4x3,caption=both"_s, fit, bordered);
        add("upright strips", u"strips:3"_s, fill, bordered);
        add("lying strips", u"strips:4"_s, fill, lying);
        add("borderless grid", u"2x2,gap=0mm"_s, fill, borderless);
        addPages("a page, fitted", u"single"_s, fit, bordered);
        addPages("a page, turned", u"single"_s, PlacementChoice{Scaling::Fit, 1}, bordered);
        addPages("a page in its size", u"single"_s, PlacementChoice{Scaling::ActualSize}, bordered);
        addPages("a page with a border", u"single"_s,
                 sized(u"7x10cm"_s, Scaling::Fill, 3 * mm, qRgb(255, 240, 180)), bordered);
        addPages("two pages and a photo between them", u"pages:4,gap=4mm"_s, fit, bordered);
        addPages("the same with captions", u"2x2,caption=name"_s, fit, bordered);
        addPages("a booklet", u"booklet"_s, fit, bordered);
    }

    void previewIsWhatIsPrinted()
    {
        const auto [layout, choice, page] = row<QString, PlacementChoice, PageGeometry>();
        const QStringList words = layout.split(u' ');
        const Arrangement all = words.size() > 1 ? mixed(words.at(1), choice) : arrangement(layout, choice);
        const SheetPlan plan = all.plan(page);
        QVERIFY2(!plan.failure(), plan.failure() ? qPrintable(plan.failure()->text) : "");
        PrintSheet sheet = all.sheet(plan.sheets().constFirst());
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        SheetPdf writer(pdf, sheet.hasPages());
        QVERIFY(!writer.add(sheet, page) && !writer.finish());
        const QImage paper = printed(pdf.data());
        QVERIFY(std::abs(paper.width() - shown(sheet, page).width()) <= 1);

        const auto text = [](const Distance &distance) {
            return u"%1 edges: %2, ink: %3"_s.arg(distance.edges).arg(distance.edge).arg(distance.ink);
        };
        const Distance apart = distanceOf(shown(sheet, page), paper, sheet, page);
        QVERIFY2(apart.edges >= 4 || page == borderless, qPrintable(text(apart)));
        QVERIFY2(apart.edges > 0 && apart.edge < 0.55 && apart.ink < 0.55, qPrintable(text(apart)));
        // A dot beside its place is found.
        PrintSheet moved = sheet;
        PhotoPlacement &placement = moved.photos.last().placement;
        const QPointF dot = QPointF(1.1, 1.1) / perPoint;
        for (QRectF *rect : {&placement.target, &placement.clip, &placement.outline})
            rect->translate(dot);
        const Distance other = distanceOf(shown(moved, page), paper, sheet, page);
        QVERIFY2(other.edge > 0.55, qPrintable(text(other)));
    }

    void pictureForAFile()
    {
        Arrangement all = arrangement(u"1x3"_s, {Scaling::Fill});
        PagePictureRequest request{all.sheet(all.plan(lying).sheets().constFirst()), lying, {}, 300};
        const QImage picture = pagePicture(request, 600);
        QCOMPARE(picture.size(), QSize(600, 400));
        for (const SheetPhoto &laid : std::as_const(request.sheet.photos)) {
            const QPointF middle = laid.placement.outline.center() * (400 / lying.size.height());
            const QColor whole(laid.photo.pixels({8, 8}).pixel(2, 2));
            QCOMPARE(picture.pixelColor(middle.toPoint()).lightness() / 8, whole.lightness() / 8);
        }
        samples::store(folder_.filePath(u"odd.jpg"_s), samples::undecodableJpeg());
        request.sheet.photos.last().photo = *Photo::open(folder_.filePath(u"odd.jpg"_s));
        QVERIFY(pagePicture(request, 600).isNull());
    }

    void queueGetsWhatIsShown()
    {
        testing_support::PrivateCupsd cupsd;
        const QString trouble = cupsd.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        QVERIFY(cupsd.addQueue(u"photo"_s, testing_support::smallPpd()));
        const PageGeometry page{QSizeF(288, 432), QRectF(10, 12, 268, 408)}; // of the queue's only size
        const Arrangement all = arrangement(u"2x2,marks,caption=name"_s, PlacementChoice());
        const PrintSheet sheet = all.sheet(all.plan(page).sheets().constFirst());
        PrintJob job;
        job.destination = u"photo"_s;
        job.page = page;
        const auto document = jobDocument(sheet, job);
        QVERIFY2(document, document ? "" : qPrintable(document.failure().text));
        const auto id = JobSubmission().send(job, *document);
        QVERIFY2(id, id ? "" : qPrintable(id.failure().text));
        QVERIFY(cupsd.waitForJob(*id));
        const QByteArray sent = cupsd.job(*id).document;
        for (const SheetPhoto &laid : sheet.photos)
            QCOMPARE(sent.count(samples::load(laid.photo.path())), 1);
        const Distance apart = distanceOf(shown(sheet, page), printed(sent), sheet, page);
        QVERIFY2(apart.edges >= 12 && apart.edge < 0.55 && apart.ink < 0.55,
                 qPrintable(u"%1 %2"_s.arg(apart.edge).arg(apart.ink)));
    }
};

CORVEL_WIDGETS_TEST(SheetRenderingTest)
#include "SheetRenderingTest.moc"
