// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "VirtualDisplay.h"
#include "WindowWatch.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusReply>
#include <QtDBus/QDBusUnixFileDescriptor>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <csignal>

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "PrivateCupsd.h"

namespace {

const QString ours = QStringLiteral("corvel");
const QString gtks = QStringLiteral("gtk");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString printInterface = QStringLiteral("org.freedesktop.impl.portal.Print");
constexpr QRgb firstPageColor = qRgb(255, 0, 255);

/// A session bus on a display, which starts the back ends of the print portal.
class PortalSession
{
public:
    explicit PortalSession(const QProcessEnvironment &onDisplay)
        : watch_(onDisplay.value(QStringLiteral("DISPLAY")).toLatin1())
    {
        const QString services = folder_.filePath(QStringLiteral("data/dbus-1/services"));
        QFile service(services + u'/' + nameOf(ours) + QLatin1String(".service"));
        if (!QDir().mkpath(services) || !service.open(QIODevice::WriteOnly))
            return;
        service.write("[D-BUS Service]\nName=" + nameOf(ours).toLatin1() +
                      "\nExec=\"" CORVEL_PORTAL_PROGRAM "\"\n");
        service.close();
        QProcessEnvironment environment = onDisplay;
        for (const auto &[variable, name] : {std::pair("XDG_DATA_HOME", "data"),
                                             {"XDG_CONFIG_HOME", "config"},
                                             {"XDG_CACHE_HOME", "cache"},
                                             {"XDG_STATE_HOME", "state"},
                                             {"XDG_RUNTIME_DIR", "."}})
            environment.insert(QString::fromLatin1(variable), folder_.filePath(QString::fromLatin1(name)));
        environment.insert(QStringLiteral("NO_AT_BRIDGE"), QStringLiteral("1"));
        environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
        environment.insert(QStringLiteral("GIO_USE_VFS"), QStringLiteral("local"));
        bus_.setProcessEnvironment(environment);
        bus_.setStandardErrorFile(QProcess::nullDevice());
        bus_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address=1")});
        if (bus_.waitForReadyRead(10000))
            connection_ = QDBusConnection::connectToBus(QString::fromLatin1(bus_.readLine().trimmed()),
                                                        QStringLiteral("bench"));
    }
    ~PortalSession()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("bench"));
        bus_.terminate();
        bus_.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(PortalSession)

    bool has(const QString &backEnd) const
    {
        return connection_.isConnected() &&
               connection_.interface()->activatableServiceNames().value().contains(nameOf(backEnd));
    }

    /// Milliseconds from the call to the first picture of its dialog, which is closed again; 0 when it
    /// failed.
    double opening(const QString &backEnd)
    {
        const WindowWatch::Windows before = watch_.windows();
        const double begin = monotonicMilliseconds();
        call(backEnd, QStringLiteral("PreparePrint"),
             {QVariantMap{{QStringLiteral("printer"), QStringLiteral("laser")}}, QVariantMap(),
              QVariantMap()});
        const auto end = watch_.painted(before);
        return close(backEnd, before) && end ? *end - begin : 0.0;
    }

    /// Milliseconds from the first picture of the dialog for a document to the preview of its first page.
    double preview(const QString &document)
    {
        QFile file(document);
        if (!file.open(QIODevice::ReadOnly))
            return 0.0;
        const WindowWatch::Windows before = watch_.windows();
        call(ours, QStringLiteral("Print"),
             {QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())), QVariantMap()});
        const auto dialog = watch_.painted(before);
        const auto page = watch_.painted(firstPageColor);
        return close(ours, before) && dialog && page ? *page - *dialog : 0.0;
    }

    void end(const QString &backEnd)
    {
        const QDBusReply<uint> process = connection_.interface()->servicePid(nameOf(backEnd));
        if (!process.isValid())
            return;
        kill(static_cast<pid_t>(process.value()), SIGTERM);
        while (connection_.interface()->isServiceRegistered(nameOf(backEnd)))
            QThread::msleep(1);
    }

