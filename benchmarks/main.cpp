// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"

#include <QtWidgets/QApplication>

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("CORVEL_PDE_PATH"))
        qputenv("CORVEL_PDE_PATH", CORVEL_PDE_BUILD_DIR);
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QLatin1String("--child") && arguments.value(2) == QLatin1String("pdf"))
        return runPdfChild(arguments.value(3), arguments.value(4));
    if (arguments.value(1) == QLatin1String("--child"))
        return arguments.value(2) == QLatin1String("queues") ? runQueueChild(arguments.value(3).toInt())
                                                             : runOpeningChild(arguments.value(2));

    // With names of parts only those: corvel-bench queues jobs
    const std::pair<const char *, void (*)()> parts[] = {{"opening", benchOpening}, {"queues", benchQueues},
                                                         {"jobs", benchJobs},       {"panels", benchPanels},
                                                         {"runner", benchRunner},   {"pdf", benchPdf}};
    printHeader();
    for (const auto &[name, bench] : parts) {
        if (arguments.size() < 2 || arguments.contains(QLatin1String(name)))
            bench();
    }
    return 0;
}
