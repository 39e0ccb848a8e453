// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feedback.h"
#include "PrintDialog.h"

#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

namespace testing_support {

/// What the panels do to the desktop, counted instead of done.
class RecordingFeedback : public pdekit::Feedback
{
public:
    void beep() override { ++beeps; }
    void alert(const pdekit::Alert & /*alert*/) override {}
    bool openHelpBook(const pdekit::Bundle &bundle, const QString &name) override;

    int beeps = 0;
    QStringList helpBooks;
    bool opensHelp = true;
};

/// The setup of a dialog with the sample photo, for the built-in printer with the PPD of the model that has
/// all options.
printdialog::PrintDialogSetup setupFor(printdialog::PanelMode mode);

/// A dialog as the program opens it, with a folder of its own for what it prints.
class OpenedDialog
{
public:
    explicit OpenedDialog(printdialog::PrintDialogSetup setup);
    explicit OpenedDialog(printdialog::PanelMode mode)
        : OpenedDialog(setupFor(mode))
    {
    }

    template <class Widget>
    Widget *find(const QString &name) const
    {
        return dialog->findChild<Widget *>(name);
    }
    /// The control of the page that is shown.
    QWidget *control(int tag) const;
    /// What stands in the text field of the page that is shown.
    QString fieldText(int tag) const;
    /// Replaces it by keys.
    void type(int tag, const QString &text) const;
    void click(const QString &name) const;

    bool hasPrinted() const;
    /// The options of the ticket.
    QJsonObject options() const;

    QTemporaryDir folder;
    std::unique_ptr<printdialog::PrintDialog> dialog;
};

} // namespace testing_support
