// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/names.h"
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

constexpr Field kAcceleration = Whole(3);
constexpr Field kLight = Whole(2);
constexpr Field kHfiLevel = Whole(2);

Payload AnalogSpeed(UnitState& state, const Payload& command) {
    state.drive.SetBlockSpeed(kBlock.In(command), kBlockSpeed.In(command),
                              kBlockForward.In(command) != 0, kAcceleration.In(command));
    return {};
}

std::string AccelerationIfAny(const Payload& command, const KnownTypes&) {
    const bool any = command.size() > kAcceleration.index;
    return any ? ", acceleration " + std::to_string(kAcceleration.In(command)) : "";
}

Payload AnalogLight(UnitState& state, const Payload& command) {
    state.drive.SetBlockLight(kBlock.In(command), kLight.In(command) != 0);
    return {};
}

Payload SetHfi(UnitState& state, const Payload& command) {
    state.hfiLevel = kHfiLevel.In(command);
    return {};
}

/// A DCC command ends with the decoder's address: one value, or two for a long address.
DccDecoder DecoderAt(const Payload& command, int index) {
    const Field last = Whole(index + 1);
    return {WideLowFirst(index).In(command), command.size() > last.index};
}

/// One of the two ways to command a DCC speed.
struct SpeedSteps {
    int steps;
    int stopCode;  // the emergency stop
    Field speed;
    Field forward;
    int decoderAt;
};

constexpr SpeedSteps k28Steps{28, 31, Part(2, 0x1F), Part(2, 0x20), 3};
constexpr SpeedSteps k126Steps{126, 127, Whole(3), Whole(2), 4};

template <const SpeedSteps& mode>
Payload DccSpeed(UnitState& state, const Payload& command) {
    DccLocomotive& locomotive = state.drive.Dcc(DecoderAt(command, mode.decoderAt));
    const int speed = mode.speed.In(command);
    locomotive.block = kBlock.In(command);
    locomotive.steps = mode.steps;
    locomotive.cleared = false;
    locomotive.forward = mode.forward.In(command) != 0;
    locomotive.emergencyStop = speed == mode.stopCode;
    locomotive.speed = locomotive.emergencyStop ? 0 : speed;
    return {};
}

template <const SpeedSteps& mode>
std::string DccSpeedName(int speed) {
    return speed == mode.stopCode
               ? "emergency stop,"
               : "speed " + std::to_string(speed) + " of " + std::to_string(mode.steps);
}

/// A group of DCC functions that one command sets.
struct FunctionGroup {
    int first;
    int count;
    Field bits;  // the lowest one is that of the first function
    int decoderAt;
};

constexpr Field kFourFunctions = Part(2, 0x0F);
constexpr Field kEightFunctions = Wide(2, 1);
// The light, function 0, has its bit after those of functions 1 to 4.
constexpr FunctionGroup kF0ToF4{0, 5, Part(2, 0x1F), 3};
constexpr FunctionGroup kF5ToF8{5, 4, kFourFunctions, 3};
constexpr FunctionGroup kF9ToF12{9, 4, kFourFunctions, 3};
constexpr FunctionGroup kF13ToF20{13, 8, kEightFunctions, 4};
constexpr FunctionGroup kF21ToF28{21, 8, kEightFunctions, 4};

/// The functions that are on, in the order of their numbers.
template <const FunctionGroup& group>
int FunctionsOf(int bits) {
    constexpr int kLightBit = 4;
    constexpr int kOtherBits = 0x0F;
    return group.first > 0 ? bits : (bits & kOtherBits) << 1 | bits >> kLightBit;
}

template <const FunctionGroup& group>
Payload DccFunctions(UnitState& state, const Payload& command) {
    DccLocomotive& locomotive = state.drive.Dcc(DecoderAt(command, group.decoderAt));
    locomotive.block = kBlock.In(command);
    const int functions = FunctionsOf<group>(group.bits.In(command));
    for (int number = 0; number < group.count; ++number) {
        locomotive.functions.set(group.first + number, (functions >> number & 1) != 0);
    }
    return {};
}

template <const FunctionGroup& group>
std::string FunctionsName(int bits) {
    return DccFunctionsName(FunctionsOf<group>(bits), group.first, "F0 (light)");
}

/// "1000 (long address)"
template <int index>
std::string DecoderName(const Payload& command, const KnownTypes&) {
    const DccDecoder decoder = DecoderAt(command, index);
    return std::to_string(decoder.address) + (decoder.longAddress ? " (long address)" : "");
}

constexpr Field kMccDecoder = Wide(1, kValueMask);
constexpr Field kMccSpeed = Whole(3);
constexpr Field kMccAcceleration = Whole(4);
constexpr Field kMccFunctions = Halves(3);

Payload MccSpeed(UnitState& state, const Payload& command) {
    state.drive.SetMccSpeed(kMccDecoder.In(command), kMccSpeed.In(command),
                            kMccAcceleration.In(command));
    return {};
}

Payload MccFunctions(UnitState& state, const Payload& command) {
    state.drive.SetMccFunctions(kMccDecoder.In(command), kMccFunctions.In(command));
    return {};
}

std::string MccSpeedName(int code) {
    return code == 0 ? "emergency stop" : "speed " + HalfStepsName(MccHalfSteps(code));
}

constexpr Field kSecondBlock = Wide(2, 1);
constexpr Field kInverted = Part(2, 4);
constexpr Field kUp = Part(2, 4);
constexpr Field kClearOthers = Part(2, 2);

