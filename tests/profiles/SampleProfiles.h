// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <lcms2.h>

#include <memory>

namespace testing_support {

/// An RGB profile, which is different for each gamma.
/// @param green its place in the chromaticity diagram; lower ones have fewer colors
inline QByteArray profile(double gamma, cmsProfileClassSignature device = cmsSigDisplayClass,
                          double green = 0.6)
{
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries = {{0.64, 0.33, 1}, {0.3, green, 1}, {0.15, 0.06, 1}};
    const std::unique_ptr<cmsToneCurve, decltype(&cmsFreeToneCurve)> curve(cmsBuildGamma(nullptr, gamma),
                                                                           cmsFreeToneCurve);
    cmsToneCurve *curves[] = {curve.get(), curve.get(), curve.get()};
    const std::unique_ptr<void, decltype(&cmsCloseProfile)> made(
        cmsCreateRGBProfile(&white, &primaries, curves), cmsCloseProfile);
    cmsSetDeviceClass(made.get(), device);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(made.get(), nullptr, &size);
    QByteArray bytes(static_cast<qsizetype>(size), '\0');
    cmsSaveProfileToMem(made.get(), bytes.data(), &size);
    return bytes;
}

/// Writes a file and the folders above it.
inline bool storeBelow(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QFile::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

} // namespace testing_support
