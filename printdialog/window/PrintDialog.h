// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "JobSummary.h"
#include "Photo.h"
#include "PhotoPlacement.h"
#include "PrintJob.h"
#include "PrinterDescription.h"
#include "Queue.h"
#include "QueueFault.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

namespace Ui {
class PrintDialog;
}

namespace printdialog {

class CheckedPpd;
class ChoiceController;
class DialogSession;
class PrinterController;
class PrintingController;

/// What a print dialog is opened with.
struct PrintDialogSetup
{
    QList<Photo> photos;
    QStringList photoFailures; ///< a sentence for each photo that could not be opened
    PanelMode mode = PanelMode::Constraint;
    std::optional<Destination> printer;     ///< without it the default
    std::optional<QString> ppdFile;         ///< for the built-in printer, instead of its own
    QList<QPair<QString, QString>> options; ///< choices to begin with, in order
    std::optional<int> copies;              ///< to begin with
    QString outputFolder;                   ///< where the built-in printer leaves its files
    bool remembers = true;     ///< open with the printer used last, and remember the one used now
    PlacementChoice placement; ///< of each photo, to begin with
};

/// The print dialog: the photo on its page, the printer, the panels of the printer's plug-in. It works at
/// once with the built-in printer, unless a queue is asked for by its name or as the user's default (LPDEST,
/// PRINTER, lpoptions): then it prints on no other one that the user has not chosen.
/// The queue used last is shown at once, with its panels, and can be printed on once the print server has
/// confirmed it. Whatever a print server has to say comes later and blocks nothing.
class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PrintDialog(const PrintDialogSetup &setup, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Gives the window its size, and its place where the desktop leaves that to programs: those of an
    /// earlier time (WindowPlacement), or else what its contents ask for; never more than the screen has room
    /// for.
    void restorePlacement(const QByteArray &geometry);

    /// Starts to look for the print server's queues. When the one asked for is not among them, the user is
    /// told, and offered the built-in printer.
    void searchPrinters();

    /// The id of the printer that is shown; empty while the one asked for is being looked for.
    QString printer() const;
    /// Whether the printer's options are there, and it can be printed on.
    bool isReady() const;
    /// Why it cannot print; empty when it can.
    QString whyNotReady() const;
    /// What the user is being told; empty when nothing is.
    QString message() const;

    int pageCount() const;
    void showPage(int page);
    /// See PanelTabs::kindSuffix.
    QString pageKindSuffix(int page) const;
    /// Whether the photo's preview is there.
    bool isPreviewReady() const;

public Q_SLOTS:
    void print();
    void saveSettings();
    /// Closes the window; while it prints it asks whether to stop that first.
    void reject() override;

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
    void showReplacement(const QMap<QString, QString> &choices);
    void showPanelFailure(const QString &sentence);
    bool applyOptions();

    // The page
    void fillPageSizes();
    void choosePageSize(int index);
    void showPageSize();

    // The buttons
    bool pageStays();
    void closeUnlessPageStays();
    void cancelOrStop();
    void updateButtons();

    SummaryEntries summary() const;
    void showPhoto();
    void browseFolder();
    void showHelp();

    PrintDialogSetup setup_;
    std::unique_ptr<Ui::PrintDialog> ui_;
    std::unique_ptr<PrinterController> printer_;
    ChoiceController *choices_ = nullptr;
    PrintingController *printing_ = nullptr;
};

} // namespace printdialog
