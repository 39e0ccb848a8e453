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
    if (arguments.value(1) == QLatin1String("--child"))
        return runOpeningChild(arguments.value(2));

    printHeader();
    benchOpening();
    benchPanels();
    benchRunner();
    benchPdf();
    return 0;
}
