// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlValues.h"

#include "NumericText.h"
#include "RadioMatrix.h"

#include <QtCore/QLocale>
#include <QtCore/QVariant>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <algorithm>
#include <cmath>

namespace pdekit {

namespace {

/// Marks a control as being set by the program during its lifetime. Setting one control may set another, so
/// scopes nest.
class SettingScope
{
public:
    explicit SettingScope(const QWidget *control)
        : control_(control)
        , outer_(innermost)
    {
        innermost = this;
    }
    ~SettingScope() { innermost = outer_; }
    Q_DISABLE_COPY_MOVE(SettingScope)

    static bool holds(const QWidget *control)
    {
        for (const SettingScope *scope = innermost; scope; scope = scope->outer_) {
            if (scope->control_ == control)
                return true;
        }
        return false;
    }

private:
    static const SettingScope *innermost;

    const QWidget *control_;
    const SettingScope *outer_;
};

const SettingScope *SettingScope::innermost = nullptr;

double sliderUnits(const QAbstractSlider *slider)
{
    return std::pow(10.0, std::clamp(slider->property("decimals").toInt(), 0, 9));
}

QString comboChoice(const QComboBox *combo, int index)
{
    const QVariant choice = combo->itemData(index);
    return choice.isValid() ? choice.toString() : combo->itemText(index);
}

bool selectComboChoice(QComboBox *combo, const QString &choice)
{
    for (int i = 0; i < combo->count(); ++i) {
        if (comboChoice(combo, i) == choice) {
            combo->setCurrentIndex(i);
            break;
        }
    }
    return true;
}

} // namespace

bool isControl(const QWidget *view)
{
    return qobject_cast<const QAbstractSlider *>(view) || qobject_cast<const QLineEdit *>(view) ||
           qobject_cast<const QAbstractButton *>(view) || qobject_cast<const QLabel *>(view) ||
           qobject_cast<const QComboBox *>(view) || qobject_cast<const RadioMatrix *>(view);
}

bool isSlider(const QWidget *view)
{
    return qobject_cast<const QAbstractSlider *>(view) != nullptr;
}

bool isTextField(const QWidget *view)
{
    return qobject_cast<const QLineEdit *>(view) != nullptr;
}

std::optional<QString> stringValue(const QWidget *control)
{
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(control))
        return QString::number(slider->value() / sliderUnits(slider), 'f', QLocale::FloatingPointShortest);
    if (const auto *field = qobject_cast<const QLineEdit *>(control))
        return field->text();
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return label->text();
    if (const auto *combo = qobject_cast<const QComboBox *>(control))
        return comboChoice(combo, combo->currentIndex());
    if (qobject_cast<const QAbstractButton *>(control))
        return QString::number(state(control).value_or(0));
    return std::nullopt;
}

bool setStringValue(QWidget *control, const QString &value)
{
    const SettingScope scope(control);
    if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        const double position = std::round(leadingDouble(value) * sliderUnits(slider));
        slider->setValue(
            static_cast<int>(std::clamp<double>(position, slider->minimum(), slider->maximum())));
        return true;
    }
    if (auto *field = qobject_cast<QLineEdit *>(control)) {
        // Setting the same text again would move the cursor of a user who is typing.
        if (field->text() != value)
            field->setText(value);
        return true;
    }
    if (auto *label = qobject_cast<QLabel *>(control)) {
        label->setText(value);
        return true;
    }
    if (auto *combo = qobject_cast<QComboBox *>(control))
        return selectComboChoice(combo, value);
    if (qobject_cast<QAbstractButton *>(control))
        return setState(control, leadingInteger(value));
    return false;
}

std::optional<int> state(const QWidget *control)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(control)) {
        if (box->checkState() == Qt::PartiallyChecked)
            return -1;
    }
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    if (!button || !button->isCheckable())
        return std::nullopt;
    return button->isChecked() ? 1 : 0;
}

bool setState(QWidget *control, int state)
{
    const SettingScope scope(control);
    // Not setChecked(): a box that is changing to the mixed state already counts as checked, and would stay
    // mixed.
    if (auto *box = qobject_cast<QCheckBox *>(control)) {
        const bool mixed = state < 0 && box->isTristate();
        const Qt::CheckState whole = state != 0 ? Qt::Checked : Qt::Unchecked;
        box->setCheckState(mixed ? Qt::PartiallyChecked : whole);
        return true;
    }
    auto *button = qobject_cast<QAbstractButton *>(control);
    if (!button || !button->isCheckable())
        return false;
    button->setChecked(state != 0);
    return true;
}

std::optional<double> minValue(const QWidget *control)
{
    const auto *slider = qobject_cast<const QAbstractSlider *>(control);
    return slider ? std::optional(slider->minimum() / sliderUnits(slider)) : std::nullopt;
}

std::optional<double> maxValue(const QWidget *control)
{
    const auto *slider = qobject_cast<const QAbstractSlider *>(control);
    return slider ? std::optional(slider->maximum() / sliderUnits(slider)) : std::nullopt;
}

bool isBeingSet(const QWidget *control)
{
    return SettingScope::holds(control);
}

} // namespace pdekit
