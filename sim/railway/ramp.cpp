// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/ramp.h"

#include <algorithm>
#include <cstdlib>

namespace zelvar::sim {

void Ramp::Set(int target, std::chrono::nanoseconds now, std::chrono::nanoseconds perStep) {
    target_ = target;
    perStep_ = perStep;
    lastStep_ = now;
}

bool Ramp::Advance(std::chrono::nanoseconds now) {
    const int before = speed_;
    if (perStep_.count() <= 0) {
        speed_ = target_;
    } else if (now > lastStep_) {
        const auto steps = (now - lastStep_) / perStep_;
        lastStep_ += steps * perStep_;
        const int distance = target_ - speed_;
        const int taken =
            static_cast<int>(std::min<decltype(steps + 0)>(steps, std::abs(distance)));
        speed_ += distance < 0 ? -taken : taken;
    }
    return speed_ != before;
}

}  // namespace zelvar::sim
