// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoPlacement.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QPushButton;

namespace printdialog {

/// The controls for the current photo's placement on its page: its scaling, and a manual turn.
class PlacementBar : public QWidget
{
    Q_OBJECT

public:
    explicit PlacementBar(QWidget *parent = nullptr);

    /// Shows the choice; no signal is emitted.
    void setPlacement(const PlacementChoice &choice);
    /// Whether the printer places the photo itself: then nothing can be chosen here, and the controls say
    /// why.
    void setPlacedByPrinter(bool isPlaced);

Q_SIGNALS:
    /// The user has chosen.
    void placementChanged(const printdialog::PlacementChoice &choice);

private:
    QComboBox *scaling_;
    QPushButton *turn_;
    PlacementChoice choice_;
    QString turnHint_;
};

} // namespace printdialog
