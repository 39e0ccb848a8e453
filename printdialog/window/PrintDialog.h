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
class PpdFetcher;
class PrintingController;
struct RememberedQueue;

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
    QString printer() const { return queue_.id(); }
    /// Whether the printer's options are there, and it can be printed on.
    bool isReady() const { return session_ != nullptr && whyNotReady_.isEmpty(); }
    /// Why it cannot print; empty when it can.
    QString whyNotReady() const { return whyNotReady_; }
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
    // The printer
    std::optional<RememberedQueue> firstPrinter();
    void openFirstPrinter(const std::optional<RememberedQueue> &remembered);
    void openPrinter(const Queue &queue);
    void openRemembered(const RememberedQueue &remembered);
    void takeUpdate(const Queue &queue);
    void takeSearchFailure(const QString &text);
    void showUnusable(const QString &reason);
    void remember();
    bool wasChosenHere() const;
    void awaitOptions(const QString &id);
    void showFolder(bool isBuiltIn);
    void takePpd(quint64 number, const CheckedPpd &ppd);
    void takePpdFailure(QueueFault reason, const QString &text);
    void confirm();
    void reopen(std::unique_ptr<DialogSession> session);
    void takeSession(std::unique_ptr<DialogSession> session);
    void closeSession(const QString &reason);
    bool applyOptions();
    void showPanelFailure(const QString &sentence);
    void clearMessage();

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
    std::unique_ptr<DialogSession> session_;
    ChoiceController *choices_;
    PpdFetcher *fetcher_;
    PrintingController *printing_ = nullptr;
    QString builtInPreset_; ///< the built-in printer is asked for with it; mostly empty
    Queue queue_;           ///< the printer that is shown
    QString whyNotReady_;   ///< why Print is off; empty when it is on
};

} // namespace printdialog
