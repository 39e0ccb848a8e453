// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace printdialog {

/// Standard output and standard error. What is written may hold text from anywhere (names of files, a PPD's
/// texts): no control character of it reaches the terminal. Main thread only.
class Console
{
    Q_DECLARE_TR_FUNCTIONS(Console)

public:
    /// Makes an error of what would otherwise do harm: of a reader that has gone and of a file that grows too
    /// large, whose signals end a program, and of a closed standard stream, whose number, and with it the
    /// program's output, the next file opened would get. To be called before any file is opened.
    static void prepareStreams();

    /// Writes a line to standard output at once.
    void writeLine(const QString &text) { writeLines({text}); }
    void writeLines(const QStringList &lines);
    /// Writes a line for each row, its cells separated by tabs.
    void writeRows(const QList<QStringList> &rows);
    /// An array or an object, indented.
    void writeJson(const QJsonValue &value);

    /// Writes "corvel-print: " and the sentence to standard error, as one line.
    void complain(const QString &sentence);

    /// The sentences on one line, the first few of them when there are many.
    static QString oneLine(const QStringList &sentences);

    /// The exit status of a run that would end with `status`: complains when something could not be written
    /// to standard output, and makes a failure of it.
    int finish(int status);

private:
    void write(const QByteArray &bytes);

    int error_ = 0; ///< the system's number of the first error on standard output
};

} // namespace printdialog
