// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Printer.h"
#include "PrinterDescription.h"

namespace printdialog {

class PpdDocument;

/// The printer as the panels see it. The PPD is borrowed and must outlive this object.
class SessionPrinter final : public pdekit::Printer
{
public:
    SessionPrinter(const PrinterDescription &printer, const PpdDocument *ppd);

    std::optional<QUrl> PMPrinterCopyDescriptionURL(const QString &type) override;
    std::optional<QByteArray> PMCopyPPDData(const QUrl &url) override;
    std::optional<pdekit::URLReference> PMPrinterCopyDeviceURI() override;

private:
    PrinterDescription printer_;
    const PpdDocument *ppd_; ///< null for a printer without one
};

} // namespace printdialog
