// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PagesMessages.h"
#include "SourcePdf.h"

#include <map>
#include <vector>

namespace printdialog {

/// A document whose pages are put onto sheets, one way or the other. What it returns belongs to the document
/// and is read when the sheets are written, so the document outlives that.
class PageSource
{
public:
    /// Throws what libqpdf throws.
    explicit PageSource(DocumentBytes bytes);

    QPDF &pdf() { return *pdf_; }
    std::size_t pageCount() const { return pages_.size(); }
    SeenBox seen(std::uint32_t page) const { return SeenBox::of(pages_.at(page)); }

    /// Takes from a page what it does not show, when it may have that in common with pages that are not
    /// printed: some programs give all pages one list of all pictures.
    void dropUnused(std::uint32_t page);
    /// A page of its own size, with nothing but what is printed of it: no actions, no form fields, no files.
    QPDFObjectHandle asPage(std::uint32_t page);
    /// From then on no page has annotations; those that are printed are part of the pages.
    void flattenFor(std::uint32_t page);
    /// A form with the page's content in its own units, the same one each time.
    QPDFObjectHandle asForm(std::uint32_t page);

private:
    QPDFObjectHandle printedAnnotations(QPDFPageObjectHelper page);

    std::shared_ptr<QPDF> pdf_;
    std::vector<QPDFObjectHandle> pages_;
    std::map<std::uint32_t, QPDFObjectHandle> forms_;
    bool isFlat_ = false;
};

} // namespace printdialog
