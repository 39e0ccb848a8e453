// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OptionSource.h"
#include "PpdCheck.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

struct ppd_file_s;
struct ppd_group_s;
struct ppd_option_s;

namespace printdialog {

/// A line of a PPD that is not an option, such as "*cupsICCProfile RGB.Glossy.: "photo.icc"".
struct PpdAttribute
{
    QString qualifier; ///< the words between the keyword and the value: "RGB.Glossy."; mostly empty
    QString value;     ///< Untrusted.
};

/// Owns one opened PPD and the choices marked in it. Move-only; one thread at a time. A PPD is untrusted: it
/// is opened only after a check, and nothing that it names is ever run or opened.
///
/// Opening marks the defaults. Parts that can never be chosen are left out and listed in notes(): an option
/// without choices, a choice that repeats an earlier one (libcups is case-insensitive), and a page size
/// without dimensions. The custom choice of an option is not listed; it is spelled with its values.
class PpdDocument final : public OptionSource
{
public:
    /// Reads a regular file and checks it with checkPpd() before opening it. Never blocks on a device or a
    /// pipe: those are refused as NotReadable.
    static Result<PpdDocument, PpdFault> openFile(const QString &path);
    /// Parses the very bytes that were inspected, without a file in between.
    static Result<PpdDocument, PpdFault> open(const CheckedPpd &ppd);

    PpdDocument(PpdDocument &&) noexcept;
    PpdDocument &operator=(PpdDocument &&) noexcept;
    ~PpdDocument() override;

    const CheckedPpd &checked() const { return ppd_; }
    /// The original bytes.
    const QByteArray &data() const { return ppd_.data(); }
    /// libcups' record, owned by this document. Mark choices with mark().
    ppd_file_s *record() const { return record_.get(); }
    /// The path or the name that the document was opened with.
    const QString &name() const { return ppd_.name(); }
    const QStringList &options() const override { return keywords_; }
    bool hasOption(const QString &key) const override { return options_.contains(key); }
    /// One for each group and subgroup that has options.
    QList<OptionGroup> groups() const override { return groups_; }
    OptionKind kind(const QString &key) const override;
    QString optionText(const QString &key) const override;
    QList<Choice> choices(const QString &key) const override;
    const Choice *choice(const QString &key, const QString &keyword) const override;
    std::optional<QString> defaultChoice(const QString &key) const override;
    QList<CustomParameter> customParameters(const QString &key) const override;

    std::optional<QString> markedChoice(const QString &key) const override;
    void mark(const QString &key, const QString &choice) override;
    QStringList coupledOptions(const QString &key) const override;

    QString pageSizeKey() const override;
    const QList<PageSize> &pageSizes() const override { return pageSizes_; }
    std::optional<PageSize> pageSize(const QString &keyword) const override;
    std::optional<CustomPageRange> customPageRange() const override;

    /// cupsUIConstraints and the older UIConstraints and NonUIConstraints count alike.
    QList<ConstraintTerms> constraints() const override;
    bool mayConflict(const QString &key, const QString &choice) const override;
    QList<OptionChoice> resolution(const QString &key, const QString &choice) const override;

    const QStringList &notes() const override { return notes_; }

    /// The dialog extensions that the PPD requests with APDialogExtension attributes, in its order. They are
    /// plain file names, never paths: only the last component is used, since the PPD may come from another
    /// machine.
    QStringList requestedBundles() const;
    /// All that have this keyword, in the PPD's order.
    QList<PpdAttribute> attributes(const char *keyword) const;

private:
    struct Option;
    struct RecordCloser
    {
        void operator()(ppd_file_s *record) const;
    };

    PpdDocument(const CheckedPpd &ppd, ppd_file_s *record);
    void localize();
    void indexOptions();
    void indexGroup(const ppd_group_s &group, bool isInstallable);
    bool indexOption(ppd_option_s &option);
    void indexPageSizes();
    void markDefaults();

    CheckedPpd ppd_;
    std::unique_ptr<ppd_file_s, RecordCloser> record_;
    QStringList notes_;
    QStringList keywords_;
    QList<OptionGroup> groups_;
    QHash<QString, QString> customMarks_; // custom choices that are marked, as they were spelled
    QHash<QString, std::shared_ptr<Option>>
        options_; // an index, since libcups searches an option's choices one by one
    QList<PageSize> pageSizes_;
    QHash<QString, qsizetype> pageSizeOf_;
};

} // namespace printdialog
