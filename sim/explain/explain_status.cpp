// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/explain.h"
#include "sim/protocol/names.h"

namespace zelvar::sim {

namespace {

constexpr int kHalf = 16;
constexpr int kPermanentBit = 1;  // in the code of a configuration command
constexpr int kDeviceModeOffset = 16;

std::string_view MemoryName(const Payload& command) {
    return (command[1] & kPermanentBit) != 0 ? "permanent" : "active";
}

std::string Poll(const Payload&) {
    return "poll";
}

std::string FaultReset(const Payload&) {
    return "reset the fault";
}

std::string ProtocolVersion(const Payload&) {
    return "ask for the protocol version";
}

std::string UnitType(const Payload&) {
    return "ask for the central unit's type and version";
}

std::string ModuleStatus(const Payload& command) {
    return "ask for the status " + OfModule(command[2]);
}

std::string DipSwitches(const Payload&) {
    return "ask for the table of DIP switches";
}

std::string PresentModules(const Payload&) {
    return "ask for the table of traction modules that are there";
}

std::string FaultyModules(const Payload&) {
    return "ask for the table of traction modules in fault";
}

std::string ModuleTypes(const Payload&) {
    return "ask for the table of traction module types";
}

std::string PresentPointModules(const Payload&) {
    return "ask for the table of point modules that are there";
}

std::string FeedbackRequest(const Payload& command) {
    return "ask for feedback input " + std::to_string(command[0] % 32 * 128 + command[1]);
}

std::string SetConfiguration(const Payload& command) {
    const int configuration = command[2] % kHalf + command[3] % kHalf * kHalf;
    return std::string("set the ")
        .append(MemoryName(command))
        .append(" configuration of the central unit: ")
        .append(ConfigurationName(configuration));
}

std::string SetDeviceMode(const Payload& command) {
    return std::string("set the ")
        .append(MemoryName(command))
        .append(" 64-device mode of the point modules: ")
        .append(std::to_string(command[2] - kDeviceModeOffset));
}

std::string GetConfiguration(const Payload& command) {
    return std::string("ask for the ")
        .append(MemoryName(command))
        .append(" configuration of the central unit");
}

std::string TransparentChannel0(const Payload&) {
    return "switch to transparent mode: channel 0";
}

std::string TransparentChannel1(const Payload&) {
    return "switch to transparent mode: channel 1";
}

std::string TransparentBootLoader(const Payload&) {
    return "switch to transparent mode: boot loader";
}

std::string SetOptions(const Payload& command) {
    return "set the options of the central unit: " + OptionsName(command[2]);
}

constexpr CommandWords kStatusWords[] = {
    {"poll", &Poll},
    {"fault-reset", &FaultReset},
    {"protocol-version", &ProtocolVersion, true},
    {"unit-type", &UnitType, true},
    {"module-status", &ModuleStatus, true},
    {"table-dip-switches", &DipSwitches, true},
    {"table-present", &PresentModules, true},
    {"table-faults", &FaultyModules, true},
    {"table-types", &ModuleTypes, true},
    {"table-point-modules", &PresentPointModules, true},
    {"feedback-request", &FeedbackRequest, true},
};

constexpr CommandWords kUnitWords[] = {
    {"unit-set-configuration", &SetConfiguration},
    {"unit-set-device-mode", &SetDeviceMode},
    {"unit-get-configuration", &GetConfiguration, true},
    {"transparent-channel-0", &TransparentChannel0},
    {"transparent-channel-1", &TransparentChannel1},
    {"transparent-boot-loader", &TransparentBootLoader},
    {"unit-set-options", &SetOptions},
};

}  // namespace

std::span<const CommandWords> StatusWords() {
    return kStatusWords;
}

std::span<const CommandWords> UnitWords() {
    return kUnitWords;
}

}  // namespace zelvar::sim
