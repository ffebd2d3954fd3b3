// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/frame.h"

namespace zelvar {

std::string FormatHexByte(std::uint8_t byte) {
    constexpr char digits[] = "0123456789ABCDEF";
    return {' ', digits[byte >> 4], digits[byte & 0x0F]};
}

}  // namespace zelvar
