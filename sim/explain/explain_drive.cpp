// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/explain.h"
#include "sim/protocol/names.h"
#include "sim/railway/drive.h"
#include "sim/unit/memories.h"

namespace zelvar::sim {

namespace {

constexpr int kValues = 128;  // what one data value can tell apart
constexpr int kForwardBit = 64;
constexpr int kSpeedMask = 0x3F;
constexpr int kOutOf512 = 4;  // two high bits of a number 0..511 lie in the first value

/// A number 0..255 whose highest bit is the lowest one of the value before it.
int Split(const Payload& command, std::size_t index) {
    return command[index] % 2 * kValues + command[index + 1];
}

std::string Number(std::string_view what, int number) {
    return std::string(what).append(" ").append(std::to_string(number));
}

std::string Block(const Payload& command) {
    return Number("block", Split(command, 0));
}

std::string Decoder(const Payload& command, std::size_t index) {
    if (command.size() <= index + 1) {
        return Number("decoder", command[index]);
    }
    return Number("decoder", command[index] + command[index + 1] * kValues) + " (long address)";
}

std::string AnalogSpeed(const Payload& command) {
    std::string text =
        "analog speed: " + Block(command) + ", " + Number("speed", command[2] & kSpeedMask) + " ";
    text.append(DirectionName((command[2] & kForwardBit) != 0));
    return command.size() > 3 ? text + ", " + Number("acceleration", command[3]) : text;
}

std::string AnalogLight(const Payload& command) {
    return "analog light: " + Block(command) + (command[2] != 0 ? ", on" : ", off");
}

std::string SetHfi(const Payload& command) {
    return "set the " + Number("system's HFI level to", command[2]);
}

std::string DccSpeed(const Payload& command, std::size_t decoderAt, bool forward, int speed,
                     int steps, int stop) {
    const std::string words = speed == stop ? std::string("emergency stop,")
                                            : Number("speed", speed) + " " + Number("of", steps);
    return "DCC speed: " + Block(command) + ", " + Decoder(command, decoderAt) + ", " + words +
           " " + std::string(DirectionName(forward));
}

std::string DccSpeed28(const Payload& command) {
    constexpr int kDirection = 32;
    constexpr int kMask = 0x1F;
    return DccSpeed(command, 3, (command[2] & kDirection) != 0, command[2] & kMask, 28, kMask);
}

std::string DccSpeed126(const Payload& command) {
    constexpr int kStop = 127;
    return DccSpeed(command, 4, command[2] != 0, command[3], 126, kStop);
}

/// The functions `first` to `first` + `count` - 1, whose bits are `pattern`, lowest first.
std::string DccFunctions(const Payload& command, std::size_t decoderAt, int first, int count,
                         int pattern) {
    std::vector<std::string> on;
    for (int bit = 0; bit < count; ++bit) {
        if ((pattern >> bit & 1) != 0) {
            on.push_back(first + bit == 0 ? "F0 (light)" : "F" + std::to_string(first + bit));
        }
    }
    // Functions carry the block whole, not split as the speed does.
    return "DCC functions F" + std::to_string(first) + "..F" + std::to_string(first + count - 1) +
           ": " + Number("block", command[1]) + ", " + Decoder(command, decoderAt) +
           ", on: " + Joined(on);
}

std::string DccLightAndF1(const Payload& command) {
    constexpr int kFunctions = 5;
    constexpr int kLightBit = 4;  // the light comes last, though it is function 0
    const int pattern = (command[2] & 0x0F) << 1 | (command[2] >> kLightBit & 1);
    return DccFunctions(command, 3, 0, kFunctions, pattern);
}

template <int first>
std::string DccFourFunctions(const Payload& command) {
    return DccFunctions(command, 3, first, 4, command[2]);
}

template <int first>
std::string DccEightFunctions(const Payload& command) {
    return DccFunctions(command, 4, first, 8, Split(command, 2));
}

std::string MccDecoder(const Payload& command) {
    return Number("decoder", command[1] * kValues + command[2]);
}

std::string MccSpeed(const Payload& command) {
    const std::string speed = command[3] == 0 ? std::string("emergency stop")
                                              : "speed " + HalfStepsName(MccHalfSteps(command[3]));
    return "MCC speed: " + MccDecoder(command) + ", " + speed + ", " +
           Number("acceleration", command[4]);
}

std::string MccFunctions(const Payload& command) {
    constexpr int kHalf = 16;
    return "MCC functions: " + MccDecoder(command) +
           ", on: " + MccFunctionsName(command[3] % kHalf + command[4] % kHalf * kHalf);
}

std::string LinkBlocks(const Payload& command) {
    constexpr int kInvertedBit = 4;
    return "link blocks " + std::to_string(Split(command, 0)) + " and " +
           std::to_string(Split(command, 2)) +
           ((command[2] & kInvertedBit) != 0 ? ", inverted" : "");
}

std::string UnlinkBlock(const Payload& command) {
    constexpr int kUpBit = 4;
    constexpr int kClearBit = 2;
    return "unlink " + Block(command) + ((command[2] & kUpBit) != 0 ? " up" : " down") +
           ((command[2] & kClearBit) != 0 ? ", clear the blocks unlinked" : "");
}

std::string ClearBlock(const Payload& command) {
    return "clear " + Block(command);
}

int DeviceNumber(const Payload& command) {
    return command[0] % kOutOf512 * kValues + command[1];
}

std::string Point(const Payload& command) {
    constexpr int kThrownBit = 4;
    return Number("point", DeviceNumber(command)) + ": " +
           std::string(PositionName((command[0] & kThrownBit) != 0));
}

std::string PointOfModule(const Payload& command) {
    constexpr int kThrownBit = 8;
    return ModuleName(command[1]) + ", " + Number("device", command[3]) + ": " +
           std::string(PositionName((command[2] & kThrownBit) != 0));
}

std::string SignalAspect(const Payload& command) {
    return ModuleName(command[1]) + ", " + Number("pin", command[5]) + ": " +
           Number("aspect", command[6]);
}

std::string Output(const Payload& command) {
    return Number("output", DeviceNumber(command)) + ": " + Number("instruction", command[2]) +
           ", " + Number("parameter", command[3]);
}

constexpr CommandWords kDriveWords[] = {
    {"analog-speed", &AnalogSpeed},
    {"analog-light", &AnalogLight},
    {"set-hfi", &SetHfi},
    {"dcc-speed-28", &DccSpeed28},
    {"dcc-speed-126", &DccSpeed126},
    {"dcc-f0-f4", &DccLightAndF1},
    {"dcc-f5-f8", &DccFourFunctions<5>},
    {"dcc-f9-f12", &DccFourFunctions<9>},
    {"dcc-f13-f20", &DccEightFunctions<13>},
    {"dcc-f21-f28", &DccEightFunctions<21>},
    {"mcc-speed", &MccSpeed},
    {"mcc-functions", &MccFunctions},
    {"link", &LinkBlocks},
    {"unlink", &UnlinkBlock},
    {"clear-block", &ClearBlock},
};

constexpr CommandWords kAccessoryWords[] = {
    {"point", &Point},
    {"point-of-module", &PointOfModule},
    {"signal-aspect", &SignalAspect},
    {"output", &Output},
};

}  // namespace

std::span<const CommandWords> DriveWords() {
    return kDriveWords;
}

std::span<const CommandWords> AccessoryWords() {
    return kAccessoryWords;
}

}  // namespace zelvar::sim
