// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BandThreads.h"

#include <algorithm>
#include <cstdint>
#include <system_error>

namespace printdialog {

BandThreads::~BandThreads()
{
    if (!other_.joinable())
        return;
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    begun_.notify_one();
    other_.join();
}

void BandThreads::run(int rows, int bands, const Work &work)
{
    bands = std::min(bands, rows);
    if (bands <= 1 || std::thread::hardware_concurrency() == 1) {
        work(0, rows, 0);
        return;
    }
    try {
        if (!other_.joinable())
            other_ = std::thread([this] { wait(); });
    } catch (const std::system_error &) {
        work(0, rows, 0); // there are too many threads already
        return;
    }
    std::unique_lock lock(mutex_);
    work_ = &work;
    rows_ = rows;
    bands_ = bands;
    next_ = 0;
    begun_.notify_one();
    workOn(lock, 0);
    done_.wait(lock, [this] { return running_ == 0; });
}

/// The other thread's life.
void BandThreads::wait()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        begun_.wait(lock, [this] { return isOver_ || next_ < bands_; });
        if (isOver_)
            return;
        workOn(lock, 1);
        done_.notify_one();
    }
}

void BandThreads::workOn(std::unique_lock<std::mutex> &lock, int thread)
{
    while (next_ < bands_) {
        const auto rowAt = [this](int band) {
            return static_cast<int>(std::int64_t(rows_) * band / bands_);
        };
        const int begin = rowAt(next_);
        const int end = rowAt(next_ + 1);
        ++next_;
        ++running_;
        lock.unlock();
        (*work_)(begin, end, thread);
        lock.lock();
        --running_;
    }
}

} // namespace printdialog
