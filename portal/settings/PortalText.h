// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PlainText.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace printdialog {

/// The longest text that is read from a program, in UTF-16 units.
inline constexpr qsizetype longestPortalText = 4096;

/// The longest part of it inside a sentence.
inline constexpr qsizetype shownPortalText = 60;

/// A program's text; nothing when it is none, too long, or has control characters.
inline std::optional<QString> portalText(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    const QString text = value.toString();
    return text.size() > longestPortalText || hasControls(text) ? std::nullopt : std::optional(text);
}

} // namespace printdialog
