// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"

#include "DroppedFiles.h"
#include "PhotoStrip.h"
#include "PhotoThreads.h"
#include "PlacementBar.h"
#include "PlacementText.h"
#include "PlainText.h"
#include "PreviewBar.h"
#include "PreviewWidget.h"
#include "ScreenProfiles.h"
#include "WrappingRow.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

constexpr QSize smallestPreview(120, 100);

} // namespace

PhotoPane::PhotoPane(QWidget *parent)
    : QWidget(parent)
    , preview_(new PreviewWidget(this))
    , bar_(new PreviewBar(preview_, this))
    , placement_(new PlacementBar(this))
    , caption_(new QLabel(this))
    , add_(new QPushButton(tr("A&dd…"), this))
    , remove_(new QPushButton(tr("Re&move"), this))
    , strip_(new PhotoStrip(this))
    , opener_(new PhotoOpener(this))
    , screens_(new ScreenProfiles(screenProfileProgram(), this))
{
    preview_->setMinimumSize(smallestPreview);
    preview_->setObjectName(QStringLiteral("preview"));
    strip_->setObjectName(QStringLiteral("strip"));
    caption_->setObjectName(QStringLiteral("photoLabel"));
    caption_->setTextFormat(Qt::PlainText);
    caption_->setWordWrap(true);
    add_->setObjectName(QStringLiteral("addPhoto"));
    add_->setAutoDefault(false);
    add_->setToolTip(tr("Add photos to this job; they can be dropped on the window as well"));
    remove_->setObjectName(QStringLiteral("removePhoto"));
    remove_->setAutoDefault(false);
    remove_->setToolTip(tr("Take the photo that is shown out of this job; its file stays"));
    for (QPushButton *button : {add_, remove_})
        button->setAccessibleDescription(button->toolTip());

    caption_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *row = new WrappingRow;
    row->addWidget(caption_);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(add_);
    buttons->addWidget(remove_);
    row->addItem(buttons);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(preview_, 1);
    layout->addWidget(bar_);
    layout->addWidget(placement_);
    layout->addLayout(row);
    layout->addWidget(strip_);
    setAcceptDrops(true);

    connect(preview_, &PreviewWidget::placementChanged, this, &PhotoPane::place);
    connect(preview_, &PreviewWidget::photoPicked, this, [this](qsizetype index) {
        setCurrent(static_cast<int>(sheets_.at(sheet_).photos.at(index).item));
    });
    connect(preview_, &PreviewWidget::sheetWanted, this, [this](int number) {
        sheet_ = number;
        setCurrent(static_cast<int>(sheets_.at(number).photos.constFirst().item));
    });
    connect(bar_, &PreviewBar::proofingChanged, this, &PhotoPane::showColors);
    connect(screens_, &ScreenProfiles::changed, this, &PhotoPane::followScreen);
    connect(placement_, &PlacementBar::placementChanged, this, &PhotoPane::place);
    connect(strip_, &PhotoStrip::picked, this, &PhotoPane::setCurrent);
    connect(strip_, &PhotoStrip::removalWanted, this, &PhotoPane::removePhoto);
    connect(strip_, &PhotoStrip::moveWanted, this, &PhotoPane::movePhoto);
    connect(opener_, &PhotoOpener::opened, this, &PhotoPane::append);
    // After the photos, since these are what the user sees first.
    connect(opener_, &PhotoOpener::finished, this, [this](PhotoOpener::Use use, const QStringList &failures) {
        Q_EMIT photosChanged();
        if (!failures.isEmpty())
            Q_EMIT failed(use, failures);
    });
    connect(add_, &QPushButton::clicked, this, &PhotoPane::browse);
    connect(remove_, &QPushButton::clicked, this, [this] { removePhoto(current_); });
    show();
}

void PhotoPane::setPhotos(const QList<Photo> &photos, const PlacementChoice &placement,
                          const QStringList &furtherPaths)
{
    initial_ = placement;
    arrangement_.photos.clear();
    for (const Photo &photo : photos) {
        arrangement_.photos.append({photo, placement});
        check(photo);
    }
    current_ = arrangement_.photos.isEmpty() ? -1 : 0;
    show();
    opener_->open(furtherPaths, PhotoOpener::Use::Initial);
}

void PhotoPane::setPage(const PageGeometry &page)
{
    page_ = page;
    preview_->setPage(page);
    showSheet();
    showCaption();
}

void PhotoPane::setPlacedByPrinter(bool isPlaced)
{
    if (isPlaced == isPlacedByPrinter_)
        return;
    isPlacedByPrinter_ = isPlaced;
    placement_->setPlacedByPrinter(isPlaced);
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

void PhotoPane::addFiles(const QStringList &paths)
{
    opener_->open(paths, PhotoOpener::Use::Added);
}

void PhotoPane::append(const PhotoOpener::Batch &batch)
{
    const PlacementChoice &like = current_ < 0 ? initial_ : arrangement_.photos.at(current_).placement;
    const PlacementChoice placement = batch.use == PhotoOpener::Use::Initial
                                          ? initial_
                                          : PlacementChoice{like.scaling, 0, PlacementChoice().crop};
    const auto first = static_cast<int>(arrangement_.photos.size());
    for (const Photo &photo : batch.photos) {
        arrangement_.photos.append({photo, placement});
        check(photo);
    }
    const bool showsIt = current_ < 0 || (batch.use == PhotoOpener::Use::Added && batch.isFirst);
    setCurrent(showsIt ? first : current_);
}

QString PhotoPane::failureText(const QStringList &sentences)
{
    constexpr int most = 3;
    QStringList lines = sentences.first(qMin<qsizetype>(most, sentences.size()));
    if (const auto others = static_cast<int>(sentences.size() - lines.size()); others > 0)
        lines += tr("%n more file(s) cannot be printed.", nullptr, others);
    return lines.join(u'\n');
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
                if (self)
                    self->showCaption();
            });
        },
        CheckedPhoto);
}

