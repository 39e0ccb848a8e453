// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// PDFs as corvel-pdf-pages reads and composes them, what it is asked and answers, and page ranges. The first
// byte says which.

#include "Fuzzing.h"
#include "PageChoice.h"
#include "PagesJobs.h"

#include <qpdf/Pl_String.hh>

using namespace printdialog;

namespace {

constexpr std::size_t planSize = 16; // bytes

/// Two sheets, with as many pages as the plan says, in places that it says.
PagesRequest planned(DocumentBytes plan)
{
    PagesRequest request;
    request.job = PagesRequest::Job::Compose;
    request.text = "fuzz";
    request.sheets = {{200, 100}, {300, 300}};
    for (std::size_t i = 0; i + 1 < plan.size(); i += 2) {
        const double way = plan[i + 1] - 128.0;
        PlannedPage page = {0, plan[i] / 16u, {200, 0, 0, 100, 0, 0}, {0, 0, 200, 100}};
        if (way > 0)
            page.toSheet = {way, way / 2, -way / 3, way, way, 0};
        request.sheets[plan[i] & 1].pages.push_back(page);
        if (plan[i] & 2)
            break;
    }
    return request;
}

void pdf(DocumentBytes plan, DocumentBytes document)
{
    std::string copy;
    Pl_String output("copy", nullptr, copy);
    PagesRequest request;
    request.wantsCopy = true;
    const PagesAnswer read = answerTo(request, {document}, output);
    const auto received = pagesAnswerOf(toBytes(read));
    fuzzing::require(received.has_value(), "an answer can be read");
    if (read.outcome != PagesAnswer::Outcome::Done)
        return;
    fuzzing::require(received->pages.size() == read.pages.size() && !read.pages.empty(),
                     "a document has pages");

    std::string sheets;
    Pl_String made("sheets", nullptr, sheets);
    const DocumentBytes content(reinterpret_cast<const unsigned char *>(copy.data()), copy.size());
    if (answerTo(planned(plan), {content}, made).outcome != PagesAnswer::Outcome::Done)
        return;
    std::string again;
    Pl_String nothing("again", nullptr, again);
    const PagesAnswer composed =
        answerTo({}, {{reinterpret_cast<const unsigned char *>(sheets.data()), sheets.size()}}, nothing);
    fuzzing::require(composed.outcome == PagesAnswer::Outcome::Done && composed.pages.size() == 2,
                     "what was composed can be read");
}

void messages(std::string_view bytes)
{
    if (const auto request = pagesRequestOf(bytes))
        fuzzing::require(toBytes(*request) == bytes, "a request comes back");
    if (const auto answer = pagesAnswerOf(bytes))
        fuzzing::require(toBytes(*answer) == bytes, "an answer comes back");
}

void ranges(const QString &text)
{
    const auto ranges = PageRanges::fromText(text);
    if (!ranges)
        return;
    fuzzing::require(!ranges->isEmpty(), "ranges have pages");
    fuzzing::require(PageRanges::fromText(ranges->toText()) == ranges, "ranges come back");
    int last = -1;
    for (const PageRanges::Range &range : ranges->ranges()) {
        fuzzing::require(range.first > last + 1 && range.last >= range.first,
                         "ranges ascend, apart from each other");
        fuzzing::require(ranges->contains(range.first) && ranges->contains(range.last),
                         "ranges have their ends");
        last = range.last;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const DocumentBytes bytes(data + 1, size - 1);
    if (data[0] == 'p' && bytes.size() > planSize)
        pdf(bytes.first(planSize), bytes.subspan(planSize));
    else if (data[0] == 'm')
        messages({reinterpret_cast<const char *>(bytes.data()), bytes.size()});
    else if (data[0] == 'r')
        ranges(QString::fromUtf8(fuzzing::input(bytes.data(), bytes.size())));
    return 0;
}
