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
    QRectF imageable;
};

} // namespace printdialog
