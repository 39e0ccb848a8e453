// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QDoubleSpinBox>

namespace printdialog {

/// A number field for one thing or for several. Where these differ, it says so; a step then begins at the
/// value that show() was given.
class MixedSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit MixedSpinBox(QWidget *parent = nullptr);

    /// The range of a whole number.
    void setLimits(int least, int most);
    /// The range of a length in points, which the user sees in their own unit.
    void setLengths(double least, double most);
    /// Shows the value, in points for lengths; no signal is emitted. What is being typed stays as long as it
    /// stands for the value.
    void show(double value, bool isMixed = false);
    /// The number that is shown, in points for lengths; the one that show() was given as long as it is mixed.
    double number() const;

    void stepBy(int steps) override;

Q_SIGNALS:
    /// The user has entered a number.
    void entered();

private:
    bool isMixed() const { return !specialValueText().isEmpty(); }

    double least_ = 0;
    double perUnit_ = 1;
    double begin_ = 0;
};

} // namespace printdialog
