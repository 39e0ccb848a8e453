// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlacementBar.h"

#include "ArrangementText.h"
#include "CommonValue.h"
#include "WrappingRow.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace printdialog {

namespace {

constexpr int shortestScaling = 8; // characters of the placement that a narrow window shows

} // namespace

void turnPhoto(PlacedPhoto &photo)
{
    photo.placement.turns = (photo.placement.turns + 1) % 4;
}

PlacementBar::PlacementBar(QWidget *parent)
    : QWidget(parent)
    , scaling_(new QComboBox(this))
    , turn_(new QPushButton(tr("&Turn"), this))
    , more_(new QToolButton(this))
{
    auto *label = new QLabel(tr("P&lacement:"), this);
    label->setBuddy(scaling_);
    scaling_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    scaling_->setObjectName(QStringLiteral("scaling"));
    scaling_->setAccessibleName(tr("Placement on the paper"));
    scaling_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    scaling_->setMinimumContentsLength(shortestScaling);
    scaling_->setPlaceholderText(severalText());
    for (const Scaling scaling : {Scaling::Fit, Scaling::Fill, Scaling::ActualSize})
        scaling_->addItem(scalingText(scaling), static_cast<int>(scaling));
    turn_->setObjectName(QStringLiteral("turn"));
    turn_->setAutoDefault(false);
    turnHint_ = tr("Turn the photo or page by a quarter, clockwise");
    more_->setObjectName(QStringLiteral("more"));
    more_->setText(tr("More"));
    more_->setCheckable(true);
    more_->setArrowType(Qt::DownArrow);
    more_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    more_->setFocusPolicy(Qt::TabFocus);
    more_->setToolTip(tr("Size, border and copies of the photos, and how they share sheets"));
    more_->setAccessibleDescription(more_->toolTip());
    setPlacedByPrinter(false);
    auto *labelled = new QHBoxLayout;
    labelled->addWidget(label);
    labelled->addWidget(scaling_, 1);
    auto *layout = new WrappingRow(this);
    layout->addItem(labelled);
    layout->addWidget(turn_);
    layout->addWidget(more_);
    connect(scaling_, &QComboBox::activated, this, [this](int index) {
        const auto scaling = static_cast<Scaling>(scaling_->itemData(index).toInt());
        Q_EMIT edited([scaling](PlacedPhoto &photo) { photo.placement.scaling = scaling; }, scaling_);
    });
    connect(turn_, &QPushButton::clicked, this, [this] { Q_EMIT edited(turnPhoto, turn_); });
    connect(more_, &QToolButton::toggled, this, [this](bool areWanted) {
        more_->setArrowType(areWanted ? Qt::UpArrow : Qt::DownArrow);
        Q_EMIT moreWanted(areWanted);
    });
}

void PlacementBar::setPlacedByPrinter(bool isPlaced)
{
    isPlacedByPrinter_ = isPlaced;
    const QString reason = isPlaced ? tr("This printer places the photo on the page itself.") : QString();
    scaling_->setToolTip(reason);
    turn_->setToolTip(isPlaced ? reason : turnHint_);
    for (QWidget *control : {static_cast<QWidget *>(scaling_), static_cast<QWidget *>(turn_)}) {
        control->setAccessibleDescription(control->toolTip());
    }
    enable();
}

void PlacementBar::enable()
{
    for (QWidget *control : {static_cast<QWidget *>(scaling_), static_cast<QWidget *>(turn_)})
        control->setEnabled(hasPhotos_ && !isPlacedByPrinter_);
}

void PlacementBar::showMore()
{
    more_->setChecked(true);
}

void PlacementBar::showPhotos(const ArrangementModel &photos)
{
    hasPhotos_ = photos.count() > 0;
    enable();
    if (!hasPhotos_)
        return;
    const auto scaling =
        commonValue(photos, [](const PlacedPhoto &photo) { return photo.placement.scaling; });
    scaling_->setCurrentIndex(scaling ? scaling_->findData(static_cast<int>(*scaling)) : -1);
}

} // namespace printdialog
