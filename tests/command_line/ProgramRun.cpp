// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramRun.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <algorithm>

namespace testing_support {

ProgramRun runProgram(const QStringList &arguments, const QMap<QString, QString> &environment,
                      const QString &folder)
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.remove(QStringLiteral("QT_QPA_PLATFORM")); // what the test itself draws on
    for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry)
        variables.insert(entry.key(), entry.value());
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(CORVEL_PRINT_PROGRAM), arguments);
    ProgramRun run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

QString printProgram()
{
    return QStringLiteral(CORVEL_PRINT_PROGRAM);
}

QByteArray wrongInRefusal(const ProgramRun &run, int status, const QStringList &words)
{
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control;
    };
    const QString line = QString::fromUtf8(run.err.chopped(run.err.endsWith('\n') ? 1 : 0));
    bool isWrong = run.status != status || !run.out.isEmpty() || !run.err.startsWith("corvel-print: ") ||
                   !run.err.endsWith('\n') || std::any_of(line.cbegin(), line.cend(), isControl);
    for (const QString &word : words)
        isWrong = isWrong || !line.contains(word);
    if (!isWrong)
        return {};
    return QByteArray::number(run.status) + " out: " + run.out.toPercentEncoding(" /:\"'") +
           " err: " + run.err.toPercentEncoding(" /:\"'");
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool store(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace testing_support
