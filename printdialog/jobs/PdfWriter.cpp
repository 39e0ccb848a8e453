// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfWriter.h"

#include "PhotoPlacement.h"
#include "PlainText.h"

#include <QtGui/QPainter>

#include <cairo-pdf.h>
#include <cairo.h>

#include <cmath>
#include <memory>
#include <optional>

namespace printdialog {
namespace {

struct SurfaceDeleter
{
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
};
struct ContextDeleter
{
    void operator()(cairo_t *context) const { cairo_destroy(context); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;
using Context = std::unique_ptr<cairo_t, ContextDeleter>;

struct Output
{
    QIODevice &device;
    qint64 written = 0;
};

cairo_status_t writeOutput(void *closure, const unsigned char *data, unsigned int length)
{
    auto *output = static_cast<Output *>(closure);
    if (output->device.write(reinterpret_cast<const char *>(data), length) != qint64(length))
        return CAIRO_STATUS_WRITE_ERROR;
    output->written += length;
    return CAIRO_STATUS_SUCCESS;
}

bool isUsable(const PageGeometry &page)
{
    constexpr double longestSide = 14400; // points; PDF readers take no longer one
    const auto fits = [](const QSizeF &size) {
        return size.width() > 0 && size.height() > 0 && size.width() <= longestSide &&
               size.height() <= longestSide;
    };
    return fits(page.size) && fits(page.imageable.size()) && std::isfinite(page.imageable.x()) &&
           std::isfinite(page.imageable.y());
}

void setMetadata(cairo_surface_t *pdf, const Photo &photo)
{
    cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_TITLE,
                                   plainText(photo.fileName()).toUtf8().constData());
    cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATOR, "corvel-print");
    const QByteArray date = photo.modified().toUTC().toString(Qt::ISODate).toLatin1();
    cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATE_DATE, date.constData());
}

/// Opaque pixels in the layout of CAIRO_FORMAT_RGB24; null when memory is short.
QImage onWhite(QImage image)
{
    if (!image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_RGB32);
        return image;
    }
    QImage white(image.size(), QImage::Format_RGB32);
    if (white.isNull())
        return white;
    white.fill(Qt::white);
    QPainter(&white).drawImage(QPoint(0, 0), image);
    return white;
}

/// A surface with the compressed photo behind a single pixel that is never drawn: cairo takes the image's
/// size from the JPEG header, and larger surfaces cost memory for every pixel. `content` outlives the
/// surface.
Surface jpegSurface(const QByteArray &content)
{
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 1, 1));
    const auto *bytes = reinterpret_cast<const unsigned char *>(content.constData());
    cairo_surface_set_mime_data(surface.get(), CAIRO_MIME_TYPE_JPEG, bytes,
                                static_cast<unsigned long>(content.size()), nullptr, nullptr);
    return surface;
}

/// `pixels` outlives the surface.
Surface pixelSurface(QImage &pixels)
{
    return Surface(cairo_image_surface_create_for_data(pixels.bits(), CAIRO_FORMAT_RGB24, pixels.width(),
                                                       pixels.height(),
                                                       static_cast<int>(pixels.bytesPerLine())));
}

/// Draws a surface over the area that the transform makes of the unit square.
cairo_status_t drawPage(cairo_surface_t *pdf, cairo_surface_t *photo, const QTransform &unitToPage)
{
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, unitToPage.m11(), unitToPage.m12(), unitToPage.m21(), unitToPage.m22(),
                      unitToPage.dx(), unitToPage.dy());
    const Context context(cairo_create(pdf));
    cairo_transform(context.get(), &matrix);
    cairo_scale(context.get(), 1.0 / cairo_image_surface_get_width(photo),
                1.0 / cairo_image_surface_get_height(photo));
    cairo_set_source_surface(context.get(), photo, 0, 0);
    cairo_paint(context.get());
    cairo_show_page(context.get());
    return cairo_status(context.get());
}

} // namespace

Result<PdfWriter::Embedding, PdfFault> PdfWriter::write(const Photo &photo, const PageGeometry &page,
                                                        QIODevice &device)
{
    if (!isUsable(page))
        return Failure<PdfFault>{
            PdfFault::PageUnusable,
            tr("The page of %1 x %2 points cannot be printed on. Choose another page size.")
                .arg(page.size.width())
                .arg(page.size.height()),
            {}};
    const QByteArray content = photo.content();
    QImage pixels;
    if (!photo.isEmbeddable()) {
        auto decoded = photo.decoded();
        if (!decoded)
            return Failure<PdfFault>{PdfFault::PhotoUnusable, decoded.failure().text,
                                     decoded.failure().detail};
        pixels = onWhite(*std::move(decoded));
        if (pixels.isNull())
            return Failure<PdfFault>{
                PdfFault::PhotoUnusable,
                tr("There is not enough memory for \"%1\". Scale it down in a photo program.")
                    .arg(plainText(photo.path())),
                {}};
    }

    Output output{device};
    const Surface source = photo.isEmbeddable() ? jpegSurface(content) : pixelSurface(pixels);
    const Surface pdf(
        cairo_pdf_surface_create_for_stream(writeOutput, &output, page.size.width(), page.size.height()));
    setMetadata(pdf.get(), photo);
    const QTransform unitToPage = PhotoPlacement::fit(photo.orientedSize(), page).toPage(photo.orientation());
    cairo_status_t status = drawPage(pdf.get(), source.get(), unitToPage);
    cairo_surface_finish(pdf.get());
    if (status == CAIRO_STATUS_SUCCESS)
        status = cairo_surface_status(pdf.get());
    // A JPEG that cairo cannot read is replaced by the surface's pixel without a word.
    const bool lacksJpeg = photo.isEmbeddable() && output.written < content.size();
    if (status == CAIRO_STATUS_WRITE_ERROR)
        return Failure<PdfFault>{
            PdfFault::WriteFailed,
            tr("The PDF of \"%1\" could not be written: %2. Check the disk that it goes to.")
                .arg(plainText(photo.path()), device.errorString()),
            {}};
    if (status != CAIRO_STATUS_SUCCESS || lacksJpeg)
        return Failure<PdfFault>{PdfFault::PhotoUnusable,
                                 tr("\"%1\" could not be put on a page. Save it anew in a photo program.")
                                     .arg(plainText(photo.path())),
                                 QString::fromUtf8(cairo_status_to_string(status))};
    return photo.isEmbeddable() ? Embedding::OriginalJpeg : Embedding::Pixels;
}

} // namespace printdialog
