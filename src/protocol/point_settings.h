// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "protocol/module_command.h"

namespace zelvar {

// The settings of the point-motor modules.

constexpr int kJsLastDevice = 63;
constexpr int kJsDevices = kJsLastDevice + 1;
/// In sixtieths of a second.
constexpr int kJsLongestTime = 127;

/// @param time in sixtieths of a second, 0..127
ModuleCommand JsDefaultTime(bool permanent, int time);

/// The same code as the default time: the device makes it one byte longer.
/// @param device 0..63
ModuleCommand JsDeviceTime(bool permanent, int device, int time);

/// @param power 0 "Normal", 1 "Low", 2 "High", 3 "Unlimited"
ModuleCommand JsDevicePower(bool permanent, int device, int power);

/// Erases all settings.
constexpr ModuleCommand kJsErase{kTargetJs, 1, 64, 0, 0};

}  // namespace zelvar
