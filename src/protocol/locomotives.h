// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <vector>

#include "protocol/command_row.h"

namespace zelvar {

// The commands that drive one locomotive. Blocks are 0..255.

/// @param speed 0..63
Command AnalogSpeed(int block, int speed, bool forward);

/// A change of speed over some time. @param speed 0..63 @param acceleration 0..127
Command AnalogSpeedRamp(int block, int speed, bool forward, int acceleration);

Command AnalogLight(int block, bool light);

/// Holds for the whole system. @param hfi 0..15
Command SetHfi(int hfi);

struct DccAddress {
    /// 1..10239
    int decoder = 1;
    /// Asks for the long form also where the short one would do.
    bool forceLong = false;

    /// Up to 127 a decoder can have a short address.
    bool IsLong() const { return forceLong || decoder > 127; }
};

enum class DccSteps { k28, k126 };

constexpr int kDccTopSpeed28 = 28;
constexpr int kDccTopSpeed126 = 126;

/// @param speed 0..28 or 0..126
Command DccSpeed(DccSteps steps, int block, int speed, bool forward, const DccAddress& address);

Command DccEstop(DccSteps steps, int block, bool forward, const DccAddress& address);

/// The light (0) and the functions F1 to F28.
constexpr std::size_t kDccFunctionCount = 29;
using DccFunctionSet = std::bitset<kDccFunctionCount>;

constexpr int kDccFunctionGroups = 5;

/// Sets the functions of one group: light and F1..F4, F5..F8, F9..F12, F13..F20 or F21..F28. The
/// block stands in one value as it is, so that one above 127 makes `Transact` overflow.
/// @param group 0..4 @return nothing for another group
std::optional<Command> DccFunctions(int group, int block, const DccFunctionSet& functions,
                                    const DccAddress& address);

constexpr int kMccTopSpeed15 = 15;
constexpr int kMccTopSpeed30 = 30;

/// The code of a speed step. @param topSpeed stands for the step mode: 30, or anything else for 15
/// @return 1..31, where 16 is standstill; 0 would be the emergency stop
int MccSpeedCode(int speed, int topSpeed);

/// @param decoder 0..4095 @param code see `MccSpeedCode` @param acceleration 0..7
Command MccSpeed(int decoder, int code, int acceleration);

/// @param decoder 0..4095
Command MccEstop(int decoder);

/// Light, Brake, Left, Right, F1 to F4.
constexpr std::size_t kMccFunctionCount = 8;
using MccFunctionSet = std::bitset<kMccFunctionCount>;

/// @param decoder 0..4095
Command MccFunctions(int decoder, const MccFunctionSet& functions);

std::vector<CommandRow> LocomotiveCommands();

}  // namespace zelvar
