// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FolderPrinter.h"

#include "PlainText.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <condition_variable>
#include <mutex>
#include <thread>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto patrolInterval = 5s;
constexpr auto silence = 30s;     // until a folder counts as one that does not answer
constexpr auto sendingGrace = 5s; // after a stop, until the job being sent is given up
constexpr auto destructionGrace = 7s;

} // namespace

struct FolderPrinter::Shared
{
    explicit Shared(FolderPrinter *owner)
        : receiver(owner)
    {
        control.wake = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    }
    ~Shared() { ::close(control.wake); }
    Q_DISABLE_COPY_MOVE(Shared)

    /// Calls the function with the object, on its thread; not at all once that is gone.
    template <class Function>
    void post(const Function &function)
    {
        const std::lock_guard lock(mutex);
        if (receiver)
            QMetaObject::invokeMethod(
                receiver, [receiver = receiver, function] { function(*receiver); }, Qt::QueuedConnection);
    }

    void raise(int &flag)
    {
        std::atomic_ref(flag).store(1);
        ::eventfd_write(control.wake, 1);
    }

    WatchControl control;
    QString folder;
    std::mutex mutex;
    std::condition_variable ended;
    FolderPrinter *receiver;
    bool hasEnded = false;
};

FolderPrinter::FolderPrinter(QObject *parent)
    : QObject(parent)
{
    patrol_.setInterval(patrolInterval);
    connect(&patrol_, &QTimer::timeout, this, &FolderPrinter::watchOver);
}

FolderPrinter::~FolderPrinter()
{
    if (!shared_)
        return;
    shared_->raise(shared_->control.stop.leave);
    std::unique_lock lock(shared_->mutex);
    shared_->receiver = nullptr;
    const auto hasEnded = [this] {
        return shared_->hasEnded;
    };
    if (!shared_->ended.wait_for(lock, sendingGrace, hasEnded)) {
        shared_->raise(shared_->control.stop.cancel);
        shared_->ended.wait_for(lock, destructionGrace - sendingGrace, hasEnded);
    }
}

void FolderPrinter::start(const WatchOrder &order)
{
    shared_ = std::make_shared<Shared>(this);
    shared_->folder = order.folder;
    isSilent_ = false;
    patrol_.start();
    std::thread([shared = shared_, order] {
        const WatchNews news = {
            [&shared](const QString &text) {
                shared->post([text](FolderPrinter &printer) { Q_EMIT printer.said(text); });
            },
            [&shared](const QString &text) {
                shared->post([text](FolderPrinter &printer) { Q_EMIT printer.complained(text); });
            },
        };
        const QString failure = WatchLoop(order, news, shared->control).run();
        shared->post([failure](FolderPrinter &printer) {
            printer.patrol_.stop();
            printer.shared_.reset();
            Q_EMIT printer.finished(failure);
        });
        const std::lock_guard lock(shared->mutex);
        shared->hasEnded = true;
        shared->ended.notify_all();
    }).detach();
}

void FolderPrinter::stop()
{
    if (!shared_)
        return;
    shared_->raise(shared_->control.stop.leave);
    QTimer::singleShot(sendingGrace, this, [shared = std::weak_ptr(shared_)] {
        if (const auto still = shared.lock())
            still->raise(still->control.stop.cancel);
    });
}

/// Says once that the folder does not answer, which its own thread cannot: it waits for it.
void FolderPrinter::watchOver()
{
    const qint64 since = shared_->control.busySince;
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
    const bool isSilent = since != 0 && now - std::chrono::milliseconds(since) > silence;
    if (isSilent == std::exchange(isSilent_, isSilent))
        return;
    const QString folder = plainText(shared_->folder, shownTextLimit);
    if (isSilent)
        Q_EMIT complained(
            tr("The folder \"%1\" does not answer. Look after its disk or its network connection; "
               "printing continues when it answers.")
                .arg(folder));
    else
        Q_EMIT said(tr("The folder \"%1\" answers again.").arg(folder));
}

} // namespace printdialog
