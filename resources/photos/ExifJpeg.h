// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>

class QImage;

/// The image as an sRGB JPEG file at 300 dpi, as a camera held upright would store a landscape photo: turned
/// a quarter counter-clockwise, with EXIF orientation 6. Empty when Qt cannot write JPEG.
QByteArray turnedJpeg(const QImage &upright);
