// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"

#include "ArrangementText.h"
#include "LayoutBar.h"
#include "PageBar.h"
#include "PlainText.h"
#include "PreviewWidget.h"
#include "PrintBar.h"
#include "WatchBar.h"

#include <QtCore/QLocale>
#include <QtWidgets/QPushButton>

#include <algorithm>

// Pages of documents.

namespace printdialog {

void PhotoPane::offerPages(bool hasCurrent, bool hasSelection)
{
    arePagesOffered_ = true;
    pages_->setOffered(hasCurrent, hasSelection);
    pages_->setCurrentPage(0);
    showControls();
}

void PhotoPane::showPageControls()
{
    const qsizetype pages = arrangement().pageCount();
    // One page that is left out by a choice for more of them needs the controls, too.
    const bool isChosen = pages > 0 && arrangement().pages != PageChoice();
    const bool hasPages = pages > 1 || isChosen || arePagesOffered_;
    if (!arePagesOffered_) {
        const PlacedPhoto *current = model_->currentPhoto();
        const bool isPage = current && current->photo.document();
        // A page's number holds for each document, and no number leaves out a photo.
        const bool isAlone = isPage && model_->isOneDocument();
        pages_->setOffered(isAlone || arrangement().pages.which == PageChoice::Which::Current, false);
        pages_->setCurrentPage(isPage ? current->photo.page() + 1 : 1);
    }
    pages_->setChoice(arrangement().pages);
    pages_->setVisible(hasPages);
    layout_->setContent(model_->count() > pages || !hasPages, hasPages);
    layout_->setCompact(!isMoreWanted_);
    layout_->showLayout(arrangement().layout);
    layout_->setVisible(isMoreWanted_ || hasPages);
    print_->setVisible(isMoreWanted_);
    watch_->setVisible(isMoreWanted_);
    eachPage_->setVisible(model_->isOneDocument() && pages > 1);
}

/// Those of the first side, as if there were enough of them. What is not possible with them is said before
/// the program brings its own.
void PhotoPane::showExpectedPages()
{
    expectedFailure_.clear();
    constexpr int enough = std::ranges::max(SheetLayout::pagesPerSheetChoices);
    QList<PreviewWidget::ExpectedPage> pages;
    if (model_->count() == 0 && !page_.printed().isEmpty()) {
        const SheetLayout &layout = arrangement().layout;
        const QSizeF size = awaited_->size.isEmpty() ? page_.size : awaited_->size;
        const int count = layout.kind == SheetLayout::Kind::Booklet ? 4 : enough;
        const LayoutItem page{size, pointsPerInch, model_->style().placement, 1, true};
        const SheetPlan plan = SheetPlan::make(QList<LayoutItem>(count, page), layout, page_);
        if (plan.failure())
            expectedFailure_ = plan.failure()->text;
        for (const LaidPhoto &laid : plan.sheets().constFirst().photos)
            pages += PreviewWidget::ExpectedPage{laid.placement, static_cast<int>(laid.item) + 1};
    }
    preview_->setExpectedPages(pages);
}

void PhotoPane::chooseLayout(const SheetLayout &layout)
{
    const bool isBooklet = layout.kind == SheetLayout::Kind::Booklet;
    const bool begins = isBooklet && arrangement().layout.kind != layout.kind;
    model_->setLayout(layout);
    if (begins)
        Q_EMIT bookletChosen();
}

/// A single photo needs no table, and no thumbnail. The pages of a document are turned in the preview.
bool PhotoPane::isTableWanted() const
{
    return model_->count() > 1 && (!model_->isOneDocument() || eachPage_->isChecked());
}

QString PhotoPane::sheetsText(const Arrangement &planned) const
{
    const QString count = QLocale().toString(plan_.paperCount());
    const QString beyond = pagesBeyondText(planned);
    const QString sheets = planned.layout.kind == SheetLayout::Kind::Booklet
                               ? tr("Sides of sheets: %1").arg(count)
                               : tr("Sheets: %1").arg(count);
    return beyond.isEmpty() ? sheets : sheets + QLatin1String(". ") + beyond;
}

/// Of the current photo, and which one of how many it is.
QString PhotoPane::nameText() const
{
    const Photo &photo = model_->currentPhoto()->photo;
    const QString name = plainText(photo.name(), shownTextLimit);
    if (model_->count() == 1)
        return name;
    if (model_->isOneDocument() && photo.document()->pageCount() == model_->count())
        return tr("%1, page %2 of %3")
            .arg(plainText(photo.fileName(), shownTextLimit), QString::number(photo.page() + 1),
                 QString::number(model_->count()));
    return tr("%1 (%2 of %3)")
        .arg(name, QString::number(model_->current() + 1), QString::number(model_->count()));
}

} // namespace printdialog
