// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ActionGuard.h"
#include "BatchRun.h"
#include "CommandLine.h"
#include "Console.h"
#include "Listings.h"
#include "QuietDecoding.h"
#include "QuietFeedback.h"
#include "ScreenshotRun.h"
#include "SystemLog.h"
#include "WindowRun.h"

#include <QtCore/QFile>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

#include <csignal>
#include <unistd.h>

using namespace printdialog;

namespace {

/// Lets no exception of a panel's own event handlers out into Qt's event loop, which would end the program.
class GuardedApplication final : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            if (!pdekit::handleFailure(receiver))
                throw;
            return true;
        }
    }
};

/// Loads the program's texts in the first of the user's languages that it has. The texts in the source are
/// the English ones, but for their plural forms.
/// @return the language's code; empty when there are none
QString loadOwnTexts(QTranslator &translator)
{
    const QStringList languages = QLocale().uiLanguages() << QStringLiteral("en");
    for (const QString &language : languages) {
        const QString code = language.section(u'-', 0, 0);
        if (translator.load(QStringLiteral(":/corvel-print/i18n/corvel-print_%1.qm").arg(code)))
            return code;
    }
    return {};
}

/// Installs the program's texts in the user's language, and Qt's own (file dialogs, buttons) in the same one,
/// where they are installed.
void loadTranslations(QCoreApplication &application)
{
    auto *own = new QTranslator(&application);
    const QString code = loadOwnTexts(*own);
    QCoreApplication::installTranslator(own);
    auto *qts = new QTranslator(&application);
    if (qts->load(QStringLiteral("qtbase_%1.qm").arg(code),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qts);
}

/// Why Qt has nothing to draw on. It happens before any translation can be installed.
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

/// What Qt itself has to say belongs into the log: standard error holds one clear line, or nothing. Qt gives
/// up where it finds no display, which is no reason to leave a core file.
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

/// The runs that need neither a display nor the application's other parts.
int runWithoutApplication(const QStringList &arguments, int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    loadTranslations(*QCoreApplication::instance());
    Console console;
    const auto commandLine = CommandLine::parse(arguments); // again, now in the user's language
    if (!commandLine) {
        console.complain(QCoreApplication::translate("main", "%1 See corvel-print --help.")
                             .arg(commandLine.failure().text));
        return exitWrongUsage;
    }
    if (commandLine->help)
        console.writeLines(CommandLine::helpText().chopped(1).split(u'\n'));
    else
        console.writeLine(QStringLiteral("corvel-print %1").arg(QCoreApplication::applicationVersion()));
    return console.finish(exitDone);
}

/// Chooses what Qt draws on, unless the user has. False: there is no display, and the task needs one.
bool choosePlatform(const CommandLine &commandLine)
{
    const auto isSet = [](const char *variable) {
        return !qEnvironmentVariableIsEmpty(variable);
    };
    if (isSet("QT_QPA_PLATFORM"))
        return true;
    // Nobody sees the widgets that panels make: this platform spares them the system's fonts, which are a
    // quarter of such a run's time.
    if (commandLine.runsWithoutWindow())
        return qputenv("QT_QPA_PLATFORM", "minimal");
    // Pictures of the dialog look the same with and without a display.
    if (commandLine.screenshot)
        return qputenv("QT_QPA_PLATFORM", "offscreen");
    // A name that is not a path is one in that folder, and the library would complain without it.
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
    Console console;
    const int status = commandLine.batch || commandLine.dryRun ? BatchRun(commandLine, console).run()
                       : commandLine.listPrinters              ? listPrinters(commandLine, console)
                       : commandLine.listOptions               ? listOptions(commandLine, console)
                                                               : showSummary(commandLine, console);
    return console.finish(status);
}

} // namespace

int main(int argc, char *argv[])
{
    Console::prepareStreams();
    std::signal(SIGCHLD, SIG_DFL); // who starts the program may have it ignored, and then nobody tells an end
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    argc = 1; // none of them is meant for Qt

    qInstallMessageHandler(logQtMessage);
    QCoreApplication::setApplicationName(QStringLiteral("corvel-print"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVEL_PRINT_VERSION));
    const auto commandLine = CommandLine::parse(arguments);
    if (!commandLine || commandLine->help || commandLine->version)
        return runWithoutApplication(arguments, argc, argv);

    if (commandLine->server)
        qputenv("CUPS_SERVER", commandLine->server->toLocal8Bit());
    if (!choosePlatform(*commandLine))
        return failWithoutDisplay(argc, argv);
    GuardedApplication application(argc, argv);
    loadTranslations(application);
    if (commandLine->runsWithoutWindow())
        return runWithoutWindow(*commandLine);
    return commandLine->screenshot ? runScreenshot(*commandLine, application)
                                   : runWindow(*commandLine, application);
}
