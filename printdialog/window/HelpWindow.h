// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QDialog>

namespace printdialog {

/// The dialog's own help, for a page that has none of its own. Its text travels inside the program, so that
/// it can be read on any desktop.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    /// Shows the help above `parent`, in the first of the user's languages that there is, else in English. A
    /// window that is there already is brought to the front; it goes when it is closed.
    static void showFor(QWidget *parent);

private:
    explicit HelpWindow(QWidget *parent);
};

} // namespace printdialog
