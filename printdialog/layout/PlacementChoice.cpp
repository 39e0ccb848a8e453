// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlacementChoice.h"

#include <QtGui/QColor>

namespace printdialog {

std::optional<PhotoBorder> PhotoBorder::fromText(const QString &text)
{
    if (text == QLatin1String("none"))
        return PhotoBorder();
    const qsizetype comma = text.indexOf(u',');
    const auto width = lengthFromText(text.left(comma));
    if (!width || *width < 0 || *width > widest)
        return std::nullopt;
    PhotoBorder border{*width};
    if (comma < 0)
        return border;
    const QString name = text.mid(comma + 1).trimmed();
    constexpr int opaque = 255;
    if (!QColor::isValidColor(name) || QColor(name).alpha() != opaque)
        return std::nullopt;
    border.color = QColor(name).rgb();
    return border;
}

QString PhotoBorder::toText() const
{
    if (!isThere())
        return QStringLiteral("none");
    const QString length = lengthText(width);
    return color == PhotoBorder().color ? length : QStringLiteral("%1,%2").arg(length, QColor(color).name());
}

} // namespace printdialog
