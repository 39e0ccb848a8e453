// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGui/QImage>

/// Noise over gradients, which compresses about as badly as photos do.
QImage picture(const QSize &size);
