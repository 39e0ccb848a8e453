// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfImage.h"

#include "DeflatedRows.h"
#include "PngPixels.h"

#include <QtGui/QPainter>

namespace printdialog {
namespace {

/// The picture composed on white, in a format with the byte order of a PDF; null when memory is short.
QImage onPaper(QImage image)
{
    if (image.hasAlphaChannel()) {
        QImage paper(image.size(), QImage::Format_RGB32);
        if (paper.isNull())
            return paper;
        paper.fill(Qt::white);
        QPainter(&paper).drawImage(QPoint(0, 0), image);
        image = paper;
    }
    const bool isGrey =
        image.format() == QImage::Format_Grayscale8 || image.format() == QImage::Format_Grayscale16;
    image.convertTo(isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    return image;
}

QByteArray deviceSpace(int components)
{
    return components == 1 ? "/DeviceGray" : components == 3 ? "/DeviceRGB" : "/DeviceCMYK";
}

/// The color space of an image with that many components: the profile if it has as many.
QByteArray colorSpace(PdfFile &file, const ColorProfile &profile, int components)
{
    if (profile.components() != components)
        return deviceSpace(components);
    const int number = file.reserve();
    file.beginStream(number, "/N " + QByteArray::number(components) + " /Alternate " +
                                 deviceSpace(components) + " /Filter /FlateDecode");
    constexpr qsizetype lengthSize = 4; // the prefix that qCompress() adds
    file.writeData(QByteArrayView(qCompress(profile.icc())).sliced(lengthSize));
    file.endStream();
    return "[/ICCBased " + PdfFile::reference(number) + "]";
}

QByteArray entriesOf(const QSize &size, const QByteArray &colorSpace, int bits)
{
    return "/Type /XObject /Subtype /Image /Interpolate true /Width " + QByteArray::number(size.width()) +
           " /Height " + QByteArray::number(size.height()) + " /ColorSpace " + colorSpace +
           " /BitsPerComponent " + QByteArray::number(bits);
}

QByteArray predicted(const QSize &size, int components, int bits)
{
    return " /Filter /FlateDecode /DecodeParms << /Predictor 15 /Colors " + QByteArray::number(components) +
           " /BitsPerComponent " + QByteArray::number(bits) + " /Columns " +
           QByteArray::number(size.width()) + " >>";
}

} // namespace

Result<PdfImage, PhotoFault> PdfImage::of(const Photo &photo)
{
    PdfImage image(photo);
    if (photo.isEmbeddable()) {
        image.embedding_ = Embedding::OriginalJpeg;
        if (photo.jpegHeader())
            return image;
        image.embedding_ = Embedding::OriginalPng;
        // Otherwise decode with libpng, which may still make a picture of them.
        const auto content = photo.content();
        if (!content)
            return content.failure();
        if (!photo.pngHeader()->hasAllPixels(*content))
            image.embedding_ = Embedding::Pixels;
        return image;
    }
    if (photo.pngHeader())
        return image;
    auto decoded = photo.decoded();
    if (!decoded)
        return decoded.failure();
    image.pixels_ = onPaper(*std::move(decoded));
    if (image.pixels_.isNull())
        return photo.memoryFailure();
    return image;
}

Result<int, PhotoFault> PdfImage::write(PdfFile &file) const
{
    const int number = file.reserve();
    if (!pixels_.isNull()) {
        writePixels(file, number);
        return number;
    }
    const auto content = photo_.content();
    if (!content)
        return content.failure();
    switch (embedding_) {
    case Embedding::OriginalJpeg:
        writeJpeg(file, number, *content);
        break;
    case Embedding::OriginalPng:
        writePng(file, number, *content);
        break;
    case Embedding::Pixels:
        if (const auto failure = writeDecodedPng(file, number, *content))
            return *failure;
        break;
    }
    return number;
}

void PdfImage::writeJpeg(PdfFile &file, int number, const QByteArray &content) const
{
    const JpegHeader &header = *photo_.jpegHeader();
    const QByteArray space = colorSpace(file, photo_.profile(), header.components);
    // PDF readers ignore Adobe's marker for inverted inks, so /Decode says it.
    const QByteArray inverted = header.isInverted ? " /Decode [1 0 1 0 1 0 1 0]" : "";
    file.beginStream(number, entriesOf(header.size, space, 8) + inverted + " /Filter /DCTDecode");
    file.writeData(content);
    file.endStream();
}

void PdfImage::writePng(PdfFile &file, int number, const QByteArray &content) const
{
    const PngHeader &header = *photo_.pngHeader();
    const int bits = header.bitsPerSample;
    QByteArray space = colorSpace(file, photo_.profile(), header.palette.isEmpty() ? header.components : 3);
    if (!header.palette.isEmpty())
        space = "[/Indexed " + space + ' ' + QByteArray::number(header.palette.size() / 3 - 1) + " <" +
                header.palette.toHex() + ">]";
    file.beginStream(number,
                     entriesOf(header.size, space, bits) + predicted(header.size, header.components, bits));
    const QList<QByteArrayView> parts = PngHeader::pixelParts(content);
    for (const QByteArrayView part : parts)
        file.writeData(part);
    file.endStream();
}

std::optional<Failure<PhotoFault>> PdfImage::writeDecodedPng(PdfFile &file, int number,
                                                             const QByteArray &content) const
{
    const int components = photo_.pngHeader()->decodedComponents;
    const QSize size = photo_.storedSize();
    const QByteArray space = colorSpace(file, photo_.profile(), components);
    file.beginStream(number, entriesOf(size, space, 8) + predicted(size, components, 8));
    DeflatedRows rows(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(components),
                      static_cast<std::size_t>(components),
                      [&file](QByteArrayView bytes) { file.writeData(bytes); });
    PngPixels pixels(content);
    for (int y = 0; y < size.height() && !file.hasFailed(); ++y) {
        const unsigned char *row = pixels.nextRow();
        if (row) {
            rows.addRow(row);
            continue;
        }
        file.endStream();
        return pixels.isShortOfMemory() ? photo_.memoryFailure() : photo_.broken(pixels.error());
    }
    rows.finish();
    file.endStream();
    return std::nullopt;
}

void PdfImage::writePixels(PdfFile &file, int number) const
{
    const int components = pixels_.format() == QImage::Format_Grayscale8 ? 1 : 3;
    const QByteArray space = colorSpace(file, photo_.profile(), components);
    file.beginStream(number, entriesOf(pixels_.size(), space, 8) + predicted(pixels_.size(), components, 8));
    DeflatedRows rows(static_cast<std::size_t>(pixels_.width()) * static_cast<std::size_t>(components),
                      static_cast<std::size_t>(components),
                      [&file](QByteArrayView bytes) { file.writeData(bytes); });
    for (int y = 0; y < pixels_.height() && !file.hasFailed(); ++y)
        rows.addRow(pixels_.constScanLine(y));
    rows.finish();
    file.endStream();
}

} // namespace printdialog
