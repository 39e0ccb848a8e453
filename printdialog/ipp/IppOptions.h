// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppAttributes.h"
#include "IppMedia.h"
#include "OptionSource.h"

#include <QtCore/QHash>
#include <QtCore/QMap>

#include <optional>

namespace printdialog {

/// A job for a printer that describes itself by its IPP attributes.
struct IppTicket
{
    IppAttributes attributes; ///< the choices, with their types
    QStringList formats;      ///< the document types that the printer takes; empty: not known
    QStringList scalings;     ///< what it may do with a document's size (`print-scaling`)
    int mostCopies = 0;       ///< 0: not known
};

/// The options of a printer that describes itself by its IPP attributes, and their marks. Keywords are the
/// names of the attributes and their values; enumerations go by number, as in lp(1), and booleans are True
/// and False. The members of `media-col` are options of their own: the size is `media`.
///
/// The attributes are untrusted. What cannot be chosen is left out, and notes() says so.
class IppOptions final : public OptionSource
{
public:
    /// Nothing when there is no paper size to print on, as for a raw queue.
    static std::optional<IppOptions> of(const IppAttributes &printer);

    IppOptions(IppOptions &&) noexcept = default;
    IppOptions &operator=(IppOptions &&) noexcept = default;
    ~IppOptions() override = default;

    const QStringList &options() const override { return keywords_; }
    bool hasOption(const QString &key) const override { return options_.contains(key); }
    QList<OptionGroup> groups() const override { return groups_; }
    OptionKind kind(const QString &key) const override;
    QString optionText(const QString &key) const override;
    QList<Choice> choices(const QString &key) const override;
    const Choice *choice(const QString &key, const QString &keyword) const override;
    std::optional<QString> defaultChoice(const QString &key) const override;
    QList<CustomParameter> customParameters(const QString &key) const override;

    std::optional<QString> markedChoice(const QString &key) const override;
    void mark(const QString &key, const QString &choice) override;
    QStringList coupledOptions(const QString &key) const override { return {key}; }

    QString pageSizeKey() const override;
    const QList<PageSize> &pageSizes() const override { return pageSizes_; }
    std::optional<PageSize> pageSize(const QString &keyword) const override;
    std::optional<CustomPageRange> customPageRange() const override { return media_.customRange(); }

    /// `job-constraints-supported` (PWG 5100.13), one for each combination of the values that it lists.
    QList<ConstraintTerms> constraints() const override { return constraints_; }
    bool mayConflict(const QString &key, const QString &choice) const override;
    /// What the printer's own `job-resolvers-supported` changes.
    QList<OptionChoice> resolution(const QString &key, const QString &choice) const override;

    const QStringList &notes() const override { return notes_; }

    /// The choices as attributes of a job, with their types. The size goes into `media-col`, together with
    /// the source and the type, chosen or marked: a printer need not complete a collection by its defaults.
    IppAttributes jobAttributes(const QMap<QString, QString> &choices) const;
    IppTicket ticket(const QMap<QString, QString> &choices) const;

private:
    struct Option
    {
        QString text;
        OptionKind kind = OptionKind::PickOne;
        IppValue::Kind syntax = IppValue::Kind::Keyword; ///< of its values in a job
        QList<Choice> choices;
        QHash<QString, qsizetype> indexOf; ///< by keyword
        QList<CustomParameter> custom;
        std::optional<QString> preset; ///< the default
        std::optional<QString> marked;
    };
    /// What one sort of entries had to be left out for; a note for each.
    struct LeftOut
    {
        QStringList defaults;
        QStringList options;
        int values = 0;
        int combinations = 0;
    };

    explicit IppOptions(const IppAttributes &printer);

    void indexMedia(const IppAttributes &printer, LeftOut &leftOut);
    void indexKnown(const IppAttributes &printer, LeftOut &leftOut);
    void indexOthers(const IppAttributes &printer, LeftOut &leftOut);
    void indexValues(const IppAttributes &printer, const QString &key, LeftOut &leftOut);
    void indexOption(const QString &key, const QList<IppValue> &supported, const QList<IppValue> &preset,
                     LeftOut &leftOut);
    static void addCustom(Option &option, const QString &key, const QList<IppValue> &supported,
                          const QList<IppValue> &preset);
    static void setPreset(Option &option, const QString &key, const QStringList &preset, LeftOut &leftOut);
    void file(const QString &key, const Option &option);
    void group();
    void note(const LeftOut &leftOut);

    void readConstraints(const IppAttributes &printer, LeftOut &leftOut);
    /// The terms that an attribute of a constraint stands for: any of the lists, each with all its terms.
    std::optional<QList<ConstraintTerms>> alternatives(const QString &name,
                                                       const QList<IppValue> &values) const;
    QList<ConstraintTerms> mediaAlternatives(const IppAttributes &mediaCol) const;
    QStringList keywordsOf(const QString &key, const QList<IppValue> &values) const;
    bool isMarked(const OptionChoice &term) const;

    QList<IppValue> valuesOf(const QString &key, const QString &choice) const;

    IppMedia media_;
    QStringList keywords_;
    QHash<QString, Option> options_;
    QList<OptionGroup> groups_;
    QList<PageSize> pageSizes_;
    QList<ConstraintTerms> constraints_;
    QStringList resolverOf_;                         ///< by constraint; mostly empty
    QHash<QString, QList<qsizetype>> constraintsOn_; ///< by option
    QHash<QString, QList<OptionChoice>> resolvers_;  ///< by name: the choices to make
    QStringList notes_;
    IppTicket ticket_; ///< without attributes
};

} // namespace printdialog
