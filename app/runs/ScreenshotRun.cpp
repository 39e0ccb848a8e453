// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ScreenshotRun.h"

#include "Console.h"
#include "RequestedSession.h"
#include "WindowRun.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtCore/QThread>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <chrono>
#include <utility>

namespace printdialog {

namespace {

struct ScreenshotText
{
    Q_DECLARE_TR_FUNCTIONS(ScreenshotRun)
};

constexpr std::chrono::seconds patience(15);

template <class Condition>
void waitFor(QApplication &application, Condition condition)
{
    const QDeadlineTimer deadline(patience);
    while (!condition() && !deadline.hasExpired()) {
        application.processEvents();
        QThread::msleep(5);
    }
}

/// Returns a sentence on failure; empty on success.
QString save(const QPixmap &picture, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit())
        return {};
    return ScreenshotText::tr("The picture %1 could not be written: %2. Choose a folder that can be written.")
        .arg(path, file.errorString());
}

QString renderPages(PrintDialog &dialog, QApplication &application, const QDir &folder)
{
    // A page is created when it is first shown, and may be wider than earlier ones, so create all before the
    // first picture.
    for (int page = 0; page < dialog.pageCount(); ++page) {
        dialog.showPage(page);
        application.processEvents();
    }
    dialog.resize(dialog.sizeHint());
    application.processEvents();
    for (int page = 0; page < dialog.pageCount(); ++page) {
        dialog.showPage(page);
        application.processEvents();
        const QString suffix = dialog.pageKindSuffix(page);
        const QString name = suffix.isEmpty() ? QStringLiteral("summary") : suffix;
        QString failure = save(dialog.grab(), folder.filePath(name + QLatin1String(".png")));
        if (!failure.isEmpty())
            return failure;
    }
    return {};
}

/// Returns a sentence when the printer's options could not be loaded; empty on success.
QString openPrinter(PrintDialog &dialog, QApplication &application, const QString &id)
{
    const auto isOpen = [&dialog, &id] {
        return dialog.printer() == id && dialog.isReady();
    };
    if (!isOpen()) {
        dialog.searchPrinters();
        waitFor(application, [&] { return isOpen() || !dialog.message().isEmpty(); });
    }
    if (isOpen())
        return {};
    return dialog.message().isEmpty() ? dialog.whyNotReady() : dialog.message();
}

} // namespace

int runScreenshot(const CommandLine &commandLine, QApplication &application)
{
    Console console;
    const auto endWith = [&console](const QString &failure) {
        if (failure.isEmpty())
            return static_cast<int>(exitDone);
        console.complain(failure);
        return static_cast<int>(exitFailed);
    };
    auto setup = windowSetup(commandLine);
    for (const QString &path : std::exchange(setup.furtherPaths, {})) {
        if (const auto photos = Photo::openAll(path))
            setup.photos += *photos;
        else
            setup.photoFailures.append(photos.failure().text);
    }
    if (!setup.photoFailures.isEmpty())
        return endWith(Console::oneLine(setup.photoFailures));
    // Problems that the dialog only shows in its window (a refused choice, a missing plug-in) are failures
    // here.
    const auto requested = openRequestedSession(commandLine);
    if (!requested)
        return endWith(requested.failure().text);
    const QString printer = requested->session->printer().destination.id();
    if (!commandLine.asksForBuiltInPrinter()) // the id may include a preset
        setup.printer = printer;
    setup.remembers = false;
    const QDir folder(*commandLine.screenshot);
    if (!folder.mkpath(QStringLiteral(".")))
        return endWith(
            ScreenshotText::tr("The folder %1 cannot be made. Choose another one for the pictures.")
                .arg(folder.path()));

    PrintDialog dialog(setup);
    dialog.show();
    if (const QString failure = openPrinter(dialog, application, printer); !failure.isEmpty())
        return endWith(failure);
    waitFor(application, [&dialog] { return dialog.isPreviewReady(); });
    return endWith(renderPages(dialog, application, folder));
}

} // namespace printdialog
