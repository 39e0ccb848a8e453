// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// Our dialog, linked with what the program is linked with: prints the monotonic time at which a panel is
// first painted, and ends. Its argument is the queue; without one it opens the built-in printer.

#include "PaintWatch.h"
#include "PrintDialog.h"

#include <QtCore/QFile>

#include <optional>

using namespace printdialog;

namespace {

/// Our dialog, with the built-in printer or with a queue, until a panel is painted.
int open(const std::optional<QString> &queue)
{
    PrintDialogSetup setup;
    const auto photo = Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    if (!photo)
        return 1;
    setup.photos = {*photo};
    setup.printer = queue;
    setup.remembers = false;
    PrintDialog dialog(setup);
    new PaintWatch(QStringLiteral("PDEView"));
    if (queue)
        dialog.searchPrinters();
    return dialog.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    const std::optional<QString> queue = argc > 1 ? std::optional(QFile::decodeName(argv[1])) : std::nullopt;
    argc = 1;
    const QApplication application(argc, argv);
    QTimer::singleShot(15000, qApp, [] { _exit(1); });
    return open(queue);
}
