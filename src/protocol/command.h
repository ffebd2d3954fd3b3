// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace zelvar {

constexpr std::size_t kMaxDataBytes = 7;

/// Data values are 7 bits wide; what exceeds them travels in a neighbouring value.
constexpr int kPayloadRange = 128;

constexpr int High7(int number) {
    return number / kPayloadRange;
}

constexpr int Low7(int number) {
    return number % kPayloadRange;
}

/// What one exchange sends: the number of data values and the values.
struct Command {
    /// 0..7
    std::uint8_t count = 0;
    /// 0..127 each; the values from `count` on are not sent.
    std::array<std::uint8_t, kMaxDataBytes> values{};

    bool operator==(const Command&) const = default;
};

/// Adds one value at the end. @param value 0..255; the command must have room, that is fewer than
/// `kMaxDataBytes` values
constexpr void Append(Command& command, int value) {
    command.values[command.count] = static_cast<std::uint8_t>(value);
    ++command.count;
}

/// @param values at most `kMaxDataBytes`, 0..255 each
constexpr Command CommandOf(std::initializer_list<int> values) {
    Command command;
    for (const int value : values) {
        Append(command, value);
    }
    return command;
}

}  // namespace zelvar
