// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace printdialog {

/// A thread that may block in a call nobody can interrupt (a name look-up, a server that stays silent), and
/// that its owner can leave behind at any time: from then on it reaches the owner no more, and ends when its
/// call returns. Always held by a shared_ptr; the running thread holds one of its own.
class BoundedWorker : public std::enable_shared_from_this<BoundedWorker>
{
public:
    /// @param owner receives what is posted, on its own thread; not owned; may be null when nothing is posted
    explicit BoundedWorker(QObject *owner = nullptr);

    // On the owner's thread:

    /// Starts the thread; once per worker. Signals are blocked in it: their handlers belong to the
    /// application.
    void run(std::function<void(BoundedWorker &)> work);
    /// Waits for the thread to end, at most so long. False: it still runs.
    bool endsWithin(std::chrono::milliseconds limit);
    /// Cancels, drops what is posted but not yet delivered, and waits at most so long before the thread is
    /// left behind. The owner may be destroyed afterwards.
    void release(std::chrono::milliseconds patience);

    // On the worker's thread:

    /// Non-zero once released: the form in which libcups wants to see it.
    int *cancelFlag() { return &cancelled_; }
    /// Sleeps until the time is over or the worker is released. False: released, end now.
    bool pause(std::chrono::milliseconds time);
    /// Has call run on the owner's thread, by its event loop, unless the worker is released before.
    void post(std::function<void()> call);

private:
    QObject *owner_; // guarded by mutex_; cleared by the owner's thread only
    std::mutex mutex_;
    std::condition_variable changed_;
    std::thread thread_;
    int cancelled_ = 0; // written through atomic_ref: libcups reads it as a plain int
    bool ended_ = false;
};

/// The value of call, run on a thread of its own, or nothing when the limit passes first. The call then goes
/// on unheard, with its cancel flag raised: it must own all that it uses.
template <class Value>
std::optional<Value> callWithin(std::chrono::milliseconds limit, std::function<Value(int *cancel)> call)
{
    auto worker = std::make_shared<BoundedWorker>();
    auto value = std::make_shared<std::optional<Value>>();
    worker->run([value, call](BoundedWorker &self) { value->emplace(call(self.cancelFlag())); });
    if (worker->endsWithin(limit))
        return std::move(*value);
    worker->release({});
    return std::nullopt;
}

} // namespace printdialog
