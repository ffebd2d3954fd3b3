// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zelvar {

/// Lines 0..31 are primary units: module address 0..15 of channel 0, then of channel 1. Line
/// m + 32 is the secondary unit of the VD60 in line m.
constexpr int kVDPrimaryLines = 32;
constexpr int kVDLines = 64;
constexpr int kModulesPerChannel = 16;
/// Positions 0..7 are on channel 0, 8..15 on channel 1.
constexpr int kJsModules = 16;
constexpr int kYRModules = 32;
/// What the Classic View knows: channel 0 alone.
constexpr int kClassicVDLines = 16;
constexpr int kClassicJsModules = 8;

/// The values of `ModuleRegistry::vdType`.
enum VdTypeCode : std::int16_t {
    kVdNone = -1,
    /// A module answers, its type is not known.
    kVdUnknown = 0,
    kVdF = 1,
    kQlrxS = 2,
    kVd60 = 3
};

constexpr std::int16_t kJsPresent = 1;
constexpr std::int16_t kJsAbsent = -1;

namespace detail {
template <std::size_t Size>
constexpr std::array<std::int16_t, Size> FilledWith(std::int16_t value) {
    std::array<std::int16_t, Size> entries{};
    entries.fill(value);
    return entries;
}
}  // namespace detail

/// The modules that answered the last status request. A request resets the lines that its view
/// knows; lines beyond keep their old values.
struct ModuleRegistry {
    std::array<std::int16_t, kVDLines + 1> vdType = detail::FilledWith<kVDLines + 1>(kVdNone);
    std::array<std::int16_t, kJsModules + 1> jsPresent =
        detail::FilledWith<kJsModules + 1>(kJsAbsent);
};

/// The module field of a point-motor module's address. @param position 0..15
/// @return 0..7 on channel 0, 16..23 on channel 1
constexpr int JsAddressOf(int position) {
    return (position / 8) * 16 + position % 8;
}

// A module's address byte is its family + channel * 16 + module.
constexpr int kFamilyVDSecondary = 0;
constexpr int kFamilyVD = 32;
constexpr int kFamilyJs = 64;
constexpr int kFamilyYR = 96;

}  // namespace zelvar
