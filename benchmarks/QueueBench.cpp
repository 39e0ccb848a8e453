// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "PrintDialog.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

#include <algorithm>
#include <unistd.h>

#ifdef CORVEL_BENCH_HAS_CUPSD
#include "PrivateCupsd.h"
#include "StubServer.h"
#endif

namespace {

constexpr int manyQueues = 500;

/// The longest time that the window's thread had no turn of its loop, in milliseconds.
class Heartbeat
{
public:
    Heartbeat()
    {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { beat(); });
        timer_.start(1);
        last_.start();
    }

    double longest() const { return longest_; }

private:
    void beat()
    {
        longest_ = std::max(longest_, static_cast<double>(last_.nsecsElapsed()) / 1e6);
        last_.start();
    }

    QTimer timer_;
    QElapsedTimer last_;
    double longest_ = 0.0;
};

/// What one opening of the window costs.
struct Opening
{
    double painted = 0.0; ///< From before the process is made to the first paint with its panels.
    double listed = 0.0;  ///< From the first paint until all queues are listed.
    double held = 0.0;    ///< The longest that the painted window could not have answered a key.
};

/// Waits for the first paint, then for the queues or for half a second, and reports both.
class OpeningWatch : public QObject
{
public:
    OpeningWatch(QWidget *painted, QComboBox *chooser, int queues)
        : QObject(painted)
        , chooser_(chooser)
        , queues_(queues)
    {
        painted->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool result = QObject::eventFilter(watched, event);
        if (event->type() == QEvent::Paint && painted_ == 0.0)
            QTimer::singleShot(0, this, [this] { begin(); });
        return result;
    }

private:
    void begin()
    {
        if (painted_ > 0.0)
            return;
        painted_ = monotonicMilliseconds();
        heartbeat_ = std::make_unique<Heartbeat>();
        auto *look = new QTimer(this);
        connect(look, &QTimer::timeout, this, [this] {
            const double now = monotonicMilliseconds();
            if (queues_ > 0 ? chooser_->count() <= queues_ : now - painted_ < 500.0)
                return;
            std::printf("%.3f %.3f %.3f\n", painted_, now - painted_, heartbeat_->longest());
            std::fflush(stdout);
            _exit(0);
        });
        look->start(1);
    }

    QComboBox *chooser_;
    int queues_;
    double painted_ = 0.0;
    std::unique_ptr<Heartbeat> heartbeat_;
};

Opening opening(int queues)
{
    const QTemporaryDir cache;
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), cache.path());
    child.setProcessEnvironment(environment);
    const double begin = monotonicMilliseconds();
    child.start(QApplication::applicationFilePath(),
                {QStringLiteral("--child"), QStringLiteral("queues"), QString::number(queues)});
    child.waitForFinished();
    const QList<QByteArray> times = child.readAllStandardOutput().trimmed().split(' ');
    if (child.exitCode() != 0 || times.size() != 3)
        qFatal("the window did not open");
    return {times.at(0).toDouble() - begin, times.at(1).toDouble(), times.at(2).toDouble()};
}

#ifdef CORVEL_BENCH_HAS_CUPSD
/// By turns without any server and with one, so that both have the same machine.
struct Comparison
{
    std::vector<double> without;
    std::vector<double> with;
    std::vector<double> listed;
    std::vector<double> held;
};

Comparison compare(const QByteArray &server, int queues)
{
    Comparison comparison;
    for (int run = 0; run < benchRuns + 1; ++run) {
        qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
        const Opening without = opening(0);
        qputenv("CUPS_SERVER", server);
        const Opening with = opening(queues);
        if (run == 0)
            continue; // to warm up
        comparison.without.push_back(without.painted);
        comparison.with.push_back(with.painted);
        comparison.listed.push_back(with.listed);
        comparison.held.push_back(with.held);
    }
    return comparison;
}

void printAdded(const QString &what, const Comparison &comparison, double most)
{
    printRow({what + QStringLiteral(": painted later by"),
              median(comparison.with) - median(comparison.without),
              {},
              {},
              {},
              most});
    printRow({what + QStringLiteral(": the painted window is held for"),
              median(comparison.held),
              {},
              {},
              {},
              most});
}
#endif

} // namespace

int runQueueChild(int queues)
{
    using namespace printdialog;
    PrintDialogSetup setup;
    const auto photo = Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    if (!photo)
        return 1;
    setup.photos = {*photo};
    PrintDialog dialog(setup);
    auto *view = dialog.findChild<QWidget *>(QStringLiteral("PDEView"));
    auto *chooser = dialog.findChild<QComboBox *>(QStringLiteral("printer"));
    if (!view || !chooser)
        return 1;
    new OpeningWatch(view, chooser, queues);
    QTimer::singleShot(0, &dialog, &PrintDialog::searchPrinters);
    return dialog.exec();
}

void benchQueues()
{
#ifdef CORVEL_BENCH_HAS_CUPSD
    {
        const testing_support::StubServer silent(testing_support::StubServer::Manner::Silent);
        printAdded(QStringLiteral("a print server that never answers"), compare(qgetenv("CUPS_SERVER"), 0),
                   20.0);
    }
    testing_support::PrivateCupsd server;
    bool isReady = server.start().isEmpty();
    for (int i = 0; isReady && i < manyQueues; ++i)
        isReady = server.addQueue(QStringLiteral("queue%1").arg(i));
    if (!isReady) {
        printNote(QStringLiteral("%1 queues: not measured, there is no private cupsd").arg(manyQueues));
        return;
    }
    const Comparison many = compare(qgetenv("CUPS_SERVER"), manyQueues);
    const QString what = QStringLiteral("%1 queues").arg(manyQueues);
    printAdded(what, many, 100.0);
    printRow({what + QStringLiteral(": listed after the first paint"), median(many.listed), {}, {}, {}, {}});
#endif
}
