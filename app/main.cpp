// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BatchRun.h"
#include "CommandLine.h"
#include "Console.h"
#include "DescriptorLimit.h"
#include "GuardedApplication.h"
#include "Listings.h"
#include "PortalSwitch.h"
#include "PreviewRun.h"
#include "ProgramTexts.h"
#include "QuietDecoding.h"
#include "QuietFeedback.h"
#include "ScreenshotRun.h"
#include "StandardInput.h"
#include "SystemLog.h"
#include "TerminalLogin.h"
#include "WatchRun.h"
#include "WindowRun.h"

#include <QtCore/QFile>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

#include <csignal>
#include <unistd.h>

using namespace printdialog;

namespace {

/// The message that Qt has no platform to draw on. It is needed before a translation can be installed.
QString withoutPlatform()
{
    QTranslator texts;
    loadOwnTexts(texts);
    const auto translated = [&texts](const char *text) {
        const QString found = texts.translate("main", text);
        return found.isEmpty() ? QString::fromLatin1(text) : found;
    };
    if (const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM"); !platform.isEmpty())
        return translated(QT_TRANSLATE_NOOP("main",
                                            "The program cannot start: QT_QPA_PLATFORM asks for \"%1\", "
                                            "which cannot be used. Unset it."))
            .arg(platform);
    const QString display = qEnvironmentVariable("DISPLAY");
    return translated(QT_TRANSLATE_NOOP("main",
                                        "The program cannot open a window on the display \"%1\". Start it "
                                        "in a desktop session, or print without a window (--batch)."))
        .arg(display.isEmpty() ? qEnvironmentVariable("WAYLAND_DISPLAY") : display);
}

/// Sends Qt's messages to the log: standard error has one clear line, or nothing. Qt aborts when it finds no
/// display, which should not leave a core file.
void logQtMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    pdekit::systemLog(message);
    if (type != QtFatalMsg)
        return;
    const bool isForPlatform = message.contains(QLatin1String("no Qt platform plugin"));
    Console().complain(
        isForPlatform
            ? withoutPlatform()
            : QCoreApplication::translate("main", "The program cannot start: %1").arg(message.simplified()));
    _exit(exitFailed);
}

/// Handles the runs that need neither a display nor the application's other parts.
int runWithoutApplication(const QStringList &arguments, int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    loadTranslations(*QCoreApplication::instance());
    Console console;
    const auto commandLine =
        CommandLine::parse(arguments); // parsed again for messages in the user's language
    if (!commandLine) {
        console.complain(QCoreApplication::translate("main", "%1 See corvel-print --help.")
                             .arg(commandLine.failure().text));
        return exitWrongUsage;
    }
    if (commandLine->portal)
        return console.finish(switchPortal(*commandLine->portal, console));
    if (commandLine->help)
        console.writeLines(CommandLine::helpText().chopped(1).split(u'\n'));
    else
        console.writeLine(QStringLiteral("corvel-print %1").arg(QCoreApplication::applicationVersion()));
    return console.finish(exitDone);
}

/// Chooses Qt's platform, unless the user has. False: there is no display, and the task needs one.
bool choosePlatform(const CommandLine &commandLine)
{
    const auto isSet = [](const char *variable) {
        return !qEnvironmentVariableIsEmpty(variable);
    };
    if (isSet("QT_QPA_PLATFORM"))
        return true;
    // The panels' widgets are not shown: this platform does not load the system's fonts, which would take a
    // quarter of the run's time.
    if (commandLine.runsWithoutWindow())
        return qputenv("QT_QPA_PLATFORM", commandLine.drawsText() ? "offscreen" : "minimal");
    // Pictures of the dialog then look the same with and without a display.
    if (commandLine.screenshot)
        return qputenv("QT_QPA_PLATFORM", "offscreen");
    // A name that is not a path is relative to that folder, and the library would print an error without it.
    const bool hasWayland =
        isSet("WAYLAND_DISPLAY") && (isSet("XDG_RUNTIME_DIR") || qgetenv("WAYLAND_DISPLAY").startsWith('/'));
    return isSet("DISPLAY") || hasWayland;
}

int failWithoutDisplay(int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    loadTranslations(*QCoreApplication::instance());
    Console().complain(QCoreApplication::translate(
        "main", "There is no display to open a window on. Start it in a desktop session, or print without a "
                "window (--batch)."));
    return exitFailed;
}

int runWithoutWindow(const CommandLine &commandLine)
{
    pdekit::Feedback::install(std::make_shared<QuietFeedback>());
    QuietDecoding::enable();
    askLoginsOnTerminal();
    Console console;
    const int status = commandLine.batch || commandLine.dryRun ? BatchRun(commandLine, console).run()
                       : commandLine.watch                     ? WatchRun(commandLine, console).run()
                       : commandLine.preview                   ? savePreviews(commandLine, console)
                       : commandLine.listPrinters              ? listPrinters(commandLine, console)
                       : commandLine.listOptions               ? listOptions(commandLine, console)
                                                               : showSummary(commandLine, console);
    return console.finish(status);
}

} // namespace

int main(int argc, char *argv[])
{
    Console::prepareStreams();
    std::signal(SIGCHLD,
                SIG_DFL); // a parent may have set it to ignored; then no child's end would be reported
    raiseDescriptorLimit();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    argc = 1; // no argument is meant for Qt

    qInstallMessageHandler(logQtMessage);
    QCoreApplication::setApplicationName(QStringLiteral("corvel-print"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVEL_PRINT_VERSION));
    auto commandLine = CommandLine::parse(arguments);
    if (!commandLine || commandLine->help || commandLine->version || commandLine->portal)
        return runWithoutApplication(arguments, argc, argv);

    if (commandLine->server)
        qputenv("CUPS_SERVER", commandLine->server->toLocal8Bit());
    if (!choosePlatform(*commandLine))
        return failWithoutDisplay(argc, argv);
    GuardedApplication application(argc, argv);
    loadTranslations(application);
    StandardInput input;
    if (const auto failure = input.replaceIn(commandLine->photos)) {
        Console console;
        console.complain(*failure);
        return console.finish(exitFailed);
    }
    if (commandLine->runsWithoutWindow())
        return runWithoutWindow(*commandLine);
    return commandLine->screenshot ? runScreenshot(*commandLine, application)
                                   : runWindow(*commandLine, application);
}
