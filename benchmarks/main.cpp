// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("CORVEL_PDE_PATH"))
        qputenv("CORVEL_PDE_PATH", CORVEL_PDE_BUILD_DIR);
    // Qt's remarks on the platform do not belong in the table.
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext & /*context*/, const QString &message) {
            if (type == QtFatalMsg)
                std::fprintf(stderr, "%s\n", qPrintable(message));
        });
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QLatin1String("--child"))
        return arguments.value(2) == QLatin1String("queues")    ? runQueueChild(arguments.value(3).toInt())
               : arguments.value(2) == QLatin1String("preview") ? runPreviewChild(arguments.mid(3))
                                                                : runOpeningChild();

    // With names of parts only those: corvel-bench queues jobs
    const std::pair<const char *, void (*)()> parts[] = {
        {"opening", benchOpening},    {"queues", benchQueues},         {"jobs", benchJobs},
        {"panels", benchPanels},      {"optionpage", benchOptionPage}, {"preview", benchPreview},
        {"adjust", benchAdjustments}, {"runner", benchRunner},         {"pdf", benchPdf},
        {"photos", benchPhotos},      {"sheets", benchSheets},         {"portal", benchPortal}};
    printHeader();
    for (const auto &[name, bench] : parts) {
        if (arguments.size() < 2 || arguments.contains(QLatin1String(name)))
            bench();
    }
    printMet();
    return 0;
}
