// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <thread>

namespace zelvar::e2e {

using Milliseconds = std::chrono::milliseconds;
using Instant = std::chrono::steady_clock::time_point;

/// How long to wait for something that must happen: far longer than it ever takes, also
/// under a sanitizer on a busy machine.
inline constexpr Milliseconds kLimit{30'000};
/// Between two looks.
inline constexpr Milliseconds kLook{10};

inline Instant Now() {
    return std::chrono::steady_clock::now();
}

inline Milliseconds Since(Instant start) {
    return std::chrono::duration_cast<Milliseconds>(Now() - start);
}

/// Looks until it holds. @return whether it did within the limit
template <typename Condition>
bool Until(Condition holds, Milliseconds limit = kLimit) {
    const Instant start = Now();
    while (!holds()) {
        if (Since(start) > limit) {
            return false;
        }
        std::this_thread::sleep_for(kLook);
    }
    return true;
}

/// Looks for a while. @return whether it held all the time
template <typename Condition>
bool Stays(Condition holds, Milliseconds duration) {
    return !Until([&] { return !holds(); }, duration);
}

}  // namespace zelvar::e2e
