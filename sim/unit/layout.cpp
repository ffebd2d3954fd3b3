// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/layout.h"

#include <algorithm>

namespace zelvar::sim {

std::uint8_t StatusByte(int type, ModuleState state) {
    unsigned status = kPresentBit | (static_cast<unsigned>(type) & kTypeMask);
    if (state == ModuleState::kIdle) {
        status |= kIdleBit;
    } else if (state != ModuleState::kOk) {
        status |= kFaultBit;
    }
    return static_cast<std::uint8_t>(status);
}

Layout EmptyLayout() {
    return {};
}

int LineAddress(int line) {
    const int primaryLines = kTractionLines / 2;
    return line < primaryLines ? kTractionFamily + line : kSecondaryFamily + line - primaryLines;
}

std::optional<VersionBytes> EncodeVersion(int version) {
    // The places hold 0..15, 0..7, 0..15 and 0..7, so a place can carry more than its digit.
    const int thousands = std::clamp(version / 1000, 0, 15);
    const int afterThousands = version - thousands * 1000;
    const int hundreds = std::clamp(afterThousands / 100, 0, 7);
    const int afterHundreds = afterThousands - hundreds * 100;
    const int tens = std::clamp(afterHundreds / 10, 0, 15);
    const int ones = afterHundreds - tens * 10;
    if (ones < 0 || ones > 7) {
        return std::nullopt;
    }
    return VersionBytes{static_cast<std::uint8_t>((thousands << 3) | hundreds),
                        static_cast<std::uint8_t>((tens << 3) | ones)};
}

}  // namespace zelvar::sim
