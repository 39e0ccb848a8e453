// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

namespace pdekit {

/// A URL as a print system hands it out: possibly relative to a base. It is kept as text, since QUrl refuses
/// or rewrites what device URIs are made of: upper case and "%20" in the place of the host.
struct URLReference
{
    explicit URLReference(const QString &reference, const std::optional<QString> &baseText = std::nullopt)
        : text(reference)
        , base(baseText)
    {
    }
    /// For a URL that QUrl can hold.
    explicit URLReference(const QUrl &url, const std::optional<QUrl> &baseUrl = std::nullopt)
        : text(url.toString(QUrl::FullyEncoded))
    {
        if (baseUrl)
            base = baseUrl->toString(QUrl::FullyEncoded);
    }

    QString text;
    std::optional<QString> base; ///< of a relative reference

    /// The URL made absolute where it is relative to a base, and as it is otherwise.
    QString absolute() const
    {
        static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:")); // RFC 3986, 3.1
        if (!base || text.contains(scheme))
            return text;
        return QUrl(*base).resolved(QUrl(text)).toString(QUrl::FullyEncoded);
    }
};

/// The kind of description that PMPrinterCopyDescriptionURL is asked for.
inline constexpr char PMPPDDescriptionType[] = "PMPPDDescriptionType";

/// The printer that the dialog prints to. Implemented by the dialog; valid while its callback object is.
class Printer
{
public:
    virtual ~Printer() = default;

    /// Where the printer's description of `type` can be had; nothing when the printer has none.
    virtual std::optional<QUrl> PMPrinterCopyDescriptionURL(const QString &type) = 0;
    /// The bytes of the PPD file (PPD 4.3) at `url`, without a terminating NUL; nothing when it cannot be
    /// read.
    virtual std::optional<QByteArray> PMCopyPPDData(const QUrl &url) = 0;
    /// The printer's device URI (the CUPS manual, "Printer URIs"); nothing when it is not known.
    virtual std::optional<URLReference> PMPrinterCopyDeviceURI() = 0;
};

} // namespace pdekit
