// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintPortal.h"

#include "DialogSession.h"
#include "ParentWindow.h"
#include "PlainText.h"
#include "PortalAnswer.h"
#include "PortalCall.h"
#include "PortalChoices.h"
#include "PortalRun.h"
#include "PortalSettings.h"
#include "PresetStore.h"
#include "PrintAdaptor.h"
#include "PrintDialog.h"
#include "PrintSize.h"
#include "ProgramName.h"
#include "ProgramStyle.h"
#include "RequestObjects.h"
#include "SystemLog.h"
#include "UserNotice.h"

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>
#include <QtDBus/QDBusConnectionInterface>

#include <algorithm>

namespace printdialog {

namespace {

const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");

/// Deletes the window once no loop of its own runs, as that of a file dialog which is about to end.
void deleteAfterLoops(PrintDialog *dialog)
{
    constexpr int interval = 20; // milliseconds
    if (QThread::currentThread()->loopLevel() <= 1)
        dialog->deleteLater();
    else
        QTimer::singleShot(interval, dialog, [dialog] { deleteAfterLoops(dialog); });
}

} // namespace

PrintPortal::PrintPortal(const QDBusConnection &bus, const Settings &settings, QObject *parent)
    : QObject(parent)
    , bus_(bus)
    , settings_(settings)
    , requests_(new RequestObjects(this))
    , notice_(new UserNotice(bus, this))
{
    // Else the methods are missing in what the bus is told about the object.
    qRegisterMetaType<QDBusObjectPath>();
    qRegisterMetaType<QDBusUnixFileDescriptor>();
    new PrintAdaptor(this);
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, &PrintPortal::update);
    connect(notice_, &UserNotice::over, this, &PrintPortal::update);
}

PrintPortal::~PrintPortal()
{
    end();
    qDeleteAll(std::exchange(runs_, {}));
    qDeleteAll(std::exchange(calls_, {}));
}

QString PrintPortal::busName()
{
    return QStringLiteral("org.freedesktop.impl.portal.desktop.corvel");
}

QString PrintPortal::start()
{
    QDBusConnectionInterface *names = bus_.interface();
    if (!bus_.isConnected() || !names)
        return QStringLiteral("There is no session bus: %1").arg(bus_.lastError().message());
    if (!bus_.registerObject(objectPath, this, QDBusConnection::ExportAdaptors) ||
        !bus_.registerVirtualObject(RequestObjects::path(), requests_, QDBusConnection::SubPath))
        return QStringLiteral("The object %1 cannot be offered on the bus.").arg(objectPath);
    connect(names, &QDBusConnectionInterface::serviceUnregistered, this, [this](const QString &name) {
        if (name == busName())
            end(); // another one has taken it
    });
    bus_.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                 SLOT(end()));
    const auto queueing = settings_.replaces ? QDBusConnectionInterface::ReplaceExistingService
                                             : QDBusConnectionInterface::DontQueueService;
    const auto reply =
        names->registerService(busName(), queueing, QDBusConnectionInterface::AllowReplacement);
    if (reply.value() != QDBusConnectionInterface::ServiceRegistered)
        return QStringLiteral("The name %1 is taken.").arg(busName());
    update();
    return {};
}

// Calls

PortalCall *PrintPortal::begin(const PortalRequest &request)
{
    auto *call = new PortalCall(bus_, *requests_, request.handle, request.message, this);
    calls_ += call;
    update();
    if (isEnding_ || !call->isOpen() || calls_.size() > mostCalls) {
        refuse(call, QStringLiteral("A print request cannot be served: %1")
                         .arg(isEnding_         ? QStringLiteral("this service is ending")
                              : !call->isOpen() ? QStringLiteral("its handle is in use or none")
                                                : QStringLiteral("too many are open")));
        return nullptr;
    }
    connect(call, &PortalCall::closed, this, [this, call] { close(call); });
    return call;
}

void PrintPortal::refuse(PortalCall *call, const QString &reason)
{
    pdekit::systemLog(reason);
    call->answer(PortalResponse::Failed);
    close(call);
}

void PrintPortal::close(PortalCall *call)
{
    if (calls_.removeOne(call))
        call->deleteLater();
    update();
}

