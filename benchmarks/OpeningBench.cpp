// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "PaintWatch.h"
#include "VirtualDisplay.h"

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

#include <algorithm>

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "PrivateCupsd.h"
#endif

namespace {

/// Qt's dialog, then its printer's properties with the page of the PPD's options.
int openQts()
{
    printTime();
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
            tabs->currentWidget()->setObjectName(QStringLiteral("optionsPage"));
            new PaintWatch(QStringLiteral("optionsPage"));
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

/// What is counted: all from before the process is made, or from the dialog's construction.
enum class Since { Process, Construction };

/// Milliseconds to its first paint; 0 when it failed. The program reports the times of the construction, if
/// it is a peer, and of the paint.
double opening(const QStringList &command, const QProcessEnvironment &environment, Since since)
{
    QProcess child;
    child.setProcessEnvironment(environment);
    const double begin = monotonicMilliseconds();
    child.start(command.constFirst(), command.mid(1));
    if (!child.waitForFinished(20000))
        return 0.0;
    const QByteArrayList times = child.readAllStandardOutput().trimmed().split('\n');
    const double end = times.constLast().toDouble();
    if (child.exitCode() != 0 || end == 0.0)
        return 0.0;
    return end - (since == Since::Construction ? times.constFirst().toDouble() : begin);
}

/// Our program; see there.
QStringList ours(const QStringList &arguments = {})
{
    return QStringList(QStringLiteral(CORVEL_BENCH_OURS)) + arguments;
}

QStringList qts()
{
    return {QApplication::applicationFilePath(), QStringLiteral("--child"), QStringLiteral("qt")};
}

/// The medians of each command's openings, which took turns; 0 for one that failed.
std::vector<double> compare(const QList<QPair<QStringList, QProcessEnvironment>> &programs,
                            Since since = Since::Process)
{
    std::vector<std::vector<double>> times(static_cast<std::size_t>(programs.size()));
    for (int run = -1; run < benchRuns; ++run) { // the first one warms up
        for (std::size_t i = 0; i < times.size(); ++i) {
            const auto &[command, environment] = programs.at(static_cast<qsizetype>(i));
            const double time = opening(command, environment, since);
            if (run >= 0)
                times[i].push_back(time);
        }
    }
    std::vector<double> medians;
    medians.reserve(times.size());
    for (const std::vector<double> &each : times)
        medians.push_back(std::count(each.cbegin(), each.cend(), 0.0) > 0 ? 0.0 : median(each));
    return medians;
}

void printComparison(const QString &what, double ours, const QString &peerName, double peer,
                     double largestRatio)
{
    if (ours == 0.0 || peer == 0.0)
        printNote(QStringLiteral("%1 beside %2: not measured, %3 was not painted")
                      .arg(what, peerName, ours == 0.0 ? QStringLiteral("ours") : peerName));
    else
        printRow({what, ours, peerName, peer, largestRatio, {}});
}

#ifdef CORVEL_BENCH_HAS_CUPSD
/// An office printer, whose options each dialog shows on pages of its own; no plug-in takes part.
void benchOptionPages(testing_support::PrivateCupsd &server,
                      const std::optional<QProcessEnvironment> &onDisplay)
{
    const QString queue = QStringLiteral("laser");
    const QString what = QStringLiteral("construction to an office printer's painted options");
    QFile ppd(QStringLiteral(CORVEL_LASER_PPD));
    if (!ppd.open(QIODevice::ReadOnly) || !server.addQueue(queue, ppd.readAll()) ||
        !server.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), queue})) {
        printNote(QStringLiteral("%1: not measured, because no queue was found").arg(what));
        return;
    }
    const QStringList mine = ours({queue, QStringLiteral("InputSlot")});
    const auto here = QProcessEnvironment::systemEnvironment();
    const std::vector<double> times = compare({{mine, here}, {qts(), here}}, Since::Construction);
    printComparison(what, times[0], QStringLiteral("QPrintDialog"), times[1], 0.7);
#ifdef CORVEL_BENCH_GTK
    if (!onDisplay)
        return;
    const std::vector<double> onX =
        compare({{mine, *onDisplay},
                 {qts(), *onDisplay},
                 {{QStringLiteral(CORVEL_BENCH_GTK), queue, QStringLiteral("Advanced")}, *onDisplay}},
                Since::Construction);
    printComparison(what + QStringLiteral(", X"), onX[0], QStringLiteral("QPrintDialog"), onX[1], 0.7);
    printComparison(what + QStringLiteral(", X"), onX[0], QStringLiteral("GTK"), onX[2], 0.7);
#endif
}

void benchBesideGtk(const QProcessEnvironment &environment)
{
#ifdef CORVEL_BENCH_GTK
    const QString what = QStringLiteral("process start to a queue's painted options, on an X display");
    const std::vector<double> times =
        compare({{ours({QStringLiteral("photo")}), environment},
                 {{QStringLiteral(CORVEL_BENCH_GTK), QStringLiteral("photo")}, environment}});
    printComparison(what, times[0], QStringLiteral("GTK"), times[1], 1.0);
#endif
}
#endif

} // namespace

int runOpeningChild()
{
    QTimer::singleShot(15000, qApp, [] { _exit(1); });
    return openQts();
}

void benchOpening()
{
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString what = QStringLiteral("process start to painted dialog with its panels");
    const QTemporaryDir bundles;
    if (copyWithOneForm(bundles.path())) {
        QProcessEnvironment oneForm = environment;
        oneForm.insert(QStringLiteral("CORVEL_PDE_PATH"), bundles.path());
        const std::vector<double> times = compare({{ours(), environment}, {ours(), oneForm}});
        printComparison(what, times[0], QStringLiteral("one form"), times[1], 1.3);
    }
#ifdef CORVEL_BENCH_HAS_CUPSD
    testing_support::PrivateCupsd server;
    QFile ppd(QStringLiteral(CORVEL_BENCH_PPD_DIR "/Corvel9031.ppd"));
    if (!ppd.open(QIODevice::ReadOnly) || !server.start().isEmpty() ||
        !server.addQueue(QStringLiteral("photo"), ppd.readAll())) {
        printNote(QStringLiteral("the dialogs of Qt and GTK: not measured, there is no private cupsd"));
        return;
    }
    server.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("photo")});
    const QProcessEnvironment withServer = QProcessEnvironment::systemEnvironment();
    const std::vector<double> times = compare({{ours({QStringLiteral("photo")}), withServer},
                                               {qts(), withServer},
                                               {{QStringLiteral(CORVEL_BENCH_PLAIN)}, withServer}});
    const QString queues = QStringLiteral("process start to a queue's painted options");
    printComparison(queues, times[0], QStringLiteral("QPrintDialog"), times[1], 0.7);
    printComparison(queues, times[0], QStringLiteral("20 sliders"), times[2], 1.6);
    const VirtualDisplay display;
    const auto onDisplay = display.environment();
    if (onDisplay)
        benchBesideGtk(*onDisplay);
    else
        printNote(QStringLiteral("on an X display: not measured, there is no Xvfb"));
    benchOptionPages(server, onDisplay);
#endif
}
