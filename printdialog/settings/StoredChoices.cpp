// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StoredChoices.h"

namespace printdialog {

void mergeOptions(QMap<QString, QString> &options, const QMap<QString, QString> &added)
{
    for (auto option = added.cbegin(); option != added.cend(); ++option) {
        options.removeIf([&option](const auto &known) {
            return known.key().compare(option.key(), Qt::CaseInsensitive) == 0;
        });
        options.insert(option.key(), *option);
    }
}

QJsonObject jsonOfChoices(const QMap<QString, QString> &choices)
{
    QJsonObject object;
    for (auto entry = choices.cbegin(); entry != choices.cend(); ++entry)
        object.insert(entry.key(), entry.value());
    return object;
}

QMap<QString, QString> choicesFromJson(const QJsonObject &object)
{
    QMap<QString, QString> choices;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry->isString())
            choices.insert(entry.key(), entry->toString());
    }
    return choices;
}

} // namespace printdialog
