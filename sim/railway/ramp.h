// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace zelvar::sim {

/// A speed on its way to another one, step by step. Speeds are signed: a locomotive that is to go
/// the other way slows down to 0 first.
class Ramp {
  public:
    /// Goes to `target`, one step each `perStep`; at once when that is 0.
    void Set(int target, std::chrono::nanoseconds now, std::chrono::nanoseconds perStep);
    /// Takes the steps that are due; whether the speed changed.
    bool Advance(std::chrono::nanoseconds now);

    int speed() const { return speed_; }
    int target() const { return target_; }

  private:
    int speed_ = 0;
    int target_ = 0;
    std::chrono::nanoseconds perStep_{0};
    std::chrono::nanoseconds lastStep_{0};
};

}  // namespace zelvar::sim
