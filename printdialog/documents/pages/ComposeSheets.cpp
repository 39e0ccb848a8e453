// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagesJobs.h"

#include "OptionalContent.h"
#include "PageSource.h"

#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFWriter.hh>

#include <charconv>
#include <cmath>
#include <deque>
#include <set>
#include <stdexcept>

namespace printdialog {

namespace {

constexpr double tolerance = 0.5; // points

bool isNear(double a, double b)
{
    return std::abs(a - b) <= tolerance;
}

bool isAsItIs(const PlannedSheet &sheet, const SeenBox &seen)
{
    if (sheet.pages.size() != 1 || seen.unit != 1 || !isNear(seen.width(), sheet.width) ||
        !isNear(seen.height(), sheet.height))
        return false;
    const PlannedPage &page = sheet.pages.front();
    const std::array<double, 6> filling = {sheet.width, 0, 0, sheet.height, 0, 0};
    const auto &clip = page.clip;
    return std::equal(filling.begin(), filling.end(), page.toSheet.begin(), isNear) && clip[0] <= tolerance &&
           clip[1] <= tolerance && clip[0] + clip[2] >= sheet.width - tolerance &&
           clip[1] + clip[3] >= sheet.height - tolerance;
}

/// From a page's units to the unit square of what is seen of it, with y down.
QPDFMatrix toUnitSquare(const SeenBox &seen)
{
    const auto &[left, bottom, right, top] = seen.box;
    const double w = 1 / (right - left);
    const double h = 1 / (top - bottom);
    switch (seen.quarterTurns) {
    case 1:
        return {0, w, h, 0, -bottom * h, -left * w};
    case 2:
        return {-w, 0, 0, h, right * w, -bottom * h};
    case 3:
        return {0, -w, -h, 0, top * h, right * w};
    default:
        return {w, 0, 0, -h, -left * w, top * h};
    }
}

/// With enough digits for any place on a sheet, and never with an exponent, which PDF does not know.
void append(std::string &text, double value)
{
    constexpr int digits = 9;
    char buffer[64];
    const auto end =
        std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::fixed, digits);
    text.append(buffer, end.ptr);
    text += ' ';
}

std::string placing(const PlannedSheet &sheet, const PlannedPage &page, const SeenBox &seen,
                    const std::string &name)
{
    const auto &m = page.toSheet;
    QPDFMatrix matrix(1, 0, 0, -1, 0, sheet.height); // y runs up in a PDF
    matrix.concat({m[0], m[1], m[2], m[3], m[4], m[5]});
    matrix.concat(toUnitSquare(seen));
    std::string text = "q ";
    for (const double value :
         {page.clip[0], sheet.height - page.clip[1] - page.clip[3], page.clip[2], page.clip[3]})
        append(text, value);
    text += "re W n ";
    for (const double value : {matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f})
        append(text, value);
    return text + "cm " + name + " Do Q\n";
}

class SheetComposer
{
public:
    SheetComposer(const PagesRequest &request, const std::vector<DocumentBytes> &documents,
                  std::uint32_t &current)
        : request_(request)
        , current_(current)
    {
        for (current_ = 0; current_ < documents.size(); ++current_)
            sources_.emplace_back(documents[current_]);
        current_ = 0;
        made_.emptyPDF();
    }

    void write(Pipeline &output)
    {
        dropUnused();
        // The pages that stay as they are come first, since they keep their annotations.
        std::vector<QPDFObjectHandle> pages(request_.sheets.size());
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const PlannedSheet &sheet = request_.sheets[i];
            if (!sheet.pages.empty() &&
                isAsItIs(sheet, source(sheet.pages.front()).seen(sheet.pages.front().page)))
                pages[i] =
                    made_.copyForeignObject(source(sheet.pages.front()).asPage(sheet.pages.front().page));
        }
        for (std::size_t i = 0; i < pages.size(); ++i) {
            for (const PlannedPage &page : request_.sheets[i].pages) {
                if (!pages[i].isInitialized())
                    source(page).flattenFor(page.page);
            }
        }
        for (std::size_t i = 0; i < pages.size(); ++i) {
            if (!pages[i].isInitialized())
                pages[i] = composed(request_.sheets[i]);
        }
        addPages(pages);
        for (PageSource &each : sources_)
            addOptionalContent(each.pdf(), made_);
        writeTo(output);
    }

private:
    PageSource &source(const PlannedPage &page)
    {
        if (page.document >= sources_.size() || page.page >= sources_[page.document].pageCount())
            throw std::out_of_range("no such page");
        current_ = page.document;
        return sources_[page.document];
    }

    void dropUnused()
    {
        std::vector<std::set<std::uint32_t>> used(sources_.size());
        for (const PlannedSheet &sheet : request_.sheets) {
            for (const PlannedPage &page : sheet.pages) {
                source(page);
                used[page.document].insert(page.page);
            }
        }
        for (std::size_t i = 0; i < used.size(); ++i) {
            for (const std::uint32_t page : used[i]) {
                if (used[i].size() < sources_[i].pageCount())
                    sources_[i].dropUnused(page);
            }
        }
    }

    QPDFObjectHandle composed(const PlannedSheet &sheet)
    {
        QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page /Resources << >> >>");
        page.replaceKey("/MediaBox", QPDFObjectHandle::newFromRectangle({0, 0, sheet.width, sheet.height}));
        if (sheet.pages.empty())
            return made_.makeIndirectObject(page);
        QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
        std::string content;
        for (const PlannedPage &each : sheet.pages) {
            PageSource &from = source(each);
            const std::string name = "/P" + std::to_string(forms.getKeys().size());
            forms.replaceKey(name, made_.copyForeignObject(from.asForm(each.page)));
            content += placing(sheet, each, from.seen(each.page), name);
        }
        page.getKey("/Resources").replaceKey("/XObject", forms);
        page.replaceKey("/Contents", made_.newStream(content));
        return made_.makeIndirectObject(page);
    }

    void addPages(const std::vector<QPDFObjectHandle> &pages)
    {
        QPDFObjectHandle tree = made_.getRoot().getKey("/Pages");
        for (QPDFObjectHandle page : pages)
            page.replaceKey("/Parent", tree);
        tree.replaceKey("/Kids", QPDFObjectHandle::newArray(pages));
        tree.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(pages.size())));
    }

    void writeTo(Pipeline &output)
    {
        if (!request_.text.empty()) {
            QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
            information.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(request_.text));
            made_.getTrailer().replaceKey("/Info", made_.makeIndirectObject(information));
        }
        QPDFWriter writer(made_);
        writer.setOutputPipeline(&output);
        writer.setDeterministicID(true);
        writer.setMinimumPDFVersion("1.5"); // transparency and optional content
        for (PageSource &each : sources_) {
            if (const PDFVersion version = each.pdf().getVersionAsPDFVersion();
                version.getMajor() == 1 && version.getMinor() <= 7)
                writer.setMinimumPDFVersion(version);
        }
        writer.write();
    }

    const PagesRequest &request_;
    std::uint32_t &current_;
    std::deque<PageSource> sources_;
    QPDF made_;
};

} // namespace

PagesAnswer composeSheets(const PagesRequest &request, const std::vector<DocumentBytes> &documents,
                          Pipeline &output, std::uint32_t &current)
{
    PagesAnswer answer;
    if (request.sheets.empty()) {
        answer.outcome = PagesAnswer::Outcome::NoPages;
        return answer;
    }
    SheetComposer(request, documents, current).write(output);
    answer.outcome = PagesAnswer::Outcome::Done;
    return answer;
}

} // namespace printdialog
