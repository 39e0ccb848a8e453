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
    const QStringList odd = {text("true"), text("TRUE"), text("1"),   text("fine"),
                             text("2.5"),  text("-"),    text("abc"), text("99")};
    const PpdOption *option = table.option(key);
    if (option && option->choices.contains(text("True")) && random.bounded(3) == 0)
        return anyOf(QStringList{text("true"), text("1"), text("Yes"), text("True ")}, random);
    return option && random.bounded(4) != 0 ? anyOf(option->choices, random) : anyOf(odd, random);
}

Step onControl(const FormControl &control, QRandomGenerator &random)
{
    const QList<int> sliderKeys = {Qt::Key_Left,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_Right,
                                   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End};
    const QList<int> popUpKeys = {Qt::Key_Up, Qt::Key_Down};
    const QString characters = text("00112233456789..---+ ea");
    const QStringList texts = {
        text("0.055"), text("0.225"), text("+3.7"),      text("1e1"),         text("-0.4"),  text("26"),
        text("-26"),   text("-0"),    text(" 7 apples"), text("99999999999"), text("1.505"), text("3.004"),
        text("0x10"),  text("nan"),   text("1e"),        text("."),           text("-"),
    };
    Step step;
    step.tag = control.tag;
    switch (control.kind) {
    case FormControl::Slider:
        step.act = Step::SlideKey;
        step.detail = anyOf(sliderKeys, random);
        break;
    case FormControl::Field: {
        const QList<Step::Act> acts = {Step::TypeKey,   Step::TypeKey,  Step::TypeKey,
                                       Step::TypeKey,   Step::TypeOver, Step::PasteText,
                                       Step::PasteText, Step::EraseKey, Step::ReturnKey};
        step.act = anyOf(acts, random);
        if (step.act == Step::TypeKey || step.act == Step::TypeOver)
            step.choice = anyOf(characters, random);
        if (step.act == Step::PasteText)
            step.choice = anyOf(texts, random);
        break;
    }
    case FormControl::Radio:
        step.act = Step::ClickCell;
        step.detail = anyOf(control.cells, random);
        break;
    case FormControl::PopUp:
        step.act = Step::PickItem;
        step.detail = anyOf(popUpKeys, random);
        break;
    case FormControl::Box:
        step.act = Step::ClickBox;
        step.detail = random.bounded(2);
        break;
    case FormControl::Button:
        step.act = Step::ClickButton;
        step.detail = random.bounded(2);
        break;
    case FormControl::Label: // nobody acts on these
    case FormControl::Title:
        step.tag = 0;
        break;
    }
    return step;
}

} // namespace

Step Step::random(const PanelTable &table, QRandomGenerator &random)
{
    if (random.bounded(10) < 6)
        return onControl(anyOf(table.controls, random), random);
    const QList<Act> acts = {LeaveField, LeaveField,  TellChange, TellChange, MarkChoice, Refuse, Refuse,
                             SetTicket,  BreakTicket, StoreBound, Restore,    Save,       Save,   Show};
    Step step;
    step.act = anyOf(acts, random);
    step.key = random.bounded(12) == 0 ? text("PageSize") : anyOf(table.keys, random);
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
    const auto onTag = [this](const char *what) {
        return text(what).arg(tag);
    };
    const auto chosen = [this](const char *what) {
        return text(what).arg(key, choice);
    };
    const auto pressed = [this] {
        return QKeySequence(detail).toString();
    };
    switch (act) {
    case SlideKey:
        return onTag("slider %1: key ") + pressed();
    case TypeKey:
        return onTag("field %1: type '") + choice + text("'");
    case TypeOver:
        return onTag("field %1: select all, type '") + choice + text("'");
    case PasteText:
        return onTag("field %1: select all, paste '") + choice + text("'");
    case EraseKey:
        return onTag("field %1: Backspace");
    case LeaveField:
        return text("leave the field");
    case ReturnKey:
        return onTag("field %1: Return");
    case ClickBox:
        return onTag("check box %1: click");
    case ClickCell:
        return onTag("radio group %1: cell ") + QString::number(detail);
    case ClickButton:
        return onTag("button %1: click");
    case PickItem:
        return onTag("pop-up %1: key ") + pressed();
    case TellChange:
        return chosen("the dialog tells %1=%2");
    case MarkChoice:
        return chosen("the dialog marks %1=%2");
    case Refuse:
        return text("the dialog refuses, or allows again, ") + key;
    case SetTicket:
        return chosen("the print settings get %1=%2");
    case BreakTicket:
        return text("the print settings break in the way %1").arg(detail);
    case StoreBound:
        return chosen("bound value %1=%2");
    case Restore:
        return text("restore");
    case Save:
        return text("save");
    case Show:
        return text("show");
    }
    return {};
}
