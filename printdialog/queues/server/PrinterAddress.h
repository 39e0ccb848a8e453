// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// Where a printer is asked directly, without a print server: "ipp://host:port/path", or "ipps" (RFC 3510,
/// RFC 7472).
struct PrinterAddress
{
    QString host; ///< a name or number, without brackets
    int port = 631;
    bool isEncrypted = false;
    QByteArray resource; ///< "/ipp/print" when the address names none
    QByteArray uri;      ///< in full, as requests name the printer

    /// Nothing when the text is not such an address. User names, passwords and fragments are not allowed.
    static std::optional<PrinterAddress> of(const QString &text);
    /// "host:port"
    QString server() const;
};

} // namespace printdialog
