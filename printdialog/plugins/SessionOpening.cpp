// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SessionOpening.h"

#include <QtCore/QFile>

namespace printdialog {

namespace {

PrinterDescription describe(const Queue &queue)
{
    return {queue.id(), queue.info, queue.deviceUri, queue.isBuiltIn};
}

SessionResult session(const Queue &queue, Result<PpdDocument, PpdFault> ppd, PanelMode mode)
{
    if (!ppd)
        return ppd.failure();
    return std::make_unique<DialogSession>(describe(queue), *std::move(ppd), mode);
}

QByteArray builtInPpd()
{
    QFile file(QStringLiteral(":/corvel-print/ppd/Corvel9031.ppd"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SessionResult openBuiltInPrinter(const std::optional<QString> &ppdFile, PanelMode mode)
{
    const Queue printer = Queue::builtIn();
    if (ppdFile)
        return session(printer, PpdDocument::openFile(*ppdFile), mode);
    return session(printer, PpdDocument::fromData(builtInPpd(), printer.name), mode);
}

SessionResult openQueue(const Queue &queue, const QByteArray &ppd, PanelMode mode)
{
    return session(queue, PpdDocument::fromData(ppd, queue.id()), mode);
}

} // namespace printdialog
