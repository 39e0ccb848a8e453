// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "Result.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

/// Why a print list could not be read or written.
enum class PrintListFault {
    NotReadable, ///< No file, no permission, or too large.
    NotAList,    ///< Not JSON, or JSON of something else, or of a later version.
    BadValue,    ///< A value that a photo or the layout cannot have.
    NotWritable,
};

/// A saved arrangement: which photos and pages are printed and how, as a file. It holds the names of files
/// and not their content.
///
/// The file is JSON in UTF-8: an object with "format": "corvel-print-list", "version": 1, "layout" (see
/// SheetLayout::toText), where not all pages of documents are printed "pages" (see PageRanges), "pageSet"
/// (see pageSetWord) and "reverse" (true or false), and "photos", an array of objects with "file", for a page
/// of a document "page" (from 1 on) and, where they differ from the usual, "copies", "scaling"
/// ("fit", "fill", "actual"), "turns" (0 to 3), "crop" (two numbers in per cent, see PlacementChoice), "size"
/// (see PrintSize), "scale" (in per cent) and "border" (see PhotoBorder). A photo in the list's own folder,
/// or below it, is named relative to it, so that both can be moved together.
struct PrintList
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PrintList)

public:
    struct Entry
    {
        QString path; ///< Absolute.
        PlacementChoice placement = {};
        int copies = 1;
        std::optional<int> page = {}; ///< From 0 on; nothing: a photo, or all pages of a document.
    };

    static constexpr qint64 largestFile = 16 << 20; ///< In bytes.
    static constexpr qsizetype mostEntries = 100'000;

    SheetLayout layout = {};
    QList<Entry> photos = {};
    PageChoice pages = {};

    static PrintList of(const Arrangement &arrangement);

    /// Whether a file of this name is taken for a print list: its suffix is "json".
    static bool isListName(const QString &path);
    /// Reads untrusted bytes. Every value is checked; the photos are not looked at.
    static Result<PrintList, PrintListFault> load(const QString &path);
    /// Replaces the file, or leaves it as it is when that fails.
    std::optional<Failure<PrintListFault>> save(const QString &path) const;
};

} // namespace printdialog
