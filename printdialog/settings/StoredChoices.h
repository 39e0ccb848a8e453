// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

/// The option with the number of copies, among choices that are kept.
inline constexpr char copiesOption[] = "copies";

/// Choices as a JSON object, option keyword to choice keyword, and back; what is no text is left out.
QJsonObject jsonOfChoices(const QMap<QString, QString> &choices);
QMap<QString, QString> choicesFromJson(const QJsonObject &object);

} // namespace printdialog
