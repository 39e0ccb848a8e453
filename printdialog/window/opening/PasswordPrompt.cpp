// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PasswordPrompt.h"

#include "PlainText.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace printdialog {

namespace {

constexpr qsizetype nameLimit = 80;

} // namespace

PasswordPrompt::PasswordPrompt(const QString &path, bool isRefused, QWidget *window)
    : QDialog(window)
    , password_(new QLineEdit(this))
{
    setObjectName(QStringLiteral("documentPassword"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Password"));
    const QString name = plainText(QFileInfo(path).fileName(), nameLimit);
    auto *says =
        new QLabel(isRefused ? tr("The password does not open \"%1\". Check it and enter it again.").arg(name)
                             : tr("\"%1\" is protected by a password.").arg(name),
                   this);
    says->setObjectName(QStringLiteral("passwordText"));
    says->setTextFormat(Qt::PlainText);
    says->setWordWrap(true);
    password_->setObjectName(QStringLiteral("password"));
    password_->setEchoMode(QLineEdit::Password);
    password_->setAccessibleDescription(says->text());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton *open = buttons->button(QDialogButtonBox::Ok);
    open->setText(tr("&Open"));
    open->setEnabled(false);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("&Leave Out", "a document"));
    connect(password_, &QLineEdit::textChanged, open,
            [open](const QString &text) { open->setEnabled(!text.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *form = new QFormLayout(this);
    form->addRow(says);
    form->addRow(tr("&Password:"), password_);
    form->addRow(buttons);
}

QString PasswordPrompt::password() const
{
    return password_->text();
}

} // namespace printdialog
