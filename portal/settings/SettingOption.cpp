// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SettingOption.h"

#include "OptionSource.h"
#include "StandardLabels.h"

#include <algorithm>

namespace printdialog {

namespace {

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

SettingOption row(const char *setting, const char *options, const char *label,
                  const std::vector<std::pair<const char *, const char *>> &values, const char *usual)
{
    SettingOption made{
        QString::fromLatin1(setting), words(options), QString::fromLatin1(label), {}, words(usual)};
    for (const auto &[value, keywords] : values)
        made.values.push_back({QString::fromLatin1(value), words(keywords)});
    return made;
}

bool isSame(const QString &label, const QString &keyword, const QString &choice)
{
    if (choice.compare(keyword, Qt::CaseInsensitive) == 0)
        return true;
    const QString text = StandardLabels::choice(label, keyword);
    return !text.isEmpty() && text == StandardLabels::choice(label, choice);
}

} // namespace

const std::vector<SettingOption> &SettingOption::all()
{
    static const std::vector<SettingOption> rows = {
        row("duplex", "Duplex JCLDuplex EFDuplex EFDuplexing KD03Duplex ARDuplex sides", "sides",
            {{"simplex", "one-sided"},
             {"horizontal", "two-sided-long-edge"},
             {"vertical", "two-sided-short-edge"}},
            "simplex"),
        row("use-color", "ColorModel ColorMode print-color-mode", "print-color-mode",
            {{"true", "color AdobeRGB auto RGB CMYK CMY KCMY RGBA RGBW"},
             {"false", "monochrome auto-monochrome process-monochrome bi-level Black"}},
            "true"),
        row("quality", "cupsPrintQuality print-quality", "print-quality",
            {{"normal", "4"}, {"draft", "3"}, {"low", "3"}, {"high", "5"}}, "normal"),
        row("collate", "Collate multiple-document-handling", "",
            {{"true", "True separate-documents-collated-copies"},
             {"false", "False separate-documents-uncollated-copies"}},
            "true false"),
        row("media-type", "MediaType media-type", "media-type", {}, "auto stationery"),
        row("default-source", "InputSlot media-source", "media-source", {}, "auto"),
        row("output-bin", "OutputBin output-bin", "output-bin", {}, "auto"),
        row("finishings", "finishings cupsFinishingTemplate finishing-template", "finishings", {}, "3 none"),
    };
    return rows;
}

std::optional<QString> SettingOption::optionOf(const OptionSource &source) const
{
    const auto found =
        std::ranges::find_if(options, [&source](const QString &key) { return source.hasOption(key); });
    return found == options.cend() ? std::nullopt : std::optional(*found);
}

std::optional<QString> SettingOption::choiceFor(const OptionSource &source, const QString &value) const
{
    const auto key = optionOf(source);
    if (!key)
        return std::nullopt;
    const auto known = std::ranges::find(values, value, &Value::setting);
    if (!values.empty() && known == values.cend())
        return std::nullopt;
    const QList<Choice> choices = source.choices(*key);
    const QStringList keywords = values.empty() ? QStringList(value) : known->keywords;
    for (const QString &keyword : keywords) {
        const auto found = std::ranges::find_if(
            choices, [&](const Choice &choice) { return isSame(label, keyword, choice.keyword); });
        if (found != choices.cend())
            return found->keyword;
    }
    return std::nullopt;
}

QString SettingOption::textOf(const QString &value) const
{
    const auto known = std::ranges::find(values, value, &Value::setting);
    const QString text =
        StandardLabels::choice(label, known == values.cend() ? value : known->keywords.constFirst());
    return text.isEmpty() ? value : text;
}

std::optional<QString> SettingOption::valueOf(const QString &choice) const
{
    if (values.empty())
        return choice;
    for (const Value &value : values) {
        const bool isIt = std::ranges::any_of(
            value.keywords, [&](const QString &keyword) { return isSame(label, keyword, choice); });
        if (isIt)
            return value.setting;
    }
    return std::nullopt;
}

} // namespace printdialog
