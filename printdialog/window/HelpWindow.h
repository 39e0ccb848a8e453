// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QDialog>

namespace printdialog {

/// The dialog's own help, shown for a page that has none. The text is compiled into the program, so it can be
/// read on any desktop.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    /// Shows the help above `parent`, in the first of the user's languages that it is available in, else in
    /// English. A window that is already open is brought to the front. The window is deleted when it is
    /// closed.
    static void showFor(QWidget *parent);

private:
    explicit HelpWindow(QWidget *parent);
};

} // namespace printdialog
