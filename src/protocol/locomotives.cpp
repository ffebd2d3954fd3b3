// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/locomotives.h"

#include <array>

#include "protocol/payload.h"

namespace zelvar {

namespace {

constexpr int kAnalogSpeedCode = 34;
constexpr int kAnalogLightCode = 32;
constexpr int kAnalogForward = 64;
constexpr int kAnalogLightOn = 16;

constexpr int kDcc28Code = 40;
constexpr int kDcc126Code = 44;
/// Tells a speed from a set of functions.
constexpr int kDcc28Speed = 64;
constexpr int kDcc28Forward = 32;
// The speeds that mean an emergency stop.
constexpr int kDcc28Estop = 31;
constexpr int kDcc126Estop = 127;

constexpr int kMccSpeedCommand = 6;
constexpr int kMccFunctionCommand = 7;
constexpr int kMccEstopCode = 0;
/// In steps of 15 always set, in steps of 30 the half step.
constexpr int kMccHalfStep = 16;

struct FunctionGroup {
    int code;
    int mark;
    std::size_t first;
    std::size_t last;
    bool withLight;
};

constexpr std::array<FunctionGroup, kDccFunctionGroups> kFunctionGroups{{
    {kDcc28Code, 0, 1, 4, true},
    {kDcc28Code, 48, 5, 8, false},
    {kDcc28Code, 32, 9, 12, false},
    {kDcc126Code, 4, 13, 20, false},
    {kDcc126Code, 6, 21, 28, false},
}};

void AppendAddress(Command& command, const DccAddress& address) {
    Append(command, LowPart(address.decoder));
    if (address.IsLong()) {
        Append(command, HighPart(address.decoder));
    }
}

Command DccDrive(DccSteps steps, int block, int speed, bool forward, const DccAddress& address) {
    Command command =
        steps == DccSteps::k28
            ? CommandOf({kDcc28Code + HighPart(block), LowPart(block),
                         kDcc28Speed + (forward ? kDcc28Forward : 0) + speed})
            : CommandOf({kDcc126Code + HighPart(block), LowPart(block), forward ? 1 : 0, speed});
    AppendAddress(command, address);
    return command;
}

int PatternOf(const FunctionGroup& group, const DccFunctionSet& functions) {
    int pattern = group.withLight && functions[0] ? 1 : 0;
    for (std::size_t function = group.last; function >= group.first; --function) {
        pattern = 2 * pattern + (functions[function] ? 1 : 0);
    }
    return pattern;
}

}  // namespace

Command AnalogSpeed(int block, int speed, bool forward) {
    return CommandOf({kAnalogSpeedCode + HighPart(block), LowPart(block),
                      speed + (forward ? kAnalogForward : 0)});
}

Command AnalogSpeedRamp(int block, int speed, bool forward, int acceleration) {
    Command command = AnalogSpeed(block, speed, forward);
    Append(command, acceleration);
    return command;
}

Command AnalogLight(int block, bool light) {
    return CommandOf(
        {kAnalogLightCode + HighPart(block), LowPart(block), light ? kAnalogLightOn : 0});
}

Command SetHfi(int hfi) {
    return CommandOf({1, 1, hfi});
}

Command DccSpeed(DccSteps steps, int block, int speed, bool forward, const DccAddress& address) {
    return DccDrive(steps, block, speed, forward, address);
}

Command DccEstop(DccSteps steps, int block, bool forward, const DccAddress& address) {
    return DccDrive(steps, block, steps == DccSteps::k28 ? kDcc28Estop : kDcc126Estop, forward,
                    address);
}

std::optional<Command> DccFunctions(int group, int block, const DccFunctionSet& functions,
                                    const DccAddress& address) {
    if (group < 0 || group >= kDccFunctionGroups) {
        return std::nullopt;
    }
    const FunctionGroup& row = kFunctionGroups[static_cast<std::size_t>(group)];
    const int pattern = PatternOf(row, functions);
    // Meant: unlike with the speeds, the block is not split in two.
    Command command = CommandOf({row.code, block});
    if (row.code == kDcc28Code) {
        Append(command, row.mark + pattern);
    } else {
        Append(command, row.mark + HighPart(pattern));
        Append(command, LowPart(pattern));
    }
    AppendAddress(command, address);
    return command;
}

int MccSpeedCode(int speed, int topSpeed) {
    if (topSpeed == kMccTopSpeed30) {
        return kMccHalfStep * ((speed + 1) % 2) + (speed + 1) / 2;
    }
    return speed + kMccHalfStep;
}

Command MccSpeed(int decoder, int code, int acceleration) {
    return CommandOf({kMccSpeedCommand, HighPart(decoder), LowPart(decoder), code, acceleration});
}

Command MccEstop(int decoder) {
    return MccSpeed(decoder, kMccEstopCode, 0);
}

Command MccFunctions(int decoder, const MccFunctionSet& functions) {
    constexpr unsigned long kNibble = 0x0F;
    const unsigned long bits = functions.to_ulong();
    return CommandOf({kMccFunctionCommand, HighPart(decoder), LowPart(decoder),
                      static_cast<int>(bits & kNibble), static_cast<int>(bits >> 4)});
}

}  // namespace zelvar
