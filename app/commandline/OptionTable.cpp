// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionTable.h"

#include "ChoiceMarker.h"
#include "DialogSession.h"
#include "GuardedPanel.h"
#include "NumericChoices.h"

#include <QtCore/QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

/// The panels' names by option keyword.
QHash<QString, QString> panelNames(const DialogSession &session)
{
    QHash<QString, QString> names;
    for (const QString &key : session.options().options()) {
        if (const GuardedPanel *panel = session.panelFor(key))
            names.insert(key, panel->name());
    }
    return names;
}

QJsonValue orNull(const std::optional<QString> &text)
{
    return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Null);
}

/// Width and height in millimeters, with two decimals.
QJsonArray millimeters(const QSizeF &points)
{
    constexpr double perPoint = 25.4 / 72;
    QJsonArray sides;
    for (const double side : {points.width(), points.height()})
        sides.append(std::round(side * perPoint * 100) / 100);
    return sides;
}

QString orDash(const std::optional<QString> &text)
{
    return text.value_or(QStringLiteral("-"));
}

} // namespace

OptionTable::OptionTable(const DialogSession &session)
{
    const QHash<QString, QString> panels = panelNames(session);
    const OptionSource &source = session.options();
    for (const QString &key : source.options()) {
        const auto panel = panels.constFind(key);
        rows_.append({key, source.optionText(key), session.chosen(key), source.defaultChoice(key),
                      panel == panels.cend() ? std::nullopt : std::optional(*panel), source.choices(key),
                      ChoiceMarker::customAllowed(source, key),
                      key == source.pageSizeKey() ? source.customPageRange() : std::nullopt});
    }
}

QString OptionTable::shortened(const Row &row)
{
    QStringList keywords;
    for (const Choice &choice : row.choices)
        keywords.append(choice.keyword);
    const QString range = NumericChoices(keywords).range();
    if (!range.isEmpty()) {
        keywords.removeIf([](const QString &keyword) { return decimalText(keyword) == DecimalText::Number; });
        keywords.append(range);
    }
    if (!row.custom.isEmpty())
        keywords.append(row.custom);
    return keywords.join(QLatin1String(", "));
}

QStringList OptionTable::lines() const
{
    using Cells = std::array<QString, 5>;
    QList<Cells> table = {{tr("Option"), tr("Text"), tr("Choice"), tr("Panel"), tr("Choices")}};
    for (const Row &row : rows_)
        table.append({row.keyword, row.text, orDash(row.choice), orDash(row.panel), shortened(row)});

    std::array<qsizetype, 5> widths = {};
    for (const Cells &cells : table) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], cells[i].size());
    }
    QStringList lines;
    for (const Cells &cells : table) {
        QString line;
        for (std::size_t i = 0; i + 1 < cells.size(); ++i)
            line += cells[i].leftJustified(widths[i] + 2);
        lines.append(line + cells.back());
    }
    return lines;
}

QJsonArray OptionTable::json() const
{
    QJsonArray array;
    for (const Row &row : rows_) {
        QJsonArray choices;
        for (const Choice &choice : row.choices) {
            choices.append(QJsonObject{{QStringLiteral("keyword"), choice.keyword},
                                       {QStringLiteral("text"), choice.text}});
        }
        QJsonObject object{
            {QStringLiteral("keyword"), row.keyword},
            {QStringLiteral("text"), row.text},
            {QStringLiteral("choice"), orNull(row.choice)},
            {QStringLiteral("default"), orNull(row.defaultChoice)},
            {QStringLiteral("panel"), orNull(row.panel)},
            {QStringLiteral("choices"), choices},
        };
        if (row.pageRange)
            object.insert(QStringLiteral("customMillimeters"),
                          QJsonObject{{QStringLiteral("smallest"), millimeters(row.pageRange->smallest)},
                                      {QStringLiteral("largest"), millimeters(row.pageRange->largest)}});
        array.append(object);
    }
    return array;
}

} // namespace printdialog
