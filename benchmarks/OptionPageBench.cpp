// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "OptionPageView.h"
#include "PrintDialog.h"
#include "SystemLog.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

using namespace printdialog;

namespace {

constexpr int choices = 201;
constexpr double largestTurn = 50.0;

/// Whether a widget has been painted, which ends with the events that are processed then.
class Painted : public QObject
{
public:
    Painted() { qApp->installEventFilter(this); }

    /// Processes events until a widget of the class is painted, or until the time is up.
    bool await(const char *className)
    {
        className_ = className;
        isPainted_ = false;
        // Not QTest::qWaitFor(), which sleeps between its looks.
        const QDeadlineTimer deadline(15000);
        while (!isPainted_ && !deadline.hasExpired())
            QCoreApplication::processEvents();
        return isPainted_;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (className_ && event->type() == QEvent::Paint && watched->inherits(className_))
            isPainted_ = true;
        return QObject::eventFilter(watched, event);
    }

private:
    const char *className_ = nullptr;
    bool isPainted_ = false;
};

PrintDialogSetup setupOf(const QString &ppd, PanelMode mode)
{
    PrintDialogSetup setup;
    setup.mode = mode;
    setup.ppdFile = ppd;
    setup.remembers = false;
    return setup;
}

QString ppdOf(int options)
{
    return QStringLiteral(CORVEL_BENCH_PPD_DIR "/BenchOptions%1.ppd").arg(options);
}

/// The same without a plug-in: the dialog's own page comes first. Empty when it cannot be written.
QString ppdWithoutPlugin(int options, const QTemporaryDir &folder)
{
    QFile ppd(ppdOf(options));
    QFile copy(folder.filePath(QStringLiteral("%1.ppd").arg(options)));
    if (!ppd.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return {};
    copy.write(ppd.readAll().replace("*APDialogExtension: \"Corvel9031.bundle\"\n", ""));
    return copy.fileName();
}

void turnToOptions(PrintDialog &dialog)
{
    for (int page = 0; page < dialog.pageCount(); ++page) {
        if (dialog.pageKindSuffix(page) == QLatin1String("options"))
            dialog.showPage(page);
    }
}

double turning(int options)
{
    std::vector<double> times;
    for (int run = -1; run < benchRuns; ++run) { // the first one warms up
        Painted painted;
        PrintDialog dialog(setupOf(ppdOf(options), PanelMode::Constraint));
        dialog.show();
        if (!painted.await("QTabWidget"))
            qFatal("the window was not painted");
        const double time = millisecondsOf([&] {
            turnToOptions(dialog);
            if (!painted.await("printdialog::OptionPageView"))
                qFatal("the page was not painted");
        });
        if (run >= 0)
            times.push_back(time);
    }
    return median(times);
}

/// From the dialog's construction to its painted page.
double openingWithPage(const QString &ppd)
{
    std::vector<double> times;
    for (int run = -1; run < benchRuns; ++run) {
        Painted painted;
        const double begin = monotonicMilliseconds();
        PrintDialog dialog(setupOf(ppd, PanelMode::Constraint));
        dialog.show();
        if (!painted.await("printdialog::OptionPageView"))
            qFatal("the page was not painted");
        if (run >= 0)
            times.push_back(monotonicMilliseconds() - begin);
    }
    return median(times);
}

/// A key in a list, from and to the printer's default, until its row is painted again.
double choosing(int options, PanelMode mode)
{
    Painted painted;
    PrintDialog dialog(setupOf(ppdOf(options), mode));
    dialog.show();
    turnToOptions(dialog);
    auto *view = dialog.findChild<OptionPageView *>();
    if (!QTest::qWaitFor([view] { return view->isComplete(); }, 60000))
        qFatal("the page was not completed");
    auto *list = dialog.findChild<QComboBox *>(QStringLiteral("Bench0005"));
    list->setFocus();
    QTest::qWait(50); // until it is painted
    std::vector<double> times;
    for (int i = 0; i < choices; ++i) {
        const bool isBack = list->currentIndex() > 0;
        times.push_back(millisecondsOf([&] {
            QTest::keyClick(list, isBack ? Qt::Key_Up : Qt::Key_Down);
            painted.await("QComboBox");
        }));
        if (list->currentIndex() != (isBack ? 0 : 1))
            qFatal("the key did not reach the list");
    }
    return median(times);
}

} // namespace

void benchOptionPage()
{
    const pdekit::LogSink log = pdekit::setSystemLogSink([](const QString &) {});
    printRow({QStringLiteral("turning to a page of 1000 options, until it is painted"),
              turning(1000),
              QStringLiteral("with 10"),
              turning(10),
              {},
              largestTurn});
    const QTemporaryDir folder;
    printRow({QStringLiteral("construction to a first page of 1000 options, painted"),
              openingWithPage(ppdWithoutPlugin(1000, folder)),
              QStringLiteral("with 10"),
              openingWithPage(ppdWithoutPlugin(10, folder)),
              {},
              {}});
    for (const auto &[mode, name] : {std::pair(PanelMode::Constraint, QStringLiteral("constraint mode")),
                                     std::pair(PanelMode::Settings, QStringLiteral("settings mode"))})
        printRow({QStringLiteral("a choice on a page of 1000 options, %1").arg(name),
                  choosing(1000, mode),
                  QStringLiteral("with 10"),
                  choosing(10, mode),
                  1.2,
                  {}});
    pdekit::setSystemLogSink(log);
}
