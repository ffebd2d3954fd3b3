// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

using Answer = std::optional<Payload>;

constexpr int kUnit = 1;
constexpr int kOptions = 5;
constexpr int kSetConfiguration = 6;
constexpr int kGetConfiguration = 14;
constexpr int kPermanentBit = 1;  // in the code of a configuration command
constexpr int kHalf = 16;         // the configuration byte travels in two halves of four bits
constexpr int kDeviceModeOffset = 16;

UnitSettings& Part(UnitState& state, const Payload& command) {
    return state.memories.unit.Part((command[1] & kPermanentBit) != 0);
}

Answer SetConfiguration(UnitState& state, const Payload& command) {
    Part(state, command).configuration =
        static_cast<std::uint8_t>(command[2] % kHalf + command[3] % kHalf * kHalf);
    return std::nullopt;
}

Answer SetDeviceMode(UnitState& state, const Payload& command) {
    Part(state, command).deviceMode = static_cast<std::uint8_t>(command[2] - kDeviceModeOffset);
    return std::nullopt;
}

Answer GetConfiguration(UnitState& state, const Payload& command) {
    const int configuration = Part(state, command).configuration;
    return Payload{kUnit, command[1], configuration % kHalf, configuration / kHalf};
}

Answer GoTransparent(UnitState& state, const Payload&) {
    state.transparent = true;
    return std::nullopt;
}

Answer SetOptions(UnitState& state, const Payload& command) {
    state.memories.options = static_cast<std::uint8_t>(command[2]);
    return std::nullopt;
}

constexpr ValuePattern kSet = Bits(0x7F - kPermanentBit, kSetConfiguration);
constexpr ValuePattern kGet = Bits(0x7F - kPermanentBit, kGetConfiguration);

constexpr CommandRow kUnitCommands[] = {
    {"unit-set-configuration", {Is(kUnit), kSet, Bits(0x70, 0), Any()}, &SetConfiguration},
    // The same command with a first value above 15: 16 plus the sum of the mode boxes.
    {"unit-set-device-mode", {Is(kUnit), kSet, Any(), Any()}, &SetDeviceMode},
    {"unit-get-configuration", {Is(kUnit), kGet, Any(), Any()}, &GetConfiguration},
    // Option bytes of these values are the switches into transparent mode.
    {"transparent-channel-0", {Is(kUnit), Is(kOptions), Is(16)}, &GoTransparent},
    {"transparent-channel-1", {Is(kUnit), Is(kOptions), Is(32)}, &GoTransparent},
    {"transparent-boot-loader", {Is(kUnit), Is(kOptions), Is(48)}, &GoTransparent},
    {"unit-set-options", {Is(kUnit), Is(kOptions), Any()}, &SetOptions},
};

}  // namespace

std::span<const CommandRow> UnitCommands() {
    return kUnitCommands;
}

}  // namespace zelvar::sim
