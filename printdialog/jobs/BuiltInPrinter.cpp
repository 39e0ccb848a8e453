// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltInPrinter.h"

#include "AtomicFiles.h"
#include "PdfWriter.h"
#include "PhotoCheck.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
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

QByteArray ticketOf(const PrintSheet &sheet, const PrintJob &job)
{
    const auto pathOf = [](const SheetPhoto &laid) {
        return QFileInfo(laid.photo.path()).absoluteFilePath();
    };
    QJsonObject ticket{
        {QStringLiteral("printer"), job.destination.id()},
        {QStringLiteral("document"), pathOf(sheet.photos.constFirst())},
        {QStringLiteral("options"), jsonOf(job.options)},
        {QStringLiteral("summary"), jsonOf(job.summary)},
        {QStringLiteral("copies"), job.copies * sheet.copies},
    };
    if (sheet.photos.size() > 1) {
        QJsonArray paths;
        for (const SheetPhoto &laid : sheet.photos)
            paths.append(pathOf(laid));
        ticket.insert(QStringLiteral("photos"), paths);
    }
    return QJsonDocument(ticket).toJson(QJsonDocument::Indented);
}

Failure<OutputFault> outputFailureOf(const Failure<PdfFault> &failure)
{
    const auto reason = failure.reason == PdfFault::PageUnusable    ? OutputFault::PageUnusable
                        : failure.reason == PdfFault::PhotoUnusable ? OutputFault::PhotoUnusable
                                                                    : OutputFault::WriteFailed;
    return {reason, failure.text, failure.detail};
}

} // namespace

namespace {

/// `name` is the common name of both files, without suffix.
Result<PrintedFiles, OutputFault> printAs(const QString &name, const PrintSheet &sheet, const PrintJob &job,
                                          const OutputFolder &folder)
{
    auto files = AtomicFiles::open(folder.path);
    if (!files)
        return files.failure();
    // Both files are created before the work, so that an unusable folder or name is detected at once.
    auto pdf = files->add(name + PrintedNames::pageSuffix);
    if (!pdf)
        return pdf.failure();
    auto ticket = files->add(name + PrintedNames::ticketSuffix);
    if (!ticket)
        return ticket.failure();

    PhotoCheck check(sheet.photosToCheck());
    PdfWriter writer(**pdf);
    auto unwritten = writer.add(sheet, job.page, job.offset);
    if (!unwritten)
        unwritten = writer.finish();
    if (auto failure = files->writeFailure())
        return *failure;
    if (const auto damage = check.wait())
        return Failure<OutputFault>{OutputFault::PhotoUnusable, damage->text, damage->detail};
    if (unwritten)
        return outputFailureOf(*unwritten);
    (*ticket)->write(ticketOf(sheet, job));

    const auto paths =
        files->commit(folder.isOverwritten ? AtomicFiles::Earlier::Replaced : AtomicFiles::Earlier::Kept);
    if (!paths)
        return paths.failure();
    return PrintedFiles{paths->at(0), paths->at(1)};
}

} // namespace

Result<PrintedFiles, OutputFault> BuiltInPrinter::print(const PrintSheet &sheet, const PrintJob &job,
                                                        PrintedNames &names)
{
    constexpr int mostTries = 100;
    for (int tries = 1;; ++tries) {
        const QString name = names.nameFor(sheet.photos.constFirst().photo.path());
        auto files = printAs(name, sheet, job, names.folder());
        const bool isTaken = !files && files.failure().reason == OutputFault::NameTaken;
        if (files || (isTaken && !names.folder().isOverwritten))
            names.markTaken(name);
        // Another program took the name after it was found to be free: try another one.
        if (!isTaken || names.folder().isOverwritten || tries == mostTries)
            return files;
    }
}

} // namespace printdialog
