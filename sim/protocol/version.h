// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zelvar::sim {

/// Versions are decimal numbers: 1023 is 1.02 C, and 0 stands for none.
/// On the line a version is two values of seven bits.
struct VersionBytes {
    std::uint8_t high = 0;
    std::uint8_t low = 0;
};

/// None if no two values decode to this version.
std::optional<VersionBytes> EncodeVersion(int version);
/// 0x19, 0x0A is 3112.
int DecodeVersion(int high, int low);
/// "3.11 B"; "none" for 0
std::string VersionName(int version);

}  // namespace zelvar::sim
