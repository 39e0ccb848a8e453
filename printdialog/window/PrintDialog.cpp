// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintDialog.h"

#include "ChoiceController.h"
#include "DialogSession.h"
#include "EscapeGuard.h"
#include "FolderController.h"
#include "GuardedPanel.h"
#include "HelpWindow.h"
#include "JobsWindow.h"
#include "LoginPrompt.h"
#include "PictureController.h"
#include "PlainText.h"
#include "PrinterController.h"
#include "PrintingController.h"
#include "TouchWatch.h"
#include "WatchBar.h"
#include "WrappingRow.h"
#include "ui_PrintDialog.h"

#include <QtCore/QDir>
#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLayout>

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

// In characters. A narrower window would change its size when the panels load; a wider one is not easier to
// read.
constexpr int narrowestSettings = 78;
constexpr int widestSettings = 110;
constexpr int panelHeight = 48; // pixels, of a desktop panel at the edge of the screen

} // namespace

PrintDialog::PrintDialog(const PrintDialogSetup &setup, QWidget *parent)
    : QDialog(parent)
    , setup_(setup)
    , ui_(std::make_unique<Ui::PrintDialog>())
    , printer_(std::make_unique<PrinterController>(
          PrinterController::Request{setup.printer, setup.ppdFile, setup.mode, setup.remembers}))
{
    ui_->setupUi(this);
    auto *buttons = new WrappingRow(ui_->buttons);
    buttons->addWidget(ui_->help);
    buttons->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    for (QPushButton *button : {ui_->save, ui_->cancel, ui_->print})
        buttons->addWidget(button);
    ui_->settingsSide->setReadableWidth(narrowestSettings, widestSettings);
    new EscapeGuard(this);
    new LoginPrompt(this);
    connect(ui_->printer, &QComboBox::activated, this, [] { Logins::ofRun().forgive(); });
    ui_->panels->setReservedKeys(ChoiceRefusals::offerTexts());
    for (const auto &[key, step] : {std::pair(QKeySequence(Qt::CTRL | Qt::Key_Tab), 1),
                                    std::pair(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), -1)})
        connect(new QShortcut(key, this), &QShortcut::activated, ui_->panels,
                [this, pages = step] { ui_->panels->turnPages(pages); });
    choices_ = new ChoiceController({this, ui_->panels, ui_->pageSize, ui_->copies, ui_->photos->model(),
                                     ui_->presetBar, ui_->undo, ui_->redo, ui_->message},
                                    this);
    picture_ = new PictureController(ui_->photos, this);
    printing_ = new PrintingController({ui_->photos, ui_->progress, ui_->message}, choices_, this);
    folder_ = new FolderController({ui_->photos, ui_->photos->watchBar(), ui_->message}, choices_, this);
    connect(ui_->photos->watchBar(), &WatchBar::switched, this, &PrintDialog::watchFolder);
    connect(printing_, &PrintingController::stateChanged, this, &PrintDialog::updateButtons);
    connect(printing_, &PrintingController::printRequested, this, &PrintDialog::print);
    connect(printing_, &PrintingController::closeRequested, this, [this] { QDialog::reject(); });
    connect(printing_, &PrintingController::dismissed, ui_->cancel,
            [this] { ui_->cancel->setFocus(Qt::OtherFocusReason); });
    connect(printing_, &PrintingController::printed, ui_->photos->model(), &ArrangementModel::keep);
    connect(printing_, &PrintingController::ppdChanged, printer_.get(), &PrinterController::renewOptions);
    ui_->folder->setText(QDir::toNativeSeparators(QDir(setup.outputFolder).absolutePath()));
    ui_->printer->setStaying(
        [this] { return pageStays() ? std::optional(printer_->queue().id()) : std::nullopt; });
    connect(ui_->pageSize, &QComboBox::activated, this, &PrintDialog::choosePageSize);
    connect(ui_->position, &QToolButton::clicked, this, &PrintDialog::showPosition);
    connect(ui_->customPage, &CustomPageFields::sizeTyped, this, &PrintDialog::chooseTypedSize);
    connect(ui_->customPage, &CustomPageFields::refused, choices_, &ChoiceController::refuse);
    for (QLineEdit *field : ui_->customPage->fields())
        choices_->watchField(field);
    connect(ui_->photos, &PhotoPane::actBegins, choices_, &ChoiceController::beginAct);
    connect(ui_->photos, &PhotoPane::acted, choices_, &ChoiceController::noteAct);
    connect(ui_->photos, &PhotoPane::refused, choices_, &ChoiceController::refuse);
    for (QWidget *field : ui_->photos->fields())
        choices_->watchField(field);
    connect(ui_->documents, &QComboBox::currentIndexChanged, this, [this] { showFolder(true); });
    connect(ui_->browse, &QPushButton::clicked, this, &PrintDialog::browseFolder);
    connect(ui_->panels, &PanelTabs::panelFailed, this,
            [this](const QString &text) { ui_->message->show(MessageBar::Kind::Error, text); });
    connect(ui_->panels, &PanelTabs::pageStayed, this,
            [this](const QString &text) { ui_->message->show(MessageBar::Kind::Warning, text); });
    connect(ui_->help, &QPushButton::clicked, this, &PrintDialog::showHelp);
    // Not QPushButton::setShortcut(): that would replace the letter underlined in the button's text.
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            &PrintDialog::showHelp);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this, &PrintDialog::print);
    connect(ui_->jobs, &QToolButton::clicked, this, &PrintDialog::showJobs);
    connect(printing_, &PrintingController::jobsRequested, this, &PrintDialog::showJobs);
    connect(ui_->save, &QPushButton::clicked, this, &PrintDialog::saveSettings);
    connect(ui_->cancel, &QPushButton::clicked, this, &PrintDialog::cancelOrStop);
    connect(ui_->print, &QPushButton::clicked, this, &PrintDialog::print);
    connect(new TouchWatch(this), &TouchWatch::touched, this, [this] { ui_->printer->selection().kept(); });
    ui_->panels->setSummary([this] { return summary(); });
    connect(choices_, &ChoiceController::stepsChanged, ui_->panels, &PanelTabs::updateSummary);
    connect(ui_->photos, &PhotoPane::placementChanged, ui_->panels, &PanelTabs::updateSummary);
    connect(ui_->photos, &PhotoPane::photosChanged, ui_->panels, &PanelTabs::updateSummary);
    connect(ui_->photos, &PhotoPane::photosChanged, this, &PrintDialog::showPhoto);
    connect(ui_->photos, &PhotoPane::placementChanged, this, &PrintDialog::nameDocuments);
    connect(ui_->photos, &PhotoPane::bookletChosen, this, &PrintDialog::proposeBookletSides);
    connect(ui_->photos, &PhotoPane::planChanged, this, &PrintDialog::updateButtons);
    connect(ui_->photos, &PhotoPane::listSaved, this, [this](const QString &path) {
        ui_->message->show(MessageBar::Kind::Information,
                           tr("The list is saved as \"%1\".").arg(plainText(path, shownTextLimit)));
    });
    connect(ui_->photos, &PhotoPane::failed, this,
            [this](PhotoOpener::Use use, const QStringList &sentences) {
                const bool isInitial = use == PhotoOpener::Use::Initial;
                if (isInitial)
                    setup_.photoFailures += sentences;
                showPhotoFailures(isInitial ? setup_.photoFailures : sentences);
            });
    if (setup.arrangement)
        ui_->photos->setArrangement(*setup.arrangement, setup.lockedEntries);
    else
        ui_->photos->setPhotos(setup.photos, setup.style.value_or(ArrangementStyle()), setup.furtherPaths,
                               setup.program ? setup.program->pages : setup.pages);
    showPhoto();
    if (setup.program)
        showProgram();
    followPrinter();
    printer_->start(ui_->printer);
    if (message().isEmpty())
        clearMessage();
}

