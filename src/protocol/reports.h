// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "protocol/reply.h"

namespace zelvar {

// What the central unit reports unasked or with a poll. The readers below take a reply that has
// met the test of its kind.

struct OvercurrentReport {
    /// 0..255
    int block = 0;
    /// Detected, else released.
    bool detected = false;

    bool operator==(const OvercurrentReport&) const = default;
};

OvercurrentReport ReadOvercurrentReport(const Reply& reply);

struct BlockSpeedReport {
    /// 0..255
    int block = 0;
    /// 0..63
    int speed = 0;
    bool forward = false;

    bool operator==(const BlockSpeedReport&) const = default;
};

BlockSpeedReport ReadBlockSpeedReport(const Reply& reply);

struct FeedbackReport {
    /// 0..2047
    int index = 0;
    bool active = false;

    bool operator==(const FeedbackReport&) const = default;
};

FeedbackReport ReadFeedbackReport(const Reply& reply);

}  // namespace zelvar
