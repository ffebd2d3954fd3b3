// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace zelvar {

constexpr double kSecondsPerDay = 24.0 * 60 * 60;

class Clock {
  public:
    virtual ~Clock() = default;

    /// Seconds since local midnight with fractions, 0 up to but not including 86400. It grows
    /// evenly and falls back to 0 at midnight, nowhere else.
    virtual double SecondsSinceMidnight() const = 0;
};

/// Local midnight is looked up once; from there on a monotonic clock carries the time, so that
/// setting the computer's clock during a wait neither ends nor stretches it.
class SteadyClock : public Clock {
  public:
    SteadyClock();
    double SecondsSinceMidnight() const override;

  private:
    double secondsAtStart_;
    std::chrono::steady_clock::time_point start_;
};

}  // namespace zelvar
