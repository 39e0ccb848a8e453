// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

class IppAttributes;
struct IppValue;

/// The value as lp(1) spells it in an option: "4", "true", "1-3", "600dpi"; nothing for a collection.
std::optional<QString> optionText(const IppValue &value);

/// What a job gets that does not name the option, by job option: the attribute "Finish-default" is "Finish"
/// here. Several values are separated by commas.
QMap<QString, QString> jobDefaults(const IppAttributes &attributes);

} // namespace printdialog
