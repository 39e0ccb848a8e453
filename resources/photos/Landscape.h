// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QImage;

/// Fills the upper part of an image, down to row `height` (pixels), with mountains at a lake in the evening.
/// The image has 32 bits a pixel. The picture is made for 1800 x 800 pixels and always comes out the same.
void drawLandscape(QImage &image, int height);
