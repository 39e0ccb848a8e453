// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// The key of the number of copies among stored choices.
inline constexpr char copiesOption[] = "copies";

/// Adds options, in place of those with the same name, which is case-insensitive, as it is for CUPS.
void mergeOptions(QMap<QString, QString> &options, const QMap<QString, QString> &added);

/// Converts choices to a JSON object, option keyword to choice keyword, and back; values that are not strings
/// are left out.
QJsonObject jsonOfChoices(const QMap<QString, QString> &choices);
QMap<QString, QString> choicesFromJson(const QJsonObject &object);

} // namespace printdialog
