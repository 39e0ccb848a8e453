// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobPlan.h"

#include "PrintedNames.h"
#include "QueueList.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>

namespace printdialog {

Result<JobPlan, PhotoPrinter::Fault> JobPlan::make(const Photo &photo, const PrinterDescription &printer,
                                                   const PrintJob &job, PrintedNames &names)
{
    JobPlan plan;
    plan.printer_ = printer;
    if (printer.isBuiltIn) {
        if (const auto damage = job.checksPhoto ? photo.damage() : std::nullopt)
            return Failure<PhotoPrinter::Fault>{{std::nullopt, true}, damage->text, damage->detail};
        const QString name = names.nameFor(photo.path());
        names.markTaken(name);
        for (const QLatin1String suffix : {PrintedNames::pageSuffix, PrintedNames::ticketSuffix})
            plan.files_.append(QDir(names.folder().path).absoluteFilePath(name + suffix));
        plan.request_.document.name = photo.path();
        plan.request_.options = job.options;
        plan.request_.copies = job.copies;
        return plan;
    }
    const auto request = PhotoPrinter::request(photo, printer.destination.id(), job);
    if (!request)
        return request.failure();
    plan.request_ = *request;
    plan.request_.document.name = photo.path();
    plan.server_ = printServerAddress();
    plan.isUntouched_ = request->document.data == photo.content();
    return plan;
}

QStringList JobPlan::lines() const
{
    QStringList lines;
    const auto add = [&lines](const QString &label, const QString &value) {
        lines.append(QStringLiteral("%1: %2").arg(label, value));
    };
    add(tr("Printer"), printer_.destination.id());
    add(tr("Photo"), request_.document.name);
    if (printer_.isBuiltIn) {
        for (const QString &file : files_)
            add(tr("File"), file);
    } else {
        add(tr("Server"), server_);
        add(tr("Address"), printer_.uri);
        const QString format = QString::fromLatin1(request_.document.mimeType);
        add(tr("Format"), isUntouched_ ? tr("%1, the file as it is").arg(format) : format);
        add(tr("Bytes"), QString::number(request_.document.data.size()));
        add(tr("Title"), request_.title);
    }
    add(tr("Copies"), QString::number(request_.copies));
    for (auto option = request_.options.cbegin(); option != request_.options.cend(); ++option)
        add(tr("Option"), QStringLiteral("%1=%2").arg(option.key(), option.value()));
    return lines;
}

QJsonObject JobPlan::json() const
{
    QJsonObject options;
    for (auto option = request_.options.cbegin(); option != request_.options.cend(); ++option)
        options.insert(option.key(), option.value());
    QJsonObject object = {{QStringLiteral("queue"), printer_.destination.id()},
                          {QStringLiteral("document"), request_.document.name},
                          {QStringLiteral("copies"), request_.copies},
                          {QStringLiteral("options"), options}};
    if (printer_.isBuiltIn) {
        object.insert(QStringLiteral("files"), QJsonArray::fromStringList(files_));
        return object;
    }
    object.insert(QStringLiteral("server"), server_);
    object.insert(QStringLiteral("uri"), printer_.uri);
    object.insert(QStringLiteral("format"), QString::fromLatin1(request_.document.mimeType));
    object.insert(QStringLiteral("bytes"), request_.document.data.size());
    object.insert(QStringLiteral("untouched"), isUntouched_);
    object.insert(QStringLiteral("title"), request_.title);
    return object;
}

} // namespace printdialog
