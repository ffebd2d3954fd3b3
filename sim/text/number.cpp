// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/text/number.h"

#include <charconv>
#include <system_error>

namespace zelvar::sim {

std::optional<int> ParseInt(std::string_view text, int min, int max) {
    constexpr int kDecimal = 10;
    constexpr int kHexadecimal = 16;
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) {
        text.remove_prefix(2);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] =
        std::from_chars(text.data(), end, number, hexadecimal ? kHexadecimal : kDecimal);
    if (error != std::errc() || rest != end || number < min || number > max) {
        return std::nullopt;
    }
    return number;
}

std::string RangeText(int min, int max) {
    return std::to_string(min) + ".." + std::to_string(max);
}

}  // namespace zelvar::sim
