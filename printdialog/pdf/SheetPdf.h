// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentComposer.h"
#include "PdfWriter.h"

#include <QtCore/QBuffer>

#include <memory>

namespace printdialog {

/// The PDF of sheets on its way to a device: of photos by PdfWriter alone; pages of documents are laid on
/// what PdfWriter makes by composeDocument(). May be used on any thread, one at a time.
class SheetPdf
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::SheetPdf)

public:
    using Failed = PdfWriter::Failed;

    /// Borrows the device, see PdfWriter.
    /// @param hasPages whether pages of documents lie on the sheets; then nothing is written before finish()
    SheetPdf(QIODevice &device, bool hasPages);
    ~SheetPdf();
    Q_DISABLE_COPY_MOVE(SheetPdf)

    /// See PdfWriter::add().
    Failed add(const PrintSheet &sheet, const PageGeometry &page, const QPointF &offset = {});
    /// Once all are added: they are in the other order, the last one first, and two of them are the front and
    /// the back of a paper. Puts each front before its back; the last one may have an empty back. Only with
    /// pages of documents.
    void putFrontsFirst();
    /// See PdfWriter::finish().
    Failed finish();

private:
    Failed addComposed(const PrintSheet &sheet, const PageGeometry &page, const QPointF &offset);
    Failed compose();

    QIODevice &device_;
    QBuffer drawn_; ///< what PdfWriter makes of sheets with pages
    std::unique_ptr<PdfWriter> writer_;
    bool hasPages_;
    int drawnSheets_ = 0;
    QString title_;
    QList<ComposedSheet> sheets_; ///< of those that were drawn, without a document until finish()
};

} // namespace printdialog
