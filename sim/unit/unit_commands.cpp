// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/names.h"
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

constexpr int kOptionsCode = 5;
constexpr int kSetConfigurationCode = 6;
constexpr Field kConfiguration = Halves(2);
constexpr Field kOptions = Whole(2);
// A Set whose first value is above 15 carries 16 plus the sum of the mode boxes.
constexpr int kDeviceModeOffset = 16;
constexpr Field kDeviceMode = Whole(2);

UnitSettings& MemoryPart(UnitState& state, const Payload& command) {
    return state.memories.unit.Part(kUnitPermanent.In(command) != 0);
}

Payload SetConfiguration(UnitState& state, const Payload& command) {
    MemoryPart(state, command).configuration =
        static_cast<std::uint8_t>(kConfiguration.In(command));
    return {};
}

Payload SetDeviceMode(UnitState& state, const Payload& command) {
    MemoryPart(state, command).deviceMode =
        static_cast<std::uint8_t>(kDeviceMode.In(command) - kDeviceModeOffset);
    return {};
}

Payload GetConfiguration(UnitState& state, const Payload& command) {
    const int configuration = MemoryPart(state, command).configuration;
    return {kToUnit, command[1], configuration % kHalfRange, configuration / kHalfRange};
}

Payload GoTransparent(UnitState& state, const Payload&) {
    state.transparent = true;
    return {};
}

Payload SetOptions(UnitState& state, const Payload& command) {
    state.memories.options = static_cast<std::uint8_t>(kOptions.In(command));
    return {};
}

std::string DeviceModeName(int value) {
    return std::to_string(value - kDeviceModeOffset);
}

constexpr ValuePattern kSet = IsBut(kUnitPermanentBit, kSetConfigurationCode);
constexpr ValuePattern kGet = IsBut(kUnitPermanentBit, kGetConfigurationCode);
constexpr Parameter kMemory = MemoryName(kUnitPermanent);

constexpr CommandRow kUnitCommands[] = {
    {"unit-set-configuration",
     {Is(kToUnit), kSet, Bits(0x70, 0), Any()},
     {"set the {} configuration of the central unit: {}",
      {kMemory, {kConfiguration, &ConfigurationName}}},
     &SetConfiguration},
    {"unit-set-device-mode",
     {Is(kToUnit), kSet, Any(), Any()},
     {"set the {} 64-device mode of the point modules: {}",
      {kMemory, {kDeviceMode, &DeviceModeName}}},
     &SetDeviceMode},
    {"unit-get-configuration",
     {Is(kToUnit), kGet, Any(), Any()},
     {"ask for the {} configuration of the central unit", {kMemory}},
     &GetConfiguration,
     Asks::kYes},
    // Option bytes of these values are the switches into transparent mode.
    {"transparent-channel-0",
     {Is(kToUnit), Is(kOptionsCode), Is(16)},
     {"switch to transparent mode: channel 0"},
     &GoTransparent},
    {"transparent-channel-1",
     {Is(kToUnit), Is(kOptionsCode), Is(32)},
     {"switch to transparent mode: channel 1"},
     &GoTransparent},
    {"transparent-boot-loader",
     {Is(kToUnit), Is(kOptionsCode), Is(48)},
     {"switch to transparent mode: boot loader"},
     &GoTransparent},
    {"unit-set-options",
     {Is(kToUnit), Is(kOptionsCode), Any()},
     {"set the options of the central unit: {}", {{kOptions, &OptionsName}}},
     &SetOptions},
};

}  // namespace

std::span<const CommandRow> UnitCommands() {
    return kUnitCommands;
}

}  // namespace zelvar::sim
