// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "GuardedPanel.h"
#include "PpdDocument.h"
#include "PrintDialog.h"
#include "SessionOpening.h"
#include "SystemLog.h"
#include "ViewTags.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <cups/ppd.h>
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

using namespace printdialog;

namespace {

constexpr int keystrokes = 201;
constexpr int restores = 51;
constexpr int defaultsTag = 16;
constexpr int everyStep = 1000; ///< choices of a PPD that has those that are typed

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

QList<QByteArray> panelKeys(const DialogSession &session)
{
    QList<QByteArray> keys;
    for (const auto &panel : session.panels()) {
        const QStringList supported = panel->keys();
        for (const QString &key : supported)
            keys.append(key.toUtf8());
    }
    return keys;
}

// What libcups itself needs for the same; conflicts are weighed at once, or not until there is a job

void chooseBare(ppd_file_t *ppd, PanelMode mode, const char *key, const char *choice)
{
    ppdFindChoice(ppdFindOption(ppd, key), choice);
    if (mode == PanelMode::Settings)
        return;
    cups_option_t *options = nullptr;
    cupsFreeOptions(cupsGetConflicts(ppd, key, choice, &options), options);
    ppdMarkOption(ppd, key, choice);
}

double bareKeystroke(ppd_file_t *ppd, PanelMode mode)
{
    std::vector<double> times;
    times.reserve(keystrokes);
    for (int i = 0; i < keystrokes; ++i) {
        const QByteArray choice = QByteArray::number(i % 25);
        times.push_back(millisecondsOf([&] { chooseBare(ppd, mode, "Red", choice.constData()); }));
    }
    return median(times);
}

/// Every option's mark for restoring it and for the summary, and, with defaults, each one chosen.
double bareRound(const DialogSession &session, PanelMode mode)
{
    ppd_file_t *ppd = session.ppd()->record();
    const QList<QByteArray> keys = panelKeys(session);
    std::vector<double> times;
    times.reserve(restores);
    for (int i = 0; i < restores; ++i) {
        times.push_back(millisecondsOf([&] {
            for (const QByteArray &key : keys) {
                ppdFindMarkedChoice(ppd, key.constData());
                if (const ppd_option_t *option = ppdFindOption(ppd, key.constData()))
                    chooseBare(ppd, mode, option->keyword, option->defchoice);
                ppdFindMarkedChoice(ppd, key.constData());
            }
        }));
    }
    return median(times);
}

// Ours

double keystroke(QWidget *view)
{
    auto *field = qobject_cast<QLineEdit *>(pdekit::viewWithTag(view, 81));
    auto *slider = qobject_cast<QSlider *>(pdekit::viewWithTag(view, 1));
    field->setFocus();
    std::vector<double> times;
    times.reserve(keystrokes);
    for (int i = 0; i < keystrokes; ++i) {
        field->selectAll();
        const auto digit = static_cast<Qt::Key>(Qt::Key_1 + i % 9);
        times.push_back(millisecondsOf([&] { QTest::keyClick(field, digit); }));
        if (slider->value() != 1 + i % 9)
            qFatal("the keystroke did not reach the slider");
    }
    return median(times);
}

/// Restoring, the defaults by each page's button, and the summary.
double restoreAll(DialogSession &session)
{
    QList<QAbstractButton *> defaults;
    for (const auto &panel : session.panels()) {
        auto *button = qobject_cast<QAbstractButton *>(pdekit::viewWithTag(panel->view(), defaultsTag));
        if (button)
            defaults.append(button);
    }
    std::vector<double> times;
    times.reserve(restores);
    for (int i = 0; i < restores; ++i) {
        times.push_back(millisecondsOf([&] {
            session.refreshPanels();
            for (QAbstractButton *button : std::as_const(defaults))
                button->click();
            session.summary();
        }));
    }
    return median(times);
}

void benchMode(PanelMode mode, const QString &name)
{
    QList<SizedTime> growth;
    for (const int choices : {100, 1000, 10000, 100000}) {
        const auto session = openSession(choices, mode);
        session->panels().front()->willShow();
        session->panels().front()->view()->show();
        if (choices >= everyStep) {
            const double bare = bareKeystroke(session->ppd()->record(), mode);
            printRow({QStringLiteral("keystroke to recorded choice, %1, %2 choices").arg(name).arg(choices),
                      keystroke(session->panels().front()->view()),
                      QStringLiteral("libcups"),
                      bare,
                      {},
                      1.5 * bare + 0.05});
        }
        const double round = restoreAll(*session);
        growth.append({static_cast<double>(choices), round});
        printRow({QStringLiteral("restore, defaults, summary, %1, %2 choices").arg(name).arg(choices),
                  round,
                  QStringLiteral("libcups"),
                  bareRound(*session, mode),
                  1.2,
                  {}});
    }
    printGrowth(QStringLiteral("restore, defaults, summary, %1").arg(name), growth);
}

/// In the window, with all that follows what is chosen there. The fewest options set the aim of the others.
void benchWindow(PanelMode mode, const QString &name)
{
    std::optional<double> fewest;
    for (const int options : {10, 100, 1000}) {
        PrintDialogSetup setup;
        setup.mode = mode;
        setup.ppdFile = QStringLiteral(CORVEL_BENCH_PPD_DIR "/BenchOptions%1.ppd").arg(options);
        setup.remembers = false;
        PrintDialog dialog(setup);
        dialog.show();
        QTest::qWait(1);
        const double time = keystroke(dialog.findChild<QWidget *>(QStringLiteral("PDEView")));
        printRow({QStringLiteral("keystroke in the window, %1, %2 options more").arg(name).arg(options),
                  time,
                  QStringLiteral("with 10"),
                  fewest,
                  fewest ? std::optional(1.2) : std::nullopt,
                  {}});
        fewest = fewest.value_or(time);
    }
}

} // namespace

void benchPanels()
{
    const pdekit::LogSink log = pdekit::setSystemLogSink([](const QString &) {});
    benchMode(PanelMode::Constraint, QStringLiteral("constraint mode"));
    benchMode(PanelMode::Settings, QStringLiteral("settings mode"));
    benchWindow(PanelMode::Constraint, QStringLiteral("constraint mode"));
    benchWindow(PanelMode::Settings, QStringLiteral("settings mode"));
    pdekit::setSystemLogSink(log);
}
