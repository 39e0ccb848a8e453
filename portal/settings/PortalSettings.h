// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageChoice.h"
#include "PageSetup.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>

#include <optional>

namespace printdialog {

/// Keys of a program's settings; all values are texts.
namespace portal_keys {
inline const QString printer = QStringLiteral("printer");
inline const QString copies = QStringLiteral("n-copies");
inline const QString collate = QStringLiteral("collate");
inline const QString reverse = QStringLiteral("reverse");
inline const QString pages = QStringLiteral("print-pages");
inline const QString ranges = QStringLiteral("page-ranges"); // from 0 on
inline const QString set = QStringLiteral("page-set");
inline const QString perSheet = QStringLiteral("number-up");
inline const QString perSheetOrder = QStringLiteral("number-up-layout");
inline const QString scale = QStringLiteral("scale"); // per cent
inline const QString orientation = QStringLiteral("orientation");
inline const QString paperFormat = QStringLiteral("paper-format");
inline const QString paperWidth = QStringLiteral("paper-width");   // millimeters
inline const QString paperHeight = QStringLiteral("paper-height"); // millimeters
inline const QString resolution = QStringLiteral("resolution");
inline const QString resolutionX = QStringLiteral("resolution-x");
inline const QString resolutionY = QStringLiteral("resolution-y");
inline const QString fileFormat = QStringLiteral("output-file-format");
inline const QString ofPrinter = QStringLiteral("cups-"); // before an option's keyword
} // namespace portal_keys

/// What a program asks for through the desktop's print portal, read and limited. A value.
class PortalSettings
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PortalSettings)

public:
    static constexpr qsizetype mostEntries = 1000;
    static constexpr double leastScale = 1; ///< In per cent.
    static constexpr double largestScale = 1000;

    PortalSettings() = default;
    /// What cannot be used is left out; remarks() says so.
    static PortalSettings read(const QVariantMap &settings, const QVariantMap &pageSetup);

    /// The entries that are kept, known or not.
    const QVariantMap &entries() const { return entries_; }
    /// Empty when there is none.
    QString text(const QString &key) const { return entries_.value(key).toString(); }
    const PageSetup &pageSetup() const { return pageSetup_; }
    /// A sentence for each entry that is left out; plain text.
    const QStringList &remarks() const { return remarks_; }

    std::optional<QString> printer() const;
    std::optional<int> copies() const;
    PageChoice pages() const;
    int pagesPerSheet() const;
    double scale() const;

private:
    bool isUsable(const QString &key) const;

    QVariantMap entries_;
    PageSetup pageSetup_;
    QStringList remarks_;
};

/// Ranges of pages as programs write them, from 0 on: "0,2-3".
std::optional<PageRanges> portalRanges(const QString &text);
QString portalRangesText(const PageRanges &ranges);

} // namespace printdialog
