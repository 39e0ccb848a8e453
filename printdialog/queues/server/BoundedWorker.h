// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Logins.h"

#include <QtCore/QObject>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace printdialog {

/// A thread that may block in a call that cannot be interrupted (a name look-up, a silent server), and that
/// its owner can abandon at any time. From then on it no longer reaches the owner, and ends when its call
/// returns. Always held by a shared_ptr; the running thread holds one, too.
class BoundedWorker : public std::enable_shared_from_this<BoundedWorker>
{
public:
    /// @param owner its thread runs the posted calls; not owned; may be null when nothing is posted
    explicit BoundedWorker(QObject *owner = nullptr);

    // On the owner's thread:

    /// Starts the thread; once per worker. Signals are blocked in it, so that the application's own threads
    /// handle them.
    void run(std::function<void(BoundedWorker &)> work);
    /// Waits for the thread to end, at most for the limit. False: it still runs.
    bool endsWithin(std::chrono::milliseconds limit);
    /// Cancels, drops calls that are posted but not yet delivered, and waits at most that long before it
    /// abandons the thread. The owner may be destroyed afterwards.
    void release(std::chrono::milliseconds patience);

    // On the worker's thread:

    /// Non-zero once released; a plain int, as libcups needs it.
    int *cancelFlag() { return &canceled_; }
    /// Sleeps until the time is over or the worker is released. False: released, so end now.
    bool pause(std::chrono::milliseconds time);
    /// Runs `call` on the owner's thread, by its event loop, unless the worker is released before.
    void post(std::function<void()> call);

private:
    QObject *owner_; // guarded by mutex_; cleared only on the owner's thread
    std::mutex mutex_;
    std::condition_variable changed_;
    std::thread thread_;
    int canceled_ = 0; // written through atomic_ref: libcups reads it as a plain int
    bool ended_ = false;
};

/// Runs `call` on a separate thread. Returns its value, or nothing when the limit passes first, which waits
/// while a person is asked for a login: not for a thread that has to show the question. The call then
/// continues, with its cancel flag raised and its value unused, so it must own everything that it uses.
template <class Value>
std::optional<Value> callWithin(std::chrono::milliseconds limit, std::function<Value(int *cancel)> call)
{
    auto worker = std::make_shared<BoundedWorker>();
    auto value = std::make_shared<std::optional<Value>>();
    worker->run([value, call](BoundedWorker &self) { value->emplace(call(self.cancelFlag())); });
    do {
        if (worker->endsWithin(limit))
            return std::move(*value);
    } while (Logins::ofRun().isAsking());
    worker->release({});
    return std::nullopt;
}

} // namespace printdialog
