// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "MixedSpinBox.h"

#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>

#include <cmath>

namespace printdialog {

namespace {

constexpr double pointsPerInch = 72;
constexpr double pointsPerMillimeter = pointsPerInch / 25.4;

} // namespace

MixedSpinBox::MixedSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(this, &QDoubleSpinBox::valueChanged, this, [this] {
        if (!isMixed() || value() > minimum())
            Q_EMIT entered();
    });
}

void MixedSpinBox::setLimits(int least, int most)
{
    const QSignalBlocker blocker(this);
    setDecimals(0);
    least_ = least;
    setRange(least, most);
}

void MixedSpinBox::setLengths(double least, double most)
{
    const QSignalBlocker blocker(this);
    const bool usesInches = locale().measurementSystem() == QLocale::ImperialUSSystem;
    perUnit_ = usesInches ? pointsPerInch : pointsPerMillimeter;
    setSuffix(usesInches ? QStringLiteral(" in") : QStringLiteral(" mm"));
    setDecimals(usesInches ? 2 : 1);
    setSingleStep(usesInches ? 0.02 : 0.5); // NOLINT: a step that people count in
    least_ = least / perUnit_;
    setRange(least_, most / perUnit_);
}

void MixedSpinBox::show(double value, bool isMixed)
{
    const QSignalBlocker blocker(this);
    begin_ = value;
    const double shown = value / perUnit_;
    const double precision = std::pow(10, -decimals()) / 2;
    if (isMixed) {
        setMinimum(least_ - singleStep());
        setSpecialValueText(tr("several"));
        setValue(minimum());
    } else if (this->isMixed() || std::abs(this->value() - shown) > precision) {
        setSpecialValueText({});
        setMinimum(least_);
        setValue(shown);
    }
}

double MixedSpinBox::number() const
{
    return isMixed() && value() <= minimum() ? begin_ : value() * perUnit_;
}

void MixedSpinBox::stepBy(int steps)
{
    if (isMixed() && value() <= minimum()) {
        const QSignalBlocker blocker(this);
        setValue(begin_ / perUnit_);
    }
    QDoubleSpinBox::stepBy(steps);
}

} // namespace printdialog
