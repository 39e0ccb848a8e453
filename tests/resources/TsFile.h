// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QStringList>

/// One text of a translation file.
struct TsEntry
{
    QString context;
    QString source;
    QStringList translations; ///< one, or the plural forms
    bool isFinished = true;

    /// What tells this text from the others, fit to be read.
    QString key() const { return context + QLatin1String(": ") + source; }
};

/// Reads a translation file as translators write it. Empty when it cannot be read.
QList<TsEntry> readTs(const QString &path);

/// The keys of the texts that `other` lacks, sorted.
QStringList keysMissingIn(const QList<TsEntry> &other, const QList<TsEntry> &entries);
