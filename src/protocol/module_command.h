// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "protocol/command.h"

namespace zelvar {

// Where a configuration command goes. Any other target gets the two empty transactions alone.
constexpr std::uint8_t kTargetVD = 32;
constexpr std::uint8_t kTargetJs = 64;
constexpr std::uint8_t kTargetUnit = 128;

/// Added to a module command's parameter or code for the permanent settings.
constexpr int kPermanentBit = 64;

/// Added to a traction module's command code for the secondary unit of a VD60.
constexpr int kSecondaryBit = 16;

/// A configuration command before it is addressed.
struct ModuleCommand {
    /// `kTargetVD`, `kTargetJs` or `kTargetUnit`
    std::uint8_t target = 0;
    /// Modules: how many of code, arg1 and arg2 are sent. Central unit: the count of data bytes.
    std::uint8_t length = 0;
    std::uint8_t code = 0;
    std::uint8_t arg1 = 0;
    std::uint8_t arg2 = 0;

    bool operator==(const ModuleCommand&) const = default;
};

/// The command as it goes to one traction module. @param module 0..63
Command CommandForVD(const ModuleCommand& command, int module);

/// The command as it goes to one point-motor module. @param module 0..15
Command CommandForJs(const ModuleCommand& command, int module);

/// The command as it goes to the central unit.
Command CommandForUnit(const ModuleCommand& command);

}  // namespace zelvar
