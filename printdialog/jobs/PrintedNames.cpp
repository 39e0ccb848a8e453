// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintedNames.h"

#include "PlainText.h"

#include <QtCore/QFileInfo>

namespace printdialog {

QString PrintedNames::nameFor(const QString &photoPath) const
{
    QString base = plainText(QFileInfo(photoPath).completeBaseName()).trimmed();
    while (base.startsWith(QLatin1Char('.')))
        base.remove(0, 1);
    if (base.isEmpty())
        base = QStringLiteral("photo");
    QString name = base;
    for (int number = 2; taken_.contains(name); ++number)
        name = QStringLiteral("%1-%2").arg(base).arg(number);
    return name;
}

} // namespace printdialog
