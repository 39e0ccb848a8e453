// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SettingsFault.h"

#include <QtCore/QPoint>
#include <QtCore/QString>

namespace printdialog {

/// By how much what is printed is moved on the paper, since a printer may print beside it: measured by the
/// user, and kept for each printer and paper size in the user's configuration folder. In tenths of a
/// millimeter, to the right and down.
class PrintPositions
{
public:
    static constexpr int farthest = 100; ///< In either direction: 10 mm.

    /// Zero where none was saved, or the file is not usable.
    /// @param paper the choice keyword of the paper size
    static QPoint load(const QString &printer, const QString &paper);
    /// Keeps it within the farthest; zero removes it. The others are unchanged.
    static SettingsFailure save(const QString &printer, const QString &paper, const QPoint &tenths);
};

} // namespace printdialog
