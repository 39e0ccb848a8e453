// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltInPrinter.h"

#include "AtomicFiles.h"
#include "PdfWriter.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace printdialog {
namespace {

QJsonObject jsonOf(const QMap<QString, QString> &texts)
{
    QJsonObject object;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        object.insert(text.key(), text.value());
    return object;
}

QByteArray ticketOf(const Photo &photo, const PrintJob &job)
{
    const QJsonObject ticket{
        {QStringLiteral("printer"), job.printer},
        {QStringLiteral("document"), QFileInfo(photo.path()).absoluteFilePath()},
        {QStringLiteral("options"), jsonOf(job.options)},
        {QStringLiteral("summary"), jsonOf(job.summary)},
        {QStringLiteral("copies"), job.copies},
    };
    return QJsonDocument(ticket).toJson(QJsonDocument::Indented);
}

Failure<OutputFault> failureOf(const Failure<PdfFault> &failure)
{
    const auto reason = failure.reason == PdfFault::PageUnusable    ? OutputFault::PageUnusable
                        : failure.reason == PdfFault::PhotoUnusable ? OutputFault::PhotoUnusable
                                                                    : OutputFault::WriteFailed;
    return {reason, failure.text, failure.detail};
}

} // namespace

Result<PrintedFiles, OutputFault> BuiltInPrinter::print(const Photo &photo, const PrintJob &job,
                                                        const QString &folder, PrintedNames *names)
{
    const QString name = (names ? *names : PrintedNames()).nameFor(photo.path());
    auto files = AtomicFiles::open(folder);
    if (!files)
        return files.failure();
    // Both are begun before the work, so that a folder or name that cannot be written to is known at once.
    auto pdf = files->add(name + QStringLiteral(".pdf"));
    if (!pdf)
        return pdf.failure();
    auto ticket = files->add(name + QStringLiteral(".ticket.json"));
    if (!ticket)
        return ticket.failure();

    const auto written = PdfWriter::write(photo, job.page, **pdf, job.placement);
    if (auto failure = files->writeFailure())
        return *failure;
    if (!written)
        return failureOf(written.failure());
    (*ticket)->write(ticketOf(photo, job));

    const auto paths = files->commit();
    if (!paths)
        return paths.failure();
    if (names)
        names->take(name);
    return PrintedFiles{paths->at(0), paths->at(1)};
}

} // namespace printdialog
