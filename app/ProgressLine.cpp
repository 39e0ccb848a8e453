// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgressLine.h"

#include "PlainText.h"

#include <cstdlib>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr int barWidth = 24;
constexpr auto interval = 50ms;

/// The terminal's width: a line that wraps could not be erased.
int columns()
{
    winsize size = {};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 20 ? size.ws_col - 1 : 79;
}

} // namespace

ProgressLine::ProgressLine()
    : isTerminal_(isatty(STDERR_FILENO) == 1 && qEnvironmentVariable("TERM") != QLatin1String("dumb"))
{
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::show(const QString &text)
{
    write(text);
}

void ProgressLine::show(const QString &text, qint64 done, qint64 total)
{
    const auto now = std::chrono::steady_clock::now();
    if (!isTerminal_ || (done < total && now - last_ < interval))
        return;
    last_ = now;
    const qint64 share = total > 0 ? done * 100 / total : 100;
    const QString bar =
        QString(static_cast<qsizetype>(share * barWidth / 100), u'#').leftJustified(barWidth, u'.');
    write(QStringLiteral("[%1] %2 %  %3").arg(bar, QString::number(share).rightJustified(3), text));
}

void ProgressLine::clear()
{
    write({});
}

void ProgressLine::write(const QString &line)
{
    const QString fitting = plainText(line, columns());
    if (!isTerminal_ || fitting == shown_)
        return;
    shown_ = fitting;
    const QByteArray bytes = "\r\x1b[K" + fitting.toUtf8();
    [[maybe_unused]] const ssize_t written =
        ::write(STDERR_FILENO, bytes.constData(), static_cast<size_t>(bytes.size()));
}

} // namespace printdialog
