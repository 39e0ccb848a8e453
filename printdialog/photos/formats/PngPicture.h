// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PngHeader.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QSize>
#include <QtGui/QImage>

namespace printdialog {

/// The pixels of a PNG file with the header, which is valid, as they lie on white paper: RGB888 or
/// Grayscale8, scaled down to `bound` (in pixels) unless that is empty or larger. Besides the result a few
/// rows of it are in memory, however large the picture is (see PngPixels). Null when memory is short, or the
/// pixels are damaged: then `error` says why.
QImage decodedPng(QByteArrayView png, const PngHeader &header, const QSize &bound, QString &error);

} // namespace printdialog
