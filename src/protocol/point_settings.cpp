// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/point_settings.h"

#include "protocol/addresses.h"

namespace zelvar {

namespace {

constexpr int kTimeCode = 32;
constexpr int kReportCode = 34;
constexpr int kPowerCode = 40;

std::uint8_t Byte(int value) {
    return static_cast<std::uint8_t>(value);
}

std::uint8_t CodeOf(int code, bool permanent) {
    return Byte(code + (permanent ? kPermanentBit : 0));
}

/// An answer repeats the whole request and adds what was asked for.
bool IsAnswer(const Reply& reply, const Command& request, int added) {
    if (reply.Count() != request.count + added) {
        return false;
    }
    for (int k = 1; k <= request.count; ++k) {
        if (reply[k] != request.values[static_cast<unsigned>(k) - 1]) {
            return false;
        }
    }
    return true;
}

}  // namespace

ModuleCommand JsDefaultTime(bool permanent, int time) {
    return {kTargetJs, 2, CodeOf(kTimeCode, permanent), Byte(time), 0};
}

ModuleCommand JsDeviceTime(bool permanent, int device, int time) {
    return {kTargetJs, 3, CodeOf(kTimeCode, permanent), Byte(device), Byte(time)};
}

ModuleCommand JsDevicePower(bool permanent, int device, int power) {
    return {kTargetJs, 3, CodeOf(kPowerCode, permanent), Byte(device), Byte(power)};
}

Command JsDefaultTimeRequest(int module, bool permanent) {
    return CommandOf({0, JsAddress(module), CodeOf(kReportCode, permanent)});
}

std::optional<int> ReadJsDefaultTime(const Reply& reply, const Command& request) {
    return IsAnswer(reply, request, 1) ? std::optional<int>(reply[4]) : std::nullopt;
}

Command JsDeviceRequest(int module, bool permanent, int device) {
    return CommandOf({0, JsAddress(module), CodeOf(kReportCode, permanent), device});
}

std::optional<JsDeviceSettings> ReadJsDevice(const Reply& reply, const Command& request) {
    if (!IsAnswer(reply, request, 2)) {
        return std::nullopt;
    }
    return JsDeviceSettings{reply[5], reply[6]};
}

std::vector<CommandRow> PointCommands() {
    using Arguments = std::span<const int>;
    const CommandParameter module{"module", 0, kJsModules - 1};
    const CommandParameter permanent{"permanent", 0, 1};
    const CommandParameter device{"device", 0, kJsLastDevice};
    const CommandParameter time{"time", 0, kJsLongestTime};
    return {
        {"points-set-default-time",
         {module, permanent, time},
         [](Arguments a) { return CommandForJs(JsDefaultTime(a[1] != 0, a[2]), a[0]); }},
        {"points-set-device-time",
         {module, permanent, device, time},
         [](Arguments a) { return CommandForJs(JsDeviceTime(a[1] != 0, a[2], a[3]), a[0]); }},
        {"points-set-device-power",
         {module, permanent, device, {"power", 0, 3}},
         [](Arguments a) { return CommandForJs(JsDevicePower(a[1] != 0, a[2], a[3]), a[0]); }},
        {"points-erase", {module}, [](Arguments a) { return CommandForJs(kJsErase, a[0]); }},
        {"points-get-default-time",
         {module, permanent},
         [](Arguments a) { return JsDefaultTimeRequest(a[0], a[1] != 0); }},
        {"points-get-device",
         {module, permanent, device},
         [](Arguments a) { return JsDeviceRequest(a[0], a[1] != 0, a[2]); }},
    };
}

}  // namespace zelvar
