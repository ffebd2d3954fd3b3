// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "protocol/command_row.h"
#include "protocol/module_command.h"
#include "protocol/reply.h"

namespace zelvar {

// The settings of the traction modules, one value for each parameter in each memory. A parameter is
// 1..63: what exceeds it is the permanent bit.

constexpr int kMasterSlaveParameter = 11;
/// Read from the active memory of a VD-F or VD60: the state of its clock.
constexpr int kClockStateParameter = 15;

/// @param parameter 1..63 @param value 0..127
ModuleCommand VDSetCommand(bool permanent, int parameter, int value);

/// It carries the value of the form, too, but its length leaves it out.
ModuleCommand VDGetCommand(bool permanent, int parameter, int value = 0);

/// Erases all settings; the permanent bit belongs to it.
constexpr ModuleCommand kVDErase{kTargetVD, 2, 8, kPermanentBit, 0};

/// A parameter that a traction module has reported.
struct VDReply {
    /// With `kPermanentBit` when it stems from the permanent memory.
    int parameter = 0;
    int value = 0;
};

/// The configuration reply of one line as the form takes it: of any length, with exactly its code.
/// @param line 0..63
std::optional<VDReply> ReadVDConfigReply(const Reply& reply, int line);

/// The answer to a `VDGetCommand` as the check of masters and clocks takes it: five values, any
/// code with the line's upper bits. @param line 0..63 @return the value
std::optional<int> ReadVDAnswer(const Reply& reply, int line, int parameter);

std::vector<CommandRow> TractionCommands();

}  // namespace zelvar
