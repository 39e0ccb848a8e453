// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "PrintDialog.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

#include <ctime>
#include <unistd.h>

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "PrivateCupsd.h"
#endif

namespace {

double monotonicMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Ends the process once the watched widget has been painted: it tells the time on standard output.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *watched)
        : QObject(watched)
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool result = QObject::eventFilter(watched, event);
        // The paint event itself has not been dealt with yet; the next turn of the loop comes after it.
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, this, [] {
                std::printf("%.3f\n", monotonicMilliseconds());
                std::fflush(stdout);
                _exit(0);
            });
        }
        return result;
    }
};

int openOurs()
{
    using namespace printdialog;
    PrintDialogSetup setup;
    const auto photo = Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    if (!photo)
        return 1;
    setup.photos = {*photo};
    PrintDialog dialog(setup);
    auto *view = dialog.findChild<QWidget *>(QStringLiteral("PDEView"));
    if (!view)
        return 1;
    new PaintWatch(view);
    return dialog.exec();
}

/// Qt's dialog, then its printer's properties with the page of the PPD's options.
int openQts()
{
    QPrinter printer;
    QPrintDialog dialog(&printer);
    QTimer watch;
    bool isWatching = false;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (isWatching || window == &dialog || !window->isVisible() ||
                !window->inherits("QPrintPropertiesDialog"))
                continue;
            auto *tabs = window->findChild<QTabWidget *>();
            tabs->setCurrentIndex(tabs->count() - 1);
            isWatching = true;
            new PaintWatch(tabs->currentWidget());
            tabs->currentWidget()->update();
        }
    });
    watch.start(1);
    QTimer::singleShot(0, &dialog, [&dialog] {
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text().contains(QLatin1String("roperties")))
                button->click();
        }
    });
    QTimer::singleShot(10000, &dialog, [] { _exit(1); });
    return dialog.exec();
}

/// A copy of the built bundle in which two of the three panels have no form, and so no view.
bool copyWithOneForm(const QString &folder)
{
    const QString source = QStringLiteral(CORVEL_PDE_BUILD_DIR);
    QDirIterator files(source, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        if (file.fileName() == QLatin1String("corvelSharpness.ui") ||
            file.fileName() == QLatin1String("corvelMatte.ui"))
            continue;
        const QString copy = folder + file.filePath().mid(source.size());
        if (!QDir().mkpath(QFileInfo(copy).path()) || !QFile::copy(file.filePath(), copy))
            return false;
    }
    return true;
}

/// Milliseconds from before the process is made to its first paint; 0 when it failed.
double opening(const QString &which, const QString &bundles = {})
{
    QProcess child;
    if (!bundles.isEmpty()) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("CORVEL_PDE_PATH"), bundles);
        child.setProcessEnvironment(environment);
    }
    const double begin = monotonicMilliseconds();
    child.start(QApplication::applicationFilePath(), {QStringLiteral("--child"), which});
    child.waitForFinished();
    const double end = child.readAllStandardOutput().trimmed().toDouble();
    return child.exitCode() == 0 && end > 0.0 ? end - begin : 0.0;
}

} // namespace

int runOpeningChild(const QString &which)
{
    return which == QLatin1String("ours") ? openOurs() : openQts();
}

void benchOpening()
{
    bool hasPeer = false;
#ifdef CORVEL_BENCH_HAS_CUPSD
    testing_support::PrivateCupsd server;
    QFile ppd(QStringLiteral(CORVEL_BENCH_PPD_DIR "/Corvel9031.ppd"));
    hasPeer = ppd.open(QIODevice::ReadOnly) && server.start().isEmpty() &&
              server.addQueue(QStringLiteral("photo"), ppd.readAll());
    server.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("photo")});
#endif
    std::vector<double> ours;
    std::vector<double> qts;
    std::vector<double> alone;
    const QTemporaryDir bundles;
    const bool hasBundle = copyWithOneForm(bundles.path());
    for (int run = 0; run < 12; ++run) {
        const double own = opening(QStringLiteral("ours"));
        const double qt = hasPeer ? opening(QStringLiteral("qt")) : 0.0;
        const double one = hasBundle ? opening(QStringLiteral("ours"), bundles.path()) : 0.0;
        if (run == 0)
            continue; // to warm up
        alone.push_back(one);
        ours.push_back(own);
        qts.push_back(qt);
    }
    BenchRow row{QStringLiteral("process start to painted dialog with its panels"), median(ours), {}, {}, {}};
    if (hasPeer && median(qts) > 0.0) {
        row.peer = median(qts);
        row.largestRatio = 0.7;
        row.what += QStringLiteral(" (peer: QPrintDialog)");
    } else {
        row.what += QStringLiteral(" (no peer: no cupsd)");
    }
    printRow(row);
    printRow({QStringLiteral("the same (peer: without the forms of two of the panels)"),
              median(ours),
              median(alone),
              1.3,
              {}});
}
