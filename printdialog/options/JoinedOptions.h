// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OptionSource.h"

#include <memory>

namespace printdialog {

/// A printer's options, and behind them the job's, which may be added later. Where both have an option, the
/// printer's counts. Pages and constraints are the printer's.
class JoinedOptions final : public OptionSource
{
public:
    explicit JoinedOptions(std::unique_ptr<OptionSource> printer,
                           std::unique_ptr<OptionSource> job = nullptr);
    ~JoinedOptions() override;

    /// Replaces the job's options. The choices of the options in `chosen` stay marked if the new ones have
    /// them, too; the others become the new defaults.
    void setJob(std::unique_ptr<OptionSource> job, const QStringList &chosen = {});
    /// The options that are the job's.
    const QStringList &jobOptions() const { return jobKeys_; }

    const QStringList &options() const override { return keys_; }
    bool hasOption(const QString &key) const override { return of(key).hasOption(key); }
    QList<OptionGroup> groups() const override;
    OptionKind kind(const QString &key) const override { return of(key).kind(key); }
    QString optionText(const QString &key) const override { return of(key).optionText(key); }
    QList<Choice> choices(const QString &key) const override { return of(key).choices(key); }
    const Choice *choice(const QString &key, const QString &keyword) const override
    {
        return of(key).choice(key, keyword);
    }
    std::optional<QString> defaultChoice(const QString &key) const override
    {
        return of(key).defaultChoice(key);
    }
    QList<CustomParameter> customParameters(const QString &key) const override
    {
        return of(key).customParameters(key);
    }

    std::optional<QString> markedChoice(const QString &key) const override
    {
        return of(key).markedChoice(key);
    }
    void mark(const QString &key, const QString &choice) override { of(key).mark(key, choice); }
    QStringList coupledOptions(const QString &key) const override { return of(key).coupledOptions(key); }

    QString pageSizeKey() const override { return printer_->pageSizeKey(); }
    const QList<PageSize> &pageSizes() const override { return printer_->pageSizes(); }
    std::optional<PageSize> pageSize(const QString &keyword) const override
    {
        return printer_->pageSize(keyword);
    }
    std::optional<CustomPageRange> customPageRange() const override { return printer_->customPageRange(); }

    QList<ConstraintTerms> constraints() const override { return printer_->constraints(); }
    bool mayConflict(const QString &key, const QString &choice) const override
    {
        return of(key).mayConflict(key, choice);
    }
    QList<OptionChoice> resolution(const QString &key, const QString &choice) const override
    {
        return of(key).resolution(key, choice);
    }

    const QStringList &notes() const override { return printer_->notes(); }

private:
    OptionSource &of(const QString &key) const;

    std::unique_ptr<OptionSource> printer_;
    std::unique_ptr<OptionSource> job_; ///< null: none
    QStringList keys_;
    QStringList jobKeys_;
};

} // namespace printdialog
