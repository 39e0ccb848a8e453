// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "AreaScaler.h"

#include <QtCore/QByteArrayView>

#include <atomic>

namespace printdialog {

/// Decodes a part of a JPEG file of this size (in pixels, as stored), scaled down: Grayscale8, or RGB888 also
/// for CMYK. Untrusted bytes. Besides the result, a sequential picture has only a few rows in memory; of a
/// progressive one, libjpeg keeps all coefficients, 2 bytes each. A null image when the pixels cannot be
/// decoded, when memory is short, or when it is given up (may be null).
QImage decodedJpegPart(QByteArrayView jpeg, const QSize &size, const ScaledPart &wanted,
                       const std::atomic<bool> *isGivenUp);

} // namespace printdialog
