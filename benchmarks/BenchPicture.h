// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

/// Noise over gradients, which compresses about as badly as photos do.
QImage picture(const QSize &size);
/// Such a picture as a JPEG of nearly that many bytes, with a quality from 40 to 95; empty if it is larger.
QByteArray jpegOfAtMost(qsizetype bytes, const QSize &size);
