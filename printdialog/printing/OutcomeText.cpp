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
    else if (outcome_.total == 1)
        lines += outcome_.printed + outcome_.waiting + outcome_.skipped;
    else
        lines += (counted() + u' ' + others()).trimmed();
    lines += outcome_.failure;
    if (outcome_.total > 1 && outcome_.failure.isEmpty() &&
        outcome_.waiting.size() + outcome_.skipped.size() == 1)
        lines += outcome_.waiting + outcome_.skipped;
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString OutcomeText::say(const QString &photos, const QString &sheets, const QString &jobs) const
{
    return unit_ == Unit::Photos ? photos : unit_ == Unit::Sheets ? sheets : jobs;
}

QString OutcomeText::counted() const
{
    if (outcome_.wasStopped)
        return say(tr("Printing was stopped: printed %1 of %2 photos."),
                   tr("Printing was stopped: printed %1 of %2 sheets."),
                   tr("Printing was stopped: printed %1 of %2 jobs."))
            .arg(outcome_.done)
            .arg(outcome_.total);
    if (outcome_.done == outcome_.total)
        return allPrinted();
    if (!job_.destination.isBuiltIn() && !outcome_.isFollowed)
        return outcome_.printed.isEmpty() ? QString()
                                          : say(tr("Sent %1 of %2 photos to %3, which continues printing."),
                                                tr("Sent %1 of %2 sheets to %3, which continues printing."),
                                                tr("Sent %1 of %2 jobs to %3, which continues printing."))
                                                .arg(QString::number(outcome_.printed.size()),
                                                     QString::number(outcome_.total), job_.destination.id());
    return say(tr("Printed %1 of %2 photos."), tr("Printed %1 of %2 sheets."), tr("Printed %1 of %2 jobs."))
        .arg(outcome_.done)
        .arg(outcome_.total);
}

/// How many are not among the printed ones, each for its reason.
QString OutcomeText::others() const
{
    QStringList parts;
    const auto add = [&parts](const QString &text, qsizetype count) {
        if (count > 0)
            parts += text.arg(count);
    };
    // After a stop, it is what is left.
    add(tr("Not printed: %1."), outcome_.wasStopped ? 0 : outcome_.unprinted.size());
    add(tr("Perhaps printed: %1."), outcome_.unknown.size());
    add(tr("Waiting at the printer: %1."), outcome_.waiting.size());
    add(tr("Cannot be printed: %1."), outcome_.skipped.size());
    return parts.join(u' ');
}

QString OutcomeText::allPrinted() const
{
    if (!outcome_.document.isEmpty())
        return say(tr("Printed %1 photos in one PDF: %2"), tr("Printed %1 sheets in one PDF: %2"),
                   tr("Printed %1 jobs in one PDF: %2"))
            .arg(QString::number(outcome_.total), QDir::toNativeSeparators(outcome_.document));
    if (job_.destination.isBuiltIn())
        return say(tr("Printed %1 photos in the folder %2"), tr("Printed %1 sheets in the folder %2"),
                   tr("Printed %1 jobs in the folder %2"))
            .arg(QString::number(outcome_.total),
                 QDir::toNativeSeparators(QFileInfo(job_.folder.path).absoluteFilePath()));
    // Other users' jobs may have ids in between.
    const QList<int> &jobs = outcome_.jobs;
    if (jobs.size() == outcome_.total && jobs.constLast() - jobs.constFirst() == outcome_.total - 1)
        return say(tr("Printed %1 photos on %2 (jobs %3 to %4)"),
                   tr("Printed %1 sheets on %2 (jobs %3 to %4)"),
                   tr("Printed %1 jobs on %2 (numbers %3 to %4)"))
            .arg(QString::number(outcome_.total), job_.destination.id(), QString::number(jobs.constFirst()),
                 QString::number(jobs.constLast()));
    return say(tr("Printed %1 photos on %2"), tr("Printed %1 sheets on %2"), tr("Printed %1 jobs on %2"))
        .arg(QString::number(outcome_.total), job_.destination.id());
}

QString OutcomeText::details() const
{
    if (outcome_.total == 1)
        return {};
    QStringList lines;
    for (const UnprintedSheet &sheet : outcome_.unprinted)
        lines += sheet.sentence;
    return (lines + outcome_.unknown + outcome_.waiting + outcome_.skipped + outcome_.printed).join(u'\n');
}

} // namespace printdialog
