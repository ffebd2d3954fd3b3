// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "protocol/addresses.h"

namespace zelvar {

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

}  // namespace zelvar
