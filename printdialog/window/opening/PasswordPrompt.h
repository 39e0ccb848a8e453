// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QDialog>

class QLineEdit;

namespace printdialog {

/// Asks for the password of a document, in a dialog of the window. Accepted: it is to be tried; rejected: the
/// document is left out.
class PasswordPrompt : public QDialog
{
    Q_OBJECT

public:
    /// @param path of the document
    /// @param isRefused the last password was wrong
    PasswordPrompt(const QString &path, bool isRefused, QWidget *window);

    QString password() const;

private:
    QLineEdit *password_;
};

} // namespace printdialog
