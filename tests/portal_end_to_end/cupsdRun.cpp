// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// cupsdRun PPD COMMAND...: runs a command beside a private print server with one queue, which has the PPD and
// is named after its file. Of each job that the server prints, its backend leaves the folder
// $CORVEL_PRINTED/ID. Ends with the command's exit status; 77 without a print server.
#include "PrivateCupsd.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile ppd(arguments.value(1));
    testing_support::PrivateCupsd server;
    const QString failure = server.start();
    if (!failure.isEmpty()) {
        std::printf("SKIP: %s\n", qPrintable(failure));
        return 77;
    }
    const QString queue = QFileInfo(ppd).completeBaseName().toLower();
    if (arguments.size() < 3 || !ppd.open(QIODevice::ReadOnly) || !server.addQueue(queue, ppd.readAll()) ||
        !server.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), queue})) {
        std::puts("The queue cannot be made.");
        return 1;
    }
    qputenv("CORVEL_PRINTED",
            QFile::encodeName(QFileInfo(server.socketPath()).path() + QLatin1String("/out")));
    return QProcess::execute(arguments.at(2), arguments.mid(3));
}
