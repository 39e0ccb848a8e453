// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueTest.h"

#include <QtCore/QRegularExpression>

namespace testing_support {

void QueueTest::initTestCase()
{
    qputenv("HOME", QFile::encodeName(home_.path()));
    QFile ppd(QStringLiteral(CORVEL_SIBLING_PPD));
    QVERIFY(ppd.open(QIODevice::ReadOnly));
    ppd_ = ppd.readAll();
    reduced_ = QByteArray(ppd_).replace("*Red 9/9: \"\"\n", "");
    QVERIFY(reduced_ != ppd_);
    const QString trouble = cupsd_.start();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    QVERIFY(cupsd_.addQueue(u"photo"_s, ppd_));
}

int QueueTest::jobOf(const OpenedDialog &opened)
{
    static const QRegularExpression job(u"\\(jobs? ([0-9]+)"_s);
    return job.match(opened.message()).captured(1).toInt();
}

int QueueTest::print(const OpenedDialog &opened) const
{
    opened.dialog->print();
    const bool isDone =
        QTest::qWaitFor([&] { return jobOf(opened) > 0; }) && cupsd_.waitForJob(jobOf(opened));
    if (!isDone)
        qWarning("%s", qPrintable(opened.message()));
    return isDone ? jobOf(opened) : 0;
}

} // namespace testing_support
