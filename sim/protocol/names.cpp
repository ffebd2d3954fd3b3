// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/names.h"

#include <vector>

namespace zelvar::sim {

namespace {

constexpr std::string_view kConfigurationSwitches[] = {
    "channel 1 at 38k4",   "channel 0 at 38k4",
    "channel 0 active",    "GW70 native addressing",
    "GW70 retransmission", "64 devices per point module",
    "fixed DCC address 3", "switch 7"};
constexpr std::string_view kOptionSwitches[] = {"option 0", "Ret.Report", "option 2", "option 3",
                                                "VD-Ch1",   "VD-Ch0",     "Debug.M",  "option 7"};
constexpr std::string_view kMccFunctions[] = {"light", "brake", "left", "right",
                                              "F1",    "F2",    "F3",   "F4"};

std::string BitNames(std::span<const std::string_view> names, int bits) {
    std::vector<std::string> set;
    for (const std::string_view name : names) {
        if ((bits & 1) != 0) {
            set.emplace_back(name);
        }
        bits >>= 1;
    }
    return Joined(set);
}

}  // namespace

std::string Joined(std::span<const std::string> words, std::string_view none) {
    std::string text;
    for (const std::string& word : words) {
        text.append(text.empty() ? "" : ", ").append(word);
    }
    return text.empty() ? std::string(none) : text;
}

std::string ClockName(int clock) {
    return WordFor(kClockWords, clock);
}

std::string PowerName(int power) {
    return WordFor(kPowerWords, power);
}

std::string TimeName(int sixtieths) {
    return std::to_string(sixtieths) + "/60 s";
}

std::string DeviceTimeName(int sixtieths) {
    return sixtieths == 0 ? "the default" : TimeName(sixtieths);
}

std::string ConfigurationName(int configuration) {
    return BitNames(kConfigurationSwitches, configuration);
}

std::string OptionsName(int options) {
    return BitNames(kOptionSwitches, options);
}

std::string DccFunctionsName(int functions, int first, std::string_view light) {
    std::vector<std::string> set;
    for (int number = first; functions != 0; ++number, functions >>= 1) {
        if ((functions & 1) != 0) {
            set.push_back(number == 0 ? std::string(light) : "F" + std::to_string(number));
        }
    }
    return Joined(set);
}

std::string MccFunctionsName(int functions) {
    return BitNames(kMccFunctions, functions);
}

int MccHalfSteps(int code) {
    constexpr int kStepMask = 0x0F;
    constexpr int kEvenBit = 0x10;  // set in the codes of even half steps, 0 among them
    const int step = code & kStepMask;
    return step == 0 ? 0 : 2 * step - ((code & kEvenBit) != 0 ? 0 : 1);
}

std::string HalfStepsName(int halfSteps) {
    return std::to_string(halfSteps / 2) + (halfSteps % 2 == 0 ? "" : ".5") + " of 15";
}

std::string DirectionName(int forward) {
    return forward != 0 ? "forward" : "reverse";
}

std::string PositionName(int thrown) {
    return thrown != 0 ? "thrown" : "straight";
}

std::string OnOffName(int on) {
    return on != 0 ? "on" : "off";
}

}  // namespace zelvar::sim
