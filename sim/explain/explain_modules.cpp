// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/explain.h"
#include "sim/protocol/names.h"
#include "sim/unit/memories.h"

namespace zelvar::sim {

namespace {

constexpr int kPermanentBit = 64;
constexpr int kParameterMask = 0x3F;
constexpr int kSecondaryBit = 16;  // in a traction command's code: the second unit of a VD60

std::string_view MemoryName(int value) {
    return (value & kPermanentBit) != 0 ? "permanent" : "active";
}

int TractionAddress(const Payload& command) {
    const bool second = (command[2] & kSecondaryBit) != 0;
    return second ? command[1] - kTractionFamily : command[1];
}

/// "permanent HFI level of traction module 5"
std::string TractionSetting(const Payload& command, std::string_view name) {
    return std::string(MemoryName(command[3]))
        .append(" ")
        .append(name)
        .append(" ")
        .append(OfModule(TractionAddress(command)));
}

std::string TractionErase(const Payload& command) {
    return "erase all settings " + OfModule(TractionAddress(command));
}

/// Setting 15 of the active memory: what it means depends on the module's type.
std::string ClockOrAddressName(const std::optional<int>& type) {
    if (!type) {
        return "clock state (in a QLRX-s: module address)";
    }
    const bool address = *type == static_cast<int>(TractionType::kQlrxS);
    return address ? "module address" : "clock state";
}

std::string TractionGet(const Conversation& conversation, const Payload& command) {
    const int parameter = command[3] & kParameterMask;
    const bool clock =
        parameter == static_cast<int>(kAddressParameter) && (command[3] & kPermanentBit) == 0;
    const std::string name = clock
                                 ? ClockOrAddressName(conversation.TypeOf(TractionAddress(command)))
                                 : SettingName(parameter);
    return "ask for the " + TractionSetting(command, name);
}

std::string TractionSet(const Payload& command) {
    const int parameter = command[3] & kParameterMask;
    return "set the " + TractionSetting(command, SettingName(parameter)) + " to " +
           SettingValueName(parameter, command[4]);
}

/// "permanent default time of point module 9"
std::string PointSetting(const Payload& command, std::string_view name) {
    return std::string(MemoryName(command[2]))
        .append(" ")
        .append(name)
        .append(" ")
        .append(OfModule(command[1]));
}

std::string DeviceSetting(const Payload& command, std::string_view name) {
    return PointSetting(command, std::string(name) + " of device " + std::to_string(command[3]));
}

std::string SetDefaultTime(const Payload& command) {
    return "set the " + PointSetting(command, "default time") + " to " + TimeName(command[3]);
}

std::string SetDeviceTime(const Payload& command) {
    return "set the " + DeviceSetting(command, "time") + " to " +
           TimeName(command[4], "the default");
}

std::string SetDevicePower(const Payload& command) {
    return "set the " + DeviceSetting(command, "power") + " to " + PowerName(command[4]);
}

std::string ErasePoints(const Payload& command) {
    return "erase all settings " + OfModule(command[1]);
}

std::string GetDefaultTime(const Payload& command) {
    return "ask for the " + PointSetting(command, "default time");
}

std::string GetDevice(const Payload& command) {
    return "ask for the " + DeviceSetting(command, "time and power");
}

constexpr CommandWords kModuleWords[] = {
    {"traction-erase", &TractionErase},
    {"traction-get", nullptr, true, &TractionGet},
    {"traction-set", &TractionSet},
    {"points-set-default-time", &SetDefaultTime},
    {"points-set-device-time", &SetDeviceTime},
    {"points-set-device-power", &SetDevicePower},
    {"points-erase", &ErasePoints},
    {"points-get-default-time", &GetDefaultTime, true},
    {"points-get-device", &GetDevice, true},
};

}  // namespace

std::span<const CommandWords> ModuleWords() {
    return kModuleWords;
}

}  // namespace zelvar::sim
