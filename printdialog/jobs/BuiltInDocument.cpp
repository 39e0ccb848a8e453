// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BuiltInDocument.h"

#include "PhotoCheck.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <utility>

namespace printdialog {

namespace {

const QString photosKey = QStringLiteral("photos");
const QString copiesKey = QStringLiteral("copies");

QJsonObject jsonOf(const QMap<QString, QString> &texts)
{
    QJsonObject object;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        object.insert(text.key(), text.value());
    return object;
}

QJsonObject jsonOf(const PrintSheet &sheet)
{
    QJsonArray paths;
    for (const SheetPhoto &laid : sheet.photos)
        paths.append(QFileInfo(laid.photo.path()).absoluteFilePath());
    return {{photosKey, paths}, {copiesKey, sheet.copies}};
}

Failure<OutputFault> outputFailureOf(const Failure<PdfFault> &failure)
{
    const auto reason = failure.reason == PdfFault::PageUnusable    ? OutputFault::PageUnusable
                        : failure.reason == PdfFault::PhotoUnusable ? OutputFault::PhotoUnusable
                                                                    : OutputFault::WriteFailed;
    return {reason, failure.text, failure.detail};
}

} // namespace

BuiltInDocument::BuiltInDocument(AtomicFiles files, const PrintJob &job, const OutputFolder &folder)
    : files_(std::move(files))
    , job_(job)
    , folder_(folder)
{
}

Result<std::unique_ptr<BuiltInDocument>, OutputFault>
BuiltInDocument::open(const QString &name, const PrintJob &job, const OutputFolder &folder, bool hasPages)
{
    auto files = AtomicFiles::open(folder.path);
    if (!files)
        return files.failure();
    auto document = std::unique_ptr<BuiltInDocument>(new BuiltInDocument(*std::move(files), job, folder));
    auto pdf = document->files_.add(name + PrintedNames::pageSuffix);
    if (!pdf)
        return pdf.failure();
    auto ticket = document->files_.add(name + PrintedNames::ticketSuffix);
    if (!ticket)
        return ticket.failure();
    document->ticketDevice_ = *ticket;
    document->writer_ = std::make_unique<SheetPdf>(**pdf, hasPages);
    return document;
}

std::optional<Failure<OutputFault>> BuiltInDocument::add(const PrintSheet &sheet)
{
    PhotoCheck check(sheet.photosToCheck());
    const auto unwritten = writer_->add(sheet, job_.page, job_.offset);
    if (auto failure = files_.writeFailure())
        return failure;
    if (const auto damage = check.wait())
        return Failure<OutputFault>{OutputFault::PhotoUnusable, damage->text, damage->detail};
    if (unwritten)
        return outputFailureOf(*unwritten);
    sheets_.append(jsonOf(sheet));
    return std::nullopt;
}

Result<PrintedFiles, OutputFault> BuiltInDocument::finish()
{
    const auto unwritten = writer_->finish();
    if (auto failure = files_.writeFailure())
        return *failure;
    if (unwritten)
        return outputFailureOf(*unwritten);
    ticketDevice_->write(ticket());
    const auto paths =
        files_.commit(folder_.isOverwritten ? AtomicFiles::Earlier::Replaced : AtomicFiles::Earlier::Kept);
    if (!paths)
        return paths.failure();
    return PrintedFiles{paths->at(0), paths->at(1)};
}

QByteArray BuiltInDocument::ticket() const
{
    const QJsonObject first = sheets_.first().toObject();
    const QJsonArray photos = first[photosKey].toArray();
    QJsonObject ticket{
        {QStringLiteral("printer"), job_.destination.id()},
        {QStringLiteral("document"), photos.first()},
        {QStringLiteral("options"), jsonOf(job_.options)},
        {QStringLiteral("summary"), jsonOf(job_.summary)},
        {copiesKey, sheets_.size() == 1 ? job_.copies * first[copiesKey].toInt() : job_.copies},
    };
    if (sheets_.size() > 1)
        ticket.insert(QStringLiteral("sheets"), sheets_);
    else if (photos.size() > 1)
        ticket.insert(photosKey, photos);
    return QJsonDocument(ticket).toJson(QJsonDocument::Indented);
}

} // namespace printdialog
