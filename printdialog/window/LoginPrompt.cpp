// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LoginPrompt.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto cancelInterval = 50ms;
constexpr qsizetype shownName = 80;

/// Of the window, until the question is answered.
class LoginDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(LoginDialog)

public:
    LoginDialog(const LoginQuestion &question, QWidget *window)
        : QDialog(window)
        , user_(new QLineEdit(question.user, this))
        , password_(new QLineEdit(this))
    {
        setObjectName(QStringLiteral("login"));
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowModality(Qt::WindowModal);
        setWindowTitle(tr("Log In"));
        const QString server = plainText(question.server, shownName);
        QString text = question.printer.isEmpty()
                           ? tr("The print server %1 wants a user name and a password.").arg(server)
                           : tr("The printer \"%1\" on %2 wants a user name and a password.")
                                 .arg(plainText(question.printer, shownName), server);
        if (question.isRefused)
            text.prepend(tr("The user name or the password was not accepted.") + u'\n');
        auto *says = new QLabel(text, this);
        says->setObjectName(QStringLiteral("loginText"));
        says->setTextFormat(Qt::PlainText);
        says->setWordWrap(true);
        auto *kept = new QLabel(tr("They are kept until the program ends."), this);
        kept->setForegroundRole(QPalette::PlaceholderText);
        user_->setObjectName(QStringLiteral("loginUser"));
        password_->setObjectName(QStringLiteral("loginPassword"));
        password_->setEchoMode(QLineEdit::Password);
        password_->setAccessibleDescription(text);
        auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        buttons->button(QDialogButtonBox::Ok)->setText(tr("&Log In"));
        buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        auto *form = new QFormLayout(this);
        form->addRow(says);
        form->addRow(tr("&User name:"), user_);
        form->addRow(tr("&Password:"), password_);
        form->addRow(kept);
        form->addRow(buttons);
        (question.user.isEmpty() ? user_ : password_)->setFocus();
    }

    Login login() const { return {user_->text(), password_->text()}; }

private:
    QLineEdit *user_;
    QLineEdit *password_;
};

} // namespace

/// A worker waits for `answered`. All members but `prompt` are about the question with the latest number.
struct LoginPrompt::Asked
{
    std::mutex mutex;
    std::condition_variable changed;
    LoginPrompt *prompt = nullptr; ///< null once it is destroyed
    int number = 0;
    bool isAnswered = false;
    std::optional<Login> answer;
};

LoginPrompt::LoginPrompt(QWidget *window)
    : QObject(window)
    , window_(window)
    , asked_(std::make_shared<Asked>())
{
    asked_->prompt = this;
    Logins::ofRun().setAsk([asked = asked_](const LoginQuestion &question, const int *cancel) {
        return ask(asked, question, cancel);
    });
}

LoginPrompt::~LoginPrompt()
{
    Logins::ofRun().setAsk({});
    const std::lock_guard lock(asked_->mutex);
    asked_->prompt = nullptr;
    asked_->isAnswered = true;
    asked_->changed.notify_all();
}

// On the worker's thread.
std::optional<Login> LoginPrompt::ask(const std::shared_ptr<Asked> &asked, const LoginQuestion &question,
                                      const int *cancel)
{
    std::unique_lock lock(asked->mutex);
    if (!asked->prompt)
        return std::nullopt;
    const int number = ++asked->number;
    asked->isAnswered = false;
    asked->answer.reset();
    QMetaObject::invokeMethod(
        asked->prompt, [asked, question, number] { asked->prompt->show(question, number); },
        Qt::QueuedConnection);
    while (!asked->isAnswered) {
        asked->changed.wait_for(lock, cancelInterval);
        const bool isCanceled = cancel && std::atomic_ref(*const_cast<int *>(cancel)).load() != 0;
        if (!asked->isAnswered && isCanceled) {
            ++asked->number; // the dialog's answer comes too late
            if (asked->prompt)
                QMetaObject::invokeMethod(
                    asked->prompt,
                    [window = asked->prompt->window_] {
                        if (auto *dialog = window->findChild<QDialog *>(QStringLiteral("login")))
                            dialog->reject();
                    },
                    Qt::QueuedConnection);
            return std::nullopt;
        }
    }
    return asked->answer;
}

void LoginPrompt::show(const LoginQuestion &question, int number)
{
    {
        const std::lock_guard lock(asked_->mutex);
        if (number != asked_->number)
            return; // canceled meanwhile
    }
    auto *dialog = new LoginDialog(question, window_);
    connect(dialog, &QDialog::finished, this, [this, dialog, number](int result) {
        const std::lock_guard lock(asked_->mutex);
        if (number != asked_->number)
            return;
        if (result == QDialog::Accepted)
            asked_->answer = dialog->login();
        asked_->isAnswered = true;
        asked_->changed.notify_all();
    });
    dialog->open();
}

} // namespace printdialog
