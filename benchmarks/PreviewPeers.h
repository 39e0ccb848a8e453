// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSize>

#include <optional>

/// Milliseconds in which lcms2 takes a picture of this size through a device link of 33 points each way, on
/// one thread; without making the link, which would be new at each step.
double lcmsMilliseconds(const QSize &size);

/// The same for libvips with curves, a matrix and an unsharp mask of radius 3, on all cores; nothing where it
/// is not installed.
std::optional<double> vipsMilliseconds(const QSize &size);

/// An RGB profile with this gamma and this green in the chromaticity diagram, as ICC bytes.
QByteArray benchProfile(double gamma, double greenX, double greenY);
