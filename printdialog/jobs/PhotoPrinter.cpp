// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPrinter.h"

#include "JobDocument.h"
#include "PhotoCheck.h"

namespace printdialog {

namespace {

Failure<PhotoPrinter::Fault> failureOf(const Failure<QueueFault> &failure)
{
    return {{failure.reason, false}, failure.text, failure.detail};
}

/// Of OutputFault or PdfFault.
template <class Reason>
Failure<PhotoPrinter::Fault> failureOf(const Failure<Reason> &failure)
{
    return {{std::nullopt, failure.reason == Reason::PhotoUnusable}, failure.text, failure.detail};
}

} // namespace

QString printedText(const Photo &photo, const PrintTarget &target, const PrintedPhoto &printed)
{
    if (const auto *files = std::get_if<PrintedFiles>(&printed))
        return PhotoPrinter::tr("Printed %1: %2").arg(photo.fileName(), files->pdf);
    return PhotoPrinter::tr("Sent %1 to %2 as job %3")
        .arg(photo.fileName(), target.queue, QString::number(std::get<int>(printed)));
}

PhotoPrinter::PhotoPrinter(const PrintTarget &target, const JobControl &control)
    : target_(target)
    , control_(control)
    , names_(target.folder)
{
}

Result<PrintedPhoto, PhotoPrinter::Fault> PhotoPrinter::print(const Photo &photo, const PrintJob &job)
{
    if (target_.queue.isEmpty()) {
        const auto files = BuiltInPrinter::print(photo, job, names_);
        if (!files)
            return failureOf(files.failure());
        return PrintedPhoto(*files);
    }
    const auto request = PhotoPrinter::request(photo, target_.queue, job);
    if (!request)
        return request.failure();
    const auto id = submitJob(*request, control_);
    if (!id)
        return failureOf(id.failure());
    return PrintedPhoto(*id);
}

Result<JobRequest, PhotoPrinter::Fault> PhotoPrinter::request(const Photo &photo, const QString &queue,
                                                              const PrintJob &job)
{
    std::optional<PhotoCheck> check;
    if (job.checksPhoto)
        check.emplace(photo);
    const auto document = jobDocument(photo, job);
    if (const auto damage = check ? check->wait() : std::nullopt)
        return Failure<Fault>{{std::nullopt, true}, damage->text, damage->detail};
    if (!document)
        return failureOf(document.failure());
    JobRequest request;
    request.queue = queue;
    request.title = photo.fileName();
    request.document = *document;
    if (job.queue.hasPpd)
        request.options = job.options;
    request.copies = job.copies;
    request.ppd = job.queue.ppd;
    if (const auto unfit = whyUnfit(request))
        return failureOf(*unfit);
    return request;
}

} // namespace printdialog
