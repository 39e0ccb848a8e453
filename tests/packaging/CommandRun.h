// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace testing_support {

/// What one run of a tool left behind it.
struct CommandRun
{
    int status = -1;   ///< -1: it was not there, crashed, or did not end
    QByteArray output; ///< both streams
};

/// Runs a program, with environment variables that take the place of the test's; an empty one is taken away.
CommandRun runCommand(const QString &program, const QStringList &arguments,
                      const QMap<QString, QString> &environment = {});

QByteArray contentOf(const QString &path);

} // namespace testing_support
