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

} // namespace

void systemLog(const QString &line)
{
    if (const LogSink &sink = currentSink()) {
        sink(line);
        return;
    }
    const QByteArray utf8 = line.toUtf8();
    syslog(LOG_USER | LOG_NOTICE, "%s", utf8.constData());
    if (echoesToStandardError())
        std::fprintf(stderr, utf8.endsWith('\n') ? "%s" : "%s\n", utf8.constData());
}

LogSink setSystemLogSink(LogSink sink)
{
    return std::exchange(currentSink(), std::move(sink));
}

} // namespace pdekit
