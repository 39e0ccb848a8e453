// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

/// Names of IPP attributes.
namespace printdialog::ippnames {

inline const QString media = QStringLiteral("media");
inline const QString mediaCol = QStringLiteral("media-col");
inline const QString mediaSource = QStringLiteral("media-source");
inline const QString mediaType = QStringLiteral("media-type");
inline const QString mediaSize = QStringLiteral("media-size");
inline const QString mediaSizeName = QStringLiteral("media-size-name");
inline const QString mediaSupported = QStringLiteral("media-supported");
inline const QString finishingsCol = QStringLiteral("finishings-col");
inline const QString finishingTemplate = QStringLiteral("finishing-template");
inline const QString resolverName = QStringLiteral("resolver-name");

} // namespace printdialog::ippnames