private:
    static QString nameOf(const QString &backEnd)
    {
        return QStringLiteral("org.freedesktop.impl.portal.desktop.") + backEnd;
    }
    QString handle() const { return portalPath + QStringLiteral("/request/bench/%1").arg(calls_); }

    /// All calls begin with the handle, the program's id, its window and the title.
    void call(const QString &backEnd, const QString &method, const QVariantList &arguments)
    {
        ++calls_;
        QDBusMessage message =
            QDBusMessage::createMethodCall(nameOf(backEnd), portalPath, printInterface, method);
        message.setArguments(QVariantList{QVariant::fromValue(QDBusObjectPath(handle())), QString(),
                                          QString(), QStringLiteral("Bench")} +
                             arguments);
        connection_.asyncCall(message, 60000);
    }
    bool close(const QString &backEnd, const WindowWatch::Windows &before)
    {
        connection_.call(QDBusMessage::createMethodCall(nameOf(backEnd), handle(),
                                                        QStringLiteral("org.freedesktop.impl.portal.Request"),
                                                        QStringLiteral("Close")));
        return watch_.isBackTo(before);
    }

    QTemporaryDir folder_;
    WindowWatch watch_;
    QProcess bus_;
    QDBusConnection connection_{QString()};
    int calls_ = 0;
};

/// A document whose first page is of one color.
bool writeDocument(const QString &path, int pages)
{
    QPdfWriter writer(path);
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    painter.fillRect(painter.viewport(), QColor(firstPageColor));
    for (int page = 2; page <= pages; ++page) {
        writer.newPage();
        for (int line = 1; line <= 40; ++line)
            painter.drawText(
                QPointF(0, line * painter.viewport().height() / 42.0),
                QStringLiteral("Page %1, line %2: the quick brown fox jumps").arg(page).arg(line));
    }
    return painter.end();
}

double medianOrNothing(const std::vector<double> &times)
{
    return std::count(times.cbegin(), times.cend(), 0.0) > 0 ? 0.0 : median(times);
}

void compareOpenings(PortalSession &session)
{
    std::vector<double> cold[2];
    std::vector<double> running[2];
    for (int run = -1; run < benchRuns; ++run) { // the first one warms up
        for (const int i : {0, 1}) {
            const QString &backEnd = i == 0 ? ours : gtks;
            if (!session.has(backEnd))
                continue;
            session.end(backEnd);
            const double first = session.opening(backEnd);
            const double second = session.opening(backEnd);
            if (run < 0)
                continue;
            cold[i].push_back(first);
            running[i].push_back(second);
        }
    }
    for (const auto &[what, times] : {std::pair("running", running), {"started for it", cold}}) {
        const QString row =
            QStringLiteral("a program's call to the painted dialog, portal %1, X").arg(QLatin1String(what));
        const double mine = medianOrNothing(times[0]);
        if (mine == 0.0)
            printNote(QStringLiteral("%1: not measured, it was not painted").arg(row));
        else if (times[1].empty() || medianOrNothing(times[1]) == 0.0)
            printRow({row, mine, QStringLiteral("GTK's portal: not measured"), {}, {}, {}});
        else
            printRow({row, mine, QStringLiteral("GTK's portal"), medianOrNothing(times[1]), 0.7, {}});
    }
}

} // namespace

void benchPortal()
{
    const VirtualDisplay display;
    testing_support::PrivateCupsd server;
    QFile ppd(QStringLiteral(CORVEL_LASER_PPD));
    if (!display.environment() || !ppd.open(QIODevice::ReadOnly) || !server.start().isEmpty() ||
        !server.addQueue(QStringLiteral("laser"), ppd.readAll()) ||
        !server.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("laser")})) {
        printNote(QStringLiteral("the print portal: not measured, there is no Xvfb or no private cupsd"));
        return;
    }
    QProcessEnvironment environment = *display.environment();
    environment.insert(QStringLiteral("CUPS_SERVER"), server.socketPath());
    PortalSession session(environment);
    if (!session.has(ours)) {
        printNote(QStringLiteral("the print portal: not measured, there is no session bus"));
        return;
    }
    compareOpenings(session);

    const QTemporaryDir folder;
    const QString document = folder.filePath(QStringLiteral("document.pdf"));
    if (!writeDocument(document, 200))
        return;
    std::vector<double> times;
    for (int run = -1; run < benchRuns; ++run) {
        const double time = session.preview(document);
        if (run >= 0)
            times.push_back(time);
    }
    const QString row = QStringLiteral("painted dialog to the preview of the first of 200 pages, portal, X");
    if (const double time = medianOrNothing(times))
        printRow({row, time, QStringLiteral("limit"), {}, {}, 100.0});
    else
        printNote(QStringLiteral("%1: not measured, it was not painted").arg(row));
}
#else
void benchPortal()
{
    printNote(QStringLiteral("the print portal: not measured, there is no private cupsd"));
}
#endif
