// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "AreaScaler.h"
#include "PngHeader.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <atomic>

namespace printdialog {

/// Decodes a PNG file with a valid header, composed on white: RGB888 or Grayscale8, scaled down to `bound`
/// (in pixels) unless that is empty or larger. Besides the result, only a few rows are in memory, whatever
/// the picture's size (see PngPixels). A null image when memory is short or the pixels are damaged; `error`
/// then says why.
QImage decodedPng(QByteArrayView png, const PngHeader &header, const QSize &bound, QString &error);

/// The same of a part. A null image also when it is given up (may be null).
QImage decodedPngPart(QByteArrayView png, const PngHeader &header, const ScaledPart &wanted, QString &error,
                      const std::atomic<bool> *isGivenUp = nullptr);

} // namespace printdialog
