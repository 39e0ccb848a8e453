// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"

#include "HeightGrip.h"
#include "LayoutBar.h"
#include "PageBar.h"
#include "PhotoTable.h"
#include "PhotoThreads.h"
#include "PlacementBar.h"
#include "PlacementText.h"
#include "PlainText.h"
#include "PreviewBar.h"
#include "PreviewWidget.h"
#include "PrintBar.h"
#include "ScreenProfiles.h"
#include "WatchBar.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <utility>

namespace printdialog {

PhotoPane::PhotoPane(QWidget *parent)
    : QWidget(parent)
    , model_(new ArrangementModel(this))
    , preview_(new PreviewWidget(this))
    , bar_(new PreviewBar(preview_, this))
    , placement_(new PlacementBar(this))
    , pages_(new PageBar(this))
    , print_(new PrintBar(this))
    , layout_(new LayoutBar(this))
    , watch_(new WatchBar(this))
    , planNote_(new QLabel(this))
    , caption_(new QLabel(this))
    , eachPage_(new QPushButton(tr("Show Each Page"), this))
    , add_(new QPushButton(tr("A&dd…"), this))
    , remove_(new QPushButton(tr("Re&move"), this))
    , table_(new PhotoTable(model_, this))
    , grip_(new HeightGrip(table_, this))
    , opener_(new PhotoOpener(this))
    , screens_(new ScreenProfiles(screenProfileProgram(), this))
{
    nameWidgets();
    layOut();
    connectControls();
    connectTable();
    setAcceptDrops(true);
    show();
}

/// Makes a change, which is one act of the user's.
void PhotoPane::act(QWidget *control, const std::function<void()> &change)
{
    change();
    Q_EMIT acted(control);
}

void PhotoPane::setPhotos(const QList<Photo> &photos, const ArrangementStyle &style,
                          const QStringList &furtherPaths, const PageChoice &pages)
{
    Arrangement arrangement;
    arrangement.pages = pages;
    for (const Photo &photo : photos)
        arrangement.photos.append({photo});
    setArrangement(arrangement);
    model_->open(style);
    opener_->open(furtherPaths, PhotoOpener::Use::Initial);
}

void PhotoPane::setArrangement(const Arrangement &arrangement, const QList<PrintList::Entry> &locked)
{
    for (const PlacedPhoto &placed : arrangement.photos)
        check(placed.photo);
    model_->start(arrangement);
    opener_->open({{}, locked}, PhotoOpener::Use::RestOfList);
}

void PhotoPane::awaitPages(const QString &text, const QSizeF &size)
{
    setAcceptDrops(false);
    awaited_ = {text, size};
    for (QWidget *widget : QList<QWidget *>{bar_, placement_, add_, remove_})
        widget->hide();
    show();
}

void PhotoPane::setPage(const PageGeometry &page)
{
    page_ = page;
    preview_->setPage(page);
    updatePlan();
    showSheet();
    showCaption();
}

void PhotoPane::setPlacedByPrinter(bool isPlaced)
{
    if (isPlaced == isPlacedByPrinter_)
        return;
    isPlacedByPrinter_ = isPlaced;
    placement_->setPlacedByPrinter(isPlaced);
    print_->setPlacedByPrinter(isPlaced);
    layout_->setEnabled(!isPlaced);
    show();
}

void PhotoPane::setPrinterPicture(const PrinterPicture &picture)
{
    preview_->setDotsPerInch(picture.dotsPerInch);
    preview_->setAdjustment(picture.adjustment.value_or(PictureAdjustment()));
    bar_->setAdjustable(picture.adjustment.has_value());
    bar_->setRemarks(picture.adjustment ? picture.adjustment->remarks() : QStringList());
    bar_->setProofable(!picture.paperProfile.isEmpty());
    if (std::exchange(paperProfile_, picture.paperProfile) != picture.paperProfile)
        showColors();
}

void PhotoPane::showColors()
{
    preview_->setProfiles(screenProfile_, bar_->isProofing() ? paperProfile_ : QByteArray());
}

void PhotoPane::followScreen()
{
    screenProfile_ = screens_->profileOf(screen());
    showColors();
}

// The window has a screen once it is shown, and may be moved to another one.
void PhotoPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (const QWindow *shown = window()->windowHandle())
        connect(shown, &QWindow::screenChanged, this, &PhotoPane::followScreen, Qt::UniqueConnection);
    followScreen();
}

void PhotoPane::check(const Photo &photo)
{
    if (photo.isChecked())
        return;
    startPhotoTask(
        [photo, self = QPointer<PhotoPane>(this)] {
            if (!photo.damage())
                return;
            QMetaObject::invokeMethod(qApp, [self] {
                if (!self)
                    return;
                self->showCaption();
                self->table_->viewport()->update();
            });
        },
        CheckedPhoto);
}

QList<int> PhotoPane::damagedPhotos() const
{
    QList<int> damaged;
    for (int i = 0; i < model_->count(); ++i) {
        const PlacedPhoto &placed = photos().at(i);
        if (!placed.isAccepted && placed.photo.isChecked() && placed.photo.damage())
            damaged.append(i);
    }
    return damaged;
}

