// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace printdialog {

/// A page and its printable part. In points (1/72 inch); the origin is the page's top left corner and y runs
/// down.
struct PageGeometry
{
    QSizeF size;
    QRectF imageable; ///< The printable area; larger than the page for borderless printing.

    /// The visible part of a print: the imageable area within the sheet.
    QRectF printed() const { return imageable & QRectF(QPointF(0, 0), size); }

    bool operator==(const PageGeometry &) const = default;
};

} // namespace printdialog
