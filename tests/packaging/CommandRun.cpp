// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandRun.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

namespace testing_support {

CommandRun runCommand(const QString &program, const QStringList &arguments,
                      const QMap<QString, QString> &environment)
{
    constexpr int patience = 240'000; // milliseconds; a compiler may have to share the machine
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry) {
        if (entry->isEmpty())
            variables.remove(entry.key());
        else
            variables.insert(entry.key(), *entry);
    }
    process.setProcessEnvironment(variables);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    CommandRun run;
    if (process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = process.readAll();
    return run;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace testing_support
