// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomPageFields.h"

#include "TextFieldEvents.h"
#include "WrappingRow.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace {

constexpr int fieldCharacters = 8;

} // namespace

CustomPageFields::CustomPageFields(QWidget *parent)
    : QWidget(parent)
    , unit_(new QLabel(this))
    , rangeText_(new QLabel(this))
{
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    auto *row = new WrappingRow;
    lines->addLayout(row);
    for (const Side side : {Width, Height}) {
        CustomParameter &parameter = parameters_.at(side);
        parameter.kind = CustomParameter::Kind::Points;
        auto *label = new QLabel(side == Width ? tr("Width:") : tr("Height:"), this);
        auto *field = new QLineEdit(this);
        fields_.at(side) = field;
        label->setBuddy(field);
        label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        field->setObjectName(side == Width ? QStringLiteral("pageWidth") : QStringLiteral("pageHeight"));
        field->setFixedWidth(field->fontMetrics().averageCharWidth() * fieldCharacters +
                             field->sizeHint().height());
        auto *labelled = new QHBoxLayout;
        labelled->addWidget(label);
        labelled->addWidget(field);
        if (side == Height)
            labelled->addWidget(unit_);
        labelled->addStretch(1);
        row->addItem(labelled);
        auto *events = pdekit::TextFieldEvents::attach(field);
        connect(events, &pdekit::TextFieldEvents::textDidChange, this, [this, side] { apply(side); });
        connect(events, &pdekit::TextFieldEvents::textDidEndEditing, this,
                [this, side] { applyAtEnd(side); });
    }
    rangeText_->setObjectName(QStringLiteral("pageRange"));
    rangeText_->setTextFormat(Qt::PlainText);
    rangeText_->setForegroundRole(QPalette::PlaceholderText);
    lines->addWidget(rangeText_); // beside the fields it would take the width from the preview
    hide();
}

void CustomPageFields::setRange(const std::optional<CustomPageRange> &range)
{
    hide();
    if (!range)
        return;
    const auto set = [this](Side side, double smallest, double largest) {
        parameters_.at(side).minimum = smallest;
        parameters_.at(side).maximum = largest;
        // The unit is beside the second field only.
        fields_.at(side)->setAccessibleName(
            (side == Width ? tr("Width (%1)", "and its unit") : tr("Height (%1)", "and its unit"))
                .arg(lengthUnit()));
        fields_.at(side)->setAccessibleDescription(allowedText(parameters_.at(side)));
    };
    set(Width, range->smallest.width(), range->largest.width());
    set(Height, range->smallest.height(), range->largest.height());
    unit_->setText(lengthUnit());
    rangeText_->setText(tr("%1 to %2", "the smallest and the largest size")
                            .arg(pageSizeText(range->smallest), pageSizeText(range->largest)));
}

QSizeF CustomPageFields::nearest(const QSizeF &points) const
{
    const auto shown = [this](Side side, double length) {
        const CustomParameter &parameter = parameters_.at(side);
        const double inRange = std::clamp(length, parameter.minimum, parameter.maximum);
        return typedValue(parameter, lengthNumber(inRange)).value_or(QString::number(inRange)).toDouble();
    };
    return {shown(Width, points.width()), shown(Height, points.height())};
}

void CustomPageFields::showSize(const QSizeF &points)
{
    points_ = points;
    for (const Side side : {Width, Height}) {
        constexpr double rounding = 0.02; // points: choices are in hundredths of a millimeter
        const auto said = typed(side);
        if (!said || std::abs(*said - length(side)) > rounding)
            fields_.at(side)->setText(lengthNumber(length(side)));
    }
}

void CustomPageFields::begin()
{
    fields_.at(Width)->setFocus(Qt::OtherFocusReason);
    fields_.at(Width)->selectAll();
}

bool CustomPageFields::finish()
{
    return !isVisibleTo(parentWidget()) || (applyAtEnd(Width) && applyAtEnd(Height));
}

double CustomPageFields::length(Side side) const
{
    return side == Width ? points_.width() : points_.height();
}

std::optional<double> CustomPageFields::typed(Side side) const
{
    const auto value = typedValue(parameters_.at(side), fields_.at(side)->text());
    return value ? std::optional(value->toDouble()) : std::nullopt;
}

/// The other side stays what it is, even where its field shows it rounded.
void CustomPageFields::apply(Side side)
{
    const auto said = typed(side);
    if (!said)
        return;
    QSizeF points = points_;
    (side == Width ? points.rwidth() : points.rheight()) = *said;
    Q_EMIT sizeTyped(points, fields_.at(side));
}

bool CustomPageFields::applyAtEnd(Side side)
{
    QLineEdit *field = fields_.at(side);
    const bool isPossible = typed(side).has_value();
    const bool isEmpty = field->text().trimmed().isEmpty();
    field->setText(lengthNumber(length(side)));
    if (isPossible || isEmpty)
        return true;
    const QString text = side == Width ? tr("The width can be %1.", "from one length to another")
                                       : tr("The height can be %1.", "from one length to another");
    Q_EMIT refused(text.arg(allowedText(parameters_.at(side))), field);
    return false;
}

} // namespace printdialog
