// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/names.h"
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

constexpr Field kThrown = Part(0, 4);
constexpr Field kThrownAtModule = Part(2, 8);

Payload Point(UnitState& state, const Payload& command) {
    state.accessories.points[kDevice.In(command)] = kThrown.In(command) != 0;
    return {};
}

Payload PointOfModule(UnitState& state, const Payload& command) {
    const int position = PointPosition(kModuleAddress.In(command));
    if (position >= 0) {
        state.accessories.modulePoints[{position, kPointDevice.In(command)}] =
            kThrownAtModule.In(command) != 0;
    }
    return {};
}

Payload SignalAspect(UnitState& state, const Payload& command) {
    state.accessories.aspects[{command[1] - kSignalFamily, command[5]}] = command[6];
    return {};
}

Payload Output(UnitState& state, const Payload& command) {
    state.accessories.outputs[kDevice.In(command)] = {command[2], command[3]};
    return {};
}

constexpr CommandRow kAccessoryCommands[] = {
    {"point",
     {Bits(0x78, 16), Any()},
     {"point {}: {}", {kDevice, {kThrown, &PositionName}}},
     &Point},
    {"point-of-module",
     {Is(kToModule), kToPoints, IsBut(8, 17), Any()},
     {"{}, device {}: {}",
      {{kModuleAddress, &ModuleName}, kPointDevice, {kThrownAtModule, &PositionName}}},
     &PointOfModule},
    {"signal-aspect",
     {Is(kToModule), Bits(kFamilyMask, kSignalFamily), Is(68), Is(0), Is(1), Any(), Any()},
     {"{}, pin {}: aspect {}", {{kModuleAddress, &ModuleName}, Whole(5), Whole(6)}},
     &SignalAspect},
    {"output",
     {Bits(0x7C, 24), Any(), Any(), Any()},
     {"output {}: instruction {}, parameter {}", {kDevice, Whole(2), Whole(3)}},
     &Output},
};

}  // namespace

std::span<const CommandRow> AccessoryCommands() {
    return kAccessoryCommands;
}

}  // namespace zelvar::sim
