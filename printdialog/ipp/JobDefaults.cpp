// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobDefaults.h"

#include "IppAttributes.h"

#include <QtCore/QStringList>

namespace printdialog {

std::optional<QString> optionText(const IppValue &value)
{
    using Kind = IppValue::Kind;
    switch (value.kind) {
    case Kind::Integer:
    case Kind::Enum:
        return QString::number(value.number);
    case Kind::Boolean:
        return value.number != 0 ? QStringLiteral("true") : QStringLiteral("false");
    case Kind::Range:
        return QStringLiteral("%1-%2").arg(value.number).arg(value.upper);
    case Kind::Resolution:
        return value.number == value.upper ? QStringLiteral("%1dpi").arg(value.number)
                                           : QStringLiteral("%1x%2dpi").arg(value.number).arg(value.upper);
    case Kind::Keyword:
    case Kind::Name:
    case Kind::Text:
        return value.text;
    case Kind::Collection:
    case Kind::None:
        break;
    }
    return std::nullopt;
}

QMap<QString, QString> jobDefaults(const IppAttributes &attributes)
{
    const QLatin1String suffix("-default");
    QMap<QString, QString> defaults;
    const QStringList names = attributes.names();
    for (const QString &name : names) {
        if (!name.endsWith(suffix))
            continue;
        QStringList texts;
        const QList<IppValue> values = attributes.values(name);
        for (const IppValue &value : values) {
            if (const auto text = optionText(value))
                texts += *text;
        }
        if (!texts.isEmpty())
            defaults.insert(name.chopped(suffix.size()), texts.join(u','));
    }
    return defaults;
}

} // namespace printdialog
