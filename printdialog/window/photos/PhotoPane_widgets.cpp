// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HeightGrip.h"
#include "LayoutBar.h"
#include "PageBar.h"
#include "PhotoPane.h"
#include "PhotoTable.h"
#include "PlacementBar.h"
#include "PreviewBar.h"
#include "PreviewWidget.h"
#include "PrintBar.h"
#include "ScreenProfiles.h"
#include "WatchBar.h"
#include "WrappingRow.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

constexpr QSize smallestPreview(120, 100);

} // namespace

void PhotoPane::nameWidgets()
{
    preview_->setMinimumSize(smallestPreview);
    preview_->setObjectName(QStringLiteral("preview"));
    table_->setObjectName(QStringLiteral("photoTable"));
    grip_->setObjectName(QStringLiteral("tableGrip"));
    grip_->setAccessibleName(tr("Height of the table"));
    grip_->setToolTip(tr("Drag to see more or fewer pictures"));
    for (QLabel *label : {planNote_, caption_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
    planNote_->setObjectName(QStringLiteral("planNote"));
    caption_->setObjectName(QStringLiteral("photoLabel"));
    add_->setObjectName(QStringLiteral("addPhoto"));
    add_->setAutoDefault(false);
    add_->setToolTip(
        tr("Add photos and PDF documents to this job; they can be dropped on the window as well"));
    remove_->setObjectName(QStringLiteral("removePhoto"));
    remove_->setAutoDefault(false);
    remove_->setToolTip(tr("Take what is selected out of this job; the files stay"));
    eachPage_->setObjectName(QStringLiteral("eachPage"));
    eachPage_->setAutoDefault(false);
    eachPage_->setCheckable(true);
    eachPage_->setToolTip(
        tr("Show the pages as a table, in which they are moved, removed and placed one by one; "
           "otherwise what is chosen holds for all of them"));
    for (QPushButton *button : {add_, remove_, eachPage_})
        button->setAccessibleDescription(button->toolTip());
}

void PhotoPane::layOut()
{
    auto *row = new WrappingRow;
    row->addWidget(caption_);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(eachPage_);
    buttons->addWidget(add_);
    buttons->addWidget(remove_);
    row->addItem(buttons);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(preview_, 1);
    layout->addWidget(bar_);
    layout->addWidget(placement_);
    layout->addWidget(pages_);
    layout->addWidget(print_);
    layout->addWidget(layout_);
    layout->addWidget(watch_);
    layout->addWidget(planNote_);
    layout->addLayout(row);
    layout->addWidget(grip_);
    layout->addWidget(table_);
}

void PhotoPane::connectControls()
{
    const auto editSelected = [this](const ArrangementModel::Edit &edit, QWidget *control) {
        act(control, [this, &edit] { model_->editSelected(edit); });
    };
    connect(preview_, &PreviewWidget::placementChanged, this, &PhotoPane::place);
    connect(preview_, &PreviewWidget::photoPicked, this, [this](qsizetype index) {
        setCurrent(static_cast<int>(plan_.sheets().at(sheet_).photos.at(index).item));
    });
    connect(preview_, &PreviewWidget::sheetWanted, this, &PhotoPane::pickSheet);
    connect(bar_, &PreviewBar::proofingChanged, this, &PhotoPane::showColors);
    connect(screens_, &ScreenProfiles::changed, this, &PhotoPane::followScreen);
    connect(placement_, &PlacementBar::edited, this, editSelected);
    connect(placement_, &PlacementBar::moreWanted, this, [this](bool isWanted) {
        isMoreWanted_ = isWanted;
        showControls();
    });
    connect(pages_, &PageBar::pagesChosen, this, [this](const PageChoice &pages, QWidget *control) {
        act(control, [this, &pages] { model_->setPages(pages); });
    });
    connect(pages_, &PageBar::refused, this, &PhotoPane::refused);
    connect(eachPage_, &QPushButton::toggled, this, &PhotoPane::showControls);
    connect(print_, &PrintBar::edited, this, editSelected);
    connect(print_, &PrintBar::allWanted, this, [this] { act(print_, [this] { model_->applyToAll(); }); });
    connect(print_, &PrintBar::refused, this, &PhotoPane::refused);
    connect(layout_, &LayoutBar::layoutChosen, this, [this](const SheetLayout &layout, QWidget *control) {
        act(control, [this, &layout] { chooseLayout(layout); });
    });
    connect(opener_, &PhotoOpener::opened, this, &PhotoPane::append);
    // After the photos, since these are what the user sees first.
    connect(opener_, &PhotoOpener::finished, this, [this](PhotoOpener::Use use, const QStringList &failures) {
        const bool isOfList = use == PhotoOpener::Use::List || use == PhotoOpener::Use::RestOfList;
        if (isOfList && std::exchange(hasListPhotos_, false))
            model_->keep(arrangement());
        Q_EMIT photosChanged();
        if (!failures.isEmpty())
            Q_EMIT failed(use, failures);
    });
    connect(opener_, &PhotoOpener::paused, this, &PhotoPane::photosChanged);
    connect(opener_, &PhotoOpener::passwordWanted, this, &PhotoPane::askPassword);
    connect(add_, &QPushButton::clicked, this, &PhotoPane::browse);
    connect(remove_, &QPushButton::clicked, this,
            [this] { act(remove_, [this] { model_->removeSelected(); }); });
}

void PhotoPane::connectTable()
{
    connect(table_, &PhotoTable::removalWanted, this,
            [this] { act(table_, [this] { model_->removeSelected(); }); });
    connect(table_, &PhotoTable::moveWanted, this,
            [this](int before) { act(table_, [this, before] { model_->moveSelected(before); }); });
    connect(table_, &PhotoTable::stepWanted, this,
            [this](int step) { act(table_, [this, step] { model_->stepSelected(step); }); });
    connect(table_, &PhotoTable::menuWanted, this, &PhotoPane::showMenu);
    connect(grip_, &HeightGrip::heightWanted, table_, &PhotoTable::setWantedHeight);
    for (const auto change : {&ArrangementModel::photosChanged, &ArrangementModel::selectionChanged}) {
        connect(model_, change, this, [this] {
            show();
            Q_EMIT photosChanged();
        });
    }
    connect(model_, &ArrangementModel::placementChanged, this, [this] {
        updatePlan();
        showSheet();
        showControls();
        showCaption();
        Q_EMIT placementChanged();
    });
}

void PhotoPane::showMenu(const QPoint &globalPosition)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this](QMenu *to, const QString &text, const auto &change) {
        connect(to->addAction(text), &QAction::triggered, this, [this, change] { act(table_, change); });
    };
    add(menu, tr("Remove"), [this] { model_->removeSelected(); });
    menu->actions().constLast()->setShortcut(QKeySequence::Delete);
    add(menu, tr("Turn"), [this] { model_->editSelected(turnPhoto); });
    connect(menu->addAction(tr("Copies…", "of the selected photos")), &QAction::triggered, placement_,
            [this] {
                placement_->showMore();
                print_->beginCopies();
            });
    QMenu *sorting = menu->addMenu(tr("Sort by"));
    add(sorting, tr("Name", "an order of photos"), [this] { model_->sort(ArrangementModel::Order::Name); });
    add(sorting, tr("Date", "an order of photos"), [this] { model_->sort(ArrangementModel::Order::Date); });
    add(sorting, tr("As added", "an order of photos"),
        [this] { model_->sort(ArrangementModel::Order::Given); });
    menu->addSeparator();
    add(menu, tr("Select All"), [this] { model_->selectAll(); });
    menu->actions().constLast()->setShortcut(QKeySequence::SelectAll);
    add(menu, tr("Apply to All"), [this] { model_->applyToAll(); });
    menu->addSeparator();
    connect(menu->addAction(tr("Open List…", "of photos")), &QAction::triggered, this,
            &PhotoPane::browseList);
    QAction *save = menu->addAction(tr("Save List…", "of photos"));
    connect(save, &QAction::triggered, this, &PhotoPane::saveList);
    // A list names files, and what a program brings is none.
    save->setEnabled(std::ranges::none_of(
        photos(), [](const PlacedPhoto &placed) { return placed.photo.path().isEmpty(); }));
    menu->popup(globalPosition);
}

} // namespace printdialog
