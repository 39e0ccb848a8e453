// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "JobSummary.h"
#include "Photo.h"
#include "PrintJob.h"
#include "PrintList.h"
#include "PrinterDescription.h"
#include "ProgramDocument.h"
#include "Queue.h"
#include "QueueFault.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

class QLineEdit;

namespace Ui {
class PrintDialog;
}

namespace printdialog {

class CheckedPpd;
class ChoiceController;
class FolderController;
class DialogSession;
class IppAttributes;
class PictureController;
class PrintPositionWindow;
class PrinterController;
class PrintingController;

/// The arguments that a print dialog is opened with.
struct PrintDialogSetup
{
    QList<Photo> photos;
    QStringList furtherPaths;  ///< files of further photos, opened while the window is there
    PageChoice pages = {};     ///< of documents among the photos
    QStringList photoFailures; ///< a sentence for each photo that could not be opened
    PanelMode mode = PanelMode::Constraint;
    std::optional<Destination> printer;     ///< the default one when empty
    std::optional<QString> ppdFile;         ///< for the built-in printer, in place of its own
    QList<QPair<QString, QString>> options; ///< initial choices, in order
    std::optional<int> copies;              ///< initial number
    QString outputFolder;                   ///< where the built-in printer leaves its files
    bool remembers = true;                 ///< open with the printer used last, and remember the one used now
    std::optional<ArrangementStyle> style; ///< initial arrangement; that of the printer's last use when empty
    std::optional<Arrangement> arrangement;     ///< the initial photos of a print list, in place of `photos`
    QList<PrintList::Entry> lockedEntries = {}; ///< of the list, those whose documents need a password
    /// What is chosen becomes the job of a program's document, and is not printed from here.
    std::optional<ProgramDocument> program = std::nullopt;
};

/// The print dialog: the photo on its page, the printer, and the panels of the printer's plug-in. It works at
/// once with the built-in printer, unless a queue is requested by name or as the user's default (LPDEST,
/// PRINTER, lpoptions). Then it prints on another printer only if the user chooses it. The queue used last is
/// shown at once, with its panels, and can be printed on once the print server has confirmed it. Answers from
/// a print server arrive later and block nothing.
class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PrintDialog(const PrintDialogSetup &setup, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Sets the window's size, and its position where the desktop leaves that to programs: those of an
    /// earlier run (WindowPlacement), or else the size hint. The window never exceeds the screen.
    void restorePlacement(const QByteArray &geometry);

    /// Starts looking for the print server's queues. When the requested one is not among them, the window
    /// says so and offers the built-in printer.
    void searchPrinters();

    /// The id of the printer that is shown; empty while the requested one is being looked for.
    QString printer() const;
    /// Whether the printer's options are loaded and it can print.
    bool isReady() const;
    /// Why printing is not possible now; empty when it is.
    QString whyNotReady() const;
    /// The text in the message bar; empty when there is none.
    QString message() const;

    int pageCount() const;
    void showPage(int page);
    /// See PanelTabs::kindSuffix.
    QString pageKindSuffix(int page) const;
    /// Whether the photo's preview is complete.
    bool isPreviewReady() const;

    /// Closes the window and what belongs to it at once, without a question: the program for whose document
    /// it is has gone.
    void abandon();

public Q_SLOTS:
    void print();
    void saveSettings();
    /// Closes the window; while it prints, it first asks whether to stop.
    void reject() override;

Q_SIGNALS:
    /// In place of printing a program's document: how it is to be printed, and the session with the choices.
    /// The window is about to be closed.
    void prepared(const printdialog::PreparedPrint &print, const printdialog::DialogSession &session);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // The printer and its session
    void followPrinter();
    void clearMessage();
    void showUnusable();
    void showFolder(bool isBuiltIn);
    void closeSession();
    void showSession();
    void useAttributes(const IppAttributes &attributes);
    void showReplacement(const QMap<QString, QString> &choices, bool hadAttributes);
    void showPanelFailure(const QString &sentence);
    enum class Requested { All, OfJob };
    bool applyOptions(Requested which = Requested::All);

    // A program's document
    bool awaitsPages() const;
    void showProgram();
    void prepare();

    // The page
    void fillPageSizes();
    void choosePageSize(int index);
    void chooseTypedSize(const QSizeF &points, QLineEdit *field);
    void showPageSize();
    void showPosition();
    void updatePosition();

    void proposeBookletSides();

    // The buttons
    bool pageStays();
    void closeUnlessPageStays();
    void closeUnlessWorkIsLost();
    void cancelOrStop();
    void updateButtons();

    SummaryEntries summary() const;
    void showPhoto();
    void watchFolder(bool isWanted);
    void nameDocuments();
    void showPhotoFailures(const QStringList &sentences);
    void browseFolder();
    OutputFolder outputFolder() const;
    void showHelp();
    void showJobs();

    PrintDialogSetup setup_;
    std::unique_ptr<Ui::PrintDialog> ui_;
    std::unique_ptr<PrinterController> printer_;
    ChoiceController *choices_ = nullptr;
    PictureController *picture_ = nullptr;
    PrintingController *printing_ = nullptr;
    FolderController *folder_ = nullptr;
    PrintPositionWindow *position_ = nullptr; ///< null before it is first opened
    bool asksToLose_ = false; ///< the question in the message bar is whether to lose the photos' arrangement
    int listedSizes_ = 0;     ///< the items of the paper-size list before those for a custom size
};

} // namespace printdialog
