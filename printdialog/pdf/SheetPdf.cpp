// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SheetPdf.h"

#include <algorithm>
#include <sys/mman.h>

namespace printdialog {

namespace {

Failure<PdfFault> failureOf(const Failure<DocumentFault> &failure)
{
    return {PdfFault::PhotoUnusable, failure.text, failure.detail};
}

/// Whether there is something on the sheet beside the pages of documents.
bool isDrawnOn(const PrintSheet &sheet)
{
    return !sheet.cutMarks.isEmpty() || std::ranges::any_of(sheet.photos, [](const SheetPhoto &laid) {
        return !laid.photo.document() || laid.placement.border.isThere() || !laid.caption.isEmpty();
    });
}

Result<Document, DocumentFault> documentOf(const QByteArray &pdf, const QString &name)
{
    pdekit::FileDescriptor file(memfd_create("corvel-print-sheets", MFD_CLOEXEC));
    for (qsizetype done = 0; file.isOpen() && done < pdf.size();) {
        const ssize_t written =
            write(file.number(), pdf.constData() + done, static_cast<std::size_t>(pdf.size() - done));
        if (written <= 0)
            return Failure<DocumentFault>{
                DocumentFault::TooLarge,
                SheetPdf::tr("There is not enough memory to print \"%1\". Print it in several parts.")
                    .arg(name),
                {}};
        done += written;
    }
    return Document::open(std::move(file), name);
}

} // namespace

SheetPdf::SheetPdf(QIODevice &device, bool hasPages)
    : device_(device)
    , hasPages_(hasPages)
{
    if (!hasPages)
        writer_ = std::make_unique<PdfWriter>(device);
}

SheetPdf::~SheetPdf() = default;

SheetPdf::Failed SheetPdf::add(const PrintSheet &sheet, const PageGeometry &page, const QPointF &offset)
{
    return hasPages_ ? addComposed(sheet, page, offset) : writer_->add(sheet, page, offset);
}

SheetPdf::Failed SheetPdf::addComposed(const PrintSheet &sheet, const PageGeometry &page,
                                       const QPointF &offset)
{
    if (title_.isEmpty())
        title_ = sheet.name;
    const QRectF whole(QPointF(), page.size);
    ComposedSheet composed{page.size, {}};
    if (isDrawnOn(sheet)) {
        if (!writer_) {
            drawn_.open(QIODevice::WriteOnly);
            writer_ = std::make_unique<PdfWriter>(drawn_);
        }
        if (const auto failure = writer_->add(sheet, page, offset))
            return failure;
        const QTransform toSheet = QTransform::fromScale(whole.width(), whole.height());
        composed.pages += ComposedPage{{}, drawnSheets_++, toSheet, whole};
    }
    for (const SheetPhoto &laid : sheet.photos) {
        const Document *document = laid.photo.document();
        if (!document)
            continue;
        const QTransform moved = QTransform::fromTranslate(offset.x(), offset.y());
        composed.pages += ComposedPage{*document, laid.photo.page(), laid.placement.toPage() * moved,
                                       laid.placement.clip.translated(offset)};
    }
    sheets_ += composed;
    return std::nullopt;
}

void SheetPdf::putFrontsFirst()
{
    if (sheets_.size() < 2)
        return;
    if (sheets_.size() % 2 != 0)
        sheets_.prepend({sheets_.constFirst().size, {}});
    for (qsizetype i = 0; i + 1 < sheets_.size(); i += 2)
        sheets_.swapItemsAt(i, i + 1);
}

SheetPdf::Failed SheetPdf::finish()
{
    return hasPages_ ? compose() : writer_->finish();
}

SheetPdf::Failed SheetPdf::compose()
{
    if (writer_) {
        if (const auto failure = writer_->finish())
            return failure;
        const auto drawn = documentOf(drawn_.data(), title_);
        if (!drawn)
            return failureOf(drawn.failure());
        for (ComposedSheet &sheet : sheets_) {
            if (!sheet.pages.isEmpty() && sheet.pages.constFirst().document.isNull())
                sheet.pages.first().document = *drawn;
        }
    }
    const auto pdf = composeDocument(sheets_, title_);
    if (!pdf)
        return failureOf(pdf.failure());
    if (device_.write(*pdf) == pdf->size())
        return std::nullopt;
    return Failure<PdfFault>{PdfFault::WriteFailed,
                             tr("The PDF of \"%1\" could not be written: %2. Check the disk that it goes to.")
                                 .arg(title_, device_.errorString()),
                             {}};
}

} // namespace printdialog
