// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"
#include "PrivateCupsd.h"

namespace testing_support {

/// A test of the window with a real print server and its queue "photo", whose printer has all options.
class QueueTest : public WindowTest
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();

protected:
    /// The number of the job that the dialog speaks of, or of the first of them; 0 when there is none.
    static int jobOf(const OpenedDialog &opened);
    /// Prints, and waits for the job; 0 when there is none.
    int print(const OpenedDialog &opened) const;
    bool hasOption(int job, const QByteArray &option) const
    {
        return cupsd_.job(job).options.split(' ').contains(option);
    }
    static bool showsReady(const OpenedDialog &opened, const QString &printer)
    {
        return QTest::qWaitFor(
            [&] { return opened.dialog->printer() == printer && opened.dialog->isReady(); }, 15000);
    }

    PrivateCupsd cupsd_;
    QByteArray ppd_;
    QByteArray reduced_; ///< the same without one choice

private:
    QTemporaryDir home_;
};

} // namespace testing_support
