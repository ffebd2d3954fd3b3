// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

using Answer = std::optional<Payload>;

constexpr int kForwardBit = 64;
constexpr int kSpeedMask = 0x3F;
constexpr int kDccForwardBit = 32;
constexpr int kDccSpeedMask = 0x1F;
constexpr int kDccStop28 = 31;
constexpr int kDccStop126 = 127;
constexpr int kDccSteps28 = 28;
constexpr int kDccSteps126 = 126;
constexpr int kValues = 128;  // what one data value can tell apart

/// A number 0..255 whose highest bit is the lowest one of the value before it.
int Split(const Payload& command, std::size_t index) {
    return command[index] % 2 * kValues + command[index + 1];
}

/// The decoder at the end of a command, whose values from `index` on are its low part and, for a
/// long address, its high part.
DccDecoder DecoderAt(const Payload& command, std::size_t index) {
    const bool isLong = command.size() > index + 1;
    return {command[index] + (isLong ? command[index + 1] * kValues : 0), isLong};
}

Answer AnalogSpeed(UnitState& state, const Payload& command) {
    const bool forward = (command[2] & kForwardBit) != 0;
    state.drive.SetBlockSpeed(Split(command, 0), command[2] & kSpeedMask, forward, command[3]);
    return std::nullopt;
}

Answer AnalogLight(UnitState& state, const Payload& command) {
    state.drive.SetBlockLight(Split(command, 0), command[2] != 0);
    return std::nullopt;
}

Answer SetHfi(UnitState& state, const Payload& command) {
    state.hfiLevel = command[2];
    return std::nullopt;
}

Answer DccSpeed28(UnitState& state, const Payload& command) {
    DccLocomotive& locomotive = state.drive.Dcc(DecoderAt(command, 3));
    const int speed = command[2] & kDccSpeedMask;
    locomotive.block = Split(command, 0);
    locomotive.steps = kDccSteps28;
    locomotive.cleared = false;
    locomotive.forward = (command[2] & kDccForwardBit) != 0;
    locomotive.emergencyStop = speed == kDccStop28;
    locomotive.speed = locomotive.emergencyStop ? 0 : speed;
    return std::nullopt;
}

Answer DccSpeed126(UnitState& state, const Payload& command) {
    DccLocomotive& locomotive = state.drive.Dcc(DecoderAt(command, 4));
    locomotive.block = Split(command, 0);
    locomotive.steps = kDccSteps126;
    locomotive.cleared = false;
    locomotive.forward = command[2] != 0;
    locomotive.emergencyStop = command[3] == kDccStop126;
    locomotive.speed = locomotive.emergencyStop ? 0 : command[3];
    return std::nullopt;
}

/// Functions from number `first` on take the bits of `pattern`, lowest first.
void SetFunctions(DccLocomotive& locomotive, int first, int count, int pattern) {
    for (int bit = 0; bit < count; ++bit) {
        const auto function = static_cast<std::size_t>(first) + static_cast<std::size_t>(bit);
        locomotive.functions.set(function, (pattern >> bit & 1) != 0);
    }
}

DccLocomotive& WithFunctions(UnitState& state, const Payload& command, std::size_t decoderAt) {
    DccLocomotive& locomotive = state.drive.Dcc(DecoderAt(command, decoderAt));
    // Functions carry the block whole, not split as the speed does.
    locomotive.block = command[1];
    return locomotive;
}

Answer DccLightAndF1(UnitState& state, const Payload& command) {
    constexpr int kLightBit = 4;
    DccLocomotive& locomotive = WithFunctions(state, command, 3);
    SetFunctions(locomotive, 1, 4, command[2]);
    SetFunctions(locomotive, 0, 1, command[2] >> kLightBit);
    return std::nullopt;
}

template <int first>
Answer DccFourFunctions(UnitState& state, const Payload& command) {
    SetFunctions(WithFunctions(state, command, 3), first, 4, command[2]);
    return std::nullopt;
}

template <int first>
Answer DccEightFunctions(UnitState& state, const Payload& command) {
    SetFunctions(WithFunctions(state, command, 4), first, 8, Split(command, 2));
    return std::nullopt;
}

Answer MccSpeed(UnitState& state, const Payload& command) {
    state.drive.SetMccSpeed(command[1] * kValues + command[2], command[3], command[4]);
    return std::nullopt;
}

Answer MccFunctions(UnitState& state, const Payload& command) {
    constexpr int kHalf = 16;
    state.drive.SetMccFunctions(command[1] * kValues + command[2],
                                command[3] % kHalf + command[4] % kHalf * kHalf);
    return std::nullopt;
}

