// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/locomotives.h"

#include <array>

namespace zelvar {

namespace {

constexpr int kAnalogSpeedCode = 34;
constexpr int kAnalogLightCode = 32;
constexpr int kAnalogForward = 64;
constexpr int kAnalogLightOn = 16;

constexpr int kDcc28Code = 40;
constexpr int kDcc126Code = 44;
/// Marks a speed, as opposed to a set of functions.
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
    Append(command, Low7(address.decoder));
    if (address.IsLong()) {
        Append(command, High7(address.decoder));
    }
}

Command DccDrive(DccSteps steps, int block, int speed, bool forward, const DccAddress& address) {
    Command command =
        steps == DccSteps::k28
            ? CommandOf({kDcc28Code + High7(block), Low7(block),
                         kDcc28Speed + (forward ? kDcc28Forward : 0) + speed})
            : CommandOf({kDcc126Code + High7(block), Low7(block), forward ? 1 : 0, speed});
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

template <DccSteps steps>
Command BuildDccSpeed(std::span<const int> a) {
    const DccAddress address{a[3], a[4] != 0};
    const int top = steps == DccSteps::k28 ? kDccTopSpeed28 : kDccTopSpeed126;
    return a[1] > top ? DccEstop(steps, a[0], a[2] != 0, address)
                      : DccSpeed(steps, a[0], a[1], a[2] != 0, address);
}

/// @param a block, the group's functions from the lowest bit on, decoder, long form
template <int group>
Command BuildDccFunctions(std::span<const int> a) {
    const FunctionGroup& row = kFunctionGroups[group];
    const std::size_t first = row.withLight ? 0 : row.first;
    const DccFunctionSet functions(static_cast<unsigned long long>(a[1]) << first);
    return DccFunctions(group, a[0], functions, {a[2], a[3] != 0}).value_or(Command());
}

}  // namespace

Command AnalogSpeed(int block, int speed, bool forward) {
    return CommandOf(
        {kAnalogSpeedCode + High7(block), Low7(block), speed + (forward ? kAnalogForward : 0)});
}

Command AnalogSpeedRamp(int block, int speed, bool forward, int acceleration) {
    Command command = AnalogSpeed(block, speed, forward);
    Append(command, acceleration);
    return command;
}

Command AnalogLight(int block, bool light) {
    return CommandOf({kAnalogLightCode + High7(block), Low7(block), light ? kAnalogLightOn : 0});
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
    // Unlike with the speeds, the block is not split in two. This is intentional.
    Command command = CommandOf({row.code, block});
    if (row.code == kDcc28Code) {
        Append(command, row.mark + pattern);
    } else {
        Append(command, row.mark + High7(pattern));
        Append(command, Low7(pattern));
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
    return CommandOf({kMccSpeedCommand, High7(decoder), Low7(decoder), code, acceleration});
}

Command MccEstop(int decoder) {
    return MccSpeed(decoder, kMccEstopCode, 0);
}

Command MccFunctions(int decoder, const MccFunctionSet& functions) {
    constexpr unsigned long kNibble = 0x0F;
    const unsigned long bits = functions.to_ulong();
    return CommandOf({kMccFunctionCommand, High7(decoder), Low7(decoder),
                      static_cast<int>(bits & kNibble), static_cast<int>(bits >> 4)});
}

std::vector<CommandRow> LocomotiveCommands() {
    using Arguments = std::span<const int>;
    const CommandParameter block{"block", 0, 255};
    // The functions do not split the block, so that larger ones do not fit a value.
    const CommandParameter smallBlock{"block", 0, 127};
    const CommandParameter forward{"forward", 0, 1};
    const CommandParameter decoder{"decoder", 1, 10239};
    const CommandParameter isLong{"long", 0, 1};
    const CommandParameter mccDecoder{"decoder", 0, 4095};
    return {
        {"analog-speed",
         {block, {"speed", 0, 63}, forward, {"acceleration", 0, 127}},
         [](Arguments a) {
             return a[3] == 0 ? AnalogSpeed(a[0], a[1], a[2] != 0)
                              : AnalogSpeedRamp(a[0], a[1], a[2] != 0, a[3]);
         }},
        {"analog-light",
         {block, {"light", 0, 1}},
         [](Arguments a) { return AnalogLight(a[0], a[1] != 0); }},
        {"set-hfi", {{"level", 0, 15}}, [](Arguments a) { return SetHfi(a[0]); }},
        // One speed above the top is the emergency stop.
        {"dcc-speed-28",
         {block, {"speed", 0, kDccTopSpeed28 + 1}, forward, decoder, isLong},
         &BuildDccSpeed<DccSteps::k28>},
        {"dcc-speed-126",
         {block, {"speed", 0, kDccTopSpeed126 + 1}, forward, decoder, isLong},
         &BuildDccSpeed<DccSteps::k126>},
        {"dcc-f0-f4", {smallBlock, {"functions", 0, 31}, decoder, isLong}, &BuildDccFunctions<0>},
        {"dcc-f5-f8", {smallBlock, {"functions", 0, 15}, decoder, isLong}, &BuildDccFunctions<1>},
        {"dcc-f9-f12", {smallBlock, {"functions", 0, 15}, decoder, isLong}, &BuildDccFunctions<2>},
        {"dcc-f13-f20",
         {smallBlock, {"functions", 0, 255}, decoder, isLong},
         &BuildDccFunctions<3>},
        {"dcc-f21-f28",
         {smallBlock, {"functions", 0, 255}, decoder, isLong},
         &BuildDccFunctions<4>},
        {"mcc-speed",
         {mccDecoder, {"code", 0, 31}, {"acceleration", 0, 7}},
         [](Arguments a) { return MccSpeed(a[0], a[1], a[2]); }},
        {"mcc-functions",
         {mccDecoder, {"functions", 0, 255}},
         [](Arguments a) {
             return MccFunctions(a[0], MccFunctionSet(static_cast<unsigned long long>(a[1])));
         }},
    };
}

}  // namespace zelvar