PrintDialog::~PrintDialog()
{
    choices_->setSession(nullptr);
    ui_->panels->setSession(nullptr);
}

void PrintDialog::restorePlacement(const QByteArray &geometry)
{
    // Size hints from before the panels were loaded stay cached until the window is shown.
    const QList<QWidget *> contents = findChildren<QWidget *>();
    for (QWidget *widget : contents)
        widget->updateGeometry();
    layout()->activate();
    resize(size().expandedTo(sizeHint()));
    // restoreGeometry() refuses a placement from a screen that was much wider or narrower.
    const bool isRestored = !geometry.isEmpty() && restoreGeometry(geometry);
    if (isMaximized() || isFullScreen())
        return;
    QRect room = screen()->availableGeometry();
    room.setTop(room.top() + style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        room.setBottom(room.bottom() -
                       panelHeight); // Wayland does not report the space that the desktop reserves
    resize(size().boundedTo(room.size()));
    if (!isRestored)
        return; // the desktop chooses the position
    const QPoint lastPlace(room.right() + 1 - width(), room.bottom() + 1 - height());
    setGeometry(
        QRect(QPoint(std::clamp(x(), room.left(), lastPlace.x()), std::clamp(y(), room.top(), lastPlace.y())),
              size()));
}

void PrintDialog::searchPrinters()
{
    printer_->search();
}

QString PrintDialog::printer() const
{
    return printer_->queue().id();
}

bool PrintDialog::isReady() const
{
    return printer_->session() && printer_->whyNotReady().isEmpty();
}

QString PrintDialog::whyNotReady() const
{
    return printer_->whyNotReady();
}

QString PrintDialog::message() const
{
    const QString explanation = choices_->explanation();
    return explanation.isEmpty() ? ui_->message->text() : explanation;
}

int PrintDialog::pageCount() const
{
    return ui_->panels->count();
}

void PrintDialog::showPage(int page)
{
    ui_->panels->setCurrentIndex(page);
}

QString PrintDialog::pageKindSuffix(int page) const
{
    return ui_->panels->kindSuffix(page);
}

bool PrintDialog::isPreviewReady() const
{
    return ui_->photos->isReady();
}

SummaryEntries PrintDialog::summary() const
{
    const Arrangement &arrangement = ui_->photos->arrangement();
    return jobSummary(*printer_->session(), ui_->copies->value(), arrangement.placements(),
                      arrangement.layout, arrangement.pageCount() > 0 ? arrangement.pages : PageChoice());
}

void PrintDialog::showPhoto()
{
    const QList<PlacedPhoto> &photos = ui_->photos->photos();
    if (!setup_.program)
        setWindowTitle(
            photos.isEmpty()
                ? tr("Print", "a title")
                : tr("Print %1").arg(plainText(photos.at(ui_->photos->current()).photo.fileName())));
    nameDocuments();
    updateButtons();
}

/// The choice between one PDF and several names what each of these has.
void PrintDialog::nameDocuments()
{
    const bool isShared = ui_->photos->arrangement().layout.kind != SheetLayout::Kind::Single;
    const bool hasPages = ui_->photos->arrangement().pageCount() > 0;
    ui_->documents->setItemText(0, hasPages   ? tr("PDFs named after the files")
                                   : isShared ? tr("One PDF for each sheet")
                                              : tr("One PDF for each photo"));
}

void PrintDialog::showPhotoFailures(const QStringList &sentences)
{
    MessageBar::Message message;
    message.kind = MessageBar::Kind::Error;
    message.text = PhotoPane::failureText(sentences);
    const QString all = sentences.join(u'\n');
    message.details = all == message.text ? QString() : all;
    if (ui_->message->isAsking())
        ui_->message->append(message.text);
    else
        ui_->message->show(message);
}

void PrintDialog::watchFolder(bool isWanted)
{
    if (!isWanted)
        folder_->stop();
    else if (isReady() && !pageStays() && ui_->customPage->finish())
        folder_->start(ui_->copies->value(), ui_->folder->text(), printer_->queue());
    else {
        ui_->photos->watchBar()->setWatching(false);
        if (!isReady() && !printer_->whyNotReady().isEmpty())
            ui_->message->show(MessageBar::Kind::Warning, printer_->whyNotReady());
    }
}

void PrintDialog::browseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder for Printed Files"), ui_->folder->text());
    if (!folder.isEmpty())
        ui_->folder->setText(QDir::toNativeSeparators(folder));
}

OutputFolder PrintDialog::outputFolder() const
{
    OutputFolder folder{ui_->folder->text()};
    if (ui_->documents->currentIndex() == 0)
        return folder;
    QString name = ui_->documentName->text().trimmed();
    if (name.endsWith(PrintedNames::pageSuffix, Qt::CaseInsensitive))
        name.chop(PrintedNames::pageSuffix.size());
    folder.document = name;
    for (const PlacedPhoto &placed : ui_->photos->photos())
        folder.photos += placed.photo.path();
    return folder;
}

void PrintDialog::showHelp()
{
    GuardedPanel *panel = ui_->panels->currentPanel();
    if (panel && !panel->shouldShowHelp())
        return;
    HelpWindow::showFor(this);
}

void PrintDialog::showJobs()
{
    JobsWindow::showFor(this, printer_->queue().destination());
}

} // namespace printdialog
