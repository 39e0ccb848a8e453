// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WindowRun.h"

#include "Console.h"
#include "FileOpener.h"
#include "JobTemplate.h"
#include "PresetStore.h"
#include "WindowPlacement.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

namespace printdialog {

namespace {

/// The list's photos, as far as they can be opened.
void openList(const QString &path, PrintDialogSetup &setup)
{
    const auto list = PrintList::load(path);
    if (!list) {
        setup.photoFailures += list.failure().text;
        return;
    }
    setup.arrangement = Arrangement{{}, list->layout, list->pages};
    FileOpener opener;
    for (const PrintList::Entry &entry : list->photos) {
        if (const auto photos = opener.open(entry))
            setup.arrangement->photos += *photos;
        else if (photos.failure().reason == PhotoFault::NeedsPassword)
            setup.lockedEntries += entry;
        else if (!setup.photoFailures.contains(photos.failure().text))
            setup.photoFailures.append(photos.failure().text);
    }
}

/// Opens files until there is something to show. A document that needs a password is left to the window,
/// which asks for it.
void openFirst(PrintDialogSetup &setup)
{
    QStringList locked;
    while (setup.photos.isEmpty() && !setup.furtherPaths.isEmpty()) {
        const QString path = setup.furtherPaths.takeFirst();
        if (const auto photos = Photo::openAll(path))
            setup.photos = *photos;
        else if (photos.failure().reason == PhotoFault::NeedsPassword)
            locked.append(path);
        else
            setup.photoFailures.append(photos.failure().text);
    }
    setup.furtherPaths = locked + setup.furtherPaths;
}

} // namespace

PrintDialogSetup windowSetup(const CommandLine &commandLine)
{
    PrintDialogSetup setup;
    if (commandLine.hasPrintList())
        openList(commandLine.photos.constFirst(), setup);
    else
        setup.furtherPaths = commandLine.photos;
    openFirst(setup);
    setup.pages = commandLine.pages;
    setup.mode = commandLine.mode;
    if (commandLine.printer)
        setup.printer = PresetStore::destination(*commandLine.printer);
    setup.ppdFile = commandLine.ppd;
    for (const RequestedChoice &option : commandLine.options)
        setup.options.append({option.key, option.choice});
    if (commandLine.title)
        setup.options.append({JobTemplate::titleKey(), QStringLiteral("Custom.") + *commandLine.title});
    setup.copies = commandLine.copies;
    if (commandLine.style != RequestedStyle())
        setup.style = commandLine.style.over({});
    setup.outputFolder = commandLine.outputFolder();
    return setup;
}

int runWindow(const CommandLine &commandLine, QApplication & /*application*/)
{
    Console console;
    const PrintDialogSetup setup = windowSetup(commandLine);
    const bool hasPhotos = !setup.photos.isEmpty() || !setup.furtherPaths.isEmpty() ||
                           !setup.lockedEntries.isEmpty() ||
                           (setup.arrangement && !setup.arrangement->photos.isEmpty());
    if (!hasPhotos && !setup.photoFailures.isEmpty()) {
        console.complain(Console::oneLine(setup.photoFailures));
        return exitFailed;
    }
    // The desktop file identifies the window to the desktop. The icon is compiled in: finding it in the icon
    // theme takes longer than loading all panels.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.corvel.print"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/corvel-print/icons/corvel-print.png")));
    PrintDialog dialog(setup);
    if (commandLine.ppd && !dialog.isReady()) {
        console.complain(dialog.whyNotReady());
        return exitFailed;
    }
    if (const QString platform = QGuiApplication::platformName();
        platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        console.complain(
            QCoreApplication::translate(
                "WindowRun",
                "The window cannot be seen, because QT_QPA_PLATFORM asks for \"%1\". Unset it, or print "
                "without a window (--batch).")
                .arg(platform));
    // A worker thread searches while the window is laid out and shown.
    dialog.searchPrinters();
    dialog.restorePlacement(WindowPlacement::load());
    dialog.exec();
    WindowPlacement::save(dialog.saveGeometry());
    return exitDone;
}

} // namespace printdialog
