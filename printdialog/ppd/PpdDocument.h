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
    QString text; ///< Plain text in the user's language where the PPD has it; the keyword where it has none.

    bool operator==(const PpdChoice &) const = default;
};

/// One page size that can be printed on.
struct PageSize
{
    QString keyword;
    QString text;  ///< Plain text.
    QSizeF points; ///< Of the sheet.
    /// The area that the printer can reach, in points; the origin is the sheet's top left. Where it prints
    /// over the edges, it reaches beyond the sheet.
    QRectF imageable;
};

/// Owner of one opened PPD and of the choices marked in it. Move-only; to be used by one thread at a time.
/// A PPD is untrusted: only one that was checked is opened, and nothing in it is ever run or opened.
///
/// Opening marks the defaults. Every option takes exactly one choice, also those that the PPD declares as
/// `PickMany`. What can never be chosen is left out and mentioned in notes(): an option without choices, a
/// choice that repeats an earlier one (libcups ignores letter case), a page size without dimensions, and
/// custom choices, which need a value that no choice keyword carries.
class PpdDocument
{
public:
    /// Reads a regular file, and tries it out with checkPpd() first. Never blocks on a device or a pipe:
    /// those are refused as NotReadable.
    static Result<PpdDocument, PpdFault> openFile(const QString &path);
    /// The bytes inspected are the bytes parsed: no file stands between the two.
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
    /// What was left out while opening, a sentence each; plain text.
    const QStringList &notes() const { return notes_; }

    /// Option keywords in the PPD's order, of all groups.
    const QStringList &options() const { return keywords_; }
    /// Keywords match exactly, letter case too, here and below. Constant time.
    bool hasOption(const QString &key) const { return options_.contains(key); }
    /// Plain text; empty for an unknown option.
    QString optionText(const QString &key) const;
    /// In the PPD's order; empty for an unknown option. A shared copy.
    QList<PpdChoice> choices(const QString &key) const;
    /// The choice by its keyword in constant time, or null. Valid as long as this document.
    const PpdChoice *choice(const QString &key, const QString &keyword) const;
    /// The default that the PPD declares, if it is one of the choices.
    std::optional<QString> defaultChoice(const QString &key) const;
    /// What is marked now. Nothing when the PPD declares no usable default and nobody has chosen yet, and for
    /// an option that another one has put out of use (PageRegion by PageSize).
    std::optional<QString> markedChoice(const QString &key) const;

    /// The page sizes that can be printed on, in the PPD's order; never empty.
    const QList<PageSize> &pageSizes() const { return pageSizes_; }
    std::optional<PageSize> pageSize(const QString &keyword) const;

    /// The dialog extensions that the PPD asks for by its attributes APDialogExtension, in its order: plain
    /// file names, never paths. Only the last component is believed, since the PPD may come from another
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
    QHash<QString, std::shared_ptr<Option>> options_; // libcups walks through an option's choices one by one
    QList<PageSize> pageSizes_;
    QHash<QString, qsizetype> pageSizeOf_;
};

} // namespace printdialog
