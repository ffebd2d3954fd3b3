// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "sim/protocol/reports.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// What waits for a poll to carry it: reports and answers of modules, oldest first.
class ReportQueue {
  public:
    /// Beyond this many the oldest entry is dropped: the last poll was long ago.
    static constexpr std::size_t kMaxPending = 1000;

    /// Queues `data`; it can go out with poll number `polls` from now (1 is the next one).
    void Push(const Payload& data, int polls = 1);
    /// Replaces a waiting entry of the same size whose first two values agree (in the bits of
    /// `firstMask` for the first one), or queues: a newer value makes the older one worthless.
    void PushLatest(const Payload& data, int firstMask = kValueMask);

    /// Counts one poll and returns the oldest entry whose time has come.
    std::optional<Payload> NextForPoll();

    void Clear() { entries_.clear(); }
    std::size_t size() const { return entries_.size(); }

  private:
    struct Entry {
        Payload data;
        int polls;
    };
    std::deque<Entry> entries_;
};

}  // namespace zelvar::sim
