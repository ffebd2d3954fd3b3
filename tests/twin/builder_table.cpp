// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/builder_table.h"

#include "config/js_report.h"
#include "config/vd_settings.h"
#include "link/poller.h"
#include "protocol/accessories.h"
#include "protocol/blocks.h"
#include "protocol/locomotives.h"
#include "protocol/point_settings.h"
#include "protocol/unit_settings.h"
#include "status/status_request.h"

namespace zelvar::twin {

namespace {

constexpr DccAddress kShort{3, false};
constexpr DccAddress kLong{1000, false};
constexpr DccSteps k28 = DccSteps::k28;
constexpr DccSteps k126 = DccSteps::k126;

/// The HFI level, set or got.
ModuleCommand Setting(int button, bool permanent) {
    VDInput input;
    input.numbers.resize(1);
    for (const VDSetting& setting : VDSettings()) {
        if (std::string_view("frmHFI") == setting.frame) {
            return VDCommandOf(setting, 0, button, permanent, input).value();
        }
    }
    return {};
}

Command Functions(int group, const DccAddress& address) {
    return DccFunctions(group, 5, DccFunctionSet().set(), address).value();
}

KBSwitches First() {
    return {true};
}

std::vector<BuilderRow> StatusRows() {
    return {
        {"kEmptyTransaction", "poll", kEmptyTransaction},
        {"kResetFault", "fault-reset", kResetFault},
        {"ProtocolVersionRequest", "protocol-version", ProtocolVersionRequest()},
        {"CentralUnitRequest", "unit-type", CentralUnitRequest()},
        {"ModuleStatusRequest", "module-status", ModuleStatusRequest(0)},
        {"ModuleStatusRequest", "module-status", ModuleStatusRequest(127)},
        {"StatusTableRequest", "table-dip-switches", StatusTableRequest(0)},
        {"StatusTableRequest", "table-present", StatusTableRequest(2)},
        {"StatusTableRequest", "table-faults", StatusTableRequest(3)},
        {"StatusTableRequest", "table-types", StatusTableRequest(4)},
        {"StatusTableRequest", "table-point-modules", StatusTableRequest(6)},
        {"FeedbackRequest", "feedback-request", FeedbackRequest(0)},
        {"FeedbackRequest", "feedback-request", FeedbackRequest(4095)},
    };
}

std::vector<BuilderRow> ConfigurationRows() {
    return {
        {"VDCommandOf", "traction-set", CommandForVD(Setting(kSetButton, false), 0)},
        {"VDCommandOf", "traction-get", CommandForVD(Setting(kGetButton, false), 31)},
        {"CommandForVD", "traction-set", CommandForVD(Setting(kSetButton, true), 32)},
        {"CommandForVD", "traction-get", CommandForVD(Setting(kGetButton, true), 63)},
        {"kVDErase", "traction-erase", CommandForVD(kVDErase, 63)},
        {"CommandForJs", "points-set-default-time", CommandForJs(JsDefaultTime(false, 0), 0)},
        {"JsDefaultTime", "points-set-default-time", CommandForJs(JsDefaultTime(true, 127), 15)},
        {"JsDeviceTime", "points-set-device-time", CommandForJs(JsDeviceTime(false, 0, 1), 7)},
        {"JsDeviceTime", "points-set-device-time", CommandForJs(JsDeviceTime(true, 63, 127), 8)},
        {"JsDevicePower", "points-set-device-power", CommandForJs(JsDevicePower(false, 0, 0), 0)},
        {"JsDevicePower", "points-set-device-power", CommandForJs(JsDevicePower(true, 63, 3), 15)},
        {"kJsErase", "points-erase", CommandForJs(kJsErase, 15)},
        {"JsDefaultTimeRequest", "points-get-default-time", JsDefaultTimeRequest(0, false)},
        {"JsDefaultTimeRequest", "points-get-default-time", JsDefaultTimeRequest(15, true)},
        {"JsDeviceRequest", "points-get-device", JsDeviceRequest(0, false, 0)},
        {"JsDeviceRequest", "points-get-device", JsDeviceRequest(15, true, 63)},
        {"KBConfigCommand", "unit-set-configuration",
         CommandForUnit(KBConfigCommand(0, false, First()))},
        {"KBConfigCommand", "unit-set-configuration",
         CommandForUnit(KBConfigCommand(0, true, First()))},
        {"KBConfigCommand", "unit-get-configuration",
         CommandForUnit(KBConfigCommand(1, false, First()))},
        {"CommandForUnit", "unit-get-configuration",
         CommandForUnit(KBConfigCommand(1, true, First()))},
        {"KBOptionsCommand", "unit-set-options", CommandForUnit(KBOptionsCommand(First()))},
        {"Js64DeviceModeCommand", "unit-set-device-mode",
         CommandForUnit(Js64DeviceModeCommand(false, {}))},
        {"Js64DeviceModeCommand", "unit-set-device-mode",
         CommandForUnit(Js64DeviceModeCommand(true, First()))},
        {"TransparentModeCommand", "transparent-channel-0", TransparentModeCommand(0)},
        {"TransparentModeCommand", "transparent-channel-1", TransparentModeCommand(1)},
        {"TransparentModeCommand", "transparent-boot-loader", TransparentModeCommand(2)},
    };
}

std::vector<BuilderRow> LocomotiveRows() {
    return {
        {"AnalogSpeed", "analog-speed", AnalogSpeed(0, 0, false)},
        {"AnalogSpeed", "analog-speed", AnalogSpeed(255, 63, true)},
        {"AnalogSpeedRamp", "analog-speed", AnalogSpeedRamp(255, 63, true, 127)},
        {"AnalogLight", "analog-light", AnalogLight(0, false)},
        {"AnalogLight", "analog-light", AnalogLight(255, true)},
        {"SetHfi", "set-hfi", SetHfi(15)},
        {"DccSpeed", "dcc-speed-28", DccSpeed(k28, 0, 0, false, kShort)},
        {"DccSpeed", "dcc-speed-28", DccSpeed(k28, 255, 28, true, kLong)},
        {"DccSpeed", "dcc-speed-126", DccSpeed(k126, 0, 0, false, kShort)},
        {"DccSpeed", "dcc-speed-126", DccSpeed(k126, 255, 126, true, kLong)},
        {"DccEstop", "dcc-speed-28", DccEstop(k28, 255, true, kShort)},
        {"DccEstop", "dcc-speed-28", DccEstop(k28, 0, false, kLong)},
        {"DccEstop", "dcc-speed-126", DccEstop(k126, 255, true, kShort)},
        {"DccEstop", "dcc-speed-126", DccEstop(k126, 0, false, kLong)},
        {"DccFunctions", "dcc-f0-f4", Functions(0, kShort)},
        {"DccFunctions", "dcc-f0-f4", Functions(0, kLong)},
        {"DccFunctions", "dcc-f5-f8", Functions(1, kShort)},
        {"DccFunctions", "dcc-f5-f8", Functions(1, kLong)},
        {"DccFunctions", "dcc-f9-f12", Functions(2, kShort)},
        {"DccFunctions", "dcc-f9-f12", Functions(2, kLong)},
        {"DccFunctions", "dcc-f13-f20", Functions(3, kShort)},
        {"DccFunctions", "dcc-f13-f20", Functions(3, kLong)},
        {"DccFunctions", "dcc-f21-f28", Functions(4, kShort)},
        {"DccFunctions", "dcc-f21-f28", Functions(4, kLong)},
        {"MccSpeed", "mcc-speed", MccSpeed(4095, MccSpeedCode(30, kMccTopSpeed30), 7)},
        {"MccEstop", "mcc-speed", MccEstop(0)},
        {"MccFunctions", "mcc-functions", MccFunctions(4095, MccFunctionSet().set())},
    };
}

std::vector<BuilderRow> LayoutRows() {
    return {
        {"LinkBlocks", "link", LinkBlocks(0, 255, BlockPolarity::Same)},
        {"LinkBlocks", "link", LinkBlocks(255, 0, BlockPolarity::Inverted)},
        {"UnlinkBlocks", "unlink", UnlinkBlocks(0, UnlinkDirection::Down, false)},
        {"UnlinkBlocks", "unlink", UnlinkBlocks(255, UnlinkDirection::Up, true)},
        {"ClearBlock", "clear-block", ClearBlock(255)},
        {"SetPoint", "point", SetPoint(0, false)},
        {"SetPoint", "point", SetPoint(511, true)},
        {"SetModulePoint", "point-of-module", SetModulePoint(0, 0, false)},
        {"SetModulePoint", "point-of-module", SetModulePoint(15, 63, true)},
        {"SetSignalAspect", "signal-aspect", SetSignalAspect(0, 0, 0)},
        {"SetSignalAspect", "signal-aspect", SetSignalAspect(31, 127, 11)},
        {"SetOutput", "output", SetOutput(0, 0, 0)},
        {"SetOutput", "output", SetOutput(511, 63, 127)},
    };
}

}  // namespace

const std::vector<BuilderRow>& BuilderTable() {
    static const std::vector<BuilderRow> kTable = [] {
        std::vector<BuilderRow> all;
        for (const auto& rows :
             {StatusRows(), ConfigurationRows(), LocomotiveRows(), LayoutRows()}) {
            all.insert(all.end(), rows.begin(), rows.end());
        }
        return all;
    }();
    return kTable;
}

}  // namespace zelvar::twin