Answer LinkBlocks(UnitState& state, const Payload& command) {
    constexpr int kInvertedBit = 4;
    state.drive.Link(Split(command, 0), Split(command, 2), (command[2] & kInvertedBit) != 0);
    return std::nullopt;
}

Answer UnlinkBlock(UnitState& state, const Payload& command) {
    constexpr int kUpBit = 4;
    constexpr int kClearBit = 2;
    state.drive.Unlink(Split(command, 0), (command[2] & kUpBit) != 0,
                       (command[2] & kClearBit) != 0);
    return std::nullopt;
}

Answer ClearBlock(UnitState& state, const Payload& command) {
    state.drive.ClearBlock(Split(command, 0));
    return std::nullopt;
}

constexpr ValuePattern kDccSpeed = Bits(0x7E, 40);  // the block's highest bit beside it
constexpr ValuePattern kDccLongSpeed = Bits(0x7E, 44);
constexpr ValuePattern kDccFunctionsCode = Is(40);
constexpr ValuePattern kDccMoreFunctions = Is(44);

constexpr CommandRow kDriveCommands[] = {
    {"analog-speed", {Bits(0x7E, 34), Any(), Any()}, &AnalogSpeed},
    {"analog-speed", {Bits(0x7E, 34), Any(), Any(), Any()}, &AnalogSpeed},
    {"analog-light", {Bits(0x7E, 32), Any(), Bits(0x6F, 0)}, &AnalogLight},
    {"set-hfi", {Is(1), Is(1), Any()}, &SetHfi},
    {"dcc-speed-28", {kDccSpeed, Any(), Bits(0x40, 64), Any()}, &DccSpeed28},
    {"dcc-speed-28", {kDccSpeed, Any(), Bits(0x40, 64), Any(), Any()}, &DccSpeed28},
    {"dcc-speed-126", {kDccLongSpeed, Any(), Bits(0x7E, 0), Any(), Any()}, &DccSpeed126},
    {"dcc-speed-126", {kDccLongSpeed, Any(), Bits(0x7E, 0), Any(), Any(), Any()}, &DccSpeed126},
    {"dcc-f0-f4", {kDccFunctionsCode, Any(), Bits(0x60, 0), Any()}, &DccLightAndF1},
    {"dcc-f0-f4", {kDccFunctionsCode, Any(), Bits(0x60, 0), Any(), Any()}, &DccLightAndF1},
    {"dcc-f5-f8", {kDccFunctionsCode, Any(), Bits(0x70, 48), Any()}, &DccFourFunctions<5>},
    {"dcc-f5-f8", {kDccFunctionsCode, Any(), Bits(0x70, 48), Any(), Any()}, &DccFourFunctions<5>},
    {"dcc-f9-f12", {kDccFunctionsCode, Any(), Bits(0x70, 32), Any()}, &DccFourFunctions<9>},
    {"dcc-f9-f12", {kDccFunctionsCode, Any(), Bits(0x70, 32), Any(), Any()}, &DccFourFunctions<9>},
    {"dcc-f13-f20",
     {kDccMoreFunctions, Any(), Bits(0x7E, 4), Any(), Any()},
     &DccEightFunctions<13>},
    {"dcc-f13-f20",
     {kDccMoreFunctions, Any(), Bits(0x7E, 4), Any(), Any(), Any()},
     &DccEightFunctions<13>},
    {"dcc-f21-f28",
     {kDccMoreFunctions, Any(), Bits(0x7E, 6), Any(), Any()},
     &DccEightFunctions<21>},
    {"dcc-f21-f28",
     {kDccMoreFunctions, Any(), Bits(0x7E, 6), Any(), Any(), Any()},
     &DccEightFunctions<21>},
    {"mcc-speed", {Is(6), Bits(0x60, 0), Any(), Bits(0x60, 0), Bits(0x78, 0)}, &MccSpeed},
    {"mcc-functions", {Is(7), Bits(0x60, 0), Any(), Bits(0x70, 0), Bits(0x70, 0)}, &MccFunctions},
    {"link", {Bits(0x7E, 58), Any(), Bits(0x7A, 2), Any()}, &LinkBlocks},
    {"unlink", {Bits(0x7E, 56), Any(), Bits(0x79, 0)}, &UnlinkBlock},
    {"clear-block", {Bits(0x7E, 62), Any(), Is(18)}, &ClearBlock},
};

}  // namespace

std::span<const CommandRow> DriveCommands() {
    return kDriveCommands;
}

}  // namespace zelvar::sim
