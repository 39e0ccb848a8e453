// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TerminalLogin.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace printdialog {

namespace {

constexpr int cancelInterval = 100; // ms
constexpr qsizetype longestLine = 1000;

struct LoginText
{
    Q_DECLARE_TR_FUNCTIONS(TerminalLogin)
};

/// The controlling terminal. What is typed is not shown, nor edited by the terminal, unless it echoes.
class Terminal
{
public:
    Terminal()
        : file_(open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (file_ >= 0 && tcgetattr(file_, &before_) != 0) {
            close(file_);
            file_ = -1;
        }
    }
    ~Terminal()
    {
        if (hasChanged_)
            tcsetattr(file_, TCSAFLUSH, &before_);
        if (file_ >= 0)
            close(file_);
    }
    Q_DISABLE_COPY_MOVE(Terminal)

    /// Whether somebody can be asked there. A program in the background that changed the terminal would be
    /// stopped.
    bool isUsable() const { return file_ >= 0 && tcgetpgrp(file_) == getpgrp(); }

    void write(const QString &text) const
    {
        const QByteArray bytes = text.toLocal8Bit();
        [[maybe_unused]] const ssize_t written =
            ::write(file_, bytes.constData(), static_cast<size_t>(bytes.size()));
    }

    /// Shows the question, and returns the line that is typed; nothing for Ctrl+C, Ctrl+D, the terminal's
    /// end, or when the flag is raised.
    std::optional<QString> readLine(const QString &question, bool echoes, const int *cancel)
    {
        // No signals: Ctrl+C cancels the question, and must not leave a terminal that does not echo.
        termios now = before_;
        now.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG | ICANON);
        now.c_cc[VMIN] = 1;
        now.c_cc[VTIME] = 0;
        hasChanged_ = true;
        tcsetattr(file_, TCSAFLUSH, &now);
        write(question); // only now, so that no answer to it is shown or dropped
        QByteArray line;
        const auto end = [this](std::optional<QString> result) {
            write(QStringLiteral("\n"));
            return result;
        };
        while (!cancel || std::atomic_ref(*const_cast<int *>(cancel)).load() == 0) {
            pollfd waited{file_, POLLIN, 0};
            char c = 0;
            if (poll(&waited, 1, cancelInterval) <= 0)
                continue;
            const ssize_t count = read(file_, &c, 1);
            if (count < 0 && errno == EINTR)
                continue;
            constexpr char endOfText = 3;
            constexpr char endOfTransmission = 4;
            if (count <= 0 || c == endOfText || (c == endOfTransmission && line.isEmpty()))
                return end(std::nullopt);
            if (c == '\n' || c == '\r')
                return end(QString::fromLocal8Bit(line));
            constexpr char del = 0x7f;
            if (c == '\b' || c == del) {
                QString shorter = QString::fromLocal8Bit(line);
                if (echoes && !shorter.isEmpty())
                    write(QStringLiteral("\b \b"));
                shorter.chop(1);
                line = shorter.toLocal8Bit();
            } else if (static_cast<unsigned char>(c) >= ' ' && line.size() < longestLine) {
                line += c;
                if (echoes) [[maybe_unused]]
                    const ssize_t shown = ::write(file_, &c, 1);
            }
        }
        return end(std::nullopt);
    }

private:
    int file_;
    bool hasChanged_ = false;
    termios before_ = {};
};

std::optional<Login> ask(const LoginQuestion &question, const int *cancel)
{
    Terminal terminal;
    if (!terminal.isUsable())
        return std::nullopt;
    const QString server = plainText(question.server);
    if (question.isRefused)
        terminal.write(LoginText::tr("The user name or the password was not accepted.") + u'\n');
    terminal.write((question.printer.isEmpty()
                        ? LoginText::tr("The print server %1 wants a user name and a password.").arg(server)
                        : LoginText::tr("The printer \"%1\" on %2 wants a user name and a password.")
                              .arg(plainText(question.printer), server)) +
                   u'\n');
    const auto user =
        terminal.readLine(LoginText::tr("User name [%1]: ").arg(plainText(question.user)), true, cancel);
    const auto password = user ? terminal.readLine(LoginText::tr("Password: "), false, cancel) : std::nullopt;
    if (!password)
        return std::nullopt;
    return Login{user->isEmpty() ? question.user : *user, *password};
}

} // namespace

void askLoginsOnTerminal()
{
    if (canAskOnTerminal())
        Logins::ofRun().setAsk(ask);
    else
        Logins::ofRun().setAsk(
            {}, LoginText::tr("it wants a user name and a password, and there is no terminal to ask on"));
}

bool canAskOnTerminal()
{
    return Terminal().isUsable();
}

std::optional<QString> askPasswordOnTerminal(const QString &document, bool isRefused)
{
    Terminal terminal;
    if (!terminal.isUsable())
        return std::nullopt;
    const QString name = plainText(document, shownTextLimit);
    terminal.write((isRefused ? LoginText::tr("The password does not open \"%1\".").arg(name)
                              : LoginText::tr("\"%1\" is protected by a password.").arg(name)) +
                   u'\n');
    return terminal.readLine(LoginText::tr("Password: "), false, nullptr);
}

} // namespace printdialog
