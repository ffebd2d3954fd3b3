// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/pacing.h"

#include <algorithm>

namespace zelvar::sim {

void Pacer::SetBaud(int baud) {
    using std::chrono::nanoseconds;
    constexpr auto kSecond = std::chrono::duration_cast<nanoseconds>(std::chrono::seconds(1));
    byteTime_ = baud > 0 ? kSecond * kBitsPerByte / baud : nanoseconds(0);
}

std::chrono::nanoseconds Pacer::Pass(std::chrono::nanoseconds now) {
    freeAt_ = std::max(freeAt_, now) + byteTime_;
    return freeAt_;
}

}  // namespace zelvar::sim
