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

bool isOfPages(const SheetLayout &layout)
{
    return layout.kind == Kind::Pages || layout.kind == Kind::Booklet;
}

/// Of layouts that differ only in what has controls of its own.
QString kindText(const SheetLayout &layout)
{
    SheetLayout usual = SheetLayout::usual(layout.kind);
    usual.pagesPerSheet = layout.pagesPerSheet;
    return usual.toText();
}

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
    fillKinds();
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
    connect(kind_, &QComboBox::activated, this, &LayoutBar::chooseKind);
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

void LayoutBar::fillKinds()
{
    kind_->clear();
    const auto add = [this](const QString &text, Kind kind) {
        kind_->addItem(text, SheetLayout::usual(kind).toText());
    };
    add(!hasPages_   ? tr("One photo per sheet")
        : hasPhotos_ ? tr("One photo or page per sheet")
                     : tr("One page per sheet"),
        Kind::Single);
    if (hasPages_ || isOfPages(layout_)) {
        SheetLayout pages = SheetLayout::usual(Kind::Pages);
        for (const int count : SheetLayout::pagesPerSheetChoices) {
            pages.pagesPerSheet = count;
            kind_->addItem(tr("%n page(s) per sheet", nullptr, count), pages.toText());
        }
        add(tr("Booklet"), Kind::Booklet);
    }
    add(tr("Rows and columns"), Kind::Grid);
    add(tr("As many as fit"), Kind::ManyOfSize);
    add(tr("Contact sheet"), Kind::Contact);
    add(tr("Two strips"), Kind::Strips);
}

/// The same kind keeps its numbers.
void LayoutBar::chooseKind()
{
    const auto chosen = SheetLayout::fromText(kind_->currentData().toString());
    if (!chosen || kindText(*chosen) == kindText(layout_))
        return;
    SheetLayout layout = chosen->kind == layout_.kind ? layout_ : *chosen;
    layout.pagesPerSheet = chosen->pagesPerSheet;
    Q_EMIT layoutChosen(layout, kind_);
}

void LayoutBar::setContent(bool hasPhotos, bool hasPages)
{
    if (hasPhotos == hasPhotos_ && hasPages == hasPages_)
        return;
    hasPhotos_ = hasPhotos;
    hasPages_ = hasPages;
    fillKinds();
    showLayout(layout_);
}

void LayoutBar::setCompact(bool isCompact)
{
    isCompact_ = isCompact;
    showLayout(layout_);
}

void LayoutBar::showLayout(const SheetLayout &layout)
{
    const bool isListed = kind_->findData(kindText(layout)) >= 0;
    layout_ = layout;
    if (!isListed)
        fillKinds();
    const Kind kind = layout.kind;
    kind_->setCurrentIndex(kind_->findData(kindText(layout)));
    rows_->show(layout.rows);
    columns_->show(layout.columns);
    stripPhotos_->show(layout.stripPhotos);
    gap_->show(layout.gap);
    caption_->setCurrentIndex(caption_->findData(static_cast<int>(layout.caption)));
    repeats_->setChecked(layout.isRepeated);
    marks_->setChecked(layout.hasCutMarks);
    rows_->parentWidget()->setVisible(kind == Kind::Grid || kind == Kind::Contact);
    stripPhotos_->parentWidget()->setVisible(kind == Kind::Strips);
    caption_->parentWidget()->setVisible(!isCompact_ && kind != Kind::ManyOfSize && kind != Kind::Strips &&
                                         kind != Kind::Booklet);
    repeats_->setVisible(kind == Kind::Grid || kind == Kind::ManyOfSize || kind == Kind::Strips);
    gap_->parentWidget()->setVisible(!isCompact_ && kind != Kind::Single && kind != Kind::Booklet);
    marks_->setVisible(!isCompact_ && kind != Kind::Contact && !isOfPages(layout));
}

QList<QWidget *> LayoutBar::fields() const
{
    return {rows_, columns_, stripPhotos_, gap_};
}

} // namespace printdialog
