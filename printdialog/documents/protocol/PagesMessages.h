// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace printdialog {

/// What corvel-pdf-pages is asked and answers. Its descriptors: 0 the request; 3 its answer; 4 the PDF that
/// it makes; from 5 on the documents. Each side checks what it reads.
struct PagesDescriptors
{
    static constexpr int request = 0;
    static constexpr int answer = 3;
    static constexpr int output = 4;
    static constexpr int firstDocument = 5;
};

/// The limits of what is asked and answered.
struct PagesLimits
{
    static constexpr double longestSide = 14'400; ///< In points (PDF 1.7, annex C).
    static constexpr std::uint32_t mostPages = 10'000;
    static constexpr std::uint32_t mostDocuments = 10'000;
    static constexpr std::uint32_t mostSheets = 100'000;
    static constexpr std::uint32_t mostPlaced = 400'000; ///< On all sheets together.
    static constexpr std::uint32_t longestText = 4096;   ///< In bytes.
};

/// A page in its place.
struct PlannedPage
{
    std::uint32_t document; ///< From 0 on.
    std::uint32_t page;     ///< From 0 on.
    /// x' = m[0] x + m[2] y + m[4], y' = m[1] x + m[3] y + m[5]: from the unit square of the page as it is
    /// seen to points on the sheet, with y down in both.
    std::array<double, 6> toSheet;
    std::array<double, 4> clip; ///< x, y, width, height on the sheet.
};

struct PlannedSheet
{
    double width; ///< In points.
    double height;
    std::vector<PlannedPage> pages = {};
};

struct PagesRequest
{
    enum class Job : std::uint32_t { Read, Compose };

    Job job = Job::Read;
    bool wantsCopy = false;                ///< To read: a copy is made in any case.
    std::string text = {};                 ///< To read: the password. To compose: the title. UTF-8.
    std::vector<PlannedSheet> sheets = {}; ///< To compose.
};

struct PagesAnswer
{
    enum class Outcome : std::uint32_t {
        Done,
        NoPages,
        TooManyPages,
        NeedsPassword,
        WrongPassword,
        Broken,
        TooCostly,
    };
    struct Size
    {
        double width; ///< In points.
        double height;
    };

    Outcome outcome = Outcome::Broken;
    std::uint32_t document = 0;   ///< The one that it failed with.
    bool isCopied = false;        ///< Read: the output is a copy without a password and repaired.
    std::string title = {};       ///< Read: in UTF-8.
    std::vector<Size> pages = {}; ///< Read.
};

/// The largest answer, in bytes.
inline constexpr std::size_t largestPagesAnswer = 64 + PagesLimits::longestText + 16 * PagesLimits::mostPages;

std::string toBytes(const PagesRequest &request);
std::string toBytes(const PagesAnswer &answer);
/// Nothing when a value is out of its range.
std::optional<PagesRequest> pagesRequestOf(std::string_view bytes);
std::optional<PagesAnswer> pagesAnswerOf(std::string_view bytes);

} // namespace printdialog
