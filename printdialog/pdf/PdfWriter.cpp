// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfWriter.h"

#include "CaptionOutline.h"
#include "PlainText.h"

#include <QtCore/QMap>
#include <QtGui/QColor>

#include <cmath>
#include <initializer_list>

namespace printdialog {
namespace {

bool isUsable(const PageGeometry &page)
{
    constexpr double longestSide = 14400; // points; the limit of PDF readers
    const auto fits = [](const QSizeF &size) {
        return size.width() > 0 && size.height() > 0 && size.width() <= longestSide &&
               size.height() <= longestSide;
    };
    return fits(page.size) && fits(page.imageable.size()) && std::isfinite(page.imageable.x()) &&
           std::isfinite(page.imageable.y()) && !page.printed().isEmpty();
}

QByteArray numbers(std::initializer_list<double> values)
{
    QByteArray text;
    for (const double value : values)
        text += PdfFile::number(value) + ' ';
    return text;
}

QByteArray rectangle(const QRectF &rect, double pageHeight)
{
    return numbers({rect.left(), pageHeight - rect.bottom(), rect.width(), rect.height()}) + "re ";
}

QByteArray borderDrawing(const PhotoPlacement &placement, double pageHeight)
{
    if (!placement.border.isThere())
        return {};
    const QColor color(placement.border.color);
    return numbers({color.redF(), color.greenF(), color.blueF()}) + "rg\n" +
           rectangle(placement.outline, pageHeight) + "f\n";
}

/// The border of a page of a document, and the paper that the page is laid on.
QByteArray pageDrawing(const PhotoPlacement &placement, double pageHeight)
{
    const QByteArray border = borderDrawing(placement, pageHeight);
    return border.isEmpty()
               ? border
               : border + "1 g\n" + rectangle(placement.target & placement.clip, pageHeight) + "f\n";
}

/// The photo in its place: the image's unit square, clipped. In a PDF, y runs up from the bottom of the page
/// and of the image.
QByteArray drawing(const SheetPhoto &laid, const QByteArray &name, double pageHeight)
{
    const PhotoPlacement &placement = laid.placement;
    const QTransform matrix = QTransform(1, 0, 0, -1, 0, 1) * placement.toPage(laid.photo.orientation()) *
                              QTransform(1, 0, 0, -1, 0, pageHeight);
    return borderDrawing(placement, pageHeight) + "q\n" + rectangle(placement.clip, pageHeight) + "W n\n" +
           numbers({matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), matrix.dx(), matrix.dy()}) +
           "cm\n/" + name + " Do\nQ\n";
}

QByteArray captionDrawing(const SheetPhoto &laid, double pageHeight)
{
    const QPainterPath outline = captionOutline(laid.caption, laid.captionArea);
    if (outline.isEmpty())
        return {};
    QByteArray content = "0 g\n";
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element point = outline.elementAt(i);
        content += numbers({point.x, pageHeight - point.y});
        if (point.isMoveTo())
            content += "m\n";
        else if (point.isLineTo())
            content += "l\n";
        else if (i + 2 < outline.elementCount()) {
            for (const int next : {i + 1, i + 2})
                content += numbers({outline.elementAt(next).x, pageHeight - outline.elementAt(next).y});
            content += "c\n";
            i += 2;
        }
    }
    return content + "f\n";
}

QByteArray cutMarkDrawing(const QList<QLineF> &marks, double pageHeight)
{
    QByteArray content = "0 G 0.25 w\n";
    for (const QLineF &mark : marks)
        content += numbers({mark.x1(), pageHeight - mark.y1()}) + "m " +
                   numbers({mark.x2(), pageHeight - mark.y2()}) + "l S\n";
    return marks.isEmpty() ? QByteArray() : content;
}

} // namespace

PdfWriter::PdfWriter(QIODevice &device)
    : device_(device)
    , file_(device)
    , catalog_(file_.reserve())
    , pages_(file_.reserve())
{
}

Failure<PdfFault> PdfWriter::writeFailure() const
{
    return {PdfFault::WriteFailed,
            tr("The PDF of \"%1\" could not be written: %2. Check the disk that it goes to.")
                .arg(plainText(title_), device_.errorString()),
            {}};
}

