// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "PhotoOpener.h"
#include "PhotoPlacement.h"
#include "PictureAdjustment.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <optional>

class QLabel;
class QMimeData;
class QPushButton;

namespace printdialog {

class PhotoStrip;
class PlacementBar;
class PreviewBar;
class PreviewWidget;
class ScreenProfiles;

/// What a printer does to every photo.
struct PrinterPicture
{
    /// By its own options; nothing when it does not say.
    std::optional<PictureAdjustment> adjustment = {};
    double dotsPerInch = 300;
    QByteArray paperProfile = {}; ///< the ICC profile of its paper; empty when it names none
};

/// The photos of a job: the current one on its page with its placement, and all of them as a strip. Photos
/// are added by a button or dropped from another program. They are opened, and then checked for damage, on a
/// worker thread.
class PhotoPane : public QWidget
{
    Q_OBJECT

public:
    explicit PhotoPane(QWidget *parent = nullptr);

    /// Sets the initial photos, all with the same placement; later ones are placed like the current one.
    /// Further initial photos are opened, and appended.
    void setPhotos(const QList<Photo> &photos, const PlacementChoice &placement,
                   const QStringList &furtherPaths = {});
    /// Whether files are still being opened.
    bool isOpening() const { return opener_->isBusy(); }
    /// The sentences about files that cannot be printed, or the first ones and the number of the others.
    static QString failureText(const QStringList &sentences);
    const QList<PlacedPhoto> &photos() const { return arrangement_.photos; }
    const Arrangement &arrangement() const { return arrangement_; }
    void setPage(const PageGeometry &page);
    /// Whether the printer places the photos itself, whatever their placement is. The preview is then only an
    /// example, and says so.
    void setPlacedByPrinter(bool isPlaced);
    void setPrinterPicture(const PrinterPicture &picture);

    /// Opens the files and appends those that are photos.
    void addFiles(const QStringList &paths);
    void removePhoto(int index);
    void movePhoto(int from, int to);
    void setCurrent(int index);
    int current() const { return current_; }
    /// Replaces the placement of the current photo.
    void place(const PlacementChoice &choice);

    /// The indexes of the photos that are known to be damaged and that the user has not accepted.
    QList<int> damagedPhotos() const;
    /// Accepts the damaged photos: they are printed as they are.
    void acceptDamagedPhotos();

    /// Whether everything is decoded for the preview and the strip.
    bool isReady() const;

    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// Photos were added, removed or moved, or another one is current, or the last file was opened.
    void photosChanged();
    /// A photo's placement has changed.
    void placementChanged();
    /// Some of the files to be opened cannot be printed: a sentence for each.
    void failed(printdialog::PhotoOpener::Use use, const QStringList &sentences);

protected:
    void showEvent(QShowEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void browse();
    void append(const PhotoOpener::Batch &batch);
    void check(const Photo &photo);
    void show();
    void showSheet();
    void showCaption();
    void showColors();
    void followScreen();

    PreviewWidget *preview_;
    PreviewBar *bar_;
    PlacementBar *placement_;
    QLabel *caption_;
    QPushButton *add_;
    QPushButton *remove_;
    PhotoStrip *strip_;
    PhotoOpener *opener_;
    Arrangement arrangement_;
    PlacementChoice initial_;
    PageGeometry page_;
    ScreenProfiles *screens_;
    QByteArray screenProfile_; ///< of the screen that shows the window
    QByteArray paperProfile_;
    bool isPlacedByPrinter_ = false;
    int current_ = -1;        ///< -1 without photos
    qsizetype sheet_ = 0;     ///< the one that is shown
    QList<LaidSheet> sheets_; ///< of the plan that is shown
};

} // namespace printdialog
