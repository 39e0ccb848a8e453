// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomChoice.h"
#include "PlainText.h"
#include "PpdDocument.h"
#include "PpdDocument_p.h"

#include <array>
#include <span>
#include <utility>

namespace printdialog {

namespace {

const QString pageOption = QStringLiteral("PageSize");
const QString customKeyword = QStringLiteral("Custom");

/// Marking one of these options makes libcups change the marks of others (ppdMarkOption).
const QStringList &coupled()
{
    static const QStringList keys = {QStringLiteral("InputSlot"), QStringLiteral("ManualFeed"),
                                     QStringLiteral("PageRegion"), pageOption};
    return keys;
}

CustomParameter parameterOf(const ppd_cparam_t &record)
{
    using Kind = CustomParameter::Kind;
    constexpr qsizetype shownText = 200; // UTF-16 units
    CustomParameter parameter;
    parameter.name = QString::fromLatin1(record.name);
    parameter.text = plainText(QString::fromUtf8(record.text).trimmed(), shownText);
    if (parameter.text.isEmpty())
        parameter.text = parameter.name;
    const auto set = [&parameter](Kind kind, double minimum, double maximum) {
        parameter.kind = kind;
        parameter.minimum = minimum;
        parameter.maximum = maximum;
    };
    const auto &[least, most] = std::pair(record.minimum, record.maximum);
    switch (record.type) {
    case PPD_CUSTOM_INT:
        set(Kind::Integer, least.custom_int, most.custom_int);
        break;
    case PPD_CUSTOM_CURVE:
        set(Kind::Real, static_cast<double>(least.custom_curve), static_cast<double>(most.custom_curve));
        break;
    case PPD_CUSTOM_INVCURVE:
        set(Kind::Real, static_cast<double>(least.custom_invcurve),
            static_cast<double>(most.custom_invcurve));
        break;
    case PPD_CUSTOM_REAL:
        set(Kind::Real, static_cast<double>(least.custom_real), static_cast<double>(most.custom_real));
        break;
    case PPD_CUSTOM_POINTS:
        set(Kind::Points, static_cast<double>(least.custom_points), static_cast<double>(most.custom_points));
        break;
    case PPD_CUSTOM_PASSCODE:
        set(Kind::Passcode, least.custom_passcode, most.custom_passcode);
        break;
    case PPD_CUSTOM_PASSWORD:
        set(Kind::Password, least.custom_password, most.custom_password);
        break;
    default:
        set(Kind::Text, least.custom_string, most.custom_string);
        break;
    }
    return parameter;
}

QSizeF sizeOf(const std::array<float, 2> &sides)
{
    return {sides[0], sides[1]};
}

} // namespace

// Marks

std::optional<QString> PpdDocument::markedChoice(const QString &key) const
{
    const auto option = options_.constFind(key);
    if (option == options_.cend())
        return std::nullopt;
    const ppd_option_t &record = *(*option)->record;
    if ((*option)->kind == OptionKind::PickMany) {
        QStringList marked;
        for (const ppd_choice_t &choice :
             std::span(record.choices, static_cast<size_t>(record.num_choices))) {
            if (choice.marked)
                marked += QString::fromLatin1(choice.choice);
        }
        return marked.isEmpty() ? std::nullopt : std::optional(marked.join(u','));
    }
    const ppd_choice_t *marked = ppdFindMarkedChoice(record_.get(), record.keyword);
    if (!marked)
        return std::nullopt;
    const QString keyword = QString::fromLatin1(marked->choice);
    return keyword == customKeyword ? customMarks_.value(key, keyword) : keyword;
}

// The results are ignored: libcups returns the number of conflicts in the whole PPD, not of this choice.
void PpdDocument::mark(const QString &key, const QString &choice)
{
    const auto option = options_.constFind(key);
    if (option == options_.cend())
        return;
    const QByteArray keyword = key.toLatin1();
    customMarks_.remove(key);
    if ((*option)->kind != OptionKind::PickMany) {
        if (isCustomChoice(choice) && !this->choice(key, choice))
            customMarks_.insert(key, choice);
        // As UTF-8, which is how libcups and its filters read a custom text.
        ppdMarkOption(record_.get(), keyword.constData(), choice.toUtf8().constData());
        return;
    }
    // libcups adds a mark to those that a PickMany option has, so all are cleared first.
    ppd_option_t &record = *(*option)->record;
    for (ppd_choice_t &each : std::span(record.choices, static_cast<size_t>(record.num_choices))) {
        if (std::exchange(each.marked, 0) != 0)
            cupsArrayRemove(record_->marked, &each);
    }
    record.ui = PPD_UI_PICKMANY;
    const QStringList keywords = choice.split(u',');
    for (const QString &each : keywords) {
        ppdMarkOption(record_.get(), keyword.constData(), each.toLatin1().constData());
    }
}

QStringList PpdDocument::coupledOptions(const QString &key) const
{
    return coupled().contains(key) ? coupled() : QStringList(key);
}

// Custom choices

QList<CustomParameter> PpdDocument::customParameters(const QString &key) const
{
    // Among several choices, libcups has no place for the values of a custom one.
    if (key == pageOption || !hasOption(key) || kind(key) == OptionKind::PickMany)
        return {};
    ppd_coption_t *custom = ppdFindCustomOption(record_.get(), key.toLatin1().constData());
    QList<CustomParameter> parameters;
    for (const ppd_cparam_t *parameter = custom ? ppdFirstCustomParam(custom) : nullptr; parameter;
         parameter = ppdNextCustomParam(custom))
        parameters += parameterOf(*parameter);
    return parameters;
}

// The page

QString PpdDocument::pageSizeKey() const
{
    return pageOption;
}

std::optional<CustomPageRange> PpdDocument::customPageRange() const
{
    if (!record_->variable_sizes)
        return std::nullopt;
    const CustomPageRange range{sizeOf(std::to_array(record_->custom_min)),
                                sizeOf(std::to_array(record_->custom_max))};
    constexpr double longest = 1e5; // points, 35 m
    const bool isUsable = range.smallest.width() >= 1 && range.smallest.height() >= 1 &&
                          range.largest.width() >= range.smallest.width() &&
                          range.largest.height() >= range.smallest.height() &&
                          range.largest.width() <= longest && range.largest.height() <= longest;
    return isUsable ? std::optional(range) : std::nullopt;
}

std::optional<PageSize> PpdDocument::pageSize(const QString &keyword) const
{
    if (const auto index = pageSizeOf_.constFind(keyword); index != pageSizeOf_.cend())
        return pageSizes_.at(*index);
    const auto range = customPageRange();
    const auto points = customPagePoints(keyword);
    if (!range || !points)
        return std::nullopt;
    constexpr double rounding = 0.1; // points: the keyword is in hundredths of a millimeter
    const bool isInRange = points->width() > range->smallest.width() - rounding &&
                           points->height() > range->smallest.height() - rounding &&
                           points->width() < range->largest.width() + rounding &&
                           points->height() < range->largest.height() + rounding;
    if (!isInRange)
        return std::nullopt;
    // libcups' order of the margins is left, bottom, right, top.
    const auto [left, bottom, right, top] = std::to_array(record_->custom_margins);
    const QRectF sheet(QPointF(0, 0), *points);
    const QRectF area = sheet.adjusted(left, top, -right, -bottom);
    const bool hasArea = area.isValid() && sheet.contains(area);
    return PageSize{customPageKeyword(*points), pageSizeText(*points), *points, hasArea ? area : sheet};
}

} // namespace printdialog
