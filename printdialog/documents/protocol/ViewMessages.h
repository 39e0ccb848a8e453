// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>

namespace printdialog {

/// What corvel-pdf-view is asked and answers. Its descriptors: 0 the request; 3 the answer, a memfd whose
/// size is sealed; 4 the document, without a password.
struct ViewDescriptors
{
    static constexpr int request = 0;
    static constexpr int answer = 3;
    static constexpr int document = 4;
};

struct ViewRequest
{
    static constexpr std::uint32_t longestWhole = 1'000'000;
    static constexpr std::uint32_t longestSide = 4096;

    std::uint32_t page;       ///< From 0 on.
    std::uint32_t wholeWidth; ///< In pixels, of the entire page.
    std::uint32_t wholeHeight;
    std::uint32_t left; ///< Of the part that is wanted.
    std::uint32_t top;
    std::uint32_t width;
    std::uint32_t height;
};

/// Stands before the pixels (RGB32, without gaps between the rows), and is written after them.
struct ViewAnswer
{
    enum Outcome : std::uint32_t {
        None, ///< As the memory is at the beginning.
        Done,
        Refused, ///< The document or the page cannot be read.
        TooCostly,
    };

    std::uint32_t outcome;
    std::uint32_t unused[15];
};

} // namespace printdialog
