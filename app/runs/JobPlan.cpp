// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobPlan.h"

#include "JobTemplate.h"
#include "PageChoice.h"
#include "PagePlaces.h"
#include "PhotoCheck.h"
#include "PrintedNames.h"
#include "PrinterAddress.h"
#include "QueueList.h"

#include <QtCore/QDir>

#include <cmath>
#include <utility>

namespace printdialog {

namespace {

QString placeText(const PhotoPlacement &placement, const PageGeometry &page)
{
    const QRectF print = placement.outline & page.printed();
    return JobPlan::tr("%1, %2 from the left, %3 from the top")
        .arg(localSizeText(print.size()), localLengthText(print.left()), localLengthText(print.top()));
}

} // namespace

Result<JobPlan, SheetPrinter::Fault> JobPlan::make(const JobSheets &sheets, const PrintJob &job,
                                                   const QString &uri, PrintedNames &names,
                                                   const Number &number)
{
    JobPlan plan(sheets, job, uri, number);
    plan.job_.copies *= sheets.copies;
    if (job.destination.isBuiltIn()) {
        if (const auto damage = PhotoCheck(sheets.photosToCheck()).wait())
            return Failure<SheetPrinter::Fault>{{std::nullopt, true}, damage->text, damage->detail};
        const auto &document = job.folder.document;
        const QString name =
            names.nameFor(document ? *document + PrintedNames::pageSuffix : sheets.firstPhoto().path());
        if (!document)
            names.markTaken(name);
        for (const QLatin1String suffix : {PrintedNames::pageSuffix, PrintedNames::ticketSuffix})
            plan.files_.append(QDir(names.folder().path).absoluteFilePath(name + suffix));
        return plan;
    }
    if (const auto failure = SheetPrinter::whyTooMany(sheets, job))
        return *failure;
    const auto document = SheetPrinter::documentOf(sheets, job);
    if (!document)
        return document.failure();
    plan.document_ = *document;
    const auto printer = PrinterAddress::of(job.destination.queue);
    plan.server_ = printer ? printer->server() : printServerAddress();
    if (job.ipp) {
        QMap<QString, QString> options = attributesFor(job, *document).spelled();
        for (auto option = job.options.cbegin(); option != job.options.cend(); ++option) {
            if (JobTemplate::isJobOption(option.key()) && !options.contains(option.key()))
                options.insert(option.key(), option.value());
        }
        plan.job_.options = options;
    }
    if (const QString title = plan.job_.options.take(JobTemplate::titleKey()); !title.isEmpty())
        plan.document_.name = title;
    return plan;
}

QJsonArray JobPlan::photosJson() const
{
    constexpr double precision = 100;
    const auto millimeters = [](double points) {
        return std::round(points / pointsPerMillimeter * precision) / precision;
    };
    QJsonArray photos;
    for (qsizetype sheet = 0; sheet < sheets_.sheets.size(); ++sheet) {
        for (const SheetPhoto &laid : sheets_.sheets.at(sheet).photos) {
            const PhotoPlacement &placement = laid.placement;
            const QRectF print = placement.outline & job_.page.printed();
            QJsonObject photo{
                {QStringLiteral("file"), laid.photo.path()},
                {QStringLiteral("left"), millimeters(print.left())},
                {QStringLiteral("top"), millimeters(print.top())},
                {QStringLiteral("width"), millimeters(print.width())},
                {QStringLiteral("height"), millimeters(print.height())},
                {QStringLiteral("turns"), placement.quarterTurns},
                {QStringLiteral("cutOff"),
                 std::round(cutOffShare(laid.photo.document(), placement, job_.page) * 1000) / 1000}};
            if (laid.photo.document()) {
                photo.insert(QStringLiteral("page"), laid.photo.page() + 1);
                photo.insert(QStringLiteral("sheet"), number_.sheet + sheet);
            } else {
                photo.insert(QStringLiteral("pixelsPerInch"), std::round(laid.pixelsPerInch()));
            }
            photos += photo;
        }
    }
    return photos;
}

QStringList JobPlan::photoLines() const
{
    QStringList lines;
    QList<PageRanges::Range> pages; // of the document that the last lines are about
    const auto endPages = [&] {
        if (const auto ranges = PageRanges::of(std::exchange(pages, {})))
            lines += tr("Pages: %1").arg(ranges->toText());
    };
    const Document *last = nullptr;
    for (const PrintSheet &sheet : sheets_.sheets) {
        for (const SheetPhoto &laid : sheet.photos) {
            const Document *document = laid.photo.document();
            if (document && last && last->identity() == document->identity()) {
                pages += PageRanges::Range{laid.photo.page() + 1, laid.photo.page() + 1};
                continue;
            }
            endPages();
            last = document;
            if (document) {
                lines += tr("Document: %1").arg(laid.photo.path());
                pages += PageRanges::Range{laid.photo.page() + 1, laid.photo.page() + 1};
                continue;
            }
            lines += QStringLiteral("%1: %2").arg(tr("Photo"), laid.photo.path());
            if (!job_.isRaw())
                lines += QStringLiteral("%1: %2").arg(tr("Place"), placeText(laid.placement, job_.page));
        }
    }
    endPages();
    return lines;
}

QStringList JobPlan::lines() const
{
    QStringList lines;
    const auto add = [&lines](const QString &label, const QString &value) {
        lines.append(QStringLiteral("%1: %2").arg(label, value));
    };
    add(tr("Printer"), job_.destination.id());
    const qsizetype count = sheets_.sheets.size();
    if (count > 1)
        add(tr("Sheets"),
            tr("%1 to %2 of %3").arg(number_.sheet).arg(number_.sheet + count - 1).arg(number_.of));
    else if (number_.of > 1)
        add(tr("Sheet"), tr("%1 of %2").arg(number_.sheet).arg(number_.of));
    lines += photoLines();
    if (job_.destination.isBuiltIn()) {
        for (const QString &file : files_)
            add(tr("File"), file);
    } else {
        add(tr("Server"), server_);
        add(tr("Address"), uri_);
        const QString format = QString::fromLatin1(document_.mimeType);
        add(tr("Format"), document_.isUntouched ? tr("%1, the file as it is").arg(format) : format);
        add(tr("Bytes"), QString::number(document_.data.size()));
        add(tr("Title"), document_.name);
    }
    add(tr("Copies"), QString::number(job_.copies));
    for (auto option = job_.options.cbegin(); option != job_.options.cend(); ++option)
        add(tr("Option"), QStringLiteral("%1=%2").arg(option.key(), option.value()));
    for (auto option = job_.secrets.cbegin(); option != job_.secrets.cend(); ++option)
        add(tr("Option"), tr("%1 (not shown)", "the option of a password").arg(option.key()));
    return lines;
}

QJsonObject JobPlan::json() const
{
    QJsonObject options;
    for (auto option = job_.options.cbegin(); option != job_.options.cend(); ++option)
        options.insert(option.key(), option.value());
    QJsonObject object = {{QStringLiteral("queue"), job_.destination.id()},
                          {QStringLiteral("document"), sheets_.firstPhoto().path()},
                          {QStringLiteral("sheet"), number_.sheet},
                          {QStringLiteral("sheets"), number_.of},
                          {QStringLiteral("copies"), job_.copies},
                          {QStringLiteral("options"), options}};
    if (!job_.isRaw())
        object.insert(QStringLiteral("photos"), photosJson());
    if (job_.destination.isBuiltIn()) {
        object.insert(QStringLiteral("files"), QJsonArray::fromStringList(files_));
        return object;
    }
    object.insert(QStringLiteral("server"), server_);
    object.insert(QStringLiteral("uri"), uri_);
    object.insert(QStringLiteral("format"), QString::fromLatin1(document_.mimeType));
    object.insert(QStringLiteral("bytes"), document_.data.size());
    object.insert(QStringLiteral("untouched"), document_.isUntouched);
    object.insert(QStringLiteral("title"), document_.name);
    return object;
}

} // namespace printdialog
