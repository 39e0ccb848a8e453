// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BackendRun.h"
#include "TestMain.h"

#include <QtTest/QTest>

class UnwrittenCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The log is the same, and the backend sees the end of its input.
    void nothingIsWritten()
    {
        BackendRun run("reads");
        run.command("print\n");
        QVERIFY(run.runs());
        QCOMPARE(run.dialog.log, run.launchLines(6));
        QFile input(run.folder.filePath(text("input")));
        QVERIFY(input.open(QIODevice::ReadOnly));
        QCOMPARE(input.readAll(), QByteArray());
    }
};

CORVEL_WIDGETS_TEST(UnwrittenCommandTest)
#include "UnwrittenCommandTest.moc"
