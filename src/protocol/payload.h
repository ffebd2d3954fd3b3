// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>

#include "protocol/frame.h"

namespace zelvar {

/// Payload values are 7 bits wide; what exceeds them travels in a neighbouring value.
constexpr int kPayloadRange = 128;

constexpr int HighPart(int number) {
    return number / kPayloadRange;
}

constexpr int LowPart(int number) {
    return number % kPayloadRange;
}

/// Puts one more value behind those a command has. @param value 0..255; the command must have
/// room, that is fewer than `kMaxDataBytes` values
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
