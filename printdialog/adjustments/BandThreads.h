// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace printdialog {

/// Works on the bands of a picture's rows with two threads: the caller's and another one, which starts when
/// it is first needed, then sleeps until there is work again, and ends with the object. A processor with a
/// single core has no other one.
class BandThreads
{
public:
    /// Works on the rows from `begin` to before `end`. Two run at the same time, in the threads 0 and 1.
    using Work = std::function<void(int begin, int end, int thread)>;
    static constexpr int threads = 2;

    BandThreads() = default;
    ~BandThreads();
    BandThreads(const BandThreads &) = delete;
    BandThreads &operator=(const BandThreads &) = delete;

    /// Returns when all is done. Whichever thread is free does the next band, so one that gets no processor
    /// delays nothing but the band that it has begun. With a single band no other thread takes part.
    void run(int rows, int bands, const Work &work);

private:
    void wait();
    void workOn(std::unique_lock<std::mutex> &lock, int thread);

    std::thread other_;
    std::mutex mutex_; ///< protects what follows
    std::condition_variable begun_;
    std::condition_variable done_;
    const Work *work_ = nullptr;
    int rows_ = 0;
    int bands_ = 0;
    int next_ = 0;    ///< the first band that nobody has begun
    int running_ = 0; ///< bands
    bool isOver_ = false;
};

} // namespace printdialog
