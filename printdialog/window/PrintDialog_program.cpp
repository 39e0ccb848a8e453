// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceController.h"
#include "DialogSession.h"
#include "ElidingButton.h"
#include "PrintDialog.h"
#include "PrintJob.h"
#include "PrinterController.h"
#include "PrintingController.h"
#include "ui_PrintDialog.h"

// The document of a program that brings its pages afterwards.

namespace printdialog {

/// Whether the program brings the pages afterwards.
bool PrintDialog::awaitsPages() const
{
    return setup_.program && (!setup_.arrangement || setup_.arrangement->photos.isEmpty());
}

void PrintDialog::showProgram()
{
    const ProgramDocument &program = *setup_.program;
    choices_->keepOnlyOptions();
    const QString label = program.acceptLabel.isEmpty() ? ui_->print->text() : program.acceptLabel;
    ui_->print->setText(label);
    ui_->documents->setCurrentIndex(ui_->documents->count() - 1); // one PDF, which has the document's name
    ui_->documents->hide();
    ui_->documentName->setText(program.name);
    setWindowTitle(tr("Print %1").arg(program.name));
    if (!awaitsPages())
        return;
    const QString button = withoutMnemonic(label);
    ui_->photos->awaitPages(
        program.program.isEmpty()
            ? tr("The program brings the pages after you press \"%1\".").arg(button)
            : tr("%1 brings the pages after you press \"%2\".").arg(program.program, button),
        program.pageSize);
    ui_->photos->offerPages(program.hasCurrentPage, program.hasSelection);
}

/// In the place of printing: the program gets what was chosen.
void PrintDialog::prepare()
{
    const auto job = printing_->prepare(ui_->copies->value(), outputFolder(), printer_->queue());
    if (!job)
        return;
    printer_->notePrinted();
    Q_EMIT prepared({*job, ui_->photos->arrangement(), ui_->photos->model()->style().placement},
                    *printer_->session());
    accept();
}

void PrintDialog::abandon()
{
    const QList<QDialog *> others = findChildren<QDialog *>();
    for (QDialog *other : others)
        other->reject();
    done(Rejected);
}

} // namespace printdialog
