// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobDocument.h"

#include "PhotoPlacement.h"

#include <QtCore/QBuffer>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

/// Points.
constexpr double dot = 72.0 / 300;

/// What the print server calls the photo's type. A type that it may not know goes as raw data, which it hands
/// on without a look.
QByteArray mimeTypeOf(const Photo &photo)
{
    static constexpr std::array known = {"gif", "jpeg", "png", "tiff"};
    const QByteArray format = photo.format() == "tif" ? QByteArray("tiff") : photo.format();
    const bool isKnown = std::find(known.begin(), known.end(), format) != known.end();
    return isKnown ? "image/" + format : QByteArray("application/vnd.cups-raw");
}

/// Whether a JPEG is of the kind that every printer reads: its frame is baseline, of 8 bits, grey or colour.
bool isBaseline(const QByteArray &jpeg)
{
    const auto byte = [&jpeg](qsizetype at) {
        return at < jpeg.size() ? static_cast<quint8>(jpeg.at(at)) : 0;
    };
    for (qsizetype at = 2; byte(at) == 0xff;) {
        const int marker = byte(at + 1);
        if (marker == 0xff) { // padding
            ++at;
            continue;
        }
        if (marker == 0xc0)
            return byte(at + 4) == 8 && (byte(at + 9) == 1 || byte(at + 9) == 3);
        // Another kind of frame, or pixels before any; c4 and c8 are none.
        if ((marker > 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8) || marker == 0xda)
            return false;
        at += 2 + (byte(at + 2) << 8 | byte(at + 3));
    }
    return false;
}

bool isSame(const QRectF &area, const QRectF &sheet)
{
    return std::abs(area.left() - sheet.left()) < dot && std::abs(area.right() - sheet.right()) < dot &&
           std::abs(area.top() - sheet.top()) < dot && std::abs(area.bottom() - sheet.bottom()) < dot;
}

} // namespace

bool needsNoPlacement(const Photo &photo, const PageGeometry &page)
{
    const QRectF sheet(QPointF(), page.size);
    if (photo.format() != "jpeg" || !photo.isEmbeddable() || !isBaseline(photo.content()) ||
        photo.orientation().value() != 1 || !isSame(page.imageable, sheet))
        return false;
    const QTransform toPage = PhotoPlacement::fit(photo.orientedSize(), page).toPage();
    const bool isStraight = qFuzzyIsNull(toPage.m12()) && qFuzzyIsNull(toPage.m21());
    return isStraight && toPage.m11() > 0 && toPage.m22() > 0 &&
           isSame(toPage.mapRect(QRectF(0, 0, 1, 1)), sheet);
}

Result<SubmittedDocument, PdfFault> jobDocument(const Photo &photo, const PrintJob &job)
{
    SubmittedDocument document;
    document.name = photo.fileName();
    const QByteArray type = mimeTypeOf(photo);
    if (!job.queue.hasPpd || (job.queue.directTypes.contains(type) && needsNoPlacement(photo, job.page))) {
        document.mimeType = type;
        document.data = photo.content();
        return document;
    }
    QBuffer buffer(&document.data);
    buffer.open(QIODevice::WriteOnly);
    const auto page = PdfWriter::write(photo, job.page, buffer);
    if (!page)
        return page.failure();
    document.mimeType = "application/pdf";
    return document;
}

} // namespace printdialog
