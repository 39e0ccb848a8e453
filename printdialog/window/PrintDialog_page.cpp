// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BookletSides.h"
#include "ChoiceController.h"
#include "DialogSession.h"
#include "PrintDialog.h"
#include "PrintPositionWindow.h"
#include "PrinterController.h"
#include "PrintingController.h"
#include "ReadyMedia.h"
#include "ui_PrintDialog.h"

#include <algorithm>

// The page: its size, and where the printer prints on it.

namespace printdialog {

namespace {

const QString customItem = QStringLiteral("Custom"); // is not a choice itself

} // namespace

void PrintDialog::fillPageSizes()
{
    const OptionSource &options = printer_->session()->options();
    // A print server's queue with a PPD does not know what is loaded.
    const ReadyMedia loaded(printer_->session()->ppd() ? IppAttributes() : printer_->session()->attributes());
    ui_->pageSize->clear();
    for (const PageSize &size : options.pageSizes()) {
        const bool isMissing = loaded.isKnown() && !loaded.has(size.points);
        ui_->pageSize->addItem(isMissing ? tr("%1 (not loaded)", "a paper size").arg(size.text) : size.text,
                               size.keyword);
    }
    listedSizes_ = ui_->pageSize->count();
    if (options.customPageRange())
        ui_->pageSize->addItem(tr("Custom…", "a paper size to type"), customItem);
    ui_->customPage->setRange(options.customPageRange());
    showPageSize();
}

void PrintDialog::choosePageSize(int index)
{
    if (!printer_->session())
        return;
    const DialogSession &session = *printer_->session();
    const QString key = session.options().pageSizeKey();
    QString keyword = ui_->pageSize->itemData(index).toString();
    const bool begins = keyword == customItem;
    if (begins) {
        // From the size chosen so far, which may be a custom one already.
        const QString before = session.chosen(key).value_or(QString());
        const auto size = session.options().pageSize(before);
        keyword = ui_->pageSize->findData(before) >= listedSizes_
                      ? before
                      : customPageKeyword(ui_->customPage->nearest(size ? size->points : QSizeF()));
    }
    choices_->choosePageSize(keyword, ui_->pageSize);
    showPageSize();
    if (begins && session.chosen(key) == keyword)
        ui_->customPage->begin();
}

void PrintDialog::chooseTypedSize(const QSizeF &points, QLineEdit *field)
{
    const QString keyword = customPageKeyword(points);
    const DialogSession *session = printer_->session();
    if (session && session->chosen(session->options().pageSizeKey()) != keyword)
        choices_->choosePageSize(keyword, field);
}

void PrintDialog::showPageSize()
{
    const OptionSource &options = printer_->session()->options();
    const QString chosen = printer_->session()->chosen(options.pageSizeKey()).value_or(QString());
    const auto size = options.pageSize(chosen);
    // A custom size is listed, before the item for another one, while it is chosen.
    while (ui_->pageSize->count() > listedSizes_ + 1)
        ui_->pageSize->removeItem(listedSizes_);
    const bool isCustom = size && ui_->pageSize->findData(size->keyword) < 0;
    if (isCustom) {
        ui_->pageSize->insertItem(listedSizes_, size->text, size->keyword);
        ui_->customPage->showSize(size->points);
    }
    ui_->customPage->setVisible(isCustom);
    ui_->pageSize->setCurrentIndex(ui_->pageSize->findData(size ? size->keyword : chosen));
    if (size)
        ui_->photos->setPage({size->points, size->imageable});
    updatePosition();
}

/// A booklet is one step with the sides that it is printed on.
void PrintDialog::proposeBookletSides()
{
    if (!printer_->session())
        return;
    if (const QString text = chooseBookletSides(*printer_->session()); !text.isEmpty())
        ui_->message->show(MessageBar::Kind::Information, text);
}

/// The window for the print position follows the printer and the paper while it is open.
void PrintDialog::showPosition()
{
    if (!position_) {
        position_ = new PrintPositionWindow(this);
        connect(position_, &PrintPositionWindow::testPageWanted, this, [this] {
            if (isReady() && !printing_->isBusy() && !pageStays() && ui_->customPage->finish())
                printing_->printTestPage(ui_->folder->text(), printer_->queue());
        });
    }
    updatePosition();
    position_->show();
    position_->raise();
    position_->activateWindow();
}

void PrintDialog::updatePosition()
{
    const DialogSession *session = printer_->session();
    const bool isPossible = session && !session->printer().isRaw;
    ui_->position->setEnabled(isPossible);
    if (!position_)
        return;
    position_->setWhyNoTest(printing_->isBusy() ? tr("Printing is under way.") : printer_->whyNotReady());
    if (!session)
        return;
    if (!isPossible) { // another printer is shown than the one that it is about
        position_->close();
        return;
    }
    const QString paper = session->chosen(session->options().pageSizeKey()).value_or(QString());
    position_->setPaper(session->printer().destination.queue, session->printer().text, paper,
                        ui_->pageSize->currentText());
}

} // namespace printdialog
