// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "protocol/module_command.h"

namespace zelvar {

// The settings of the central unit.

constexpr int kKBSwitches = 8;
/// Ticked or not, by index.
using KBSwitches = std::array<bool, kKBSwitches>;

/// @param button 0 Set, 1 Get; a Get carries the switches, too, and the unit takes no notice
ModuleCommand KBConfigCommand(int button, bool permanent, const KBSwitches& switches);

/// The options can only be written. With option 7 the byte exceeds what a frame can carry.
ModuleCommand KBOptionsCommand(const KBSwitches& options);

/// The 64-device mode of the point-motor modules: a configuration command with a further bit.
ModuleCommand Js64DeviceModeCommand(bool permanent, const KBSwitches& boxes);

/// The switches in a configuration reply.
KBSwitches ReadKBConfigReply(const ReplyBuffer& reply);

constexpr int kTransparentModes = 3;

/// Switches the unit into transparent mode; it stops answering until it is rebooted.
/// @param index 0 channel 0, 1 channel 1, 2 boot loader
Command TransparentModeCommand(int index);

/// What the user is told when the unit has stopped answering.
inline constexpr std::string_view kTransparentText =
    "Your KB-E/KB-G is put in Transparent Mode\r\n"
    "Reboot your KB-E/KB-G to restart normal operation";

}  // namespace zelvar
