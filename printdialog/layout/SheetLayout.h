// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintSize.h"

#include <QtCore/QString>

#include <array>
#include <optional>

namespace printdialog {

/// What stands below each photo of a sheet.
enum class Caption { None, FileName, Date, Both };

std::optional<Caption> captionFromText(const QString &text);
/// "none", "name", "date" or "both".
QString captionText(Caption caption);

/// How the photos of a job are distributed over sheets. A value; the default is one photo on each sheet.
struct SheetLayout
{
    enum class Kind {
        Single,     ///< One photo on each sheet.
        Grid,       ///< Rows and columns of equal places.
        ManyOfSize, ///< As many of the photos' print size as fit.
        Contact,    ///< A grid of small upright pictures with captions.
        Strips,     ///< Two strips of photos one below the other, to be cut apart.
        Pages,      ///< Several pages of a document in reading order.
        Booklet,    ///< Two pages on each side, in the order in which the folded sheets are read.
    };

    static constexpr int mostRows = 20;
    static constexpr int leastStripPhotos = 2;
    static constexpr int mostStripPhotos = 4;
    static constexpr std::array pagesPerSheetChoices = {2, 4, 6, 9, 16};
    static constexpr double widestGap = 50 * pointsPerMillimeter;

    Kind kind = Kind::Single;
    int rows = 2;                         ///< Of Grid and Contact, from 1 to mostRows.
    int columns = 2;                      ///< The same.
    int stripPhotos = mostStripPhotos;    ///< In each strip.
    int pagesPerSheet = 2;                ///< Of Pages, one of pagesPerSheetChoices.
    double gap = 3 * pointsPerMillimeter; ///< Between the places, in points, from 0 to widestGap.
    /// Whether each photo fills a sheet, or the second strip repeats the first, instead of the next photos
    /// following.
    bool isRepeated = false;
    bool hasCutMarks = false; ///< Short lines beside the prints, where they are to be cut.
    Caption caption = Caption::None;

    /// The kind's usual layout, which the user begins with.
    static SheetLayout usual(Kind kind);
    /// Words separated by commas, the kind first: "single", "2x3" (rows and columns), "fit", "contact",
    /// "contact:6x4", "strips", "strips:3", "pages:4", "booklet"; then any of "repeat" or "follow", "marks"
    /// or "nomarks", "gap=2mm", "caption=name". Nothing for any other text, and for values beyond the limits.
    static std::optional<SheetLayout> fromText(const QString &text);
    /// The text that fromText() reads as this layout; what is usual for the kind is left out.
    QString toText() const;

    bool operator==(const SheetLayout &) const = default;
};

} // namespace printdialog
