// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <optional>

namespace pdekit {

/// A URL as a print system hands it out: possibly relative to a base. It is kept as text, since QUrl refuses
/// or rewrites what device URIs are made of: upper case and "%20" in the place of the host.
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

    /// The URL made absolute where it is relative to a base (RFC 3986, 5.2), and as it is otherwise. Letter
    /// case and escapes stay as they are.
    QString absolute() const;
};

} // namespace pdekit
