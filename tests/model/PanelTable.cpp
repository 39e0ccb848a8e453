// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelTable.h"

#include "PanelHarness.h"

#include <algorithm>

namespace {

QStringList words(const char *all)
{
    return text(all).split(QLatin1Char(' '));
}

/// The keys at the tags from 1 on, and the enabler's.
QMap<int, QString> keysByTag(const char *all, const char *enabler)
{
    QMap<int, QString> keys = {{32, text(enabler)}};
    for (const QString &key : words(all))
        keys.insert(int(keys.size()), key);
    return keys;
}

QStringList numbers(int from, int to, int step = 1, int decimals = 0)
{
    QStringList all;
    for (int i = from; i <= to; i += step)
        all << QString::number(i / std::pow(10.0, decimals), 'f', decimals);
    return all;
}

void addSliderAndField(PanelTable &table, int tag, int minimum, int maximum, int decimals, int page)
{
    FormControl slider{
        .tag = tag, .minimum = minimum, .maximum = maximum, .decimals = decimals, .page = page};
    table.controls << slider << FormControl{.tag = tag + 80, .kind = FormControl::Field};
}

void addBoxAndButton(PanelTable &table, const char *defaultChoice)
{
    table.options << PpdOption{table.keyOfTag.value(32), text(defaultChoice), words("True False")};
    const bool mixed = table.kind == PanelTable::Mixed;
    table.controls << FormControl{.tag = 32, .kind = FormControl::Box, .mixed = mixed}
                   << FormControl{.tag = 16, .kind = FormControl::Button};
}

} // namespace

const PpdOption *PanelTable::option(const QString &key) const
{
    const auto found = std::ranges::find(options, key, &PpdOption::key);
    return found == options.cend() ? nullptr : &*found;
}

std::optional<QString> PanelTable::key(int tag) const
{
    const bool foldsTags = kind != Lamination; // a partner's tag has the key of its option control
    const int folded = foldsTags && (tag & 80) != 0 ? tag ^ 80 : tag;
    return keyOfTag.contains(folded) ? std::optional(keyOfTag.value(folded)) : std::nullopt;
}

QByteArray PanelTable::ppd() const
{
    QByteArray text = PanelHarness::ppdHead();
    for (const PpdOption &option : options) {
        QList<QByteArray> choices;
        for (const QString &choice : option.choices)
            choices << (choice + QStringLiteral("/Text of ") + choice).toUtf8();
        text += PanelHarness::ppdOption(option.key.toUtf8(), option.defaultChoice.toUtf8(), choices);
    }
    return text;
}

PanelTable PanelTable::color()
{
    PanelTable table;
    table.keys = words("Brightness Contrast Saturation Gamma Red Green Blue AdjustmentsEnabled");
    table.keyOfTag = keysByTag("Red Green Blue Brightness Contrast Saturation Gamma", "AdjustmentsEnabled");
    for (int tag = 1; tag <= 7; ++tag) {
        addSliderAndField(table, tag, -25, 25, 0, 5);
        table.options << PpdOption{table.keyOfTag.value(tag), QString::number(tag - 4), numbers(-25, 25)};
    }
    addBoxAndButton(table, "True");
    return table;
}

PanelTable PanelTable::sharpness(bool withThousandths)
{
    PanelTable table{.kind = Sharpness, .setsSliders = withThousandths};
    table.keys = words("SharpnessEnabled SharpnessIntensity SharpnessRadius");
    table.keyOfTag = keysByTag("SharpnessRadius SharpnessIntensity", "SharpnessEnabled");
    addSliderAndField(table, 1, 0, 3, 0, 1);
    if (withThousandths)
        addSliderAndField(table, 2, -1000, 3000, 3, 25);
    else
        addSliderAndField(table, 2, 0, 300, 2, 25);
    // A third of the numbers that can be typed, so that some are recorded without being marked.
    table.options = {{text("SharpnessRadius"), text("1"), numbers(0, 3)},
                     {text("SharpnessIntensity"), text("0.99"), numbers(0, 300, 3, 2)}};
    addBoxAndButton(table, withThousandths ? "True" : "False");
    return table;
}

PanelTable PanelTable::lamination(const std::optional<QByteArray> &printersPpd)
{
    PanelTable table{.kind = Lamination, .printersPpd = printersPpd};
    table.keys = words("Overcoat Quality UsePrinterPanel MatteValue");
    table.keyOfTag = keysByTag("Quality Overcoat MatteValue", "UsePrinterPanel");
    table.cellChoice = {
        {10, text("Standard")}, {11, text("Fine")}, {12, text("Glossy")}, {13, text("Matte")}};
    table.controls = {
        {.tag = 1, .kind = FormControl::Radio, .cells = {10, 11}},
        {.tag = 2, .kind = FormControl::Radio, .cells = {12, 13}},
        {.tag = 3, .kind = FormControl::Slider, .minimum = -25, .maximum = 25, .container = 1},
        {.tag = 83, .kind = FormControl::Label, .container = 1},
        {.tag = 162, .kind = FormControl::Title},
        {.tag = 163, .kind = FormControl::Title, .container = 1},
    };
    table.options = {{text("Quality"), text("Standard"), words("Standard Fine")},
                     {text("Overcoat"), text("Glossy"), words("Glossy Matte")},
                     {text("MatteValue"), text("4"), numbers(-25, 25)}};
    addBoxAndButton(table, "False");
    return table;
}

PanelTable PanelTable::mixed()
{
    PanelTable table{.kind = Mixed};
    table.keys = words("Key1 Key2 Key3 Key9 Enabler");
    table.keyOfTag = keysByTag(
        "Key1 Key2 Key3 Key4 Key5 Key6 Key7 Key8 Key9 Key10 Key11 Key12 Key13 Key14 Key15", "Enabler");
    table.cellChoice = {{10, text("Standard")}, {11, text("Fine")}};
    addSliderAndField(table, 1, -10, 10, 0, 5);
    table.controls << FormControl{.tag = 2, .kind = FormControl::Radio, .cells = {10, 11, 99}}
                   << FormControl{.tag = 3, .kind = FormControl::PopUp, .items = words("Low Middle High")}
                   << FormControl{.tag = 83, .kind = FormControl::Field}
                   << FormControl{.tag = 85, .kind = FormControl::Field};
    table.options = {{text("Key1"), text("3"), numbers(-10, 10)},
                     {text("Key2"), text("Fine"), words("Standard Fine")},
                     {text("Key3"), text("Middle"), words("Low Middle High 0")}};
    addBoxAndButton(table, "True");
    return table;
}
