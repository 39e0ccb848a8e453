// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelTable.h"

#include "PanelHarness.h"

#include <algorithm>

namespace {

QStringList numbers(int from, int to)
{
    QStringList all;
    for (int i = from; i <= to; ++i)
        all << QString::number(i);
    return all;
}

PpdOption onOff(const char *key, const char *defaultChoice)
{
    return {text(key), text(defaultChoice), {text("True"), text("False")}};
}

void addSliderAndField(PanelTable &table, int tag, int minimum, int maximum, int decimals, int page)
{
    table.controls << FormControl{.tag = tag,
                                  .kind = FormControl::Slider,
                                  .minimum = minimum,
                                  .maximum = maximum,
                                  .decimals = decimals,
                                  .page = page}
                   << FormControl{.tag = tag + 80, .kind = FormControl::Field};
}

void addBoxAndButton(PanelTable &table, bool mixed = false)
{
    table.controls << FormControl{.tag = 32, .kind = FormControl::Box, .mixed = mixed}
                   << FormControl{.tag = 16, .kind = FormControl::Button};
}

} // namespace

const FormControl *PanelTable::control(int tag) const
{
    const auto found = std::find_if(controls.cbegin(), controls.cend(),
                                    [tag](const FormControl &each) { return each.tag == tag; });
    return found == controls.cend() ? nullptr : &*found;
}

const PpdOption *PanelTable::option(const QString &key) const
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&key](const PpdOption &each) { return each.key == key; });
    return found == options.cend() ? nullptr : &*found;
}

std::optional<QString> PanelTable::key(int tag) const
{
    const int folded = foldsTags && (tag & 80) != 0 ? tag ^ 80 : tag;
    return keyOfTag.contains(folded) ? std::optional(keyOfTag.value(folded)) : std::nullopt;
}

QByteArray PanelTable::ppd() const
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
                      "*LanguageEncoding: UTF-8\n*NickName: \"Test\"\n";
    for (const PpdOption &option : options) {
        QList<QByteArray> choices;
        for (const QString &choice : option.choices)
            choices << (choice + QStringLiteral("/Text of ") + choice).toUtf8();
        text += PanelHarness::ppdOption(option.key.toUtf8(), option.defaultChoice.toUtf8(), choices);
    }
    return text;
}

PanelTable PanelTable::colour()
{
    PanelTable table;
    table.keys = {text("Brightness"), text("Contrast"), text("Saturation"), text("Gamma"),
                  text("Red"),        text("Green"),    text("Blue"),       text("AdjustmentsEnabled")};
    table.keyOfTag = {
        {1, text("Red")},      {2, text("Green")},      {3, text("Blue")},  {4, text("Brightness")},
        {5, text("Contrast")}, {6, text("Saturation")}, {7, text("Gamma")}, {32, text("AdjustmentsEnabled")}};
    for (int tag = 1; tag <= 7; ++tag) {
        addSliderAndField(table, tag, -25, 25, 0, 5);
        table.options << PpdOption{table.keyOfTag.value(tag), QString::number(tag - 4), numbers(-25, 25)};
    }
    table.options << onOff("AdjustmentsEnabled", "True");
    addBoxAndButton(table);
    return table;
}

PanelTable PanelTable::sharpness()
{
    PanelTable table;
    table.kind = Sharpness;
    table.keys = {text("SharpnessEnabled"), text("SharpnessIntensity"), text("SharpnessRadius")};
    table.keyOfTag = {
        {1, text("SharpnessRadius")}, {2, text("SharpnessIntensity")}, {32, text("SharpnessEnabled")}};
    table.cellChoice = {{2, text("0")}, {3, text("1")}, {4, text("2")}, {5, text("3")}};
    addSliderAndField(table, 1, 0, 3, 0, 1);
    addSliderAndField(table, 2, 0, 300, 2, 25);
    // A third of the numbers that can be typed, so that some are recorded without being marked.
    QStringList intensities;
    for (int i = 0; i <= 300; i += 3)
        intensities << QString::number(i / 100.0, 'f', 2);
    table.options = {{text("SharpnessRadius"), text("1"), numbers(0, 3)},
                     {text("SharpnessIntensity"), text("0.99"), intensities},
                     onOff("SharpnessEnabled", "False")};
    addBoxAndButton(table);
    return table;
}

PanelTable PanelTable::lamination()
{
    PanelTable table;
    table.kind = Lamination;
    table.foldsTags = false;
    table.keys = {text("Overcoat"), text("Quality"), text("UsePrinterPanel"), text("MatteValue")};
    table.keyOfTag = {
        {1, text("Quality")}, {2, text("Overcoat")}, {3, text("MatteValue")}, {32, text("UsePrinterPanel")}};
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
    table.options = {{text("Quality"), text("Standard"), {text("Standard"), text("Fine")}},
                     {text("Overcoat"), text("Glossy"), {text("Glossy"), text("Matte")}},
                     {text("MatteValue"), text("4"), numbers(-25, 25)},
                     onOff("UsePrinterPanel", "False")};
    addBoxAndButton(table);
    return table;
}

PanelTable PanelTable::mixed()
{
    PanelTable table;
    table.kind = Mixed;
    table.keys = {text("Key1"), text("Key2"), text("Key3"), text("Key9"), text("Enabler")};
    for (int tag = 1; tag <= 15; ++tag)
        table.keyOfTag.insert(tag, text("Key%1").arg(tag));
    table.keyOfTag.insert(32, text("Enabler"));
    table.cellChoice = {{10, text("Standard")}, {11, text("Fine")}};
    addSliderAndField(table, 1, -10, 10, 0, 5);
    table.controls << FormControl{.tag = 2, .kind = FormControl::Radio, .cells = {10, 11, 99}}
                   << FormControl{.tag = 3,
                                  .kind = FormControl::PopUp,
                                  .items = {text("Low"), text("Middle"), text("High")}}
                   << FormControl{.tag = 83, .kind = FormControl::Field};
    addBoxAndButton(table, true);
    table.options = {{text("Key1"), text("3"), numbers(-10, 10)},
                     {text("Key2"), text("Fine"), {text("Standard"), text("Fine")}},
                     {text("Key3"), text("Middle"), {text("Low"), text("Middle"), text("High"), text("0")}},
                     onOff("Enabler", "True")};
    return table;
}
