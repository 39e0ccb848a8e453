// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPrinter.h"

#include "JobSubmission.h"
#include "PdfWriter.h"

#include <QtCore/QBuffer>

namespace printdialog {

namespace {

template <class Reason>
Failure<std::monostate> sentenceOf(const Failure<Reason> &failure)
{
    return {{}, failure.text, failure.detail};
}

} // namespace

QString printedText(const Photo &photo, const PrintTarget &target, const PrintedPhoto &printed)
{
    if (const auto *files = std::get_if<PrintedFiles>(&printed))
        return PhotoPrinter::tr("Printed %1: %2").arg(photo.fileName(), files->pdf);
    return PhotoPrinter::tr("Sent %1 to %2 as job %3")
        .arg(photo.fileName(), target.queue, QString::number(std::get<int>(printed)));
}

PhotoPrinter::PhotoPrinter(const PrintTarget &target)
    : target_(target)
{
}

Result<PrintedPhoto, std::monostate> PhotoPrinter::print(const Photo &photo, const PrintJob &job)
{
    if (!target_.queue.isEmpty())
        return submit(photo, job);
    const auto files = BuiltInPrinter::print(photo, job, target_.outputFolder, &names_);
    if (!files)
        return sentenceOf(files.failure());
    return PrintedPhoto(*files);
}

Result<PrintedPhoto, std::monostate> PhotoPrinter::submit(const Photo &photo, const PrintJob &job)
{
    SubmittedDocument document;
    QBuffer buffer(&document.data);
    buffer.open(QIODevice::WriteOnly);
    const auto page = PdfWriter::write(photo, job.page, buffer);
    if (!page)
        return sentenceOf(page.failure());
    document.mimeType = "application/pdf";
    document.name = photo.fileName();
    const auto jobId = submitJob(target_.queue, photo.fileName(), document, job.options, job.copies);
    if (!jobId)
        return sentenceOf(jobId.failure());
    return PrintedPhoto(*jobId);
}

} // namespace printdialog
