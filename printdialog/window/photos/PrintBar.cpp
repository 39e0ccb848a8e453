// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintBar.h"

#include "CommonValue.h"
#include "CustomPageFields.h"
#include "LabelledRow.h"
#include "MixedSpinBox.h"
#include "OptionSource.h"
#include "WrappingRow.h"

#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace printdialog {

namespace {

constexpr int wholePage = -1;
constexpr int customSize = -2;
constexpr int shortestSize = 10; // characters of the size that a narrow window shows
constexpr double percent = 100;

} // namespace

PrintBar::PrintBar(QWidget *parent)
    : QWidget(parent)
    , size_(new QComboBox(this))
    , customSize_(new CustomPageFields(this))
    , scale_(new MixedSpinBox(this))
    , border_(new MixedSpinBox(this))
    , borderColor_(new QPushButton(this))
    , copies_(new MixedSpinBox(this))
    , all_(new QPushButton(tr("Apply to All"), this))
{
    addSizes();
    scale_->setObjectName(QStringLiteral("photoScale"));
    scale_->setLimits(qRound(PlacementChoice::leastScale * percent),
                      qRound(PlacementChoice::mostScale * percent));
    scale_->setSuffix(tr(" %", "after a number"));
    border_->setObjectName(QStringLiteral("borderWidth"));
    border_->setLengths(0, PhotoBorder::widest);
    borderColor_->setObjectName(QStringLiteral("borderColor"));
    borderColor_->setAutoDefault(false);
    borderColor_->setAccessibleName(tr("Color of the border"));
    borderColor_->setToolTip(borderColor_->accessibleName());
    copies_->setObjectName(QStringLiteral("photoCopies"));
    copies_->setLimits(1, mostPhotoCopies);
    copies_->setToolTip(tr("How often each of the selected photos is printed; Copies counts the whole job"));
    copies_->setAccessibleDescription(copies_->toolTip());
    all_->setObjectName(QStringLiteral("applyToAll"));
    all_->setAutoDefault(false);
    all_->setToolTip(
        tr("Give all photos the placement, size, border and number of prints of the one that is shown"));
    all_->setAccessibleDescription(all_->toolTip());

    auto *row = new WrappingRow;
    row->addItem(labelledRow(tr("Print size:"), {size_}, this));
    row->addItem(labelledRow(tr("Scale:"), {scale_}, this));
    row->addItem(labelledRow(tr("Border:"), {border_, borderColor_}, this));
    row->addItem(labelledRow(tr("Prints of each:"), {copies_}, this));
    row->addWidget(all_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(row);
    layout->addWidget(customSize_);
    QWidget *before = size_;
    for (QWidget *next :
         std::initializer_list<QWidget *>{customSize_->fields().at(0), customSize_->fields().at(1), scale_,
                                          border_, borderColor_, copies_, all_}) {
        setTabOrder(before, next);
        before = next;
    }

    connect(scale_, &MixedSpinBox::entered, this, [this] {
        const double scale = scale_->number() / percent;
        Q_EMIT edited([scale](PlacedPhoto &photo) { photo.placement.scale = scale; }, scale_);
    });
    connect(border_, &MixedSpinBox::entered, this, [this] {
        const double width = border_->number();
        Q_EMIT edited([width](PlacedPhoto &photo) { photo.placement.border.width = width; }, border_);
    });
    connect(copies_, &MixedSpinBox::entered, this, [this] {
        const int copies = qRound(copies_->number());
        Q_EMIT edited([copies](PlacedPhoto &photo) { photo.copies = copies; }, copies_);
    });
    connect(borderColor_, &QPushButton::clicked, this, &PrintBar::chooseColor);
    connect(all_, &QPushButton::clicked, this, &PrintBar::allWanted);
}

void PrintBar::addSizes()
{
    size_->setObjectName(QStringLiteral("printSize"));
    size_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    size_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    size_->setMinimumContentsLength(shortestSize);
    size_->setPlaceholderText(severalText());
    size_->addItem(tr("Whole page"), wholePage);
    const auto known = KnownPrintSize::all();
    for (std::size_t i = 0; i < known.size(); ++i)
        size_->addItem(known[i].text(), static_cast<int>(i));
    size_->addItem(tr("Custom…", "a print's size to type"), customSize);
    const double least = PrintSize::shortestSide;
    const double most = PrintSize::longestSide;
    customSize_->setRange(CustomPageRange{QSizeF(least, least), QSizeF(most, most)});
    customSize_->setObjectName(QStringLiteral("customPrint"));
    customSize_->fields().at(0)->setObjectName(QStringLiteral("printWidth"));
    customSize_->fields().at(1)->setObjectName(QStringLiteral("printHeight"));
    connect(size_, &QComboBox::activated, this, &PrintBar::chooseSize);
    connect(customSize_, &CustomPageFields::refused, this, &PrintBar::refused);
    connect(customSize_, &CustomPageFields::sizeTyped, this, [this](const QSizeF &points, QLineEdit *field) {
        typedFrom_ = points;
        Q_EMIT edited(
            [points](PlacedPhoto &photo) {
                photo.placement.size = PrintSize{points, false};
            },
            field);
    });
}

void PrintBar::chooseSize(int index)
{
    const int choice = size_->itemData(index).toInt();
    isTyping_ = choice == customSize;
    if (isTyping_) {
        customSize_->showSize(typedFrom_);
        customSize_->show();
        customSize_->begin();
        return;
    }
    std::optional<PrintSize> size;
    if (choice != wholePage)
        size = KnownPrintSize::all()[static_cast<std::size_t>(choice)].size;
    customSize_->hide();
    Q_EMIT edited([size](PlacedPhoto &photo) { photo.placement.size = size; }, size_);
}

void PrintBar::setPlacedByPrinter(bool isPlaced)
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{size_, customSize_, scale_, border_, borderColor_})
        control->setEnabled(!isPlaced);
}

