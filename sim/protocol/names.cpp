// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/names.h"

#include <array>
#include <iomanip>
#include <sstream>
#include <vector>

#include "sim/unit/memories.h"

namespace zelvar::sim {

namespace {

struct Named {
    int value;
    std::string_view name;
};

constexpr Named kUnitTypes[] = {{1, "KB-F"}, {2, "KB-E"}, {3, "KB-G"}, {10, "QLRX"}};
constexpr Named kTractionTypes[] = {{0, "VD-F"}, {1, "VD60"}, {2, "QLRX-s"}};
constexpr Named kDetectionModes[] = {{0, "fast"}, {1, "moderate"}, {2, "slow"}};
constexpr Named kMasterSlaveModes[] = {{0, "auto"}, {1, "master"}, {2, "slave"}};
constexpr Named kPowerControls[] = {{0, "single"}, {1, "double"}};
constexpr Named kClocks[] = {{0, "good"}, {1, "none"}, {2, "bad"}, {4, "degraded"}};
constexpr Named kPowers[] = {{0, "normal"}, {1, "low"}, {2, "high"}, {3, "unlimited"}};

std::string NameOf(std::span<const Named> names, int value) {
    for (const Named& entry : names) {
        if (entry.value == value) {
            return std::string(entry.name);
        }
    }
    return std::to_string(value);
}

struct Setting {
    std::string_view name;
    std::span<const Named> values;  // empty: plain numbers
};

/// By parameter number; there is no parameter 0.
constexpr std::array<Setting, kTractionParameters> kSettings = {{
    {"", {}},
    {"HFI level", {}},
    {"alarm off-delay", {}},
    {"alarm on-delay", {}},
    {"switch off-delay of bank 0", {}},
    {"switch off-delay of bank 1", {}},
    {"switch on-delay of bank 0", {}},
    {"switch on-delay of bank 1", {}},
    {"DC shift", {}},
    {"PWM multiplier", {}},
    {"overcurrent detection", kDetectionModes},
    {"master/slave mode", kMasterSlaveModes},
    {"power control", kPowerControls},
    {"loop current of loop A", {}},
    {"loop current of loop B", {}},
    {"module address", {}},
}};

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
    for (std::size_t bit = 0; bit < names.size(); ++bit) {
        if ((bits >> bit & 1) != 0) {
            set.emplace_back(names[bit]);
        }
    }
    return Joined(set);
}

const Setting* FindSetting(int parameter) {
    const bool known = parameter > 0 && parameter < kTractionParameters;
    return known ? &kSettings[static_cast<std::size_t>(parameter)] : nullptr;
}

}  // namespace

std::string Joined(std::span<const std::string> words, std::string_view none) {
    std::string text;
    for (const std::string& word : words) {
        text.append(text.empty() ? "" : ", ").append(word);
    }
    return text.empty() ? std::string(none) : text;
}

int DecodeVersion(int high, int low) {
    return (high >> 3) * 1000 + (high & 7) * 100 + (low >> 3) * 10 + (low & 7);
}

std::string VersionName(int version) {
    if (version == 0) {
        return "none";
    }
    std::ostringstream text;
    text << version / 1000 << '.' << std::setfill('0') << std::setw(2) << version / 10 % 100;
    if (version % 10 > 0) {
        text << ' ' << static_cast<char>('A' + version % 10 - 1);
    }
    return text.str();
}

std::string UnitTypeName(int type) {
    const std::string name = NameOf(kUnitTypes, type);
    return name == std::to_string(type) ? "unknown type " + name : name;
}

std::string TractionTypeName(int type) {
    const std::string name = NameOf(kTractionTypes, type);
    return name == std::to_string(type) ? "unknown type " + name : name;
}

int FamilyOf(int address) {
    return address & ~(2 * kModulesPerChannel - 1);
}

std::string ModuleName(int address) {
    const int number = address - FamilyOf(address);
    if (FamilyOf(address) == kPointFamily) {
        const int position = PointPosition(address);
        return position < 0 ? "no point module (address " + std::to_string(address) + ")"
                            : "point module " + std::to_string(position);
    }
    struct Family {
        int family;
        std::string_view name;
    };
    constexpr Family kFamilies[] = {{kSecondaryFamily, "second unit of traction module "},
                                    {kTractionFamily, "traction module "},
                                    {kSignalFamily, "signal module "}};
    std::string text;
    for (const Family& entry : kFamilies) {
        if (entry.family == FamilyOf(address)) {
            text.append(entry.name).append(std::to_string(number));
        }
    }
    return text;
}

std::string OfModule(int address) {
    return (FamilyOf(address) == kSecondaryFamily ? "of the " : "of ") + ModuleName(address);
}

std::string_view ModuleStateName(int address, int status) {
    if ((status & kPresentBit) == 0) {
        return "absent";
    }
    if ((status & kIdleBit) != 0) {
        return "idle";
    }
    const int family = FamilyOf(address);
    if ((status & kFaultBit) != 0 && family != kSignalFamily) {
        return family == kPointFamily ? "hold" : "fault";
    }
    return "OK";
}

std::string StatusName(int address, int status) {
    const std::string state(ModuleStateName(address, status));
    const int family = FamilyOf(address);
    const bool typed = family == kTractionFamily || family == kSecondaryFamily;
    if (!typed || (status & kPresentBit) == 0) {
        return state;
    }
    return TractionTypeName(status & kTypeMask) + ", " + state;
}

std::string SettingName(int parameter) {
    const Setting* setting = FindSetting(parameter);
    return setting == nullptr ? "setting " + std::to_string(parameter) : std::string(setting->name);
}

std::string SettingValueName(int parameter, int value) {
    const Setting* setting = FindSetting(parameter);
    return setting == nullptr ? std::to_string(value) : NameOf(setting->values, value);
}

std::string ClockName(int clock) {
    return NameOf(kClocks, clock);
}

std::string PowerName(int power) {
    return NameOf(kPowers, power);
}

std::string TimeName(int sixtieths, std::string_view zero) {
    return sixtieths == 0 ? std::string(zero) : std::to_string(sixtieths) + "/60 s";
}

std::string ConfigurationName(int configuration) {
    return BitNames(kConfigurationSwitches, configuration);
}

std::string OptionsName(int options) {
    return BitNames(kOptionSwitches, options);
}

std::string MccFunctionsName(int functions) {
    return BitNames(kMccFunctions, functions);
}

std::string HalfStepsName(int halfSteps) {
    return std::to_string(halfSteps / 2) + (halfSteps % 2 == 0 ? "" : ".5") + " of 15";
}

std::string_view DirectionName(bool forward) {
    return forward ? "forward" : "reverse";
}

std::string_view PositionName(bool thrown) {
    return thrown ? "thrown" : "straight";
}

}  // namespace zelvar::sim
