// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

namespace pdekit {

/// A URL as a print system hands it out: possibly relative to a base. It is stored as text, since QUrl
/// refuses or rewrites parts of device URIs: upper case and "%20" in the host.
struct PDEKIT_EXPORT URLReference
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

    /// The URL, resolved against its base if it has one (RFC 3986, 5.2). Letter case and escapes are
    /// unchanged.
    QString absolute() const;
};

} // namespace pdekit
