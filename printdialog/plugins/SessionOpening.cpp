// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SessionOpening.h"

#include "IppOptions.h"
#include "PpdDocument.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

namespace printdialog {

namespace {

PrinterDescription describe(const Queue &queue)
{
    return {queue.destination(), queue.info,       queue.deviceUri, queue.isBuiltIn, false,
            queue.uri,           queue.isAnnounced};
}

SessionOptions optionsOf(PpdDocument ppd, const IppAttributes &attributes = {})
{
    auto document = std::make_unique<PpdDocument>(std::move(ppd));
    PpdDocument *borrowed = document.get();
    return {std::move(document), borrowed, attributes, nullptr};
}

SessionResult session(const Queue &queue, Result<PpdDocument, PpdFault> ppd, PanelMode mode,
                      const IppAttributes &attributes = {})
{
    if (!ppd)
        return ppd.failure();
    return std::make_unique<DialogSession>(describe(queue), optionsOf(*std::move(ppd), attributes), mode);
}

QByteArray builtInPpd()
{
    QFile file(QStringLiteral(":/corvel-print/ppd/Corvel9031.ppd"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The substitute for a missing PPD. Its page is for the preview only.
QByteArray standIn()
{
    const QByteArray size = QCoreApplication::translate("SessionOpening", "As set at the printer").toUtf8();
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n*PCFileName: \"NONE.PPD\"\n"
           "*Manufacturer: \"None\"\n*Product: \"(None)\"\n*ModelName: \"None\"\n*ShortNickName: \"None\"\n"
           "*NickName: \"None\"\n*PSVersion: \"(3010.000) 0\"\n"
           "*OpenUI *PageSize: PickOne\n*DefaultPageSize: AtPrinter\n*PageSize AtPrinter/" +
           size +
           ": \"\"\n*CloseUI: *PageSize\n*DefaultImageableArea: AtPrinter\n"
           "*ImageableArea AtPrinter: \"0 0 288 432\"\n*DefaultPaperDimension: AtPrinter\n"
           "*PaperDimension AtPrinter: \"288 432\"\n";
}

Result<PpdDocument, PpdFault> openTrusted(const QByteArray &ppd, const QString &name)
{
    const auto trusted = trustPpd(ppd, name);
    if (!trusted)
        return trusted.failure();
    return PpdDocument::open(*trusted);
}

} // namespace

SessionResult openBuiltInPrinter(const std::optional<QString> &ppdFile, PanelMode mode)
{
    const Queue printer = Queue::builtIn();
    if (ppdFile)
        return session(printer, PpdDocument::openFile(*ppdFile), mode);
    return session(printer, openTrusted(builtInPpd(), printer.name), mode);
}

SessionResult openQueue(const Queue &queue, const CheckedPpd &ppd, PanelMode mode,
                        const IppAttributes &attributes)
{
    return session(queue, PpdDocument::open(ppd), mode, attributes);
}

SessionResult openWithoutPpd(const Queue &queue, const IppAttributes &attributes, PanelMode mode)
{
    auto options = IppOptions::of(attributes);
    if (!options)
        return openRawQueue(queue, mode, attributes);
    auto source = std::make_unique<IppOptions>(*std::move(options));
    IppOptions *borrowed = source.get();
    return std::make_unique<DialogSession>(
        describe(queue), SessionOptions{std::move(source), nullptr, attributes, borrowed}, mode);
}

SessionResult openRawQueue(const Queue &queue, PanelMode mode, const IppAttributes &attributes)
{
    auto ppd = openTrusted(standIn(), queue.id());
    if (!ppd)
        return ppd.failure();
    PrinterDescription printer = describe(queue);
    printer.isRaw = true;
    return std::make_unique<DialogSession>(
        printer, SessionOptions{std::make_unique<PpdDocument>(*std::move(ppd)), nullptr, attributes, nullptr},
        mode);
}

} // namespace printdialog
