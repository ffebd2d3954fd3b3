// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// What waits for a poll to carry it: unasked reports and answers of modules, oldest first.
class ReportQueue {
  public:
    /// The oldest entry falls out beyond this many: nobody has polled for a long time then.
    static constexpr std::size_t kMaxPending = 1000;

    /// Queues `data`; it can go out with poll number `polls` from now (1 is the next one).
    void Push(const Payload& data, int polls = 1);
    /// Takes the place of a waiting entry of the same size whose first two values agree (bit mask
    /// `firstMask` on the first one), or queues: a newer value makes the older one worthless.
    void PushLatest(const Payload& data, int firstMask = 0x7F);

    /// Counts one poll and hands out the oldest entry whose time has come.
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

/// The blocks are numbered 0..255, the feedback inputs 0..2047.
inline constexpr int kBlocks = 256;
inline constexpr int kFeedbackInputs = 2048;

Payload OvercurrentReport(int block, bool detected);
/// `speed` is 0..63.
Payload BlockSpeedReport(int block, int speed, bool forward);
Payload FeedbackReport(int input, bool active);

}  // namespace zelvar::sim
