// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppAttributes.h"
#include "OptionSource.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QMap>

#include <memory>

namespace printdialog {

/// What can be chosen for a job on any printer, whoever made it: when it is printed, with which priority and
/// banner pages, and on whose account (RFC 8011, 5.2; PWG 5100.3 and 5100.11). Has only what the printer or
/// its print server supports. A job that makes no choice gets the server's default, which is marked first.
///
/// The options are named like the job's attributes, except for the banner pages before and after the job,
/// which are two options here and one attribute there; a printer that is not a CUPS server has one banner
/// page, and the option is named like the attribute. A custom choice is spelled "Custom.VALUE"; a time is
/// local. See sent() for the spelling in which choices are sent and stored.
class JobTemplate final : public OptionSource
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::JobTemplate)

public:
    /// @param without options that the printer has by other names
    explicit JobTemplate(const IppAttributes &printer, const QStringList &without = {});
    /// The job's options besides those of a printer with these attributes, without those that a PPD has by
    /// names of its own, such as Duplex. Only the title while the attributes are not known.
    static std::unique_ptr<JobTemplate> besides(const OptionSource &printer, const IppAttributes &attributes);

    /// Options that printers name themselves, but that people look for among those of every job.
    static QStringList namedByPrinters();
    /// The option whose custom text is the job's title; "None": the photo's name.
    static QString titleKey();
    /// Whether some printer has it as a job option, in either spelling.
    static bool isJobOption(const QString &key);
    /// The choices as lp(1) and the print server spell them: "job-priority=37", a time in UTC, both banner
    /// pages in "job-sheets". What is no job option is unchanged. "None" of an account or a password is left
    /// out; "Custom" stands for a password that is kept elsewhere.
    static QMap<QString, QString> sent(QMap<QString, QString> choices);
    /// The choices that sent() spells so; ones that are spelled otherwise are unchanged. A password is left
    /// out: it is never stored.
    static QMap<QString, QString> choicesOf(const QMap<QString, QString> &sent);
    /// The same for a printer with one banner page: the one that is not "none" in "job-sheets". Two different
    /// ones stay a list, which such a printer does not have.
    static QMap<QString, QString> withOneSheet(QMap<QString, QString> choices);
    /// Whether these choices, of a PPD or of a job, print on both sides of the paper.
    static bool isTwoSided(const QMap<QString, QString> &choices);
    /// The options that are sent together with this one, which is among them.
    static QStringList sentTogether(const QString &key);

    const QStringList &options() const override { return keys_; }
    bool hasOption(const QString &key) const override { return options_.contains(key); }
    QList<OptionGroup> groups() const override;
    OptionKind kind(const QString & /*key*/) const override { return OptionKind::PickOne; }
    QString optionText(const QString &key) const override { return options_.value(key).text; }
    QList<Choice> choices(const QString &key) const override { return options_.value(key).choices; }
    const Choice *choice(const QString &key, const QString &keyword) const override;
    std::optional<QString> defaultChoice(const QString &key) const override;
    QList<CustomParameter> customParameters(const QString &key) const override
    {
        return options_.value(key).custom;
    }

    std::optional<QString> markedChoice(const QString &key) const override;
    void mark(const QString &key, const QString &choice) override;
    QStringList coupledOptions(const QString &key) const override { return {key}; }

    /// A job has no pages of its own: these are empty.
    QString pageSizeKey() const override { return {}; }
    const QList<PageSize> &pageSizes() const override;
    std::optional<PageSize> pageSize(const QString & /*keyword*/) const override { return std::nullopt; }
    std::optional<CustomPageRange> customPageRange() const override { return std::nullopt; }

    QList<ConstraintTerms> constraints() const override { return {}; }
    bool mayConflict(const QString & /*key*/, const QString & /*choice*/) const override { return false; }
    QList<OptionChoice> resolution(const QString & /*key*/, const QString & /*choice*/) const override
    {
        return {};
    }

    const QStringList &notes() const override;

private:
    struct Option
    {
        QString text;
        QList<Choice> choices;
        QList<CustomParameter> custom;
        QString preset; ///< the server's default
    };

    void add(const QString &key, const Option &option);
    /// An option with the supported keywords that have a text here, if there are several.
    void addKeywords(const IppAttributes &printer, const QString &attribute, const QString &text);
    void addTitle();
    void addHold(const IppAttributes &printer);
    void addPriority(const IppAttributes &printer);
    void addSheets(const IppAttributes &printer);
    void addAccount(const IppAttributes &printer, const QString &attribute, const QString &text);
    void addPassword(const IppAttributes &printer);

    QStringList keys_;
    QHash<QString, Option> options_;
    QHash<QString, QString> marks_;
};

} // namespace printdialog
