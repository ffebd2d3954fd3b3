// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace zelvar {

/// What the status line says.
enum class SystemState { Disconnected, Run, Stop, Fault };

// Colours are 0xBBGGRR values.
constexpr std::uint32_t kColourBlack = 0x000000;
constexpr std::uint32_t kColourRed = 0x0000FF;
constexpr std::uint32_t kColourBlue = 0xFF0000;

/// The text of the status line, such as "System Status = Run".
std::string_view SystemStateText(SystemState state);

/// The colour of the status line as 0xBBGGRR.
std::uint32_t SystemStateColour(SystemState state);

}  // namespace zelvar
