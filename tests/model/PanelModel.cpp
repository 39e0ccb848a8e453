// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelModel.h"

#include "PanelHarness.h"

#include <algorithm>
#include <cmath>
#include <utility>

PanelModel::PanelModel(PanelTable table, bool constraintMode,
                       std::function<QString(const QString &)> localized)
    : table_(std::move(table))
    , constraintMode_(constraintMode)
    , localized_(std::move(localized))
{
    for (const FormControl &form : std::as_const(table_.controls)) {
        Control control;
        control.form = form;
        control.tag = form.tag;
        controls_.push_back(control);
    }
    for (const PpdOption &option : std::as_const(table_.options))
        marks_.insert(option.key, option.defaultChoice);
}

PanelModel::Control *PanelModel::find(int tag)
{
    const auto found = std::ranges::find(controls_, tag, &Control::tag);
    return found == controls_.end() ? nullptr : &*found;
}

PanelModel::Control *PanelModel::partner(const Control &control)
{
    Control *other = find(control.tag ^ 80);
    return other && other->form.container == control.form.container ? other : nullptr;
}

bool PanelModel::canAct(const Control &control) const
{
    return control.enabled && !control.hidden && (control.form.container == 0 || isMatte());
}

QString PanelModel::shown(const Control &control) const
{
    const FormControl::Kind kind = control.form.kind;
    if (kind == FormControl::Slider)
        return QString::number(control.number / std::pow(10.0, control.form.decimals));
    if (kind == FormControl::Field || kind == FormControl::Label)
        return control.text;
    return kind == FormControl::PopUp ? control.form.items.at(control.number)
                                      : QString::number(control.number);
}

QString PanelModel::boundValue(int tag) const
{
    const auto control =
        std::ranges::find_if(controls_, [tag](const Control &each) { return each.form.tag == tag; });
    if (control == controls_.end())
        return {};
    return control->form.kind == FormControl::Radio ? table_.cellChoice.value(control->number)
                                                    : shown(*control);
}

void PanelModel::take(const Step &step)
{
    beeps_ = 0;
    offers_.clear();
    alerts_.clear();
    log_.clear();
    if (step.tag == 0) {
        tell(step);
        return;
    }
    for (Control &control : controls_) {
        if (control.form.tag == step.tag && canAct(control))
            act(control, step);
    }
}

void PanelModel::act(Control &control, const Step &step)
{
    focus(control.tag);
    const int before = control.number;
    switch (step.act) {
    case Step::SlideKey:
        control.number = slid(control, step.detail);
        break;
    case Step::TypeKey:
        return typed(control, control.text + step.choice);
    case Step::TypeOver:
    case Step::PasteText:
        return typed(control, step.choice);
    case Step::EraseKey:
        return control.text.isEmpty() ? void() : typed(control, control.text.chopped(1));
    case Step::ReturnKey:
        edited_ = 0;
        endEditing(control);
        return changePrinterSetting(control);
    case Step::ClickBox:
        control.number = before != 0 ? before == -1 : (control.form.mixed ? -1 : 1);
        break;
    case Step::PickItem:
        control.number = std::clamp(before + (step.detail == Qt::Key_Down ? 1 : -1), 0,
                                    int(control.form.items.size()) - 1);
        break;
    case Step::ClickCell:
        control.number = step.detail;
        return changePrinterSetting(control);
    default:
        return changePrinterSetting(control);
    }
    if (control.number != before)
        changePrinterSetting(control);
}

void PanelModel::focus(int tag)
{
    if (edited_ != 0 && edited_ != tag)
        endEditing(*find(std::exchange(edited_, 0)));
}

void PanelModel::typed(Control &field, const QString &text)
{
    field.text = text;
    edited_ = field.tag;
    changePrinterSetting(field);
}

int PanelModel::slid(const Control &slider, int key) const
{
    const FormControl &form = slider.form;
    const QMap<int, int> steps = {
        {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_PageDown, -form.page}, {Qt::Key_PageUp, form.page}};
    const int otherwise = key == Qt::Key_Home ? form.minimum : form.maximum;
    const int position = steps.contains(key) ? slider.number + steps.value(key) : otherwise;
    return std::clamp(position, form.minimum, form.maximum);
}

void PanelModel::tell(const Step &step)
{
    switch (step.act) {
    case Step::LeaveField:
        return focus(0);
    case Step::TellChange:
        if (!step.choice.isEmpty() && table_.keys.contains(step.key))
            choices_.insert(step.key, step.choice);
        return;
    case Step::MarkChoice:
        return markInPpd(step.key, step.choice);
    case Step::Refuse:
        if (constraintMode_ && refused_.removeAll(step.key) == 0)
            refused_ << step.key;
        return;
    case Step::SetTicket:
        if (step.choice.isEmpty())
            ticket_.remove(step.key);
        else
            ticket_.insert(step.key, step.choice);
        return;
    case Step::BreakTicket:
        ticketFault_ = step.detail;
        return;
    case Step::StoreBound:
        return storeBound(step.key, step.choice);
    case Step::Restore:
        return restore();
    case Step::Save:
        return save();
    default:
        show();
    }
}

