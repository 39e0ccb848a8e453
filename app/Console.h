// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace printdialog {

/// Standard output and standard error. Output may contain text from anywhere (file names, a PPD's texts), so
/// control characters in it never reach the terminal. Main thread only.
class Console
{
    Q_DECLARE_TR_FUNCTIONS(Console)

public:
    /// Turns harmful conditions into errors: a reader that has closed its end and a file that grows too
    /// large, whose signals would end the program, and a closed standard stream, whose number, and the
    /// program's output, the next opened file would get. Call it before any file is opened.
    static void prepareStreams();

    /// Writes a line to standard output at once.
    void writeLine(const QString &text) { writeLines({text}); }
    void writeLines(const QStringList &lines);
    /// Writes a line for each row, its cells separated by tabs.
    void writeRows(const QList<QStringList> &rows);
    /// Writes an array or an object, indented.
    void writeJson(const QJsonValue &value);

    /// Writes "corvel-print: " and the sentence to standard error, as one line.
    void complain(const QString &sentence);

    /// The sentences on one line; only the first few when there are many.
    static QString oneLine(const QStringList &sentences);

    /// The exit status of a run that would end with `status`. If writing to standard output has failed,
    /// complains and returns a failure.
    int finish(int status);

private:
    void write(const QByteArray &bytes);

    int error_ = 0; ///< the errno of the first error on standard output
};

} // namespace printdialog
