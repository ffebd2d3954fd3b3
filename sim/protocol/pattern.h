// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// What one data value of a frame has to be: `value` in the bits of `mask`.
struct ValuePattern {
    std::uint8_t mask = 0;
    std::uint8_t value = 0;
    bool optional = false;
};

constexpr ValuePattern Is(int value) {
    return {kValueMask, static_cast<std::uint8_t>(value)};
}
constexpr ValuePattern Any() {
    return {0, 0};
}
/// Any value as the last one, or none.
constexpr ValuePattern MayFollow() {
    return {0, 0, true};
}
/// The bits of `mask` are those of `value`; the others are data.
constexpr ValuePattern Bits(int mask, int value) {
    return {static_cast<std::uint8_t>(mask), static_cast<std::uint8_t>(value)};
}
/// The value is `value`, but the bits of `data` are data.
constexpr ValuePattern IsBut(int data, int value) {
    return Bits(kValueMask & ~data, value);
}

/// The shape of a frame: as many data values as patterns, each of which has to fit.
class FramePattern {
  public:
    constexpr FramePattern(std::initializer_list<ValuePattern> values) {
        for (const ValuePattern& value : values) {
            values_[max_++] = value;
            min_ += value.optional ? 0 : 1;
        }
    }
    constexpr bool Matches(const Payload& data) const {
        if (data.size() < min_ || data.size() > max_) {
            return false;
        }
        for (std::size_t index = 0; index < data.size(); ++index) {
            if ((data[index] & values_[index].mask) != values_[index].value) {
                return false;
            }
        }
        return true;
    }

  private:
    std::array<ValuePattern, kMaxDataBytes> values_{};
    std::size_t min_ = 0;  // data values
    std::size_t max_ = 0;
};

}  // namespace zelvar::sim