void PhotoPane::acceptDamagedPhotos()
{
    model_->accept(damagedPhotos());
}

void PhotoPane::place(const PlacementChoice &choice)
{
    act(preview_, [this, &choice] {
        model_->editCurrent([&choice](PlacedPhoto &photo) { photo.placement = choice; });
    });
}

QString PhotoPane::whyNotPrintable() const
{
    return plan_.failure() ? plan_.failure()->text : expectedFailure_;
}

bool PhotoPane::finishTyping()
{
    return print_->finish() && pages_->finish();
}

QList<QWidget *> PhotoPane::fields() const
{
    return QList<QWidget *>{preview_, add_} + print_->fields() + layout_->fields() + pages_->fields();
}

bool PhotoPane::isReady() const
{
    return !isOpening() && (photos().isEmpty() || (preview_->isReady() && table_->isReady()));
}

// Inside a scroll area, requests only the minimum height: the preview shrinks before anything scrolls.
int PhotoPane::heightForWidth(int width) const
{
    return layout()->minimumHeightForWidth(width);
}

void PhotoPane::show()
{
    updatePlan();
    showSheet();
    showControls();
    showCaption();
}

/// The sheet with the current photo: the one that is shown, if it is on it.
void PhotoPane::showSheet()
{
    const PlacedPhoto *current = model_->currentPhoto();
    if (!current || plan_.sheets().isEmpty()) {
        preview_->setSheetNumber(0, 0);
        return current ? preview_->setSheet({current->photo.fileName(), {{current->photo}}}, 0)
                       : preview_->setSheet({}, -1);
    }
    const QList<LaidSheet> &sheets = plan_.sheets();
    if (plan_.sheetWith(model_->current()) < 0) // a page that is not printed
        return preview_->setSheet(
            Arrangement{{*current}}.sheet(Arrangement{{*current}}.plan(page_).sheets().constFirst()), 0,
            current->placement);
    const auto placeOn = [this](const LaidSheet &sheet) {
        const auto laid = std::ranges::find(sheet.photos, qsizetype(model_->current()), &LaidPhoto::item);
        return laid == sheet.photos.end() ? -1 : laid - sheet.photos.begin();
    };
    if (sheet_ >= sheets.size() || placeOn(sheets.at(sheet_)) < 0)
        sheet_ = std::max<qsizetype>(0, plan_.sheetWith(model_->current()));
    preview_->setSheetNumber(static_cast<int>(sheet_), static_cast<int>(sheets.size()));
    preview_->setSheet(arrangement().sheet(sheets.at(sheet_)), placeOn(sheets.at(sheet_)),
                       isPlacedByPrinter_ ? PlacementChoice() : current->placement);
}

void PhotoPane::pickSheet(int number)
{
    sheet_ = number;
    const auto item = static_cast<int>(plan_.sheets().at(number).photos.constFirst().item);
    item == current() ? show() : setCurrent(item); // it may be on several sheets
}

void PhotoPane::showControls()
{
    model_->setPagesTogether(!isTableWanted());
    placement_->showPhotos(*model_);
    print_->showPhotos(*model_);
    showPageControls();
    // Sheets can be chosen, and a folder be watched, without a photo.
    print_->setEnabled(model_->count() > 0);
    remove_->setEnabled(model_->count() > 0);
    table_->setVisible(isTableWanted());
    grip_->setVisible(isTableWanted());
}

void PhotoPane::updatePlan()
{
    const Arrangement planned = isPlacedByPrinter_ ? arrangement().unplaced() : arrangement();
    plan_ = page_.printed().isEmpty() || planned.photos.isEmpty() ? SheetPlan() : planned.plan(page_);
    if (awaited_)
        showExpectedPages();
    const bool isUsual =
        planned.photos.isEmpty() || (arrangement().layout == SheetLayout() && model_->count() == 1);
    QString note = whyNotPrintable();
    if (note.isEmpty() && !isUsual && !isPlacedByPrinter_)
        note = sheetsText(planned);
    planNote_->setText(note);
    planNote_->setVisible(!note.isEmpty());
    Q_EMIT planChanged();
}

void PhotoPane::showCaption()
{
    if (const PlacedPhoto *placed = model_->currentPhoto())
        watch_->offer(QFileInfo(placed->photo.path()).absolutePath());
    QStringList lines;
    if (awaited_)
        lines += awaited_->text;
    if (const PlacedPhoto *current = model_->currentPhoto()) {
        const Photo &photo = current->photo;
        lines += nameText();
        if (!model_->isPrinted(*current))
            lines += tr("This page is not printed.");
        if (photo.isChecked() && photo.damage())
            lines += tr("Damaged: a part of the picture is missing or wrong.");
        if (isPlacedByPrinter_)
            lines += tr("The printer places it on the page itself; the preview is only an example.");
        else if (const auto placement = preview_->placement())
            lines += placementText(photo, *placement, current->placement, page_);
    }
    caption_->setText(lines.join(u'\n'));
}

} // namespace printdialog
