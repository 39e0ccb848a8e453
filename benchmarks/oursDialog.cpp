// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// Our dialog, linked with what the program is linked with: prints the monotonic time at which it is
// constructed, and that at which a panel is first painted, and ends. Its arguments are the queue, without
// which it opens the built-in printer, and the name of a widget that is waited for in place of a panel. With
// --photos and a folder, it opens the folder's photos; see runPhotos().

#include "PaintWatch.h"
#include "PhotosRun.h"
#include "PrintDialog.h"

#include <QtCore/QFile>

#include <optional>

using namespace printdialog;

namespace {

/// Our dialog, with the built-in printer or with a queue, until the widget is painted.
int open(const std::optional<QString> &queue, const QString &widget)
{
    PrintDialogSetup setup;
    const auto photo = Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    if (!photo)
        return 1;
    setup.photos = {*photo};
    setup.printer = queue;
    setup.remembers = false;
    printTime();
    PrintDialog dialog(setup);
    new PaintWatch(widget);
    if (queue)
        dialog.searchPrinters();
    return dialog.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const std::optional<QString> queue = argc > 1 ? std::optional(QFile::decodeName(argv[1])) : std::nullopt;
    const QString widget = argc > 2 ? QFile::decodeName(argv[2]) : QStringLiteral("PDEView");
    argc = 1;
    const QApplication application(argc, argv);
    if (queue == QStringLiteral("--photos"))
        return runPhotos(widget);
    QTimer::singleShot(15000, qApp, [] { _exit(1); });
    return open(queue, widget);
}
