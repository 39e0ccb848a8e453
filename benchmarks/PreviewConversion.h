// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSize>

constexpr QSize shownPhoto(900, 600); ///< logical pixels

/// What the shown pixels go through besides the adjustments.
enum class PreviewConversion { None, ScreenProfile, ScreenProfileAndProof };