void PrintPortal::preparePrint(const PortalRequest &request, const QVariantMap &settings,
                               const QVariantMap &pageSetup)
{
    PortalCall *call = begin(request);
    if (!call)
        return;
    const QVariant offered = request.options.value(QStringLiteral("supported_output_file_formats"));
    const auto format = portalFormat(offered.isValid() ? std::optional(offered.toStringList()) : std::nullopt,
                                     QFile::exists(settings_.intake.ghostscript));
    if (!format)
        return refuse(call, QStringLiteral("The program \"%1\" offers no format that can be printed.")
                                .arg(plainText(request.program, shownTextLimit)));
    const auto asked = PortalSettings::read(settings, pageSetup);
    PrintDialog *dialog = openDialog(call, request, asked);
    connect(dialog, &PrintDialog::prepared, call,
            [this, call, request, asked, format](const PreparedPrint &print, const DialogSession &session) {
                PreparedPrint waiting = print;
                const PagesBy by = arrangedBy(asked, print);
                if (by == PagesBy::Program)
                    waiting.arrangement.pages.isReversed = false;
                PortalAnswer answer =
                    portalAnswer(asked, print.job, session.options(), print.arrangement.pages, by);
                answer.settings.insert(portal_keys::fileFormat, *format);
                const quint32 token = prepared_.add(request.program, {waiting, request.title});
                call->answer(PortalResponse::Done, {{QStringLiteral("settings"), answer.settings},
                                                    {QStringLiteral("page-setup"), answer.pageSetup},
                                                    {QStringLiteral("token"), token}});
            });
}

// The dialog

PrintDialog *PrintPortal::openDialog(PortalCall *call, const PortalRequest &request,
                                     const PortalSettings &settings, const std::optional<Arrangement> &pages)
{
    const auto isSet = [&request](const char *option, bool otherwise) {
        return request.options.value(QLatin1String(option), otherwise).toBool();
    };
    const QString program = programName(request.program);
    PrintDialogSetup setup;
    setup.program = ProgramDocument{
        .program = program,
        .name = documentName(program, request.title),
        .acceptLabel = buttonText(request.options.value(QStringLiteral("accept_label")).toString()),
        .hasCurrentPage = isSet("has_current_page", false),
        .hasSelection = isSet("has_selected_pages", false),
        .pageSize = settings.pageSetup().turnedSize() * pointsPerMillimeter,
        .pages = settings.pages(),
        .remarks = settings.remarks(),
        .choices = [settings](const OptionSource &source) {
            return portalChoices(settings, source);
        }};
    setup.style = programStyle(settings);
    setup.arrangement = pages;
    if (const auto printer = settings.printer())
        setup.printer = PresetStore::destination(*printer);
    setup.copies = settings.copies();
    setup.outputFolder =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1String("/Prints");
    auto *dialog = new PrintDialog(setup);
    dialogs_ += dialog;
    dialog->setWindowModality(isSet("modal", true) ? Qt::WindowModal : Qt::NonModal);
    connect(call, &PortalCall::closed, dialog, &PrintDialog::abandon);
    connect(call, &QObject::destroyed, dialog, &PrintDialog::abandon);
    // Behind what answers the call when the dialog was accepted.
    connect(dialog, &QDialog::finished, this, [this, call = QPointer(call), dialog] {
        if (!dialogs_.removeOne(dialog))
            return;
        deleteAfterLoops(dialog);
        if (!call)
            return update();
        call->answer(PortalResponse::Canceled);
        close(call);
    });
    dialog->searchPrinters();
    dialog->restorePlacement({});
    showWithParent(dialog, request.parentWindow);
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

// The end

void PrintPortal::end()
{
    if (std::exchange(isEnding_, true))
        return;
    const QList<PrintDialog *> dialogs = dialogs_;
    for (PrintDialog *dialog : dialogs)
        dialog->abandon();
    for (PortalRun *run : std::as_const(runs_))
        run->leave();
    const QList<PortalCall *> calls = calls_;
    for (PortalCall *call : calls)
        close(call);
    update();
}

void PrintPortal::update()
{
    using namespace std::chrono;
    idle_.stop();
    const bool isBusy =
        !calls_.isEmpty() || !dialogs_.isEmpty() || !runs_.isEmpty() || arriving_ > 0 || notice_->isBusy();
    const auto now = steady_clock::now();
    idleSince_ = isBusy ? std::nullopt : std::optional(idleSince_.value_or(now));
    if (isBusy)
        return;
    const auto end = std::max(*idleSince_ + settings_.idleTime, prepared_.end().value_or(now));
    if (isEnding_ || now >= end)
        QMetaObject::invokeMethod(this, &PrintPortal::over, Qt::QueuedConnection);
    else
        idle_.start(duration_cast<milliseconds>(end - now) + 1ms);
}

} // namespace printdialog
