// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "protocol/command_row.h"
#include "protocol/module_command.h"
#include "protocol/reply.h"

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

/// The power of a device, by code.
inline constexpr std::array<std::string_view, 4> kJsPowers{"Normal", "Low", "High", "Unlimited"};

/// @param power 0..3
ModuleCommand JsDevicePower(bool permanent, int device, int power);

/// Erases all settings.
constexpr ModuleCommand kJsErase{kTargetJs, 1, 64, 0, 0};

/// @param module 0..15
Command JsDefaultTimeRequest(int module, bool permanent);
/// @param request a `JsDefaultTimeRequest` @return the time in sixtieths of a second, 0..127
std::optional<int> ReadJsDefaultTime(const Reply& reply, const Command& request);

struct JsDeviceSettings {
    /// In sixtieths of a second, 0..127; 0 stands for the module's default.
    int time = 0;
    /// 0..3; other codes have no meaning.
    int power = 0;
};

/// @param module 0..15 @param device 0..63
Command JsDeviceRequest(int module, bool permanent, int device);
/// @param request a `JsDeviceRequest`
std::optional<JsDeviceSettings> ReadJsDevice(const Reply& reply, const Command& request);

std::vector<CommandRow> PointCommands();

}  // namespace zelvar
