// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"
#include "Result.h"
#include "SheetLayout.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLineF>
#include <QtCore/QList>

#include <optional>

namespace printdialog {

/// A photo or a page of a document to be laid out: its size, and how it is wanted.
struct LayoutItem
{
    QSizeF seenSize; ///< Of the upright photo, in pixels; not empty.
    double pixelsPerInch = 300;
    PlacementChoice placement = {};
    int copies = 1;
    bool isPage = false; ///< Of a document, with margins of its own.

    static LayoutItem of(const Photo &photo, const PlacementChoice &placement, int copies = 1);
    /// In its actual size.
    QSizeF points() const { return seenSize * (pointsPerInch / pixelsPerInch); }
};

/// A photo in its place on a sheet.
struct LaidPhoto
{
    qsizetype item = 0; ///< Its index among the items.
    PhotoPlacement placement;
    QRectF caption; ///< Where its caption stands, in points; empty without one.

    bool operator==(const LaidPhoto &) const = default;
};

/// A sheet and what lies on it.
struct LaidSheet
{
    QList<LaidPhoto> photos; ///< In reading order; never empty.
    QList<QLineF> cutMarks;  ///< In points, on the printable area and outside all prints.
    int copies = 1;          ///< How often the sheet is printed.

    bool operator==(const LaidSheet &) const = default;
};

/// Why photos cannot be laid out as it is wanted.
struct LayoutFault
{
    enum class Kind {
        SizeTooLarge,   ///< The print has no room on the paper, or in its place.
        SizeMissing,    ///< As many of a size as fit are wanted, and a photo has no size.
        BorderTooWide,  ///< The border leaves nothing of the print.
        PlacesTooSmall, ///< The rows, columns and gaps leave no room for photos.
        TooMany,        ///< More prints than one job can have.
        NoPages,        ///< None of the pages is wanted.
    };

    Kind kind;
    qsizetype item = 0; ///< The first photo that it is about.
};

/// The sheets of a job: which photo lies where. Geometry alone; preview, PDF and job all read it.
class SheetPlan
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::SheetPlan)

public:
    static constexpr qsizetype mostPrints = 100'000;

    SheetPlan() = default;
    /// Lays the items out in their order. When it is not possible as wanted, failure() says why, and the
    /// sheets are as near to it as possible, for the preview. The page's printed area is not empty.
    static SheetPlan make(const QList<LayoutItem> &items, const SheetLayout &layout,
                          const PageGeometry &page);

    /// The sheets in the other order.
    void reverse();
    /// Gives each photo the index that stands for its own; makes it a failure when one is given.
    void renumber(const QList<qsizetype> &items, const std::optional<Failure<LayoutFault>> &failure);

    const QList<LaidSheet> &sheets() const { return sheets_; }
    const std::optional<Failure<LayoutFault>> &failure() const { return failure_; }
    /// The index of the first sheet with the item; -1 when none has it.
    qsizetype sheetWith(qsizetype item) const;
    /// The number of sheets of paper, with their copies.
    qsizetype paperCount() const;

private:
    class Maker;

    QList<LaidSheet> sheets_;
    std::optional<Failure<LayoutFault>> failure_;
};

} // namespace printdialog
