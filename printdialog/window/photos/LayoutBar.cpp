// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LayoutBar.h"

#include "LabelledRow.h"
#include "MixedSpinBox.h"
#include "WrappingRow.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace printdialog {

namespace {

constexpr int shortestKind = 10; // characters of the layout that a narrow window shows

using Kind = SheetLayout::Kind;

/// Controls that are shown and hidden together with their label.
QWidget *group(const QString &text, std::initializer_list<QWidget *> controls, QWidget *parent)
{
    auto *group = new QWidget(parent);
    QHBoxLayout *row = labelledRow(text, controls, group);
    row->setContentsMargins({});
    group->setLayout(row);
    return group;
}

} // namespace

LayoutBar::LayoutBar(QWidget *parent)
    : QWidget(parent)
    , kind_(new QComboBox(this))
    , rows_(new MixedSpinBox(this))
    , columns_(new MixedSpinBox(this))
    , stripPhotos_(new MixedSpinBox(this))
    , caption_(new QComboBox(this))
    , repeats_(new QCheckBox(tr("Repeat each photo"), this))
    , gap_(new MixedSpinBox(this))
    , marks_(new QCheckBox(tr("Cut marks"), this))
{
    kind_->setObjectName(QStringLiteral("layoutKind"));
    kind_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    kind_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    kind_->setMinimumContentsLength(shortestKind);
    kind_->addItem(tr("One photo per sheet"), static_cast<int>(Kind::Single));
    kind_->addItem(tr("Rows and columns"), static_cast<int>(Kind::Grid));
    kind_->addItem(tr("As many as fit"), static_cast<int>(Kind::ManyOfSize));
    kind_->addItem(tr("Contact sheet"), static_cast<int>(Kind::Contact));
    kind_->addItem(tr("Two strips"), static_cast<int>(Kind::Strips));
    rows_->setObjectName(QStringLiteral("layoutRows"));
    columns_->setObjectName(QStringLiteral("layoutColumns"));
    columns_->setAccessibleName(tr("Columns"));
    for (MixedSpinBox *box : {rows_, columns_})
        box->setLimits(1, SheetLayout::mostRows);
    stripPhotos_->setObjectName(QStringLiteral("stripPhotos"));
    stripPhotos_->setLimits(SheetLayout::leastStripPhotos, SheetLayout::mostStripPhotos);
    caption_->setObjectName(QStringLiteral("caption"));
    caption_->addItem(tr("None", "a caption"), static_cast<int>(Caption::None));
    caption_->addItem(tr("Name", "a caption"), static_cast<int>(Caption::FileName));
    caption_->addItem(tr("Date", "a caption"), static_cast<int>(Caption::Date));
    caption_->addItem(tr("Name and date", "a caption"), static_cast<int>(Caption::Both));
    repeats_->setObjectName(QStringLiteral("repeats"));
    repeats_->setToolTip(tr("A photo fills its sheet, or the second strip repeats the first, instead of the "
                            "next ones following"));
    repeats_->setAccessibleDescription(repeats_->toolTip());
    gap_->setObjectName(QStringLiteral("gap"));
    gap_->setLengths(0, SheetLayout::widestGap);
    marks_->setObjectName(QStringLiteral("cutMarks"));

    auto *row = new WrappingRow(this);
    row->addItem(labelledRow(tr("Layout:"), {kind_}, this));
    row->addWidget(group(tr("Rows × columns:"), {rows_, columns_}, this));
    row->addWidget(group(tr("Photos per strip:"), {stripPhotos_}, this));
    row->addWidget(group(tr("Captions:"), {caption_}, this));
    row->addWidget(repeats_);
    row->addWidget(group(tr("Gap:"), {gap_}, this));
    row->addWidget(marks_);
    QWidget *before = kind_;
    for (QWidget *next :
         std::initializer_list<QWidget *>{rows_, columns_, stripPhotos_, caption_, repeats_, gap_, marks_}) {
        setTabOrder(before, next);
        before = next;
    }
    connectControls();
    showLayout({});
}

void LayoutBar::connectControls()
{
    const auto choose = [this](QWidget *control, const auto &change) {
        SheetLayout layout = layout_;
        change(layout);
        Q_EMIT layoutChosen(layout, control);
    };
    connect(kind_, &QComboBox::activated, this, [this] {
        const auto kind = static_cast<Kind>(kind_->currentData().toInt());
        if (kind != layout_.kind) // the same one keeps its numbers
            Q_EMIT layoutChosen(SheetLayout::usual(kind), kind_);
    });
    const auto connectNumber = [&](MixedSpinBox *box, int SheetLayout::*number) {
        connect(box, &MixedSpinBox::entered, this, [this, choose, box, number] {
            choose(box, [&](SheetLayout &layout) { layout.*number = qRound(box->number()); });
        });
    };
    connectNumber(rows_, &SheetLayout::rows);
    connectNumber(columns_, &SheetLayout::columns);
    connectNumber(stripPhotos_, &SheetLayout::stripPhotos);
    connect(gap_, &MixedSpinBox::entered, this,
            [this, choose] { choose(gap_, [this](SheetLayout &layout) { layout.gap = gap_->number(); }); });
    connect(caption_, &QComboBox::activated, this, [this, choose] {
        choose(caption_, [this](SheetLayout &layout) {
            layout.caption = static_cast<Caption>(caption_->currentData().toInt());
        });
    });
    const auto connectSwitch = [&](QCheckBox *box, bool SheetLayout::*flag) {
        connect(box, &QCheckBox::clicked, this, [choose, box, flag] {
            choose(box, [&](SheetLayout &layout) { layout.*flag = box->isChecked(); });
        });
    };
    connectSwitch(repeats_, &SheetLayout::isRepeated);
    connectSwitch(marks_, &SheetLayout::hasCutMarks);
}

void LayoutBar::showLayout(const SheetLayout &layout)
{
    layout_ = layout;
    const Kind kind = layout.kind;
    kind_->setCurrentIndex(kind_->findData(static_cast<int>(kind)));
    rows_->show(layout.rows);
    columns_->show(layout.columns);
    stripPhotos_->show(layout.stripPhotos);
    gap_->show(layout.gap);
    caption_->setCurrentIndex(caption_->findData(static_cast<int>(layout.caption)));
    repeats_->setChecked(layout.isRepeated);
    marks_->setChecked(layout.hasCutMarks);
    rows_->parentWidget()->setVisible(kind == Kind::Grid || kind == Kind::Contact);
    stripPhotos_->parentWidget()->setVisible(kind == Kind::Strips);
    caption_->parentWidget()->setVisible(kind != Kind::ManyOfSize && kind != Kind::Strips);
    repeats_->setVisible(kind == Kind::Grid || kind == Kind::ManyOfSize || kind == Kind::Strips);
    gap_->parentWidget()->setVisible(kind != Kind::Single);
    marks_->setVisible(kind != Kind::Contact);
}

QList<QWidget *> LayoutBar::fields() const
{
    return {rows_, columns_, stripPhotos_, gap_};
}

} // namespace printdialog