void PanelModel::markInPpd(const QString &key, const QString &choice)
{
    const PpdOption *option = table_.option(key);
    if (!option)
        return;
    // libcups does not look at letter case.
    for (const QString &each : option->choices) {
        if (each.compare(choice, Qt::CaseInsensitive) == 0)
            marks_.insert(key, each);
    }
}

void PanelModel::storeBound(const QString &key, const QString &choice)
{
    if (constraintMode_ && !offer(key, choice)) {
        log_ << text("Failed to change %1 setting to = %2").arg(key, choice);
        alerts_ << text(
            "setting change failed!|I tried to make the change you requested but the printing system "
            "rejected my efforts. Sorry.|Bummer!");
        return;
    }
    if (constraintMode_)
        log_ << text("changed %1 setting to %2").arg(key, choice);
    choices_.insert(key, choice);
}

void PanelModel::restore()
{
    if (constraintMode_) {
        for (const QString &key : std::as_const(table_.keys)) {
            if (marks_.contains(key))
                choices_.insert(key, marks_.value(key));
        }
    } else {
        for (const QString &key : std::as_const(table_.keys)) {
            if (ticketFault_ != 0)
                break;
            if (ticket_.contains(key))
                choices_.insert(key, ticket_.value(key));
            else
                choices_.remove(key);
        }
        if (choices_.size() != table_.keys.size())
            setDefaults();
    }
    updateUI();
}

void PanelModel::save()
{
    if (!constraintMode_ && ticketFault_ == 0)
        ticket_.insert(choices_);
}

void PanelModel::show()
{
    if (table_.kind != PanelTable::Lamination)
        updateUI();
    else if (table_.printersPpd && table_.printersPpd->toUpper().contains("K9031"))
        retire();
}

void PanelModel::retire()
{
    for (int tag = 2; find(tag); ++tag) {
        for (const int each : {tag, tag | 80, tag | 160}) {
            if (Control *control = find(each)) {
                setEnabled(*control, false);
                control->hidden = true;
                control->tag |= 256;
            }
        }
    }
    ++shows_;
}

Sight PanelModel::summary() const
{
    Sight entries;
    for (const QString &key : table_.keys) {
        if (!constraintMode_)
            entries.insert(localized_(key),
                           choices_.contains(key) ? localized_(choices_.value(key)) : QString());
        else if (marks_.contains(key))
            entries.insert(localized_(key), localized_(text("Text of ") + marks_.value(key)));
    }
    return entries;
}

Sight PanelModel::sight() const
{
    Sight sight;
    for (const Control &control : controls_) {
        ControlSight seen = control;
        seen.value = shown(control);
        seen.enabled &= control.form.container == 0 || isMatte();
        addControl(sight, control.form, seen);
    }
    addEntries(sight, text("choice"), choices_);
    addEntries(sight, text("mark"), marks_);
    addEntries(sight, text("print settings"), ticket_);
    addEntries(sight, text("summary"), summary());
    addNotes(sight, beeps_, offers_, alerts_, log_);
    if (table_.kind == PanelTable::Lamination) {
        addEntries(sight, text("bound"),
                   Sight{{text("Quality"), boundValue(1)},
                         {text("Overcoat"), boundValue(2)},
                         {text("MatteValue"), boundValue(3)},
                         {text("qual"), boundValue(3)}});
        sight.insert(text("moved"), QString::number(shows_));
    }
    return sight;
}

void addControl(Sight &sight, const FormControl &form, const ControlSight &control)
{
    const QString name = text("control %1 ").arg(form.tag);
    if (form.kind != FormControl::Button && form.kind != FormControl::Title)
        sight.insert(name + text("value"), control.value);
    sight.insert(name + text("tool tip"), control.toolTip);
    sight.insert(name + text("tag"), QString::number(control.tag));
    sight.insert(name + text("enabled"), QVariant(control.enabled).toString());
    sight.insert(name + text("hidden"), QVariant(control.hidden).toString());
}

void addNotes(Sight &sight, int beeps, const QStringList &offers, const QStringList &alerts,
              const QStringList &log)
{
    sight.insert(text("beeps"), QString::number(beeps));
    sight.insert(text("offers"), offers.join(QLatin1Char(' ')));
    sight.insert(text("alerts"), alerts.join(QLatin1Char(' ')));
    sight.insert(text("log"), log.join(QLatin1Char('\n')));
}

QString firstDifference(const Sight &expected, const Sight &actual)
{
    const QString nothing = text("nothing");
    QStringList names = expected.keys() + actual.keys();
    names.sort();
    for (const QString &name : std::as_const(names)) {
        const QString wanted = expected.value(name, nothing);
        const QString got = actual.value(name, nothing);
        if (wanted != got)
            return text("%1 should be \"%2\" and is \"%3\"").arg(name, wanted, got);
    }
    return {};
}
