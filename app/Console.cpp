// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Console.h"

#include "CommandLine.h"
#include "PlainText.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>

namespace printdialog {

namespace {

/// Returns an errno, or 0.
int writeAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return errno;
        if (count > 0)
            done += count;
    }
    return 0;
}

QString indented(const QJsonValue &value)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    return QString::fromUtf8(document.toJson(QJsonDocument::Indented));
}

/// JSON escapes only the control characters below the space, but terminals also obey those from DEL on.
QString escaped(const QString &json)
{
    QString safe;
    safe.reserve(json.size());
    for (const QChar c : json) {
        if (c.unicode() >= 0x7f && c.unicode() <= 0x9f)
            safe += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            safe += c;
    }
    return safe;
}

} // namespace

void Console::prepareStreams()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) == -1 && errno == EBADF) {
            // open() uses this number, the lowest free one. Read-only, so that writing to it still fails.
            [[maybe_unused]] const int held = ::open("/dev/null", O_RDONLY);
        }
    }
}

void Console::writeLines(const QStringList &lines)
{
    QByteArray bytes;
    for (const QString &line : lines)
        bytes += plainText(line).toUtf8() + '\n';
    write(bytes);
}

void Console::writeRows(const QList<QStringList> &rows)
{
    QByteArray bytes;
    for (const QStringList &row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i)
            bytes += (i > 0 ? "\t" : "") + plainText(row.at(i)).toUtf8();
        bytes += '\n';
    }
    write(bytes);
}

void Console::writeJson(const QJsonValue &value)
{
    write(escaped(indented(value)).toUtf8());
}

void Console::complain(const QString &sentence)
{
    const QString line = QStringLiteral("corvel-print: %1\n").arg(plainText(sentence));
    writeAll(STDERR_FILENO, line.toUtf8());
}

QString Console::oneLine(const QStringList &sentences)
{
    constexpr qsizetype most = 3;
    QString line = sentences.first(std::min(sentences.size(), most)).join(u' ');
    if (sentences.size() > most)
        line += u' ' + tr("And %n more.", nullptr, static_cast<int>(sentences.size() - most));
    return line;
}

void Console::write(const QByteArray &bytes)
{
    if (error_ == 0)
        error_ = writeAll(STDOUT_FILENO, bytes);
}

int Console::finish(int status)
{
    if (error_ == 0 || status != exitDone)
        return status;
    complain(tr("Standard output could not be written to: %1. Send it to another place.")
                 .arg(qt_error_string(error_)));
    return exitFailed;
}

} // namespace printdialog
