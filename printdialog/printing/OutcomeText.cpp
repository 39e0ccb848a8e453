// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OutcomeText.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace printdialog {

QString OutcomeText::summary() const
{
    QStringList lines;
    if (outcome_.wasStopped && outcome_.total == 1)
        lines += outcome_.done == 1 ? outcome_.printed.join(u'\n') : tr("Printing was stopped.");
    else if (outcome_.wasStopped)
        lines += tr("Printing was stopped: printed %1 of %2 photos.").arg(outcome_.done).arg(outcome_.total);
    else if (outcome_.total == 1)
        lines += outcome_.printed + outcome_.waiting;
    else
        lines += counted();
    if (outcome_.skipped.size() == 1)
        lines += outcome_.skipped;
    else if (!outcome_.skipped.isEmpty())
        lines += tr("%1 photos cannot be printed.").arg(outcome_.skipped.size());
    lines += outcome_.failure;
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString OutcomeText::counted() const
{
    if (outcome_.done == outcome_.total)
        return allPrinted();
    if (!job_.destination.isBuiltIn() && !outcome_.isFollowed)
        return outcome_.printed.isEmpty() ? QString()
                                          : tr("Sent %1 of %2 photos to %3, which continues printing.")
                                                .arg(QString::number(outcome_.printed.size()),
                                                     QString::number(outcome_.total), job_.destination.id());
    QString text = tr("Printed %1 of %2 photos.").arg(outcome_.done).arg(outcome_.total);
    if (outcome_.waiting.size() == 1)
        text += u'\n' + outcome_.waiting.constFirst();
    else if (!outcome_.waiting.isEmpty())
        text +=
            u'\n' + tr("Not printed yet: %1; the print server keeps the jobs.").arg(outcome_.waiting.size());
    return text;
}

QString OutcomeText::allPrinted() const
{
    if (job_.destination.isBuiltIn())
        return tr("Printed %1 photos in the folder %2")
            .arg(QString::number(outcome_.total),
                 QDir::toNativeSeparators(QFileInfo(job_.folder.path).absoluteFilePath()));
    // Other users' jobs may have ids in between.
    const QList<int> &jobs = outcome_.jobs;
    if (jobs.size() == outcome_.total && jobs.constLast() - jobs.constFirst() == outcome_.total - 1)
        return tr("Printed %1 photos on %2 (jobs %3 to %4)")
            .arg(QString::number(outcome_.total), job_.destination.id(), QString::number(jobs.constFirst()),
                 QString::number(jobs.constLast()));
    return tr("Printed %1 photos on %2").arg(QString::number(outcome_.total), job_.destination.id());
}

QString OutcomeText::details() const
{
    // When the run was stopped, photos that were only sent are not printed, so they are not listed.
    const bool isTold =
        outcome_.total == 1 || (outcome_.wasStopped && !outcome_.isFollowed && !job_.destination.isBuiltIn());
    return isTold ? QString() : (outcome_.printed + outcome_.waiting + outcome_.skipped).join(u'\n');
}

} // namespace printdialog
