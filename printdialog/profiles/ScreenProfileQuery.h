// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

class QSocketNotifier;

namespace pdekit {
class ChildProcess;
}

namespace printdialog {

/// One run of corvel-screen-profile, which asks the system's color manager for the profile of a screen.
/// Nothing here waits for it: it is killed when it takes longer than two seconds, and with this object. Main
/// thread only.
class ScreenProfileQuery : public QObject
{
    Q_OBJECT

public:
    /// @param screen its name, as in QScreen::name()
    ScreenProfileQuery(const QString &program, const QString &screen);
    ~ScreenProfileQuery() override;

Q_SIGNALS:
    /// Emitted once, after the constructor; the query can be deleted then. The path of the profile,
    /// untrusted; empty when there is none or nobody answers.
    void finished(const QString &path);

private:
    bool launch(const QString &program, const QString &screen);
    void read();
    void finish();

    std::unique_ptr<pdekit::ChildProcess> child_;
    pdekit::FileDescriptor output_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QByteArray answer_;
    bool isFinished_ = false;
};

} // namespace printdialog
