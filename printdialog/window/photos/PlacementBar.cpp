// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlacementBar.h"

#include "ArrangementText.h"
#include "WrappingRow.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace printdialog {

namespace {

constexpr int shortestScaling = 8; // characters of the placement that a narrow window shows

} // namespace

PlacementBar::PlacementBar(QWidget *parent)
    : QWidget(parent)
    , scaling_(new QComboBox(this))
    , turn_(new QPushButton(tr("&Turn"), this))
{
    auto *label = new QLabel(tr("P&lacement:"), this);
    label->setBuddy(scaling_);
    scaling_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    scaling_->setObjectName(QStringLiteral("scaling"));
    scaling_->setAccessibleName(tr("Placement of the photo"));
    scaling_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scaling_->setMinimumContentsLength(shortestScaling);
    for (const Scaling scaling : {Scaling::Fit, Scaling::Fill, Scaling::ActualSize})
        scaling_->addItem(scalingText(scaling), static_cast<int>(scaling));
    turn_->setObjectName(QStringLiteral("turn"));
    turn_->setAutoDefault(false);
    turnHint_ = tr("Turn the photo on the page by a quarter, clockwise");
    setPlacedByPrinter(false);
    auto *labelled = new QHBoxLayout;
    labelled->addWidget(label);
    labelled->addWidget(scaling_, 1);
    auto *layout = new WrappingRow(this);
    layout->addItem(labelled);
    layout->addWidget(turn_);
    connect(scaling_, &QComboBox::activated, this, [this](int index) {
        choice_.scaling = static_cast<Scaling>(scaling_->itemData(index).toInt());
        Q_EMIT placementChanged(choice_);
    });
    connect(turn_, &QPushButton::clicked, this, [this] {
        choice_.turns = (choice_.turns + 1) % 4;
        Q_EMIT placementChanged(choice_);
    });
}

void PlacementBar::setPlacedByPrinter(bool isPlaced)
{
    const QString reason = isPlaced ? tr("This printer places the photo on the page itself.") : QString();
    scaling_->setToolTip(reason);
    turn_->setToolTip(isPlaced ? reason : turnHint_);
    for (QWidget *control : {static_cast<QWidget *>(scaling_), static_cast<QWidget *>(turn_)}) {
        control->setAccessibleDescription(control->toolTip());
        control->setEnabled(!isPlaced);
    }
}

void PlacementBar::setPlacement(const PlacementChoice &choice)
{
    choice_ = choice;
    scaling_->setCurrentIndex(scaling_->findData(static_cast<int>(choice.scaling)));
}

} // namespace printdialog