Payload LinkBlocks(UnitState& state, const Payload& command) {
    state.drive.Link(kBlock.In(command), kSecondBlock.In(command), kInverted.In(command) != 0);
    return {};
}

Payload UnlinkBlock(UnitState& state, const Payload& command) {
    state.drive.Unlink(kBlock.In(command), kUp.In(command) != 0, kClearOthers.In(command) != 0);
    return {};
}

Payload ClearBlock(UnitState& state, const Payload& command) {
    state.drive.ClearBlock(kBlock.In(command));
    return {};
}

/// A code whose lowest bit is the highest one of a block.
constexpr ValuePattern WithBlock(int code) {
    return IsBut(1, code);
}

constexpr CommandRow kDriveCommands[] = {
    {"analog-speed",
     {WithBlock(34), Any(), Any(), MayFollow()},
     {"analog speed: block {}, speed {} {}{}",
      {kBlock, kBlockSpeed, {kBlockForward, &DirectionName}, &AccelerationIfAny}},
     &AnalogSpeed},
    {"analog-light",
     {WithBlock(32), Any(), IsBut(16, 0)},
     {"analog light: block {}, {}", {kBlock, {kLight, &OnOffName}}},
     &AnalogLight},
    {"set-hfi",
     {Is(kToUnit), Is(1), Any()},
     {"set the system's HFI level to {}", {kHfiLevel}},
     &SetHfi},
    {"dcc-speed-28",
     {WithBlock(40), Any(), Bits(64, 64), Any(), MayFollow()},
     {"DCC speed: block {}, decoder {}, {} {}",
      {kBlock,
       &DecoderName<3>,
       {k28Steps.speed, &DccSpeedName<k28Steps>},
       {k28Steps.forward, &DirectionName}}},
     &DccSpeed<k28Steps>},
    {"dcc-speed-126",
     {WithBlock(44), Any(), IsBut(1, 0), Any(), Any(), MayFollow()},
     {"DCC speed: block {}, decoder {}, {} {}",
      {kBlock,
       &DecoderName<4>,
       {k126Steps.speed, &DccSpeedName<k126Steps>},
       {k126Steps.forward, &DirectionName}}},
     &DccSpeed<k126Steps>},
    {"dcc-f0-f4",
     {Is(40), Any(), Bits(0x60, 0), Any(), MayFollow()},
     {"DCC functions F0..F4: block {}, decoder {}, on: {}",
      {kBlock, &DecoderName<3>, {kF0ToF4.bits, &FunctionsName<kF0ToF4>}}},
     &DccFunctions<kF0ToF4>},
    {"dcc-f5-f8",
     {Is(40), Any(), Bits(0x70, 48), Any(), MayFollow()},
     {"DCC functions F5..F8: block {}, decoder {}, on: {}",
      {kBlock, &DecoderName<3>, {kF5ToF8.bits, &FunctionsName<kF5ToF8>}}},
     &DccFunctions<kF5ToF8>},
    {"dcc-f9-f12",
     {Is(40), Any(), Bits(0x70, 32), Any(), MayFollow()},
     {"DCC functions F9..F12: block {}, decoder {}, on: {}",
      {kBlock, &DecoderName<3>, {kF9ToF12.bits, &FunctionsName<kF9ToF12>}}},
     &DccFunctions<kF9ToF12>},
    {"dcc-f13-f20",
     {Is(44), Any(), IsBut(1, 4), Any(), Any(), MayFollow()},
     {"DCC functions F13..F20: block {}, decoder {}, on: {}",
      {kBlock, &DecoderName<4>, {kF13ToF20.bits, &FunctionsName<kF13ToF20>}}},
     &DccFunctions<kF13ToF20>},
    {"dcc-f21-f28",
     {Is(44), Any(), IsBut(1, 6), Any(), Any(), MayFollow()},
     {"DCC functions F21..F28: block {}, decoder {}, on: {}",
      {kBlock, &DecoderName<4>, {kF21ToF28.bits, &FunctionsName<kF21ToF28>}}},
     &DccFunctions<kF21ToF28>},
    {"mcc-speed",
     {Is(6), IsBut(0x1F, 0), Any(), IsBut(0x1F, 0), IsBut(7, 0)},
     {"MCC speed: decoder {}, {}, acceleration {}",
      {kMccDecoder, {kMccSpeed, &MccSpeedName}, kMccAcceleration}},
     &MccSpeed},
    {"mcc-functions",
     {Is(7), IsBut(0x1F, 0), Any(), IsBut(0x0F, 0), IsBut(0x0F, 0)},
     {"MCC functions: decoder {}, on: {}", {kMccDecoder, {kMccFunctions, &MccFunctionsName}}},
     &MccFunctions},
    {"link",
     {WithBlock(58), Any(), IsBut(5, 2), Any()},
     {"link blocks {} and {}{}", {kBlock, kSecondBlock, {kInverted, ", inverted", ""}}},
     &LinkBlocks},
    {"unlink",
     {WithBlock(56), Any(), IsBut(6, 0)},
     {"unlink block {} {}{}",
      {kBlock, {kUp, "up", "down"}, {kClearOthers, ", clear the blocks unlinked", ""}}},
     &UnlinkBlock},
    {"clear-block", {WithBlock(62), Any(), Is(18)}, {"clear block {}", {kBlock}}, &ClearBlock},
};

}  // namespace

std::span<const CommandRow> DriveCommands() {
    return kDriveCommands;
}

}  // namespace zelvar::sim
