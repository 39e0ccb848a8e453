// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelHarness.h"
#include "PanelModel.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>

namespace {

double leadingNumber(const QString &text)
{
    static const QRegularExpression number(
        QStringLiteral(R"(^\s*([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?))"));
    return QLocale::c().toDouble(number.match(text).captured(1));
}

QString leadingWhole(const QString &text)
{
    static const QRegularExpression number(QStringLiteral(R"(^\s*([+-]?[0-9]+))"));
    const double value = number.match(text).captured(1).toDouble();
    return QString::number(
        int(std::clamp<double>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max())));
}

/// As C writes it, with the sign of -0, which QString drops.
QString twoDecimals(double value)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(2) << value;
    return QString::fromStdString(text.str());
}

} // namespace

void PanelModel::setString(Control &control, const QString &value) const
{
    const FormControl &form = control.form;
    if (form.kind == FormControl::Slider) {
        const double position = std::round(leadingNumber(value) * std::pow(10.0, form.decimals));
        control.number = int(std::clamp<double>(position, form.minimum, form.maximum));
    } else if (form.kind == FormControl::PopUp) {
        control.number = form.items.contains(value) ? int(form.items.indexOf(value)) : control.number;
    } else {
        control.text = value;
    }
}

void PanelModel::setEnabled(Control &control, bool enabled)
{
    control.enabled = enabled;
    // A field that is disabled loses the focus.
    if (!enabled && edited_ == control.tag)
        focus(0);
}

void PanelModel::endEditing(Control &field)
{
    if (field.text == QLatin1String("-"))
        field.text = QStringLiteral("0");
    if (table_.kind == PanelTable::Sharpness && (field.tag & 2) != 0) {
        field.text = twoDecimals(double(float(leadingNumber(field.text))));
        changePrinterSetting(field);
    }
}

void PanelModel::changePrinterSetting(Control &sender)
{
    if (sender.tag == 16) {
        setDefaults();
        updateUI();
        return;
    }
    if (sender.tag != 32) {
        mark(newChoice(sender), table_.key(sender.tag), &sender);
        return;
    }
    enableByToggle(sender);
    mark(sender.number != 0 ? text("True") : text("False"), table_.key(32), &sender);
}

PanelModel::Text PanelModel::newChoice(const Control &sender) const
{
    if (table_.kind == PanelTable::Sharpness)
        return newSharpnessChoice(sender);
    if (sender.form.kind == FormControl::Radio)
        return table_.cellChoice.contains(sender.number) ? Text(table_.cellChoice.value(sender.number))
                                                         : std::nullopt;
    if (sender.form.kind == FormControl::Field && sender.text != QLatin1String("-"))
        return leadingWhole(sender.text);
    return shown(sender);
}

PanelModel::Text PanelModel::newSharpnessChoice(const Control &sender) const
{
    if ((sender.tag & 2) == 0)
        return leadingWhole(shown(sender));
    if (sender.form.kind != FormControl::Slider)
        return sender.text;
    QString number = shown(sender);
    number.remove(QRegularExpression(QStringLiteral("^[^.0-9]+|[^.0-9]+$")));
    return twoDecimals(leadingNumber(number));
}

void PanelModel::mark(const Text &choice, const Text &key, Control *sender)
{
    if (!choice || !key || !validate(*choice, sender)) {
        reject(key, sender);
        return;
    }
    if (constraintMode_ && !offer(*key, *choice)) {
        ++beeps_;
        log_ << text("The print system rejected the user selected choice %1 for PPD Option %2")
                    .arg(*choice, *key);
        if (marks_.contains(*key))
            update(sender, marks_.value(*key));
        return;
    }
    choices_.insert(*key, *choice);
    update(sender, *choice);
}

bool PanelModel::validate(const QString &choice, const Control *sender)
{
    if (!sender || sender->form.kind != FormControl::Field)
        return true;
    const double value = leadingNumber(choice);
    double minimum = 0;
    double maximum = 0;
    const Control *slider = (sender->tag & 80) != 0 ? partner(*sender) : sender;
    if (slider && slider->form.kind == FormControl::Slider) {
        const double units = std::pow(10.0, slider->form.decimals);
        minimum = slider->form.minimum / units;
        maximum = slider->form.maximum / units;
    }
    return !(value > maximum) && !(minimum > value);
}

void PanelModel::reject(const Text &key, Control *sender)
{
    ++beeps_;
    Text shownAgain = recorded(key);
    if (constraintMode_ && key && marks_.contains(*key))
        shownAgain = marks_.value(*key);
    update(sender, shownAgain);
}

bool PanelModel::offer(const QString &key, const QString &choice)
{
    offers_ << key + QLatin1Char('=') + choice;
    if (refused_.contains(key))
        return false;
    markInPpd(key, choice);
    return true;
}

void PanelModel::update(Control *control, const Text &value)
{
    if (!control || !value)
        return;
    if (control->tag == 32) {
        control->number = value->compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 ? 1 : 0;
        enableByToggle(*control);
        return;
    }
    if (control->form.kind == FormControl::Radio) {
        const int cell = table_.cellChoice.key(*value, 0);
        if (control->form.cells.contains(cell))
            control->number = cell;
        control->toolTip.clear();
        return;
    }
    for (Control *each : {control, partner(*control)}) {
        if (each) {
            setString(*each, *value);
            each->toolTip = *value;
        }
    }
}

void PanelModel::updateUI()
{
    for (const int first : {1, 32}) {
        for (int tag = first; Control *control = find(tag); ++tag)
            update(control, recorded(table_.key(tag)));
    }
}

void PanelModel::enableByToggle(const Control &box)
{
    const bool inverted = table_.kind == PanelTable::Lamination;
    const bool enable = inverted ? box.number == 0 : box.number != 0;
    int tag = 1;
    while (true) {
        Control *control = find(tag);
        ++tag;
        if (control)
            setEnabled(*control, enable);
        else if ((tag & 80) == 0)
            tag = 81;
        else
            break;
    }
}

void PanelModel::setDefaults()
{
    for (const QString &key : std::as_const(table_.keys)) {
        if (const PpdOption *option = table_.option(key))
            mark(option->defaultChoice, key, nullptr);
    }
}

PanelModel::Text PanelModel::recorded(const Text &key) const
{
    return key && choices_.contains(*key) ? Text(choices_.value(*key)) : std::nullopt;
}