void PrintBar::beginCopies()
{
    copies_->setFocus(Qt::OtherFocusReason);
    copies_->selectAll();
}

bool PrintBar::finish()
{
    return customSize_->finish();
}

QList<QWidget *> PrintBar::fields() const
{
    return {customSize_->fields().at(0), customSize_->fields().at(1), scale_, border_, copies_};
}

void PrintBar::showPhotos(const ArrangementModel &photos)
{
    const PlacedPhoto *current = photos.currentPhoto();
    if (!current)
        return;
    const auto show = [&photos, current](MixedSpinBox *box, const auto &read) {
        box->show(read(*current), !commonValue(photos, read));
    };
    show(scale_, [](const PlacedPhoto &photo) { return photo.placement.scale * percent; });
    show(copies_, [](const PlacedPhoto &photo) { return static_cast<double>(photo.copies); });
    show(border_, [](const PlacedPhoto &photo) { return photo.placement.border.width; });
    showSize(photos);
    showBorder(photos);
    all_->setEnabled(photos.count() > 1);
}

void PrintBar::showSize(const ArrangementModel &photos)
{
    if (shownSelection_ != photos.selection())
        isTyping_ = false;
    shownSelection_ = photos.selection();
    const auto size = commonValue(photos, [](const PlacedPhoto &photo) { return photo.placement.size; });
    const auto known = KnownPrintSize::all();
    const auto same = std::ranges::find_if(
        known, [&size](const KnownPrintSize &one) { return size && *size && one.size == **size; });
    const bool isCustom = isTyping_ || (size && *size && same == known.end());
    if (isCustom)
        size_->setCurrentIndex(size_->findData(customSize));
    else if (!size)
        size_->setCurrentIndex(-1);
    else
        size_->setCurrentIndex(*size ? size_->findData(static_cast<int>(same - known.begin())) : 0);
    constexpr QSizeF usual(100 * pointsPerMillimeter, 150 * pointsPerMillimeter);
    typedFrom_ = photos.currentPhoto()->placement.size.value_or(PrintSize{usual}).points;
    if (isCustom)
        customSize_->showSize(typedFrom_);
    customSize_->setVisible(isCustom);
}

void PrintBar::showBorder(const ArrangementModel &photos)
{
    const PhotoBorder border = photos.currentPhoto()->placement.border;
    color_ = QColor::fromRgb(border.color);
    const int side = fontMetrics().ascent();
    QPixmap swatch(side * 2, side);
    swatch.fill(color_);
    borderColor_->setIcon(QIcon(swatch));
    borderColor_->setIconSize(swatch.size());
    borderColor_->setEnabled(border_->isEnabled() && border.isThere());
}

void PrintBar::chooseColor()
{
    auto *dialog = new QColorDialog(color_, this);
    dialog->setObjectName(QStringLiteral("borderColorDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(borderColor_->accessibleName());
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor &color) {
        Q_EMIT edited([rgb = color.rgb()](PlacedPhoto &photo) { photo.placement.border.color = rgb; },
                      borderColor_);
    });
    dialog->show();
}

} // namespace printdialog
