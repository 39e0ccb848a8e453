// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterAddress.h"

#include "Destination.h"
#include "PlainText.h"

#include <QtCore/QUrl>

namespace printdialog {

std::optional<PrinterAddress> PrinterAddress::of(const QString &text)
{
    constexpr qsizetype longest = 1023; // bytes of an IPP URI
    constexpr int usualPort = 631;
    if (!Destination(text).isAddress() || plainText(text) != text)
        return std::nullopt;
    QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty() || url.hasFragment() ||
        url.port(usualPort) < 1)
        return std::nullopt;
    if (url.path().isEmpty() || url.path() == QLatin1String("/"))
        url.setPath(QStringLiteral("/ipp/print"));
    PrinterAddress address;
    address.host = url.host(QUrl::FullyEncoded);
    address.port = url.port(usualPort);
    address.isEncrypted = url.scheme() == QLatin1String("ipps");
    address.resource = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
    address.uri = url.toEncoded();
    return address.uri.size() <= longest ? std::optional(address) : std::nullopt;
}

QString PrinterAddress::server() const
{
    return (host.contains(u':') ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2")).arg(host).arg(port);
}

} // namespace printdialog
