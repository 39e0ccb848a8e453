// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SystemLog.h"

#include <cstdio>
#include <cstdlib>
#include <syslog.h>
#include <unistd.h>
#include <utility>

namespace pdekit {

namespace {

LogSink &currentSink()
{
    static LogSink sink;
    return sink;
}

bool echoesToStandardError()
{
    static const bool echoes = isatty(STDERR_FILENO) != 0 || qEnvironmentVariableIsSet("PDEKIT_LOG_STDERR");
    return echoes;
}

/// A line may quote a file, a command line or a backend's output: characters that would control a terminal or
/// end the line early are shown as "?".
QString withoutControls(QString line)
{
    for (QChar &character : line) {
        if (character.category() == QChar::Other_Control && character != u'\n' && character != u'\t')
            character = u'?';
    }
    return line;
}

} // namespace

void systemLog(const QString &line)
{
    if (const LogSink &sink = currentSink()) {
        sink(line);
        return;
    }
    const QByteArray shown = withoutControls(line).toUtf8();
    syslog(LOG_USER | LOG_NOTICE, "%s", shown.constData());
    if (!echoesToStandardError())
        return;
    std::fprintf(stderr, shown.endsWith('\n') ? "%s" : "%s\n", shown.constData());
}

LogSink setSystemLogSink(LogSink sink)
{
    return std::exchange(currentSink(), std::move(sink));
}

} // namespace pdekit
