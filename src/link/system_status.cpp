// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/system_status.h"

#include <array>
#include <cstddef>

namespace zelvar {

namespace {

struct StateRow {
    std::string_view text;
    std::uint32_t colour;
};

/// In the order of `SystemState`.
constexpr std::array<StateRow, 4> kStates{{
    {"System Status = Disconnected", kColourBlack},
    {"System Status = Run", kColourBlue},
    {"System Status = Stop", kColourBlack},
    {"System Status = Fault", kColourRed},
}};

}  // namespace

std::string_view SystemStateText(SystemState state) {
    return kStates[static_cast<std::size_t>(state)].text;
}

std::uint32_t SystemStateColour(SystemState state) {
    return kStates[static_cast<std::size_t>(state)].colour;
}

}  // namespace zelvar
