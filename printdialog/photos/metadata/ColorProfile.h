// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

namespace printdialog {

/// A photo's ICC profile, which defines its colors. A value; the default is no profile.
class ColorProfile
{
public:
    ColorProfile() = default;

    /// Reads an untrusted ICC profile; no profile when it cannot be read or is not for pictures.
    static ColorProfile fromIcc(const QByteArray &icc);

    bool isEmpty() const { return icc_.isEmpty(); }
    /// Whether it is sRGB, which is also assumed for colors without a profile.
    bool isSrgb() const;
    const QByteArray &icc() const { return icc_; }
    /// The number of color components: 1 (grey), 3 (RGB) or 4 (CMYK); 0 without a profile.
    int components() const { return components_; }

    /// The picture converted to sRGB for the screen; unchanged without a profile, or when the profile has
    /// another number of components than the picture.
    QImage toScreen(const QImage &image) const;

private:
    QByteArray icc_;
    int components_ = 0;
};

} // namespace printdialog
