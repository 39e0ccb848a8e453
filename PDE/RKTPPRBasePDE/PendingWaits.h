// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <vector>

/// The waits of the backend runner, the innermost last, each with the number of passes of the event loop that
/// it has made. A flood of standard-error events makes as many waits as there are events, nearly all of them
/// alike: equal neighbours share one entry.
class PendingWaits
{
public:
    static constexpr int mostPasses = 11;

    bool isEmpty() const { return runs_.empty(); }
    void begin() { push(0); }
    void clear() { runs_.clear(); }
    /// How many waits there have been: tells whether one has begun since.
    std::uint64_t begun() const { return begun_; }

    /// Counts a pass of the innermost wait. True when that was its last one: the wait is over then.
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
