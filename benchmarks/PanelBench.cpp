// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "SessionOpening.h"
#include "SystemLog.h"
#include "ViewTags.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <cups/ppd.h>
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

using namespace printdialog;

namespace {

QString benchPpd(int choices)
{
    return QStringLiteral(CORVEL_BENCH_PPD_DIR "/Bench%1.ppd").arg(choices);
}

std::unique_ptr<DialogSession> openSession(int choices, PanelMode mode)
{
    SessionResult session = openBuiltInPrinter(benchPpd(choices), mode);
    if (!session || (*session)->loadPanels())
        qFatal("the session was not opened");
    return *std::move(session);
}

/// What libcups itself needs for one choice: find it, ask for conflicts, mark it.
double bareLibcups(ppd_file_t *ppd)
{
    std::vector<double> times;
    times.reserve(201);
    for (int i = 0; i < 201; ++i) {
        const QByteArray choice = QByteArray::number(i % 25);
        times.push_back(millisecondsOf([&] {
            ppdFindChoice(ppdFindOption(ppd, "Red"), choice.constData());
            cups_option_t *options = nullptr;
            cupsFreeOptions(cupsGetConflicts(ppd, "Red", choice.constData(), &options), options);
            ppdMarkOption(ppd, "Red", choice.constData());
        }));
    }
    return median(times);
}

void benchKeystroke(int choices, PanelMode mode, const QString &name)
{
    const auto session = openSession(choices, mode);
    QWidget *view = session->panels().front()->panelView();
    session->panels().front()->willShow();
    view->show();
    auto *field = qobject_cast<QLineEdit *>(pdekit::viewWithTag(view, 81));
    auto *slider = qobject_cast<QSlider *>(pdekit::viewWithTag(view, 1));
    field->setFocus();
    std::vector<double> times;
    times.reserve(201);
    for (int i = 0; i < 201; ++i) {
        field->selectAll();
        const auto digit = static_cast<Qt::Key>(Qt::Key_1 + i % 9);
        times.push_back(millisecondsOf([&] { QTest::keyClick(field, digit); }));
        if (slider->value() != 1 + i % 9)
            qFatal("the keystroke did not reach the slider");
    }
    printRow({QStringLiteral("keystroke to recorded choice, %1, %2 choices").arg(name).arg(choices),
              median(times),
              bareLibcups(session->ppd().record()),
              {},
              1.0});
}

double benchRestore(int choices, PanelMode mode, const QString &name)
{
    const auto session = openSession(choices, mode);
    std::vector<double> times;
    times.reserve(51);
    for (int i = 0; i < 51; ++i) {
        times.push_back(millisecondsOf([&] {
            session->refreshPanels();
            session->summary();
        }));
    }
    const double time = median(times);
    printRow({QStringLiteral("restore and summary of all panels, %1, %2 choices").arg(name).arg(choices),
              time,
              {},
              {},
              {}});
    return time;
}

} // namespace

void benchPanels()
{
    const pdekit::LogSink log = pdekit::setSystemLogSink([](const QString &) {});
    for (const auto &[mode, name] : {std::pair(PanelMode::Constraint, QStringLiteral("constraint mode")),
                                     std::pair(PanelMode::Settings, QStringLiteral("settings mode"))}) {
        for (const int choices : {1000, 20000})
            benchKeystroke(choices, mode, name);
        const double small = benchRestore(1000, mode, name);
        const double large = benchRestore(20000, mode, name);
        printGrowth(QStringLiteral("restore and summary, %1").arg(name), 1000, small, 20000, large);
    }
    pdekit::setSystemLogSink(log);
}
