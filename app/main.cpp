// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BatchRun.h"
#include "CommandLine.h"
#include "Console.h"
#include "Listings.h"
#include "QuietFeedback.h"
#include "ScreenshotRun.h"
#include "SystemLog.h"
#include "WindowRun.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

#include <csignal>

using namespace printdialog;

namespace {

/// Installs the program's texts in the first of the user's languages that it has. The texts in the source are
/// the English ones.
void loadTranslations(QCoreApplication &application)
{
    auto *translator = new QTranslator(&application);
    const QStringList languages = QLocale().uiLanguages();
    for (const QString &language : languages) {
        const QString code = language.section(u'-', 0, 0);
        if (code == QLatin1String("en"))
            return;
        if (translator->load(QStringLiteral(":/corvel-print/i18n/corvel-print_%1.qm").arg(code))) {
            QCoreApplication::installTranslator(translator);
            return;
        }
    }
}

/// What Qt itself has to say belongs into the log: standard error holds one clear line, or nothing.
void logQtMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &message)
{
    pdekit::systemLog(message);
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

int runWithoutDisplay(const CommandLine &commandLine)
{
    // A reader of the output that has gone is an error like any other, not the end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    pdekit::Feedback::install(std::make_shared<QuietFeedback>());
    Console console;
    const int status = commandLine.batch          ? BatchRun(commandLine, console).run()
                       : commandLine.listPrinters ? listPrinters(commandLine, console)
                       : commandLine.listOptions  ? listOptions(commandLine, console)
                                                  : showSummary(commandLine, console);
    return console.finish(status);
}

} // namespace

int main(int argc, char *argv[])
{
    Console::holdStandardStreams();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    argc = 1; // none of them is meant for Qt

    qInstallMessageHandler(logQtMessage);
    QCoreApplication::setApplicationName(QStringLiteral("corvel-print"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVEL_PRINT_VERSION));
    const auto commandLine = CommandLine::parse(arguments);
    if (!commandLine || commandLine->help || commandLine->version)
        return runWithoutApplication(arguments, argc, argv);

    if (commandLine->runsWithoutDisplay() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    loadTranslations(application);
    if (commandLine->runsWithoutDisplay())
        return runWithoutDisplay(*commandLine);
    return commandLine->screenshot ? runScreenshot(*commandLine, application)
                                   : runWindow(*commandLine, application);
}
