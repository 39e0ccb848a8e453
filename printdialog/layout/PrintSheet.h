// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"
#include "PhotoPlacement.h"

#include <QtCore/QLineF>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <algorithm>

namespace printdialog {

/// A photo in its place on a sheet that is printed.
struct SheetPhoto
{
    Photo photo;
    PhotoPlacement placement = {};
    bool isAccepted = false;  ///< Whether it is printed even though it is damaged.
    QStringList caption = {}; ///< Its lines; mostly none.
    QRectF captionArea = {};  ///< Where they stand, in points.

    /// How many pixels of the photo lie on an inch of the paper.
    double pixelsPerInch() const
    {
        const QSizeF target = placement.target.size();
        const QSize seen = photo.orientedSize();
        return std::min(seen.width(), seen.height()) * pointsPerInch /
               std::min(target.width(), target.height());
    }
};

/// One sheet of a job, with everything that lies on it. A value.
struct PrintSheet
{
    QString
        name; ///< For people, and the job's title: the photo's file name, or that of the first of several.
    QList<SheetPhoto> photos = {}; ///< Never empty.
    QList<QLineF> cutMarks = {};   ///< In points.
    int copies = 1;                ///< The job's own copies multiply them.

    /// One photo, or a page of a document, on a sheet of its own.
    static PrintSheet of(const Photo &photo, const PageGeometry &page, const PlacementChoice &choice,
                         bool isAccepted = false);
    /// The photos that are printed only when they are not damaged; each once.
    QList<Photo> photosToCheck() const;
    /// Whether it is only a photo or a page, with nothing drawn beside it.
    bool isPlain() const;
    /// Whether a page of a document lies on it.
    bool hasPages() const;
    /// Whether it has several pages, all on their side: it is turned to be read.
    bool isReadTurned() const;
};

/// What one job prints: the sheet of a photo, or all consecutive sheets with pages of documents. A value.
struct JobSheets
{
    QString name; ///< For people, and the job's title.
    QList<PrintSheet> sheets;
    int copies = 1;          ///< Of all of them; the job's own copies multiply them.
    bool isReversed = false; ///< They are in the other order: the last one comes first.

    JobSheets() = default;
    JobSheets(const PrintSheet &sheet)
        : name(sheet.name)
        , sheets({sheet})
        , copies(sheet.copies)
    {
    }

    const Photo &firstPhoto() const { return sheets.constFirst().photos.constFirst().photo; }
    bool hasPages() const { return std::ranges::any_of(sheets, &PrintSheet::hasPages); }
    /// The photos that are printed only when they are not damaged; each once.
    QList<Photo> photosToCheck() const;
};

} // namespace printdialog
