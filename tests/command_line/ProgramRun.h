// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace testing_support {

inline const QString samplePhoto = QStringLiteral(CORVEL_SAMPLE_PHOTO);

/// What one run of corvel-print left behind it.
struct ProgramRun
{
    int status = -1; ///< -1: it crashed or did not end
    QByteArray out;
    QByteArray err;

    QJsonDocument json() const { return QJsonDocument::fromJson(out); }
};

/// Runs corvel-print in the folder, with environment variables that take the place of the test's.
ProgramRun runProgram(const QStringList &arguments, const QMap<QString, QString> &environment = {},
                      const QString &folder = {});

/// The path of corvel-print.
QString printProgram();

/// What stands against a proper refusal: nothing printed on standard output, one line on standard error that
/// holds all the words and no control character. Empty: nothing does.
QByteArray wrongInRefusal(const ProgramRun &run, int status, const QStringList &words);

QByteArray contentOf(const QString &path);
bool store(const QString &path, const QByteArray &content);

} // namespace testing_support
