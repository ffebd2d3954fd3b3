// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

using Answer = std::optional<Payload>;

constexpr int kValues = 128;
constexpr int kOutOf512 = 4;  // two high bits of a number 0..511 lie in the first value

int DeviceNumber(const Payload& command) {
    return command[0] % kOutOf512 * kValues + command[1];
}

Answer Point(UnitState& state, const Payload& command) {
    constexpr int kThrownBit = 4;
    state.accessories.points[DeviceNumber(command)] = (command[0] & kThrownBit) != 0;
    return std::nullopt;
}

Answer PointOfModule(UnitState& state, const Payload& command) {
    constexpr int kThrownBit = 8;
    const int position = PointPosition(command[1]);
    if (position >= 0) {
        state.accessories.modulePoints[{position, command[3]}] = (command[2] & kThrownBit) != 0;
    }
    return std::nullopt;
}

Answer SignalAspect(UnitState& state, const Payload& command) {
    state.accessories.aspects[{command[1] - kSignalFamily, command[5]}] = command[6];
    return std::nullopt;
}

Answer Output(UnitState& state, const Payload& command) {
    state.accessories.outputs[DeviceNumber(command)] = {command[2], command[3]};
    return std::nullopt;
}

constexpr CommandRow kAccessoryCommands[] = {
    {"point", {Bits(0x78, 16), Any()}, &Point},
    {"point-of-module", {Is(0), Bits(0x60, kPointFamily), Bits(0x77, 17), Any()}, &PointOfModule},
    {"signal-aspect",
     {Is(0), Bits(0x60, kSignalFamily), Is(68), Is(0), Is(1), Any(), Any()},
     &SignalAspect},
    {"output", {Bits(0x7C, 24), Any(), Any(), Any()}, &Output},
};

}  // namespace

std::span<const CommandRow> AccessoryCommands() {
    return kAccessoryCommands;
}

}  // namespace zelvar::sim
