// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TsFile.h"

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>

QList<TsEntry> readTs(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(&file);
    QList<TsEntry> entries;
    QString context;
    bool isPlural = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            isPlural = reader.attributes().hasAttribute(QLatin1String("numerus"));
            entries.append({context, {}, {}, true});
        } else if (reader.name() == QLatin1String("source")) {
            entries.last().source = reader.readElementText();
        } else if (reader.name() == QLatin1String("numerusform")) {
            entries.last().translations.append(reader.readElementText());
        } else if (reader.name() == QLatin1String("translation")) {
            entries.last().isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            if (!isPlural)
                entries.last().translations.append(reader.readElementText());
        }
    }
    return reader.hasError() ? QList<TsEntry>() : entries;
}

QStringList keysMissingIn(const QList<TsEntry> &other, const QList<TsEntry> &entries)
{
    QSet<QString> missing;
    for (const TsEntry &entry : entries)
        missing.insert(entry.key());
    for (const TsEntry &entry : other)
        missing.remove(entry.key());
    QStringList keys(missing.cbegin(), missing.cend());
    keys.sort();
    return keys;
}
