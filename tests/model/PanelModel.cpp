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
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [tag](const Control &each) { return each.tag == tag; });
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
    switch (control.form.kind) {
    case FormControl::Slider: {
        const double units = std::pow(10.0, control.form.decimals);
        QString number = QString::number(control.number / units, 'f', control.form.decimals);
        while (number.contains(QLatin1Char('.')) && number.endsWith(QLatin1Char('0')))
            number.chop(1);
        return number.endsWith(QLatin1Char('.')) ? number.chopped(1) : number;
    }
    case FormControl::Field:
    case FormControl::Label:
        return control.text;
    case FormControl::PopUp:
        return control.form.items.at(control.number);
    default:
        return QString::number(control.number);
    }
}

QString PanelModel::boundValue(int tag) const
{
    for (const Control &control : controls_) {
        if (control.form.tag == tag && control.form.kind == FormControl::Radio)
            return table_.cellChoice.value(control.number);
        if (control.form.tag == tag)
            return shown(control);
    }
    return {};
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
    switch (step.act) {
    case Step::SlideKey:
        slide(control, step.detail);
        break;
    case Step::TypeKey:
        typed(control, control.text + step.choice);
        break;
    case Step::TypeOver:
    case Step::PasteText:
        typed(control, step.choice);
        break;
    case Step::EraseKey:
        if (!control.text.isEmpty())
            typed(control, control.text.chopped(1));
        break;
    case Step::ReturnKey:
        edited_ = 0;
        endEditing(control);
        changePrinterSetting(control);
        break;
    case Step::ClickBox:
        clickBox(control);
        break;
    case Step::ClickCell:
        control.number = step.detail;
        changePrinterSetting(control);
        break;
    case Step::PickItem: {
        const int item = control.number + (step.detail == Qt::Key_Down ? 1 : -1);
        if (item < 0 || item >= control.form.items.size())
            break;
        control.number = item;
        changePrinterSetting(control);
        break;
    }
    default:
        changePrinterSetting(control);
    }
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

void PanelModel::slide(Control &slider, int key)
{
    const FormControl &form = slider.form;
    int position = slider.number;
    switch (key) {
    case Qt::Key_Left:
        --position;
        break;
    case Qt::Key_Right:
        ++position;
        break;
    case Qt::Key_PageDown:
        position -= form.page;
        break;
    case Qt::Key_PageUp:
        position += form.page;
        break;
    default:
        position = key == Qt::Key_Home ? form.minimum : form.maximum;
    }
    position = std::clamp(position, form.minimum, form.maximum);
    if (position == slider.number)
        return;
    slider.number = position;
    changePrinterSetting(slider);
}

void PanelModel::clickBox(Control &box)
{
    if (box.form.mixed)
        box.number = box.number == 0 ? -1 : (box.number == -1 ? 1 : 0);
    else
        box.number = box.number == 0 ? 1 : 0;
    changePrinterSetting(box);
}

void PanelModel::tell(const Step &step)
{
    switch (step.act) {
    case Step::LeaveField:
        focus(0);
        break;
    case Step::TellChange:
        if (!step.choice.isEmpty() && table_.keys.contains(step.key))
            choices_.insert(step.key, step.choice);
        break;
    case Step::MarkChoice:
        markInPpd(step.key, step.choice);
        break;
    case Step::Refuse:
        if (constraintMode_ && refused_.removeAll(step.key) == 0)
            refused_ << step.key;
        break;
    case Step::SetTicket:
        if (step.choice.isEmpty())
            ticket_.remove(step.key);
        else
            ticket_.insert(step.key, step.choice);
        break;
    case Step::BreakTicket:
        ticketFault_ = step.detail;
        break;
    case Step::StoreBound:
        storeBound(step.key, step.choice);
        break;
    case Step::Restore:
        restore();
        break;
    case Step::Save:
        save();
        break;
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
        alerts_ << text("setting change failed!");
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
    else if (table_.isK9031)
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
        const bool inside = control.form.container == 0 || isMatte();
        addControl(sight, control.form,
                   {shown(control), control.toolTip, control.tag, control.enabled && inside, control.hidden});
    }
    addEntries(sight, text("choice"), choices_);
    addEntries(sight, text("mark"), marks_);
    addEntries(sight, text("print settings"), ticket_);
    addEntries(sight, text("summary"), summary());
    sight.insert(text("beeps"), QString::number(beeps_));
    sight.insert(text("offers"), offers_.join(QLatin1Char(' ')));
    sight.insert(text("alerts"), alerts_.join(QLatin1Char(' ')));
    sight.insert(text("log"), log_.join(QLatin1Char('\n')));
    if (table_.kind == PanelTable::Lamination) {
        sight.insert(text("bound Quality"), boundValue(1));
        sight.insert(text("bound Overcoat"), boundValue(2));
        sight.insert(text("bound MatteValue"), boundValue(3));
        sight.insert(text("bound qual"), boundValue(3));
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

void addEntries(Sight &sight, const QString &name, const QMap<QString, QString> &entries)
{
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        sight.insert(name + QLatin1Char(' ') + entry.key(), entry.value());
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
