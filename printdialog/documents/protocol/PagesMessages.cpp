// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagesMessages.h"

#include "Wire.h"

namespace printdialog {

namespace {

constexpr double shortestSide = 1;   // point
constexpr double farthest = 1e6;     // points, of what a matrix has
constexpr std::size_t pageSize = 88; // bytes of a placed page
constexpr std::size_t sheetSize = 20;
constexpr std::size_t sizeSize = 16;

double side(WireReader &reader)
{
    return reader.real(shortestSide, PagesLimits::longestSide);
}

PlannedPage plannedPage(WireReader &reader)
{
    PlannedPage page = {};
    page.document = reader.number(PagesLimits::mostDocuments - 1);
    page.page = reader.number(PagesLimits::mostPages - 1);
    for (double &value : page.toSheet)
        value = reader.real(-farthest, farthest);
    for (double &value : page.clip)
        value = reader.real(-farthest, farthest);
    return page;
}

} // namespace

std::string toBytes(const PagesRequest &request)
{
    WireWriter writer;
    writer.number(static_cast<std::uint32_t>(request.job));
    writer.number(request.wantsCopy);
    writer.text(request.text);
    writer.number(static_cast<std::uint32_t>(request.sheets.size()));
    for (const PlannedSheet &sheet : request.sheets) {
        writer.real(sheet.width);
        writer.real(sheet.height);
        writer.number(static_cast<std::uint32_t>(sheet.pages.size()));
        for (const PlannedPage &page : sheet.pages) {
            writer.number(page.document);
            writer.number(page.page);
            for (const double value : page.toSheet)
                writer.real(value);
            for (const double value : page.clip)
                writer.real(value);
        }
    }
    return std::move(writer).bytes();
}

std::string toBytes(const PagesAnswer &answer)
{
    WireWriter writer;
    writer.number(static_cast<std::uint32_t>(answer.outcome));
    writer.number(answer.document);
    writer.number(answer.isCopied);
    writer.text(answer.title);
    writer.number(static_cast<std::uint32_t>(answer.pages.size()));
    for (const PagesAnswer::Size &size : answer.pages) {
        writer.real(size.width);
        writer.real(size.height);
    }
    return std::move(writer).bytes();
}

std::optional<PagesRequest> pagesRequestOf(std::string_view bytes)
{
    WireReader reader(bytes);
    PagesRequest request;
    request.job = PagesRequest::Job(reader.number(static_cast<std::uint32_t>(PagesRequest::Job::Compose)));
    request.wantsCopy = reader.number(1) != 0;
    request.text = reader.text(PagesLimits::longestText);
    request.sheets.resize(reader.count(PagesLimits::mostSheets, sheetSize));
    std::uint32_t left = PagesLimits::mostPlaced;
    for (PlannedSheet &sheet : request.sheets) {
        sheet.width = side(reader);
        sheet.height = side(reader);
        const std::uint32_t count = reader.count(left, pageSize);
        left -= count;
        sheet.pages.reserve(count);
        for (std::uint32_t i = 0; i < count; ++i)
            sheet.pages.push_back(plannedPage(reader));
    }
    return reader.isAtEnd() ? std::optional(std::move(request)) : std::nullopt;
}

std::optional<PagesAnswer> pagesAnswerOf(std::string_view bytes)
{
    WireReader reader(bytes);
    PagesAnswer answer;
    answer.outcome =
        PagesAnswer::Outcome(reader.number(static_cast<std::uint32_t>(PagesAnswer::Outcome::TooCostly)));
    answer.document = reader.number(PagesLimits::mostDocuments - 1);
    answer.isCopied = reader.number(1) != 0;
    answer.title = reader.text(PagesLimits::longestText);
    answer.pages.resize(reader.count(PagesLimits::mostPages, sizeSize));
    for (PagesAnswer::Size &size : answer.pages)
        size = {side(reader), side(reader)};
    return reader.isAtEnd() ? std::optional(std::move(answer)) : std::nullopt;
}

} // namespace printdialog
