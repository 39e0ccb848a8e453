// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// An option and its choice, by their keywords.
struct OptionChoice
{
    QString option;
    QString choice;

    bool operator==(const OptionChoice &) const = default;
};

/// One choice of an option. The keyword is stored, compared and sent; the text is shown.
struct Choice
{
    QString keyword;
    QString
        text; ///< Plain text in the user's language if the source has it; the keyword if there is no text.

    bool operator==(const Choice &) const = default;
};

/// How many of an option's choices apply at a time (PPD 4.3, section 5.2).
enum class OptionKind {
    PickOne,
    Boolean,  ///< "True" and "False"
    PickMany, ///< Any number. The job's choice is their keywords, separated by commas.
};

/// A value that a custom choice needs beyond its keyword (PPD 4.3, section 5.16; ParamCustom attributes).
struct CustomParameter
{
    enum class Kind {
        Integer,
        Real,
        Points, ///< a length in points
        Text,
        Passcode, ///< digits, secret
        Password, ///< a text, secret
        Time,     ///< of day, "18:30" or "18:30:15"
    };

    QString name;
    QString text; ///< Shown to people; plain text.
    Kind kind = Kind::Text;
    /// The range, both ends included: of a number's value, or of a text's length in characters.
    double minimum = 0;
    double maximum = 0;

    bool isSecret() const { return kind == Kind::Passcode || kind == Kind::Password; }
    bool isNumber() const { return kind == Kind::Integer || kind == Kind::Real || kind == Kind::Points; }
};

/// Options that the source lists together.
struct OptionGroup
{
    QString text; ///< Shown to people; plain text; empty for options without a group.
    QStringList options;
    /// Describes the printer's installed equipment (PPD 4.3, section 5.4), which a job cannot change.
    bool isInstallable = false;
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

/// The page sizes that are not listed and can be printed all the same, in points.
struct CustomPageRange
{
    QSizeF smallest;
    QSizeF largest;
};

/// Choices that do not go together: all terms met at the same time. A term without a choice means every
/// choice but None, Off and False.
using ConstraintTerms = QList<OptionChoice>;

/// What can be chosen for a printer, and what is marked for the next job: the PPD, or the printer's IPP
/// attributes. Keywords are case-sensitive. One thread at a time.
class OptionSource
{
public:
    OptionSource() = default;
    OptionSource(const OptionSource &) = delete;
    OptionSource &operator=(const OptionSource &) = delete;
    virtual ~OptionSource();

    /// The option keywords of all groups, in the source's order.
    virtual const QStringList &options() const = 0;
    virtual bool hasOption(const QString &key) const = 0;
    virtual QList<OptionGroup> groups() const = 0;
    virtual OptionKind kind(const QString &key) const = 0;
    /// Plain text; empty for an unknown option.
    virtual QString optionText(const QString &key) const = 0;
    /// In the source's order; empty for an unknown option. A shared copy.
    virtual QList<Choice> choices(const QString &key) const = 0;
    /// The listed choice by its keyword in constant time, or null. Valid as long as the source.
    virtual const Choice *choice(const QString &key, const QString &keyword) const = 0;
    /// The default, if it is one of the choices.
    virtual std::optional<QString> defaultChoice(const QString &key) const = 0;
    /// The parameters of the option's custom choice, in the order in which they are asked for; empty when it
    /// has none, and for the page size (see customPageRange()).
    virtual QList<CustomParameter> customParameters(const QString &key) const = 0;

    /// The marked choice, spelled as it was marked. Nothing when the source has no usable default and none
    /// was chosen yet, and for an option that another one disables.
    virtual std::optional<QString> markedChoice(const QString &key) const = 0;
    /// Marks a choice in the spelling of canonicalChoice(), even if it conflicts.
    virtual void mark(const QString &key, const QString &choice) = 0;
    /// The options whose marks may change when this one is marked.
    virtual QStringList coupledOptions(const QString &key) const = 0;

    /// The option whose choices are the page sizes.
    virtual QString pageSizeKey() const = 0;
    /// The page sizes that can be printed, in the source's order; never empty.
    virtual const QList<PageSize> &pageSizes() const = 0;
    /// By its keyword: a listed one, or a custom one within the range.
    virtual std::optional<PageSize> pageSize(const QString &keyword) const = 0;
    virtual std::optional<CustomPageRange> customPageRange() const = 0;

    virtual QList<ConstraintTerms> constraints() const = 0;
    /// Quick and rough: false when marking the choice surely breaks no constraint.
    virtual bool mayConflict(const QString &key, const QString &choice) const = 0;
    /// Changes of other options that might allow the choice; may be wrong, and name marked choices.
    virtual QList<OptionChoice> resolution(const QString &key, const QString &choice) const = 0;

    /// A sentence for each part that was left out while opening; plain text.
    virtual const QStringList &notes() const = 0;

protected:
    OptionSource(OptionSource &&) noexcept = default;
    OptionSource &operator=(OptionSource &&) noexcept = default;
};

/// Whether the option describes installed equipment.
bool isInstallable(const OptionSource &source, const QString &key);

/// The choice as people read it: a listed one's text, or those of a PickMany option's keywords, or a custom
/// choice's values; the choice itself if it is none of these. Plain text.
QString choiceText(const OptionSource &source, const OptionChoice &choice);

} // namespace printdialog
