// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

class DialogSession;

/// Chooses both sides, turned on the short edge, for a booklet, where the printer has that and nothing
/// conflicts with it. Returns what was done, or what the user has to do: a sentence.
QString chooseBookletSides(DialogSession &session);

} // namespace printdialog
