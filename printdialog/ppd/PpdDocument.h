// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdCheck.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>

#include <memory>
#include <optional>
#include <vector>

struct ppd_file_s;
struct ppd_option_s;

namespace printdialog {

/// One choice of an option. The keyword is stored, compared and sent; the text is shown.
struct PpdChoice
{
    QString keyword;
    QString text; ///< Plain text in the user's language if the PPD has it; the keyword if there is no text.

    bool operator==(const PpdChoice &) const = default;
};

/// A page size that can be printed.
struct PageSize
{
    QString keyword;
    QString text;  ///< Plain text.
    QSizeF points; ///< The sheet's size.
    /// The printable area, in points; the origin is the sheet's top left. For borderless printing it extends
    /// beyond the sheet.
    QRectF imageable;
};

/// Owns one opened PPD and the choices marked in it. Move-only; one thread at a time. A PPD is untrusted: it
/// is opened only after a check, and nothing that it names is ever run or opened.
///
/// Opening marks the defaults. Every option has exactly one choice, also those that the PPD declares as
/// `PickMany`. Parts that can never be chosen are left out and listed in notes(): an option without choices,
/// a choice that repeats an earlier one (libcups is case-insensitive), a page size without dimensions, and
/// custom choices, which need a value beyond a keyword.
class PpdDocument
{
public:
    /// Reads a regular file and checks it with checkPpd() before opening it. Never blocks on a device or a
    /// pipe: those are refused as NotReadable.
    static Result<PpdDocument, PpdFault> openFile(const QString &path);
    /// Parses the very bytes that were inspected, without a file in between.
    static Result<PpdDocument, PpdFault> open(const CheckedPpd &ppd);

    PpdDocument(PpdDocument &&) noexcept;
    PpdDocument &operator=(PpdDocument &&) noexcept;
    ~PpdDocument();

    const CheckedPpd &checked() const { return ppd_; }
    /// The original bytes.
    const QByteArray &data() const { return ppd_.data(); }
    /// libcups' record, owned by this document. Mark choices through a ChoiceMarker.
    ppd_file_s *record() const { return record_.get(); }
    /// The path or the name that the document was opened with.
    const QString &name() const { return ppd_.name(); }
    /// A sentence for each part that was left out while opening; plain text.
    const QStringList &notes() const { return notes_; }

    /// The option keywords of all groups, in the PPD's order.
    const QStringList &options() const { return keywords_; }
    /// Keywords are case-sensitive, here and below. Constant time.
    bool hasOption(const QString &key) const { return options_.contains(key); }
    /// Plain text; empty for an unknown option.
    QString optionText(const QString &key) const;
    /// In the PPD's order; empty for an unknown option. A shared copy.
    QList<PpdChoice> choices(const QString &key) const;
    /// The choice by its keyword in constant time, or null. Valid as long as this document.
    const PpdChoice *choice(const QString &key, const QString &keyword) const;
    /// The PPD's default, if it is one of the choices.
    std::optional<QString> defaultChoice(const QString &key) const;
    /// The marked choice. Nothing when the PPD has no usable default and none was chosen yet, and for an
    /// option that another one disables (PageRegion by PageSize).
    std::optional<QString> markedChoice(const QString &key) const;

    /// The page sizes that can be printed, in the PPD's order; never empty.
    const QList<PageSize> &pageSizes() const { return pageSizes_; }
    std::optional<PageSize> pageSize(const QString &keyword) const;

    /// The dialog extensions that the PPD requests with APDialogExtension attributes, in its order. They are
    /// plain file names, never paths: only the last component is used, since the PPD may come from another
    /// machine.
    QStringList requestedBundles() const;

private:
    struct Option;
    struct RecordCloser
    {
        void operator()(ppd_file_s *record) const;
    };

    PpdDocument(const CheckedPpd &ppd, ppd_file_s *record);
    void localize();
    void indexOptions();
    void indexOption(ppd_option_s &option);
    void indexPageSizes();
    void markDefaults();

    CheckedPpd ppd_;
    std::unique_ptr<ppd_file_s, RecordCloser> record_;
    QStringList notes_;
    QStringList keywords_;
    QHash<QString, std::shared_ptr<Option>>
        options_; // an index, since libcups searches an option's choices one by one
    QList<PageSize> pageSizes_;
    QHash<QString, qsizetype> pageSizeOf_;
};

} // namespace printdialog
