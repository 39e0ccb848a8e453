// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobChoices.h"

#include "CupsPpd.h"
#include "PpdCheck.h"
#include "PpdFile.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <memory>
#include <span>

namespace printdialog {

namespace {

struct RecordCloser
{
    void operator()(ppd_file_t *record) const { ppdClose(record); }
};
using Record = std::unique_ptr<ppd_file_t, RecordCloser>;

Record opened(const CheckedPpd &ppd)
{
    const int descriptor = ppdInMemory(ppd.inspection().bytes);
    if (descriptor < 0)
        return nullptr;
    ppdSetConformance(PPD_CONFORM_RELAXED);
    return Record(ppdOpenFd(descriptor));
}

void addMarks(const ppd_group_t &group, QMap<QString, QString> &marks)
{
    for (const ppd_option_t &option : std::span(group.options, static_cast<size_t>(group.num_options))) {
        const std::span choices(option.choices, static_cast<size_t>(option.num_choices));
        const auto marked =
            std::ranges::find_if(choices, [](const ppd_choice_t &choice) { return choice.marked != 0; });
        if (marked != choices.end())
            marks.insert(QString::fromLatin1(option.keyword), QString::fromLatin1(marked->choice));
    }
    for (const ppd_group_t &inner : std::span(group.subgroups, static_cast<size_t>(group.num_subgroups)))
        addMarks(inner, marks);
}

QMap<QString, QString> marksOf(const ppd_file_t &record)
{
    QMap<QString, QString> marks;
    for (const ppd_group_t &group : std::span(record.groups, static_cast<size_t>(record.num_groups)))
        addMarks(group, marks);
    return marks;
}

/// The custom page, which libcups records in its own units.
QString customPage(const QMap<QString, QString> &jobOptions)
{
    const QStringList parts = jobOptions.value(QStringLiteral("media")).split(u',');
    const auto custom = std::ranges::find_if(parts, [](const QString &part) {
        return part.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive);
    });
    return custom == parts.end() ? QString() : QLatin1String("Custom.") + custom->sliced(7);
}

} // namespace

bool isMappedByCups(const QString &jobOption)
{
    static const QStringList mapped = {QStringLiteral("finishings"),
                                       QStringLiteral("media"),
                                       QStringLiteral("mirror"),
                                       QStringLiteral("multiple-document-handling"),
                                       QStringLiteral("output-bin"),
                                       QStringLiteral("ppi"),
                                       QStringLiteral("print-color-mode"),
                                       QStringLiteral("print-quality"),
                                       QStringLiteral("printer-resolution"),
                                       QStringLiteral("resolution"),
                                       QStringLiteral("sides")};
    return mapped.contains(jobOption, Qt::CaseInsensitive);
}

QMap<QString, QString> choicesOfJob(const CheckedPpd &ppd, const QMap<QString, QString> &jobOptions)
{
    const Record record = opened(ppd);
    if (!record)
        return {};
    ppdMarkDefaults(record.get());
    const QMap<QString, QString> defaults = marksOf(*record);
    cups_option_t *options = nullptr;
    int count = 0;
    for (auto option = jobOptions.cbegin(); option != jobOptions.cend(); ++option)
        count = cupsAddOption(option.key().toUtf8().constData(), option.value().toUtf8().constData(), count,
                              &options);
    cupsMarkOptions(record.get(), count, options);
    cupsFreeOptions(count, options);
    QMap<QString, QString> choices;
    const QMap<QString, QString> marks = marksOf(*record);
    for (auto mark = marks.cbegin(); mark != marks.cend(); ++mark) {
        const QString choice = *mark == QLatin1String("Custom") ? customPage(jobOptions) : *mark;
        if (!choice.isEmpty() && defaults.value(mark.key()) != choice)
            choices.insert(mark.key(), choice);
    }
    return choices;
}

} // namespace printdialog
