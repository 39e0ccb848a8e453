// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// The damage in the compressed pixels of a JPEG file, untranslated; nothing when they decode to the end
/// without a warning, or when memory is short. Untrusted bytes. May run on any thread.
///
/// Only the coefficients are decoded, which takes about 60 ms for 24 megapixels and the memory of a few rows.
/// A progressive file takes five times as long and one bit of memory per coefficient: 75 MiB for 400
/// megapixels with the usual chroma subsampling, 150 MiB at most.
///
/// Damage is detected when a code does not exist, when the data end too early or too late, or when a
/// coefficient is too large. A single changed bit often causes none of these and is not found; a lost or
/// overwritten disk sector mostly is.
std::optional<QString> jpegDamage(QByteArrayView jpeg);

} // namespace printdialog
