// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "protocol/command_row.h"
#include "protocol/module_command.h"
#include "protocol/reply.h"

namespace zelvar {

// The settings of the central unit.

constexpr int kKBSwitches = 8;
/// Ticked or not, by index.
using KBSwitches = std::array<bool, kKBSwitches>;

/// @param button 0 Set, 1 Get; a Get carries the switches, too, and the unit ignores them
ModuleCommand KBConfigCommand(int button, bool permanent, const KBSwitches& switches);

/// The options can only be written. With option 7 the byte exceeds what a frame can carry.
ModuleCommand KBOptionsCommand(const KBSwitches& options);

/// The 64-device mode of the point-motor modules: a configuration command with a further bit.
ModuleCommand Js64DeviceModeCommand(bool permanent, const KBSwitches& boxes);

/// The switches in a configuration reply.
KBSwitches ReadKBConfigReply(const Reply& reply);

constexpr int kTransparentModes = 3;

/// Switches the unit into transparent mode; it stops answering until it is rebooted.
/// @param index 0 channel 0, 1 channel 1, 2 boot loader
Command TransparentModeCommand(int index);

std::vector<CommandRow> UnitCommands();

}  // namespace zelvar