Result<PdfWriter::Image, PdfFault> PdfWriter::imageOf(const Photo &photo)
{
    const auto known = images_.constFind(photo.identity());
    if (known != images_.constEnd())
        return *known;
    const auto image = PdfImage::of(photo);
    if (!image)
        return Failure<PdfFault>{PdfFault::PhotoUnusable, image.failure().text, image.failure().detail};
    const auto number = image->write(file_);
    if (!number)
        return Failure<PdfFault>{PdfFault::PhotoUnusable, number.failure().text, number.failure().detail};
    return *images_.insert(photo.identity(), {*number, image->embedding()});
}

PdfWriter::Failed PdfWriter::add(const PrintSheet &sheet, const PageGeometry &page, const QPointF &offset)
{
    if (!isUsable(page))
        return Failure<PdfFault>{
            PdfFault::PageUnusable,
            tr("The page of %1 x %2 points cannot be printed on. Choose another page size.")
                .arg(page.size.width())
                .arg(page.size.height()),
            {}};
    if (pageNumbers_.isEmpty()) {
        title_ = sheet.name;
        created_ = sheet.photos.constFirst().photo.modified();
    }
    const double height = page.size.height();
    QByteArray content = "q\n" + rectangle(page.imageable, height) + "W n\n";
    if (!offset.isNull())
        content += numbers({1, 0, 0, 1, offset.x(), -offset.y()}) + "cm\n";
    QMap<QByteArray, int> used; // the images' names and numbers
    for (const SheetPhoto &laid : sheet.photos) {
        if (laid.photo.document()) {
            content += pageDrawing(laid.placement, height) + captionDrawing(laid, height);
            continue;
        }
        const auto image = imageOf(laid.photo);
        if (!image)
            return image.failure();
        const QByteArray name = "Photo" + QByteArray::number(image->number);
        used.insert(name, image->number);
        content += drawing(laid, name, height) + captionDrawing(laid, height);
    }
    content += cutMarkDrawing(sheet.cutMarks, height) + "Q\n";

    const int stream = file_.reserve();
    file_.beginStream(stream, {});
    file_.writeData(content);
    file_.endStream();
    QByteArray images;
    for (auto image = used.cbegin(); image != used.cend(); ++image)
        images += '/' + image.key() + ' ' + PdfFile::reference(image.value()) + ' ';
    pageNumbers_ += file_.reserve();
    file_.writeObject(pageNumbers_.constLast(),
                      "<< /Type /Page /Parent " + PdfFile::reference(pages_) + " /MediaBox [0 0 " +
                          numbers({page.size.width(), height}) + "] /Contents " + PdfFile::reference(stream) +
                          " /Resources << /XObject << " + images + ">> >> >>");
    return file_.hasFailed() ? Failed(writeFailure()) : std::nullopt;
}

PdfWriter::Failed PdfWriter::finish()
{
    QByteArray kids;
    for (const int number : std::as_const(pageNumbers_))
        kids += PdfFile::reference(number) + ' ';
    file_.writeObject(pages_, "<< /Type /Pages /Kids [" + kids + "] /Count " +
                                  QByteArray::number(pageNumbers_.size()) + " >>");
    file_.writeObject(catalog_, "<< /Type /Catalog /Pages " + PdfFile::reference(pages_) + " >>");
    // The photo's date makes repeated runs give the same bytes.
    const int facts = file_.reserve();
    file_.writeObject(facts, "<< /Title " + PdfFile::string(plainText(title_)) +
                                 " /Creator (corvel-print) /Producer (corvel-print) /CreationDate (D:" +
                                 created_.toUTC().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() +
                                 "Z) >>");
    return file_.finish(catalog_, facts) ? std::nullopt : Failed(writeFailure());
}

Result<PdfWriter::Embedding, PdfFault> PdfWriter::write(const Photo &photo, const PageGeometry &page,
                                                        QIODevice &device, const PlacementChoice &choice)
{
    PdfWriter writer(device);
    // A photo cannot be placed on a page without a printable area; add() refuses such a page.
    const PrintSheet sheet =
        isUsable(page) ? PrintSheet::of(photo, page, choice) : PrintSheet{photo.fileName(), {{photo}}};
    if (const Failed failure = writer.add(sheet, page))
        return *failure;
    if (const Failed failure = writer.finish())
        return *failure;
    return writer.images_.cbegin()->embedding;
}

} // namespace printdialog
