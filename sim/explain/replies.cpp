// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/replies.h"

#include <algorithm>
#include <string>
#include <vector>

#include "sim/protocol/module_status.h"
#include "sim/protocol/names.h"
#include "sim/protocol/reports.h"
#include "sim/protocol/traction_settings.h"
#include "sim/protocol/version.h"

namespace zelvar::sim {

namespace {

constexpr Field kStatusAddress = Whole(2);
constexpr Field kStatus = Whole(3);
constexpr Field kSettingValue = Whole(4);

/// The version whose two values begin at `index`.
template <int index>
std::string VersionAt(const Payload& reply, const KnownTypes&) {
    return VersionName(DecodeVersion(reply[index], reply[index + 1]));
}

std::string Status(const Payload& reply, const KnownTypes& types) {
    const int status = kStatus.In(reply);
    const std::string text = StatusName(kStatusAddress.In(reply), status);
    return IsPresent(status) ? text + ", version " + VersionAt<4>(reply, types) : text;
}

std::string DipSwitches(int bits) {
    std::string text;
    for (int bit = 0; bit < kModulesPerTableValue; ++bit) {
        text.append((bits >> bit & 1) == 0 ? " on" : " off");
    }
    return text;
}

/// The modules whose bits are set, in the low halves of the values from the third one on.
std::string ModulesInTable(const Payload& reply, const KnownTypes&) {
    std::vector<std::string> set;
    int module = 0;
    for (std::size_t index = 2; index < reply.size(); ++index) {
        for (int bit = 0; bit < kModulesPerTableValue; ++bit, ++module) {
            if ((reply[index] >> bit & 1) != 0) {
                set.push_back(std::to_string(module));
            }
        }
    }
    return Joined(set);
}

/// Setting 15 in the active memory: its meaning depends on the module's type.
std::string ClockOrAddress(const Payload& reply, const KnownTypes& types) {
    const int module = LineAddress(kTractionLine.In(reply));
    const std::optional<int> type = types.Of(module);
    const int value = kSettingValue.In(reply);
    const std::string address = SettingName(kAddressParameter) + " " + std::to_string(value);
    if (type && FindTractionSetting(kAddressParameter)->IsOf(*type)) {
        return "active " + address + " " + OfModule(module);
    }
    const std::string clock = "clock " + OfModule(module) + ": " + ClockName(value);
    return type ? clock : clock + " (in a QLRX-s: " + address + ")";
}

std::string SettingValue(const Payload& reply, const KnownTypes&) {
    return SettingValueName(kTractionParameter.In(reply), kSettingValue.In(reply));
}

/// The first `count` values of the reply are those of the command.
template <std::size_t count>
bool Echoes(const Payload& command, const Payload& reply) {
    std::size_t same = 0;
    while (same < count && command[same] == reply[same]) {
        ++same;
    }
    return same == count && command.size() >= count;
}

bool AnswersTable(const Payload& command, const Payload& reply) {
    return Echoes<2>(command, reply) && command[2] == reply[2] / kHalfRange;
}

bool AnswersTraction(const Payload& command, const Payload& reply) {
    constexpr int kStep = kTractionAnswerCode - kTractionConfigureCode;
    return command.size() == 4 && Echoes<2>(command, reply) && command[2] + kStep == reply[2] &&
           command[3] == reply[3];
}

/// A status table, whose number is in the high half of its first value.
constexpr ValuePattern Table(StatusTable table) {
    return Bits(0x70, table * kHalfRange);
}

constexpr ValuePattern kTractionAnswer = IsBut(kSecondaryBit, kTractionAnswerCode);
constexpr ValuePattern kPointAnswer = IsBut(kPermanentBit, kPointSettingsCode);
constexpr Parameter kPointMemory = MemoryName(kPointPermanent);
constexpr Parameter kPointModule{kModuleAddress, &ModuleName};

constexpr ReplyRow kReplies[] = {
    {"overcurrent",
     {IsBut(kDetectedBit | 1, kOvercurrentCode), Any()},
     {"report: overcurrent in block {} {}",
      {kBlock, {Part(0, kDetectedBit), "detected", "released"}}}},
    {"block-speed",
     {IsBut(1, kBlockSpeedCode), Any(), Any()},
     {"report: block {} at speed {} {}", {kBlock, kBlockSpeed, {kBlockForward, &DirectionName}}}},
    {"feedback",
     {Bits(kFeedbackCode, kFeedbackCode), Any()},
     {"feedback input {} is {}", {kReportedInput, {Part(0, kActiveBit), "active", "inactive"}}}},
    {"protocol-version",
     {Is(kToUnit), Is(kProtocolVersionCode), Any(), Any()},
     {"protocol version {}", {&VersionAt<2>}},
     &Echoes<2>},
    {"unit-type",
     {Is(kToUnit), Is(kUnitTypeCode), Any(), Any(), Any()},
     {"{}, version {}", {{Whole(2), &UnitTypeName}, &VersionAt<3>}},
     &Echoes<2>},
    {"module-status",
     {Is(kToUnit), Is(kModuleStatusCode), Any(), Any(), Any(), Any()},
     {"{}: {}", {{kStatusAddress, &ModuleName}, &Status}},
     &Echoes<3>},
    {"table-dip-switches",
     {Is(kToUnit), Is(kTableCode), Table(kDipSwitchTable)},
     {"DIP switches:{}", {{Whole(2), &DipSwitches}}},
     &AnswersTable},
    {"table-present",
     {Is(kToUnit), Is(kTableCode), Table(kPresentTable), Any(), Any(), Any()},
     {"traction modules that are there: {}", {&ModulesInTable}},
     &AnswersTable},
    {"table-faults",
     {Is(kToUnit), Is(kTableCode), Table(kFaultTable), Any(), Any(), Any()},
     {"traction modules in fault: {}", {&ModulesInTable}},
     &AnswersTable},
    {"table-types",
     {Is(kToUnit), Is(kTableCode), Table(kTypeTable), Any(), Any(), Any()},
     {"QLRX-s modules: {}", {&ModulesInTable}},
     &AnswersTable},
    {"table-point-modules",
     {Is(kToUnit), Is(kTableCode), Table(kPointTable), Any()},
     {"point modules that are there: {}", {&ModulesInTable}},
     &AnswersTable},
    {"unit-configuration",
     {Is(kToUnit), IsBut(kUnitPermanentBit, kGetConfigurationCode), Any(), Any()},
     {"{} configuration of the central unit: {}",
      {MemoryName(kUnitPermanent), {Halves(2), &ConfigurationName}}},
     &Echoes<2>},
    {"traction-clock-or-address",
     {Is(kToModule), kToTraction, kTractionAnswer, Is(kAddressParameter), Any()},
     {"{}", {&ClockOrAddress}},
     &AnswersTraction},
    {"traction-setting",
     {Is(kToModule), kToTraction, kTractionAnswer, Any(), Any()},
     {"{} {} {}: {}",
      {MemoryName(kTractionPermanent),
       {kTractionParameter, &SettingName},
       {kTractionLine, &OfTractionUnit},
       &SettingValue}},
     &AnswersTraction},
    {"points-default-time",
     {Is(kToModule), kToPoints, kPointAnswer, Any()},
     {"{} default time of {}: {}", {kPointMemory, kPointModule, {Whole(3), &TimeName}}},
     &Echoes<3>},
    {"points-device",
     {Is(kToModule), kToPoints, kPointAnswer, Any(), Any(), Any()},
     {"{} setting of device {} of {}: time {}, power {}",
      {kPointMemory,
       kPointDevice,
       kPointModule,
       {Whole(4), &DeviceTimeName},
       {Whole(5), &PowerName}}},
     &Echoes<4>},
};

}  // namespace

std::span<const ReplyRow> ReplyTable() {
    return kReplies;
}

const ReplyRow* FindReply(const Payload& reply) {
    const auto* row =
        std::find_if(std::begin(kReplies), std::end(kReplies),
                     [&](const ReplyRow& each) { return each.pattern.Matches(reply); });
    return row == std::end(kReplies) ? nullptr : row;
}

std::optional<ReportedType> TypeInStatus(const Payload& reply) {
    const ReplyRow* row = FindReply(reply);
    const int status = kStatus.In(reply);
    if (row == nullptr || row->name != "module-status" || !IsPresent(status)) {
        return std::nullopt;
    }
    return ReportedType{kStatusAddress.In(reply), TypeIn(status)};
}

}  // namespace zelvar::sim
