// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

namespace zelvar::sim {

/// Simulated seconds in one second of the caller's clock; 0: simulated time stands still.
inline constexpr int kUsualTimeFactor = 1;
inline constexpr int kMaxTimeFactor = 100;

/// Simulated time by a clock that is handed in; 0 when it is first asked.
class SimulatedClock {
  public:
    explicit SimulatedClock(int factor = kUsualTimeFactor) : factor_(factor) {}

    /// Never runs backwards.
    std::chrono::nanoseconds At(std::chrono::nanoseconds now) {
        if (!asked_) {
            asked_ = now;
        }
        if (now > *asked_) {
            simulated_ += (now - *asked_) * factor_;
            asked_ = now;
        }
        return simulated_;
    }
    /// Goes on from `simulated` at `now`, with the factor 0 to `kMaxTimeFactor`.
    void GoOn(std::chrono::nanoseconds now, std::chrono::nanoseconds simulated, int factor) {
        asked_ = now;
        simulated_ = simulated;
        factor_ = factor;
    }
    int factor() const { return factor_; }

  private:
    int factor_;
    std::optional<std::chrono::nanoseconds> asked_;
    std::chrono::nanoseconds simulated_{0};
};

}  // namespace zelvar::sim
