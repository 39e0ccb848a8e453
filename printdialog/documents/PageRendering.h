// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Document.h"

#include <QtCore/QRectF>
#include <QtGui/QImage>

#include <atomic>

namespace printdialog {

/// The most pixels of a side that renderPage() returns: what would be longer is returned smaller.
inline constexpr int longestRenderedSide = 4096;

/// A page of a document as pixels: RGB32 in sRGB, on white paper. It is rendered by a process without rights
/// (corvel-pdf-view), which may die of a hostile page: that costs this page, and the text of the failure is a
/// sentence about it. Blocks for 10 to 50 milliseconds, at most for seconds: for a worker thread.
/// @param page from 0 on
/// @param whole the size in pixels that the entire page would have
/// @param part what is wanted of it, in the unit square of the page as it is seen
/// @param isGivenUp the process is ended soon after it is set, with the fault TooCostly; may be null
Result<QImage, DocumentFault> renderPage(const Document &document, int page, const QSize &whole,
                                         const QRectF &part = QRectF(0, 0, 1, 1),
                                         const std::atomic<bool> *isGivenUp = nullptr);

} // namespace printdialog
