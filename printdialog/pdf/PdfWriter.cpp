// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfWriter.h"

#include "PdfFile.h"
#include "PlainText.h"

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

/// The page's content stream: the image's unit square in the photo's place, clipped to the imageable area. In
/// a PDF, y runs up from the bottom of the page and of the image.
QByteArray drawing(const Photo &photo, const PageGeometry &page, const PlacementChoice &choice)
{
    const PhotoPlacement placement =
        PhotoPlacement::place(photo.orientedSize(), photo.printedResolution(), page, choice);
    const QTransform matrix = QTransform(1, 0, 0, -1, 0, 1) * placement.toPage(photo.orientation()) *
                              QTransform(1, 0, 0, -1, 0, page.size.height());
    const QRectF &area = page.imageable;
    return "q\n" + numbers({area.left(), page.size.height() - area.bottom(), area.width(), area.height()}) +
           "re W n\n" +
           numbers({matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), matrix.dx(), matrix.dy()}) +
           "cm\n/Photo Do\nQ\n";
}

/// The document's information dictionary. The photo's date makes repeated runs give the same bytes.
QByteArray information(const Photo &photo)
{
    return "<< /Title " + PdfFile::string(plainText(photo.fileName())) +
           " /Creator (corvel-print) /Producer (corvel-print) /CreationDate (D:" +
           photo.modified().toUTC().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() + "Z) >>";
}

} // namespace

Result<PdfWriter::Embedding, PdfFault> PdfWriter::write(const Photo &photo, const PageGeometry &page,
                                                        QIODevice &device, const PlacementChoice &choice)
{
    if (!isUsable(page))
        return Failure<PdfFault>{
            PdfFault::PageUnusable,
            tr("The page of %1 x %2 points cannot be printed on. Choose another page size.")
                .arg(page.size.width())
                .arg(page.size.height()),
            {}};
    const auto image = PdfImage::of(photo);
    if (!image)
        return Failure<PdfFault>{PdfFault::PhotoUnusable, image.failure().text, image.failure().detail};

    PdfFile file(device);
    const int catalog = file.reserve();
    const int pages = file.reserve();
    const int onlyPage = file.reserve();
    const int content = file.reserve();
    const int facts = file.reserve();
    const auto picture = image->write(file);
    if (!picture)
        return Failure<PdfFault>{PdfFault::PhotoUnusable, picture.failure().text, picture.failure().detail};
    file.beginStream(content, {});
    file.writeData(drawing(photo, page, choice));
    file.endStream();
    file.writeObject(onlyPage, "<< /Type /Page /Parent " + PdfFile::reference(pages) + " /MediaBox [0 0 " +
                                   numbers({page.size.width(), page.size.height()}) + "] /Contents " +
                                   PdfFile::reference(content) + " /Resources << /XObject << /Photo " +
                                   PdfFile::reference(*picture) + " >> >> >>");
    file.writeObject(pages, "<< /Type /Pages /Kids [" + PdfFile::reference(onlyPage) + "] /Count 1 >>");
    file.writeObject(catalog, "<< /Type /Catalog /Pages " + PdfFile::reference(pages) + " >>");
    file.writeObject(facts, information(photo));
    if (!file.finish(catalog, facts))
        return Failure<PdfFault>{
            PdfFault::WriteFailed,
            tr("The PDF of \"%1\" could not be written: %2. Check the disk that it goes to.")
                .arg(plainText(photo.path()), device.errorString()),
            {}};
    return image->embedding();
}

} // namespace printdialog
