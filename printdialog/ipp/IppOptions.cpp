// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// IppOptions: what is asked of it. The reading is in IppOptions_open.cpp, the constraints in
// IppOptions_constraints.cpp.

#include "IppOptions.h"

#include "CustomChoice.h"
#include "IppNames.h"

#include <QtCore/QRegularExpression>

namespace printdialog {

namespace {

const QString noFinishing = QStringLiteral("3");

QString withoutCustom(const QString &choice)
{
    const QString prefix = QStringLiteral("Custom.");
    return choice.startsWith(prefix) ? choice.sliced(prefix.size()) : choice;
}

IppValue collection(const IppAttributes &members)
{
    return {IppValue::Kind::Collection, 0, 0, {}, std::make_shared<const IppAttributes>(members)};
}

} // namespace

OptionKind IppOptions::kind(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? OptionKind::PickOne : option->kind;
}

QString IppOptions::optionText(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? QString() : option->text;
}

QList<Choice> IppOptions::choices(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? QList<Choice>() : option->choices;
}

const Choice *IppOptions::choice(const QString &key, const QString &keyword) const
{
    const auto option = options_.constFind(key);
    if (option == options_.cend())
        return nullptr;
    const qsizetype index = option->indexOf.value(keyword, -1);
    return index < 0 ? nullptr : &option->choices.at(index);
}

std::optional<QString> IppOptions::defaultChoice(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? std::nullopt : option->preset;
}

QList<CustomParameter> IppOptions::customParameters(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? QList<CustomParameter>() : option->custom;
}

std::optional<QString> IppOptions::markedChoice(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? std::nullopt : option->marked;
}

void IppOptions::mark(const QString &key, const QString &choice)
{
    const auto option = options_.find(key);
    if (option == options_.end())
        return;
    QStringList keywords = option->kind == OptionKind::PickMany ? choice.split(u',') : QStringList(choice);
    // "None" beside others would lose them at some printers.
    if (keywords.size() > 1)
        keywords.removeAll(noFinishing);
    option->marked = keywords.join(u',');
}

// The page

QString IppOptions::pageSizeKey() const
{
    return ippnames::media;
}

std::optional<PageSize> IppOptions::pageSize(const QString &keyword) const
{
    if (const qsizetype index = media_.indexOf(keyword); index >= 0)
        return pageSizes_.at(index);
    const auto points = customPagePoints(keyword);
    const auto size = points ? media_.customSize(*points) : std::nullopt;
    if (!size)
        return std::nullopt;
    return PageSize{customPageKeyword(size->points()), pageSizeText(size->points()), size->points(),
                    size->imageable()};
}

// The job

QList<IppValue> IppOptions::valuesOf(const QString &key, const QString &choice) const
{
    const auto option = options_.constFind(key);
    const QString text = withoutCustom(choice);
    using Kind = IppValue::Kind;
    switch (option->syntax) {
    case Kind::Boolean:
        return {{Kind::Boolean,
                 text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 ? 1 : 0,
                 0,
                 {},
                 {}}};
    case Kind::Resolution: {
        static const QRegularExpression dots(QStringLiteral("\\A([0-9]+)(?:x([0-9]+))?dpi\\z"));
        const QRegularExpressionMatch match = dots.match(text);
        const int across = match.captured(1).toInt();
        return {{Kind::Resolution,
                 across,
                 match.captured(2).isEmpty() ? across : match.captured(2).toInt(),
                 {},
                 {}}};
    }
    case Kind::Integer:
    case Kind::Enum: {
        QList<IppValue> values;
        const QStringList numbers = text.split(u',');
        for (const QString &number : numbers)
            values += {option->syntax, number.toInt(), 0, {}, {}};
        return values;
    }
    default:
        return {{option->syntax, 0, 0, text, {}}};
    }
}

IppTicket IppOptions::ticket(const QMap<QString, QString> &choices) const
{
    IppTicket ticket = ticket_;
    ticket.attributes = jobAttributes(choices);
    return ticket;
}

IppAttributes IppOptions::jobAttributes(const QMap<QString, QString> &choices) const
{
    IppAttributes job;
    bool hasMedia = false;
    for (auto entry = choices.cbegin(); entry != choices.cend(); ++entry) {
        if (!hasOption(entry.key()))
            continue;
        if (entry.key() == ippnames::media || entry.key() == ippnames::mediaSource ||
            entry.key() == ippnames::mediaType) {
            hasMedia = true;
        } else if (entry.key() == ippnames::finishingTemplate) {
            IppAttributes members;
            members.insert(ippnames::finishingTemplate, valuesOf(ippnames::finishingTemplate, *entry));
            job.insert(ippnames::finishingsCol, {collection(members)});
        } else {
            job.insert(entry.key(), valuesOf(entry.key(), *entry));
        }
    }
    if (!hasMedia)
        return job;
    const auto chosen = [&](const QString &key) {
        return choices.value(key, markedChoice(key).value_or(QString()));
    };
    const QString keyword = chosen(ippnames::media);
    const qsizetype index = media_.indexOf(keyword);
    const auto points = customPagePoints(keyword);
    const auto size = index >= 0 ? std::optional(media_.sizes().at(index).size)
                                 : (points ? media_.customSize(*points) : std::nullopt);
    if (size)
        job.insert(ippnames::mediaCol,
                   {collection(size->mediaCol(chosen(ippnames::mediaSource), chosen(ippnames::mediaType)))});
    return job;
}

} // namespace printdialog
