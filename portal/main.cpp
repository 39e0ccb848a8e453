// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DescriptorLimit.h"
#include "GuardedApplication.h"
#include "PrintPortal.h"
#include "ProgramTexts.h"
#include "SystemLog.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QSocketNotifier>
#include <QtGui/QIcon>

#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

using namespace printdialog;

namespace {

constexpr int exitFailed = 1;

/// Qt aborts when it finds no display, which should not leave a core file.
void logQtMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    pdekit::systemLog(message);
    if (type == QtFatalMsg)
        _exit(exitFailed);
}

PrintPortal::Settings settingsOf(const QStringList &arguments)
{
    const auto text = [](const char *english) {
        return QCoreApplication::translate("corvel-print-portal", english);
    };
    QCommandLineParser parser;
    parser.setApplicationDescription(text(QT_TRANSLATE_NOOP(
        "corvel-print-portal", "Shows the print dialog for programs that print through the desktop's portal. "
                               "The desktop starts it when it is needed.")));
    const QCommandLineOption replace(
        {QStringLiteral("r"), QStringLiteral("replace")},
        text(QT_TRANSLATE_NOOP("corvel-print-portal", "Take over from one that is running.")));
    const QCommandLineOption idle(
        QStringLiteral("idle-time"),
        text(QT_TRANSLATE_NOOP("corvel-print-portal", "Seconds without work until it ends.")),
        QStringLiteral("seconds"), QStringLiteral("60"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(replace);
    parser.addOption(idle);
    parser.process(arguments);
    PrintPortal::Settings settings;
    settings.replaces = parser.isSet(replace);
    settings.idleTime = std::chrono::seconds(parser.value(idle).toUInt());
    return settings;
}

/// The first signal, which comes when the user logs out, lets what is being sent reach the printer; the
/// second one ends the program at once.
void endOnSignals(PrintPortal &portal)
{
    static const int event = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto *notifier = new QSocketNotifier(event, QSocketNotifier::Read, &portal);
    QObject::connect(notifier, &QSocketNotifier::activated, &portal, [notifier, &portal] {
        notifier->setEnabled(false);
        portal.end();
    });
    struct sigaction action = {};
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    action.sa_handler = [](int) {
        eventfd_write(event, 1);
    };
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGCHLD, SIG_DFL); // a parent may have set it to ignored
    raiseDescriptorLimit();
    qInstallMessageHandler(logQtMessage);
    QCoreApplication::setApplicationName(QStringLiteral("corvel-print-portal"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVEL_PRINT_VERSION));
    GuardedApplication application(argc, argv);
    loadTranslations(application);
    const PrintPortal::Settings settings = settingsOf(QCoreApplication::arguments());
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(QStringLiteral("org.corvel.print"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/corvel-print/icons/corvel-print.png")));
    PrintPortal portal(QDBusConnection::sessionBus(), settings);
    endOnSignals(portal);
    if (const QString failure = portal.start(); !failure.isEmpty()) {
        pdekit::systemLog(failure);
        return exitFailed;
    }
    QObject::connect(&portal, &PrintPortal::over, &application, &QCoreApplication::quit);
    return QApplication::exec();
}
