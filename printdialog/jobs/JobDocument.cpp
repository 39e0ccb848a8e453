// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobDocument.h"

#include "JobTemplate.h"
#include "PhotoPlacement.h"
#include "SheetPdf.h"

#include <QtCore/QBuffer>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

const QByteArray pdfType = "application/pdf";
const QString scalingName = QStringLiteral("print-scaling");
const QString sidesName = QStringLiteral("sides");
const QString unscaled = QStringLiteral("none");

/// Whether the user wants the printer to print a photo by its resolution.
bool isLeftUnscaled(const PrintJob &job)
{
    return job.ipp && job.ipp->attributes.text(scalingName) == unscaled;
}

/// In points.
constexpr double dot = 72.0 / 300;

/// The photo's type for the print server. A type that the server may not know is sent as raw data, which it
/// passes on unread.
QByteArray mimeTypeOf(const Photo &photo)
{
    static constexpr std::array known = {"gif", "jpeg", "png", "tiff"};
    const QByteArray format = photo.format() == "tif" ? QByteArray("tiff") : photo.format();
    const bool isKnown = std::find(known.begin(), known.end(), format) != known.end();
    return isKnown ? "image/" + format : QByteArray("application/vnd.cups-raw");
}

bool isSame(const QRectF &area, const QRectF &sheet)
{
    return std::abs(area.left() - sheet.left()) < dot && std::abs(area.right() - sheet.right()) < dot &&
           std::abs(area.top() - sheet.top()) < dot && std::abs(area.bottom() - sheet.bottom()) < dot;
}

} // namespace

bool canGoUntouched(const Photo &photo, const PageGeometry &page, const PhotoPlacement &placement)
{
    const QRectF sheet(QPointF(), page.size);
    if (!photo.jpegHeader() || !photo.isEmbeddable() || photo.orientation().value() != 1 ||
        !isSame(page.imageable, sheet))
        return false;
    constexpr int cmyk = 4;
    if (photo.jpegHeader()->components == cmyk || !(photo.profile().isEmpty() || photo.profile().isSrgb()))
        return false;
    const QTransform toPage = placement.toPage();
    const bool isStraight = qFuzzyIsNull(toPage.m12()) && qFuzzyIsNull(toPage.m21());
    return isStraight && toPage.m11() > 0 && toPage.m22() > 0 &&
           isSame(toPage.mapRect(QRectF(0, 0, 1, 1)), sheet);
}

bool isWholeDocument(const JobSheets &sheets, const PrintJob &job)
{
    const Document *document = sheets.firstPhoto().document();
    if (!document || !job.offset.isNull() || sheets.sheets.size() != document->pageCount())
        return false;
    int page = 0;
    return std::ranges::all_of(sheets.sheets, [&](const PrintSheet &sheet) {
        const SheetPhoto &laid = sheet.photos.constFirst();
        return sheet.isPlain() && laid.photo.identity() == document->identity() &&
               laid.photo.page() == page++ &&
               (job.isRaw() || (laid.placement.quarterTurns == 0 &&
                                isSame(laid.placement.target, QRectF(QPointF(), job.page.size))));
    });
}

bool hasBacksFirst(const JobSheets &sheets, const PrintJob &job)
{
    QMap<QString, QString> choices = job.options;
    if (job.ipp)
        choices.insert(sidesName, job.ipp->attributes.text(sidesName).value_or(QString()));
    return sheets.isReversed && JobTemplate::isTwoSided(choices);
}

Result<JobDocument, PdfFault> jobDocument(const JobSheets &sheets, const PrintJob &job)
{
    JobDocument document;
    document.name = sheets.name;
    const PrintSheet &sheet = sheets.sheets.constFirst();
    const SheetPhoto &first = sheet.photos.constFirst();
    const bool isWhole = isWholeDocument(sheets, job);
    const QByteArray type = mimeTypeOf(first.photo);
    if (isWhole ||
        (!sheets.hasPages() &&
         (job.isRaw() || (sheet.isPlain() && job.offset.isNull() && job.directTypes.contains(type) &&
                          !isLeftUnscaled(job) && canGoUntouched(first.photo, job.page, first.placement))))) {
        auto content = first.photo.content();
        if (!content)
            return Failure<PdfFault>{PdfFault::PhotoUnusable, content.failure().text,
                                     content.failure().detail};
        document.mimeType = isWhole ? pdfType : type;
        document.data = *std::move(content);
        document.isUntouched = true;
        return document;
    }
    QBuffer buffer(&document.data);
    buffer.open(QIODevice::WriteOnly);
    SheetPdf pdf(buffer, sheets.hasPages());
    for (const PrintSheet &each : sheets.sheets) {
        if (const auto failure = pdf.add(each, job.page, job.offset))
            return *failure;
    }
    if (hasBacksFirst(sheets, job))
        pdf.putFrontsFirst();
    if (const auto failure = pdf.finish())
        return *failure;
    document.mimeType = pdfType;
    return document;
}

bool lacksFormat(const PrintJob &job, const QByteArray &mimeType)
{
    return job.ipp && !job.ipp->formats.isEmpty() &&
           !job.ipp->formats.contains(QString::fromLatin1(mimeType), Qt::CaseInsensitive);
}

IppAttributes attributesFor(const PrintJob &job, const JobDocument &document)
{
    if (!job.ipp)
        return {};
    IppAttributes attributes = job.ipp->attributes;
    // A PDF is the page, and an untouched photo covers it: "none" would print that by its resolution.
    const QString scaling = document.mimeType == pdfType ? unscaled : QStringLiteral("fill");
    if (!attributes.contains(scalingName) && job.ipp->scalings.contains(scaling))
        attributes.insert(scalingName, {{IppValue::Kind::Keyword, 0, 0, scaling, {}}});
    return attributes;
}

} // namespace printdialog
