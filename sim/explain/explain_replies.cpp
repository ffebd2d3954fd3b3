// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/explain.h"
#include "sim/protocol/names.h"
#include "sim/unit/memories.h"

namespace zelvar::sim {

namespace {

constexpr int kUnit = 1;  // first value of what concerns the unit itself
constexpr int kTable = 3;
constexpr int kTableModules = 4;  // that each value of a status table tells of
constexpr int kValues = 128;
constexpr int kForwardBit = 64;
constexpr int kSpeedMask = 0x3F;
constexpr int kPermanentBit = 64;
constexpr int kUnitPermanentBit = 1;
constexpr int kParameterMask = 0x3F;
constexpr int kSecondaryBit = 16;
constexpr int kConfigureCode = 8;
constexpr int kConfigurationCode = 10;

std::string Overcurrent(const Conversation&, const Payload& reply) {
    constexpr int kDetectedBit = 2;
    const int block = reply[0] % 2 * kValues + reply[1];
    return "report: overcurrent in block " + std::to_string(block) +
           ((reply[0] & kDetectedBit) != 0 ? " detected" : " released");
}

std::string BlockSpeed(const Conversation&, const Payload& reply) {
    const int block = reply[0] % 2 * kValues + reply[1];
    return "report: block " + std::to_string(block) + " at speed " +
           std::to_string(reply[2] & kSpeedMask) + " " +
           std::string(DirectionName((reply[2] & kForwardBit) != 0));
}

std::string Feedback(const Conversation&, const Payload& reply) {
    constexpr int kActiveBit = 16;
    const int input = reply[0] % 16 * kValues + reply[1];
    return "feedback input " + std::to_string(input) +
           ((reply[0] & kActiveBit) != 0 ? " is active" : " is inactive");
}

std::string ProtocolVersion(const Conversation&, const Payload& reply) {
    return "protocol version " + VersionName(DecodeVersion(reply[2], reply[3]));
}

std::string UnitType(const Conversation&, const Payload& reply) {
    return UnitTypeName(reply[2]) + ", version " + VersionName(DecodeVersion(reply[3], reply[4]));
}

std::string ModuleStatus(const Conversation&, const Payload& reply) {
    const std::string text = ModuleName(reply[2]) + ": " + StatusName(reply[2], reply[3]);
    const bool present = (reply[3] & kPresentBit) != 0;
    return present ? text + ", version " + VersionName(DecodeVersion(reply[4], reply[5])) : text;
}

std::string DipSwitches(const Conversation&, const Payload& reply) {
    std::string text = "DIP switches:";
    for (int bit = 0; bit < kTableModules; ++bit) {
        text.append((reply[2] >> bit & 1) == 0 ? " on" : " off");
    }
    return text;
}

/// The modules whose bits are set, in the low halves of the values from the third one on.
std::string TableModules(const Payload& reply) {
    std::vector<std::string> set;
    for (std::size_t index = 2; index < reply.size(); ++index) {
        for (int bit = 0; bit < kTableModules; ++bit) {
            if ((reply[index] >> bit & 1) != 0) {
                const int first = static_cast<int>(index - 2) * kTableModules;
                set.push_back(std::to_string(first + bit));
            }
        }
    }
    return Joined(set);
}

std::string PresentModules(const Conversation&, const Payload& reply) {
    return "traction modules that are there: " + TableModules(reply);
}

std::string FaultyModules(const Conversation&, const Payload& reply) {
    return "traction modules in fault: " + TableModules(reply);
}

std::string ModuleTypes(const Conversation&, const Payload& reply) {
    return "QLRX-s modules: " + TableModules(reply);
}

std::string PresentPointModules(const Conversation&, const Payload& reply) {
    return "point modules that are there: " + TableModules(reply);
}

std::string Configuration(const Conversation&, const Payload& reply) {
    constexpr int kHalf = 16;
    const std::string memory = (reply[1] & kUnitPermanentBit) != 0 ? "permanent" : "active";
    return memory + " configuration of the central unit: " +
           ConfigurationName(reply[2] % kHalf + reply[3] % kHalf * kHalf);
}

/// Setting 15 as the active memory tells it: what it means depends on the module's type.
std::string ClockOrAddress(const std::optional<int>& type, const std::string& ofModule, int value) {
    const std::string address = "module address " + std::to_string(value);
    if (type == static_cast<int>(TractionType::kQlrxS)) {
        return "active " + address + " " + ofModule;
    }
    const std::string clock = "clock " + ofModule + ": " + ClockName(value);
    return type ? clock : clock + " (in a QLRX-s: " + address + ")";
}

std::string TractionSetting(const Conversation& conversation, const Payload& reply) {
    const bool second = (reply[2] & kSecondaryBit) != 0;
    const int address = second ? reply[1] - kTractionFamily : reply[1];
    const int parameter = reply[3] & kParameterMask;
    const bool permanent = (reply[3] & kPermanentBit) != 0;
    if (parameter == static_cast<int>(kAddressParameter) && !permanent) {
        return ClockOrAddress(conversation.TypeOf(address), OfModule(address), reply[4]);
    }
    return std::string(permanent ? "permanent " : "active ") + SettingName(parameter) + " " +
           OfModule(address) + ": " + SettingValueName(parameter, reply[4]);
}

std::string PointMemory(const Payload& reply) {
    return (reply[2] & kPermanentBit) != 0 ? "permanent " : "active ";
}

std::string PointDefaultTime(const Conversation&, const Payload& reply) {
    return PointMemory(reply) + "default time of " + ModuleName(reply[1]) + ": " +
           TimeName(reply[3]);
}

std::string PointDeviceSetting(const Conversation&, const Payload& reply) {
    return PointMemory(reply) + "setting of device " + std::to_string(reply[3]) + " of " +
           ModuleName(reply[1]) + ": time " + TimeName(reply[4], "the default") + ", power " +
           PowerName(reply[5]);
}

/// The first `count` values of the reply are those of the command.
template <std::size_t count>
bool Echoes(const Payload& command, const Payload& reply) {
    if (command.size() < count) {
        return false;
    }
    for (std::size_t index = 0; index < count; ++index) {
        if (command[index] != reply[index]) {
            return false;
        }
    }
    return true;
}

bool AnswersTable(const Payload& command, const Payload& reply) {
    constexpr int kHalf = 16;
    return Echoes<2>(command, reply) && command[2] == reply[2] / kHalf;
}

bool AnswersTraction(const Payload& command, const Payload& reply) {
    return command.size() == 4 && command[0] == reply[0] && command[1] == reply[1] &&
           command[2] + kConfigurationCode - kConfigureCode == reply[2] && command[3] == reply[3];
}

constexpr ValuePattern kTraction = Bits(0x60, kTractionFamily);
constexpr ValuePattern kPoints = Bits(0x60, kPointFamily);
constexpr ValuePattern kPointsCode = Bits(0x7F - kPermanentBit, 34);

/// Status table number `table`, in the upper half of its first value.
constexpr ValuePattern Table(int table) {
    return Bits(0x70, table * 16);
}

constexpr ReplyWords kReplies[] = {
    {"overcurrent", {Bits(0x7C, 0x30), Any()}, &Overcurrent, nullptr},
    {"block-speed", {Bits(0x7E, 0x22), Any(), Any()}, &BlockSpeed, nullptr},
    {"feedback", {Bits(0x40, 0x40), Any()}, &Feedback, nullptr},
    {"protocol-version", {Is(kUnit), Is(2), Any(), Any()}, &ProtocolVersion, &Echoes<2>},
    {"unit-type", {Is(kUnit), Is(10), Any(), Any(), Any()}, &UnitType, &Echoes<2>},
    {"module-status", {Is(kUnit), Is(11), Any(), Any(), Any(), Any()}, &ModuleStatus, &Echoes<3>},
    {"table-dip-switches", {Is(kUnit), Is(kTable), Table(0)}, &DipSwitches, &AnswersTable},
    {"table-present",
     {Is(kUnit), Is(kTable), Table(2), Any(), Any(), Any()},
     &PresentModules,
     &AnswersTable},
    {"table-faults",
     {Is(kUnit), Is(kTable), Table(3), Any(), Any(), Any()},
     &FaultyModules,
     &AnswersTable},
    {"table-types",
     {Is(kUnit), Is(kTable), Table(4), Any(), Any(), Any()},
     &ModuleTypes,
     &AnswersTable},
    {"table-point-modules",
     {Is(kUnit), Is(kTable), Table(6), Any()},
     &PresentPointModules,
     &AnswersTable},
    {"unit-configuration",
     {Is(kUnit), Bits(0x7F - kUnitPermanentBit, 14), Any(), Any()},
     &Configuration,
     &Echoes<2>},
    {"traction-setting",
     {Is(0), kTraction, Bits(0x7F - kSecondaryBit, kConfigurationCode), Any(), Any()},
     &TractionSetting,
     &AnswersTraction},
    {"points-default-time", {Is(0), kPoints, kPointsCode, Any()}, &PointDefaultTime, &Echoes<3>},
    {"points-device",
     {Is(0), kPoints, kPointsCode, Any(), Any(), Any()},
     &PointDeviceSetting,
     &Echoes<4>},
};

}  // namespace

std::span<const ReplyWords> ReplyTable() {
    return kReplies;
}

}  // namespace zelvar::sim
