// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// What is wrong with the compressed pixels of a JPEG file, untranslated; nothing when they can be decoded to
/// the end without a complaint, or when there is no memory for it. Untrusted bytes. May run on any thread.
///
/// The pixels are decoded as far as to their coefficients, and no further, which takes about 60 ms for 24
/// megapixels and a few rows of memory. A progressive file takes five times as long, and a bit of memory for
/// each coefficient: 75 MiB for 400 megapixels of the usual kind, 150 MiB at most.
///
/// Damage shows when a code does not exist, when the data end too early or too late, or when a coefficient is
/// larger than any picture makes it. A single changed bit often does none of it and is not found; a lost or
/// overwritten sector of the disk mostly is.
std::optional<QString> jpegDamage(QByteArrayView jpeg);

} // namespace printdialog
