// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Step.h"

#include "PanelHarness.h"

#include <QtGui/QKeySequence>

namespace {

template <class List>
auto anyOf(const List &list, QRandomGenerator &random)
{
    return list.at(random.bounded(int(list.size())));
}

QString anyChoice(const PanelTable &table, const QString &key, QRandomGenerator &random)
{
    const QStringList odd = text("true TRUE 1 fine 2.5 - abc 99 %1").split(QLatin1Char(' '));
    const PpdOption *option = table.option(key);
    if (option && option->choices.contains(text("True")) && random.bounded(3) == 0)
        return anyOf(QStringList{text("true"), text("1"), text("Yes"), text("True ")}, random);
    return option && random.bounded(4) != 0 ? anyOf(option->choices, random) : anyOf(odd, random);
}

Step inField(QRandomGenerator &random)
{
    const QString characters = text("00112233456789..---+ ea");
    const QStringList texts = text("0.055|0.225|0.445|0.245|0.515|0.325|+3.7|1e1|-0.4|-1|1|26|-26|-0| 7 "
                                   "apples|99999999999|3.004|0x10|nan|1e|.|-|%1")
                                  .split(QLatin1Char('|'));
    const QList<Step::Act> acts = {Step::TypeKey,   Step::TypeKey,  Step::TypeKey,
                                   Step::TypeKey,   Step::TypeOver, Step::PasteText,
                                   Step::PasteText, Step::EraseKey, Step::ReturnKey};
    Step step{.act = anyOf(acts, random)};
    if (step.act == Step::TypeKey || step.act == Step::TypeOver)
        step.choice = anyOf(characters, random);
    if (step.act == Step::PasteText)
        step.choice = anyOf(texts, random);
    if (step.act == Step::ReturnKey)
        step.detail = Qt::Key_Return;
    return step;
}

Step onControl(const FormControl &control, QRandomGenerator &random)
{
    const QList<int> sliderKeys = {Qt::Key_Left,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_Right,
                                   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End};
    switch (control.kind) {
    case FormControl::Slider:
        return {Step::SlideKey, control.tag, anyOf(sliderKeys, random)};
    case FormControl::Field: {
        Step step = inField(random);
        step.tag = control.tag;
        return step;
    }
    case FormControl::Radio:
        return {Step::ClickCell, control.tag, anyOf(control.cells, random)};
    case FormControl::PopUp:
        return {Step::PickItem, control.tag, random.bounded(2) == 0 ? Qt::Key_Up : Qt::Key_Down};
    case FormControl::Box:
        return {Step::ClickBox, control.tag, random.bounded(2)};
    case FormControl::Button:
        return {Step::ClickButton, control.tag, random.bounded(2)};
    default: // nobody acts on these
        return {};
    }
}

} // namespace

Step Step::random(const PanelTable &table, QRandomGenerator &random)
{
    if (random.bounded(10) < 6)
        return onControl(anyOf(table.controls, random), random);
    const QList<Act> acts = {LeaveField, LeaveField,  TellChange, TellChange, MarkChoice, Refuse, Refuse,
                             SetTicket,  BreakTicket, StoreBound, Restore,    Save,       Save,   Show};
    Step step{.act = anyOf(acts, random)};
    // One that is not the panel's, and looks like a place for a value in a text.
    step.key = random.bounded(12) == 0 ? text("%2") : anyOf(table.keys, random);
    step.choice = anyChoice(table, step.key, random);
    const bool maybeMissing = step.act == TellChange || step.act == SetTicket;
    if (maybeMissing && random.bounded(8) == 0)
        step.choice.clear();
    if (step.act == BreakTicket)
        step.detail = random.bounded(3) == 0 ? 1 + random.bounded(3) : 0;
    if (step.act == StoreBound && table.kind != PanelTable::Lamination)
        step.act = LeaveField;
    return step;
}

QString Step::toText() const
{
    static const char *const texts[] = {"slider TAG: key PRESSED",
                                        "field TAG: type 'CHOICE'",
                                        "field TAG: select all, type 'CHOICE'",
                                        "field TAG: select all, paste 'CHOICE'",
                                        "field TAG: Backspace",
                                        "leave the field",
                                        "field TAG: Return",
                                        "check box TAG: click",
                                        "radio group TAG: cell DETAIL",
                                        "button TAG: click",
                                        "pop-up TAG: key PRESSED",
                                        "the dialog tells KEY=CHOICE",
                                        "the dialog marks KEY=CHOICE",
                                        "the dialog refuses, or allows again, KEY",
                                        "the print settings get KEY=CHOICE",
                                        "the print settings break in the way DETAIL",
                                        "bound value KEY=CHOICE",
                                        "restore",
                                        "save",
                                        "show"};
    return text(texts[act])
        .replace(text("TAG"), QString::number(tag))
        .replace(text("DETAIL"), QString::number(detail))
        .replace(text("PRESSED"), QKeySequence(detail).toString())
        .replace(text("KEY"), key)
        .replace(text("CHOICE"), choice);
}
