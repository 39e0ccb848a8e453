// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace printdialog {

class PpdDocument;

/// The choice of the option with this keyword; nothing when there is none.
using ChoiceOfOption = std::function<std::optional<QString>(const QString &key)>;

/// The file that the PPD's cupsICCProfile lines name for these choices: of the lines that fit, the most
/// specific one, where an earlier qualifier outweighs the later ones. As it is written, which may be a path.
/// Empty when none fits.
QString profileNamed(const PpdDocument &ppd, const ChoiceOfOption &chosen);

} // namespace printdialog
