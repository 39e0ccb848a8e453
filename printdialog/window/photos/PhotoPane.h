// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementModel.h"
#include "PhotoOpener.h"
#include "PictureAdjustment.h"
#include "PrintList.h"
#include "SheetPlan.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace printdialog {

class HeightGrip;
class LayoutBar;
class PageBar;
class PhotoTable;
class PlacementBar;
class PreviewBar;
class PreviewWidget;
class PrintBar;
class ScreenProfiles;
class WatchBar;

/// What a printer does to every photo.
struct PrinterPicture
{
    /// By its own options; nothing when it does not say.
    std::optional<PictureAdjustment> adjustment = {};
    double dotsPerInch = 300;
    QByteArray paperProfile = {}; ///< the ICC profile of its paper; empty when it names none
};

/// The photos of a job: the current one on its page with its placement, and all of them as a table. What the
/// user does here is done with the selected photos of the model. Photos are added by a button or dropped from
/// another program. They are opened, and then checked for damage, on a worker thread.
class PhotoPane : public QWidget
{
    Q_OBJECT

public:
    explicit PhotoPane(QWidget *parent = nullptr);

    /// Sets the initial photos, all with the same placement; later ones are placed like the current one.
    /// Further initial photos are opened, and appended.
    void setPhotos(const QList<Photo> &photos, const ArrangementStyle &style,
                   const QStringList &furtherPaths = {}, const PageChoice &pages = {});
    /// Whether files are still being opened.
    bool isOpening() const { return opener_->isBusy(); }
    /// The sentences about files that cannot be printed, or the first ones and the number of the others.
    static QString failureText(const QStringList &sentences);
    /// Sets the initial photos, each as it is wanted.
    /// @param locked those that need a password, which follow once it is given
    void setArrangement(const Arrangement &arrangement, const QList<PrintList::Entry> &locked = {});
    /// Offers the choice of pages and the layouts of documents without one: a program brings its pages
    /// afterwards. See PageBar::setOffered().
    void offerPages(bool hasCurrent, bool hasSelection);
    /// Shows where pages will lie that are still to come, and a text about that. No photos can be added.
    /// @param size of the pages, in points; empty: that of the paper
    void awaitPages(const QString &text, const QSizeF &size);
    const QList<PlacedPhoto> &photos() const { return model_->photos(); }
    const Arrangement &arrangement() const { return model_->arrangement(); }
    ArrangementModel *model() const { return model_; }
    WatchBar *watchBar() const { return watch_; }
    void setPage(const PageGeometry &page);
    /// Whether the printer places the photos itself, whatever their placement is. The preview is then only an
    /// example, and says so.
    void setPlacedByPrinter(bool isPlaced);
    void setPrinterPicture(const PrinterPicture &picture);

    /// Opens the files and appends those that are photos. A print list takes the place of all photos instead.
    void addFiles(const QStringList &paths);
    void openList(const QString &path);
    /// Asks for a file, and saves the photos there as a print list.
    void saveList();
    void setCurrent(int index) { model_->setCurrent(index); }
    int current() const { return model_->current(); }
    /// Replaces the placement of the current photo.
    void place(const PlacementChoice &choice);

    /// The indexes of the photos that are known to be damaged and that the user has not accepted.
    QList<int> damagedPhotos() const;
    /// Accepts the damaged photos: they are printed as they are.
    void acceptDamagedPhotos();

    /// Which photo lies on which sheet; without sheets until a page is set.
    const SheetPlan &plan() const { return plan_; }
    /// Why the photos cannot be printed as they are wanted: a sentence; empty when they can.
    QString whyNotPrintable() const;
    /// Ends what is being typed. False when it is not possible; refused() then says so.
    bool finishTyping();
    /// Widgets in which more than one event belongs to an act of the user's.
    QList<QWidget *> fields() const;

    /// Whether everything in sight is decoded for the preview and the table.
    bool isReady() const;

    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// Photos were added, removed or moved, or another one is current, or the last file was opened.
    void photosChanged();
    /// A photo's placement has changed, how the photos share sheets, or which pages are printed.
    void placementChanged();
    /// The user has chosen the layout of a booklet; acted() follows.
    void bookletChosen();
    /// The sheets are others, or whyNotPrintable() is.
    void planChanged();
    /// The user begins something of which more may follow.
    void actBegins();
    /// The user has done something with the photos, by the control.
    void acted(QWidget *control);
    /// A text that cannot be used was typed into the field: a sentence for people.
    void refused(const QString &text, QLineEdit *field);
    /// The photos are saved as a print list.
    void listSaved(const QString &path);
    /// Some of the files to be opened cannot be printed: a sentence for each.
    void failed(printdialog::PhotoOpener::Use use, const QStringList &sentences);

protected:
    void showEvent(QShowEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void nameWidgets();
    void layOut();
    void connectControls();
    void connectTable();
    void act(QWidget *control, const std::function<void()> &change);
    void browse();
    void append(const PhotoOpener::Batch &batch);
    void appendOfList(const PhotoOpener::Batch &batch);
    void askPassword(const QString &path, bool isRefused);
    void browseList();
    void saveListTo(const QString &path);
    void check(const Photo &photo);
    void show();
    void showSheet();
    void pickSheet(int number);
    void showControls();
    void showPageControls();
    void showExpectedPages();
    void chooseLayout(const SheetLayout &layout);
    bool isTableWanted() const;
    QString sheetsText(const Arrangement &planned) const;
    QString nameText() const;
    void showCaption();
    void updatePlan();
    void showMenu(const QPoint &globalPosition);
    void showColors();
    void followScreen();

    ArrangementModel *model_;
    PreviewWidget *preview_;
    PreviewBar *bar_;
    PlacementBar *placement_;
    PageBar *pages_;
    PrintBar *print_;
    LayoutBar *layout_;
    WatchBar *watch_;
    QLabel *planNote_;
    QLabel *caption_;
    QPushButton *eachPage_; ///< shows the table of a document's pages
    QPushButton *add_;
    QPushButton *remove_;
    PhotoTable *table_;
    HeightGrip *grip_;
    PhotoOpener *opener_;
    bool hasListPhotos_ = false; ///< of a list that is being opened
    PageGeometry page_;
    SheetPlan plan_;
    qsizetype sheet_ = 0; ///< the one that is shown
    ScreenProfiles *screens_;
    QByteArray screenProfile_; ///< of the screen that shows the window
    QByteArray paperProfile_;
    bool isPlacedByPrinter_ = false;
    bool isMoreWanted_ = false;
    bool arePagesOffered_ = false;
    /// Pages that are still to come.
    struct AwaitedPages
    {
        QString text;
        QSizeF size;
    };
    std::optional<AwaitedPages> awaited_;
    QString expectedFailure_; ///< Why the pages that a program will bring cannot be printed.
};

} // namespace printdialog
