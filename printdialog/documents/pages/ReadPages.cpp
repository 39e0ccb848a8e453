// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagesJobs.h"

#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <stdexcept>

namespace printdialog {

namespace {

/// Its sides are kept in proportion as far as a page may be that long.
PagesAnswer::Size sizeOf(const SeenBox &seen)
{
    constexpr double shortest = 1;
    const double width = seen.width();
    const double height = seen.height();
    const double scale = std::min(1.0, PagesLimits::longestSide / std::max(width, height));
    return {std::clamp(width * scale, shortest, PagesLimits::longestSide),
            std::clamp(height * scale, shortest, PagesLimits::longestSide)};
}

/// The title as far as it is of use to people.
std::string titleOf(QPDF &pdf)
{
    QPDFObjectHandle information = pdf.getTrailer().getKey("/Info");
    if (!information.isDictionary() || !information.getKey("/Title").isString())
        return {};
    return information.getKey("/Title").getUTF8Value().substr(0, PagesLimits::longestText);
}

/// Makes the appearances of form fields that are left to the viewer. Whether there are such.
bool makeAppearances(QPDF &pdf)
{
    bool areMissing = false;
    try {
        QPDFAcroFormDocumentHelper fields(pdf);
        areMissing = fields.getNeedAppearances();
        fields.generateAppearancesIfNeeded();
    } catch (const std::runtime_error &) {
        // A broken form: the rest of the document can be printed all the same.
    } catch (const std::logic_error &) {
    }
    return areMissing;
}

/// Makes a viewer show the annotations that are printed, and no others. Whether that changes the page.
bool showPrintedAnnotations(QPDFPageObjectHelper &page)
{
    bool isChanged = false;
    for (QPDFAnnotationObjectHelper &annotation : page.getAnnotations()) {
        const int flags = annotation.getFlags();
        const bool isPrinted = (flags & an_print) != 0 && (flags & an_hidden) == 0;
        const bool isShown = (flags & (an_hidden | an_no_view)) == 0;
        const std::string kind = annotation.getSubtype();
        if (isPrinted && kind == "/Widget") {
            // Viewers leave fields of forms to those who fill them in. A stamp is nothing but its appearance.
            annotation.getObjectHandle().replaceKey("/Subtype", QPDFObjectHandle::newName("/Stamp"));
            isChanged = true;
        }
        if (isPrinted == isShown || kind == "/Link" || kind == "/Popup") // viewers show none of those
            continue;
        const int right = isPrinted ? flags & ~an_no_view : flags | an_hidden;
        annotation.getObjectHandle().replaceKey("/F", QPDFObjectHandle::newInteger(right));
        isChanged = true;
    }
    return isChanged;
}

void writeCopy(QPDF &pdf, bool hasMadeAppearances, Pipeline &output)
{
    QPDFWriter writer(pdf);
    writer.setOutputPipeline(&output);
    writer.setPreserveEncryption(false);
    if (!hasMadeAppearances) // libqpdf makes them while it packs streams
        writer.setStreamDataMode(qpdf_s_preserve);
    writer.setStaticID(true);
    writer.write();
}

} // namespace

PagesAnswer readPages(const PagesRequest &request, DocumentBytes document, Pipeline &output)
{
    using Outcome = PagesAnswer::Outcome;
    const auto pdf = openPdf(document, request.text);
    PagesAnswer answer;
    const std::vector<QPDFObjectHandle> &pages = pdf->getAllPages();
    if (pages.empty() || pages.size() > PagesLimits::mostPages) {
        answer.outcome = pages.empty() ? Outcome::NoPages : Outcome::TooManyPages;
        return answer;
    }
    bool isCopied = request.wantsCopy || pdf->isEncrypted();
    const bool hasMadeAppearances = makeAppearances(*pdf);
    for (const QPDFObjectHandle &each : pages) {
        QPDFPageObjectHelper page(each);
        answer.pages.push_back(sizeOf(SeenBox::of(page)));
        isCopied = showPrintedAnnotations(page) || isCopied;
    }
    answer.title = titleOf(*pdf);
    answer.isCopied = isCopied || pdf->anyWarnings();
    if (answer.isCopied)
        writeCopy(*pdf, hasMadeAppearances, output);
    answer.outcome = Outcome::Done;
    return answer;
}

} // namespace printdialog
