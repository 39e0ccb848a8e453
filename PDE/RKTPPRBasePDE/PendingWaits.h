// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <vector>

/// The backend runner's waits, innermost last, each with its number of event-loop passes. Many standard-error
/// events cause as many waits, nearly all of them equal, so equal neighbours share one entry.
class PendingWaits
{
public:
    static constexpr int mostPasses = 11;

    bool isEmpty() const { return runs_.empty(); }
    void begin() { push(0); }
    void clear() { runs_.clear(); }
    /// How many waits have begun so far; comparing it shows whether another one has begun.
    std::uint64_t begun() const { return begun_; }

    /// Counts a pass of the innermost wait. True when that was its last one, and the wait is over.
    bool endPass();

private:
    struct Run
    {
        int passes;
        std::uint64_t count;
    };

    void push(int passes);
    int pop();

    std::vector<Run> runs_;
    std::uint64_t begun_ = 0;
};
