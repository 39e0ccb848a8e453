// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace printdialog {

/// A page and the part of it that the printer can print on. In points (1/72 inch); the origin is the page's
/// top left corner and y runs down.
struct PageGeometry
{
    QSizeF size;
    QRectF imageable; ///< Larger than the page where the printer prints over the sheet's edges.

    /// What is seen of a print: the imageable area on the sheet.
    QRectF printed() const { return imageable & QRectF(QPointF(0, 0), size); }

    bool operator==(const PageGeometry &) const = default;
};

} // namespace printdialog
