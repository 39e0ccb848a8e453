// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SessionPrinter.h"

#include "PpdDocument.h"

namespace printdialog {

namespace {

/// The URL that stands for the session's own PPD, the only one that can be read.
const QUrl descriptionUrl(QStringLiteral("ppd:session"));

} // namespace

SessionPrinter::SessionPrinter(const PrinterDescription &printer, const PpdDocument *ppd)
    : printer_(printer)
    , ppd_(ppd)
{
}

std::optional<QUrl> SessionPrinter::PMPrinterCopyDescriptionURL(const QString &type)
{
    if (type != QLatin1String(pdekit::PMPPDDescriptionType) || !ppd_)
        return std::nullopt;
    return descriptionUrl;
}

std::optional<QByteArray> SessionPrinter::PMCopyPPDData(const QUrl &url)
{
    if (url != descriptionUrl || !ppd_)
        return std::nullopt;
    return ppd_->data();
}

std::optional<pdekit::URLReference> SessionPrinter::PMPrinterCopyDeviceURI()
{
    if (printer_.deviceUri.isEmpty())
        return std::nullopt;
    return pdekit::URLReference(printer_.deviceUri);
}

} // namespace printdialog
