// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentIntake.h"
#include "PreparedJobs.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <chrono>

namespace printdialog {

class PortalCall;
class PortalRun;
class RequestObjects;
class PortalSettings;
class PrintDialog;
class UserNotice;
enum class PortalResponse : uint;

/// What every call of the portal has.
struct PortalRequest
{
    QString handle;       ///< The path of the object by which the call is closed.
    QString program;      ///< The program's id; may be empty.
    QString parentWindow; ///< See showWithParent().
    QString title;
    QVariantMap options;
    QDBusMessage message; ///< The call.
};

/// The desktop's print portal: shows the dialog for programs that print through it, and prints their
/// documents. Calls are answered when the user has decided; any number may be open at the same time. Main
/// thread only.
class PrintPortal : public QObject
{
    Q_OBJECT

public:
    struct Settings
    {
        std::chrono::milliseconds idleTime = std::chrono::seconds(60);
        IntakeLimits intake = {};
        bool replaces = false; ///< Takes the name from another one that is running.
    };

    static constexpr uint version = 3;
    static constexpr qsizetype mostCalls = 32; ///< Open at the same time.

    PrintPortal(const QDBusConnection &bus, const Settings &settings, QObject *parent = nullptr);
    ~PrintPortal() override;

    static QString busName();
    /// Takes its name on the bus. Returns an empty string, or for the log why it failed.
    QString start();

    void preparePrint(const PortalRequest &request, const QVariantMap &settings,
                      const QVariantMap &pageSetup);
    /// @param document stays the caller's
    void print(const PortalRequest &request, int document);

public Q_SLOTS:
    /// Closes all dialogs, and answers no more calls. What is being sent to a printer is sent to its end;
    /// then over() is emitted.
    void end();

Q_SIGNALS:
    /// There was nothing to do for the idle time, or everything has ended after end().
    void over();

private:
    PortalCall *begin(const PortalRequest &request);
    void refuse(PortalCall *call, const QString &reason);
    PrintDialog *openDialog(PortalCall *call, const PortalRequest &request, const PortalSettings &settings,
                            const std::optional<Arrangement> &pages = std::nullopt);
    void finish(PortalCall *call, const PortalRequest &request, const std::optional<PreparedJob> &prepared,
                Arrival arrival);
    void run(PortalRun *run, const QString &name);
    void close(PortalCall *call);
    void update();

    QDBusConnection bus_;
    Settings settings_;
    PreparedJobs prepared_;
    RequestObjects *requests_;
    UserNotice *notice_;
    QTimer idle_;
    std::optional<std::chrono::steady_clock::time_point> idleSince_; ///< nothing while there is work
    QList<PortalCall *> calls_;
    QList<PrintDialog *> dialogs_;
    QList<PortalRun *> runs_;
    int arriving_ = 0; ///< documents on their way
    bool isEnding_ = false;
};

} // namespace printdialog
