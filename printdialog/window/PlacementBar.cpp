// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlacementBar.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace printdialog {

PlacementBar::PlacementBar(QWidget *parent)
    : QWidget(parent)
    , scaling_(new QComboBox(this))
    , turn_(new QPushButton(tr("&Turn"), this))
{
    auto *label = new QLabel(tr("P&lacement:"), this);
    label->setBuddy(scaling_);
    scaling_->setObjectName(QStringLiteral("scaling"));
    scaling_->setAccessibleName(tr("Placement of the photo"));
    scaling_->addItem(tr("Fit on the page"), static_cast<int>(Scaling::Fit));
    scaling_->addItem(tr("Fill the page"), static_cast<int>(Scaling::Fill));
    scaling_->addItem(tr("Actual size"), static_cast<int>(Scaling::ActualSize));
    turn_->setObjectName(QStringLiteral("turn"));
    turn_->setAutoDefault(false);
    turn_->setToolTip(tr("Turn the photo on the page by a quarter, clockwise"));
    turn_->setAccessibleDescription(turn_->toolTip());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(scaling_, 1);
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

void PlacementBar::setPlacement(const PlacementChoice &choice)
{
    choice_ = choice;
    scaling_->setCurrentIndex(scaling_->findData(static_cast<int>(choice.scaling)));
}

} // namespace printdialog