QList<int> PhotoPane::damagedPhotos() const
{
    QList<int> damaged;
    for (int i = 0; i < static_cast<int>(arrangement_.photos.size()); ++i) {
        const PlacedPhoto &placed = arrangement_.photos.at(i);
        if (!placed.isAccepted && placed.photo.isChecked() && placed.photo.damage())
            damaged.append(i);
    }
    return damaged;
}

void PhotoPane::acceptDamagedPhotos()
{
    const QList<int> damaged = damagedPhotos();
    for (const int index : damaged)
        arrangement_.photos[index].isAccepted = true;
}

void PhotoPane::removePhoto(int index)
{
    if (index < 0 || index >= arrangement_.photos.size())
        return;
    arrangement_.photos.removeAt(index);
    if (current_ > index || current_ == arrangement_.photos.size())
        --current_;
    show();
    Q_EMIT photosChanged();
}

void PhotoPane::movePhoto(int from, int to)
{
    if (from == to || std::min(from, to) < 0 || std::max(from, to) >= arrangement_.photos.size())
        return;
    arrangement_.photos.move(from, to);
    current_ = to;
    show();
    Q_EMIT photosChanged();
}

void PhotoPane::setCurrent(int index)
{
    current_ = index;
    show();
    Q_EMIT photosChanged();
}

void PhotoPane::place(const PlacementChoice &choice)
{
    if (current_ < 0 || arrangement_.photos.at(current_).placement == choice)
        return;
    arrangement_.photos[current_].placement = choice;
    showSheet();
    placement_->setPlacement(choice);
    showCaption();
    Q_EMIT placementChanged();
}

bool PhotoPane::isReady() const
{
    return !isOpening() && (arrangement_.photos.isEmpty() || (preview_->isReady() && strip_->isReady()));
}

// Inside a scroll area, requests only the minimum height: the preview shrinks before anything scrolls.
int PhotoPane::heightForWidth(int width) const
{
    return layout()->minimumHeightForWidth(width);
}

void PhotoPane::browse()
{
    const QString folder =
        current_ < 0 ? QString() : QFileInfo(arrangement_.photos.at(current_).photo.path()).path();
    const QStringList paths = QFileDialog::getOpenFileNames(this, tr("Add Photos"), folder);
    if (!paths.isEmpty())
        addFiles(paths);
}

void PhotoPane::show()
{
    const PlacedPhoto shown = current_ < 0 ? PlacedPhoto() : arrangement_.photos.at(current_);
    const PlacementChoice placement = isPlacedByPrinter_ ? PlacementChoice() : shown.placement;
    showSheet();
    placement_->setPlacement(placement);
    placement_->setEnabled(current_ >= 0);
    remove_->setEnabled(current_ >= 0);
    QList<Photo> several; // a single photo needs no strip, and no thumbnail
    for (const PlacedPhoto &placed : std::as_const(arrangement_.photos)) {
        if (arrangement_.photos.size() > 1)
            several.append(placed.photo);
    }
    strip_->setPhotos(several, several.isEmpty() ? -1 : current_);
    strip_->setVisible(!several.isEmpty());
    showCaption();
}

/// The sheet with the current photo: the one that is shown, if it is on it.
void PhotoPane::showSheet()
{
    if (current_ < 0 || page_.printed().isEmpty()) {
        const Photo photo = current_ < 0 ? Photo() : arrangement_.photos.at(current_).photo;
        sheets_.clear();
        preview_->setSheetNumber(0, 0);
        return current_ < 0 ? preview_->setSheet({}, -1)
                            : preview_->setSheet({photo.fileName(), {{photo}}}, 0);
    }
    const Arrangement shown = isPlacedByPrinter_ ? arrangement_.unplaced() : arrangement_;
    const SheetPlan plan = shown.plan(page_);
    sheets_ = plan.sheets();
    const auto placeOn = [this](const LaidSheet &sheet) {
        const auto laid = std::ranges::find(sheet.photos, qsizetype(current_), &LaidPhoto::item);
        return laid == sheet.photos.end() ? -1 : laid - sheet.photos.begin();
    };
    if (sheet_ >= sheets_.size() || placeOn(sheets_.at(sheet_)) < 0)
        sheet_ = std::max<qsizetype>(0, plan.sheetWith(current_));
    preview_->setSheetNumber(static_cast<int>(sheet_), static_cast<int>(sheets_.size()));
    preview_->setSheet(shown.sheet(sheets_.at(sheet_)), placeOn(sheets_.at(sheet_)),
                       shown.photos.at(current_).placement);
}

void PhotoPane::showCaption()
{
    QStringList lines;
    if (current_ >= 0) {
        const Photo &photo = arrangement_.photos.at(current_).photo;
        const QString name = plainText(photo.fileName(), shownTextLimit);
        lines += arrangement_.photos.size() == 1
                     ? name
                     : tr("%1 (%2 of %3)").arg(name).arg(current_ + 1).arg(arrangement_.photos.size());
        if (photo.isChecked() && photo.damage())
            lines += tr("Damaged: a part of the picture is missing or wrong.");
        if (isPlacedByPrinter_)
            lines += tr("The printer places it on the page itself; the preview is only an example.");
        else if (const auto placement = preview_->placement())
            lines += placementText(photo, *placement, arrangement_.photos.at(current_).placement, page_);
    }
    caption_->setText(lines.join(u'\n'));
}

// Photos from other programs

void PhotoPane::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PhotoPane::dropEvent(QDropEvent *event)
{
    const QStringList paths = droppedFiles(*event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    addFiles(paths);
}

} // namespace printdialog
