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

    /// One photo on a page of its own.
    static PrintSheet of(const Photo &photo, const PageGeometry &page, const PlacementChoice &choice,
                         bool isAccepted = false)
    {
        return {photo.fileName(),
                {{photo, PhotoPlacement::place(photo.orientedSize(), photo.printedResolution(), page, choice),
                  isAccepted}}};
    }
    /// The photos that are printed only when they are not damaged; each once.
    QList<Photo> photosToCheck() const
    {
        QList<Photo> checked;
        for (const SheetPhoto &laid : photos) {
            const auto isSame = [&laid](const Photo &photo) {
                return photo.path() == laid.photo.path();
            };
            if (!laid.isAccepted && std::ranges::none_of(checked, isSame))
                checked += laid.photo;
        }
        return checked;
    }
    /// Whether it is only a photo, with nothing drawn beside it.
    bool isPlain() const
    {
        return photos.size() == 1 && cutMarks.isEmpty() && photos.constFirst().caption.isEmpty() &&
               !photos.constFirst().placement.border.isThere();
    }
};

} // namespace printdialog
