// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/version.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace zelvar::sim {

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

int DecodeVersion(int high, int low) {
    return (high >> 3) * 1000 + (high & 7) * 100 + (low >> 3) * 10 + (low & 7);
}

std::string VersionName(int version) {
    if (version == 0) {
        return "none";
    }
    std::ostringstream text;
    text << version / 1000 << '.' << std::setfill('0') << std::setw(2) << version / 10 % 100;
    if (version % 10 > 0) {
        text << ' ' << static_cast<char>('A' + version % 10 - 1);
    }
    return text.str();
}

}  // namespace zelvar::sim
