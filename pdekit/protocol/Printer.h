// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "URLReference.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

namespace pdekit {

/// The type of description to pass to PMPrinterCopyDescriptionURL.
inline constexpr char PMPPDDescriptionType[] = "PMPPDDescriptionType";

/// The printer that the dialog prints to. Implemented by the dialog; valid as long as its callback object.
class Printer
{
public:
    virtual ~Printer() = default;

    /// The URL of the printer's description of `type`; nothing when the printer has none.
    virtual std::optional<QUrl> PMPrinterCopyDescriptionURL(const QString &type) = 0;
    /// The bytes of the PPD file (PPD 4.3) at `url`, without a terminating NUL; nothing when it cannot be
    /// read.
    virtual std::optional<QByteArray> PMCopyPPDData(const QUrl &url) = 0;
    /// The printer's device URI (the CUPS manual, "Printer URIs"); nothing when it is not known.
    virtual std::optional<URLReference> PMPrinterCopyDeviceURI() = 0;
};

} // namespace pdekit
