// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <cmath>
#include <ctime>

namespace zelvar {

namespace {

double LocalSecondsSinceMidnight() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t whole = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &whole);
#else
    localtime_r(&whole, &local);
#endif
    const std::chrono::duration<double> fraction =
        now - std::chrono::system_clock::from_time_t(whole);
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + fraction.count();
}

}  // namespace

SteadyClock::SteadyClock()
    : secondsAtStart_(LocalSecondsSinceMidnight()), start_(std::chrono::steady_clock::now()) {}

double SteadyClock::SecondsSinceMidnight() const {
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start_;
    return std::fmod(secondsAtStart_ + passed.count(), kSecondsPerDay);
}

}  // namespace zelvar
