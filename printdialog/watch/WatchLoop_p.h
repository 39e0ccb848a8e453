// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PlainText.h"
#include "WatchLoop.h"

#include <QtCore/QFile>
#include <QtCore/QScopeGuard>

#include <chrono>

namespace printdialog {

/// Between tries to move photos that could not be moved.
inline constexpr auto lateMoves = std::chrono::seconds(20);

inline QString shownName(const FolderFile &file)
{
    return plainText(QFile::decodeName(file.name), shownTextLimit);
}

/// Marks the time in which a dead mount may block.
inline auto busy(WatchControl &control)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    control.busySince = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    return qScopeGuard([&control] { control.busySince = 0; });
}

} // namespace printdialog
