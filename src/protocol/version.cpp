// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/version.h"

#include <cstddef>

namespace zelvar {

int DecodeVersion(int high, int low) {
    return (high >> 3) * 1000 + (high & 7) * 100 + (low >> 3) * 10 + (low & 7);
}

std::string FormatVersion(int version) {
    constexpr std::size_t kDigits = 4;
    std::string digits = std::to_string(version);
    if (digits.size() < kDigits) {
        digits.insert(0, kDigits - digits.size(), '0');
    }
    std::string text = digits.substr(0, 1) + "." + digits.substr(1, 2);
    if (const int letter = version % 10; letter > 0) {
        text += {' ', static_cast<char>('A' - 1 + letter)};
    }
    return text;
}

}  // namespace zelvar
