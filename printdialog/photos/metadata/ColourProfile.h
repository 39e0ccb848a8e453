// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

namespace printdialog {

/// What a photo's numbers mean as colours: its ICC profile. A value; the default is no profile.
class ColourProfile
{
public:
    ColourProfile() = default;

    /// From an untrusted ICC profile; no profile when it cannot be read or is not one of pictures.
    static ColourProfile fromIcc(const QByteArray &icc);

    bool isEmpty() const { return icc_.isEmpty(); }
    /// What everything takes colours for that come without a profile.
    bool isSrgb() const;
    const QByteArray &icc() const { return icc_; }
    /// How many numbers a colour has: 1 (grey), 3 (RGB) or 4 (CMYK); 0 of no profile.
    int components() const { return components_; }

    /// The picture in the colours of a screen (sRGB); as it is without a profile, or when the profile is for
    /// another number of components than the picture has.
    QImage toScreen(const QImage &image) const;

private:
    QByteArray icc_;
    int components_ = 0;
};

} // namespace printdialog
