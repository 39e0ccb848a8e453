// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BoundedWorker.h"

#include <QtCore/QMetaObject>

#include <atomic>
#include <csignal>

namespace printdialog {

BoundedWorker::BoundedWorker(QObject *owner)
    : owner_(owner)
{
}

void BoundedWorker::run(std::function<void(BoundedWorker &)> work)
{
    // Block signals before the thread starts: it inherits the mask, so none can arrive before it could block
    // them.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    thread_ = std::thread([self = shared_from_this(), work = std::move(work)] {
        work(*self);
        const std::lock_guard lock(self->mutex_);
        self->ended_ = true;
        self->changed_.notify_all();
    });
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

bool BoundedWorker::endsWithin(std::chrono::milliseconds limit)
{
    {
        std::unique_lock lock(mutex_);
        if (!changed_.wait_for(lock, limit, [this] { return ended_; }))
            return false;
    }
    if (thread_.joinable())
        thread_.join();
    return true;
}

void BoundedWorker::release(std::chrono::milliseconds patience)
{
    {
        const std::lock_guard lock(mutex_);
        owner_ = nullptr;
        std::atomic_ref(canceled_).store(1);
        changed_.notify_all();
    }
    if (!endsWithin(patience))
        thread_.detach();
}

bool BoundedWorker::pause(std::chrono::milliseconds time)
{
    std::unique_lock lock(mutex_);
    return !changed_.wait_for(lock, time, [this] { return canceled_ != 0; });
}

void BoundedWorker::post(std::function<void()> call)
{
    const std::lock_guard lock(mutex_);
    if (!owner_)
        return;
    QMetaObject::invokeMethod(
        owner_,
        [self = shared_from_this(), call = std::move(call)] {
            if (self->owner_)
                call();
        },
        Qt::QueuedConnection);
}

} // namespace printdialog
