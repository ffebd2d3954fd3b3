// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/status.h"

namespace zelvar {

namespace {

constexpr int kStatusFamily = 1;
constexpr int kProtocolVersion = 2;
constexpr int kStatusTable = 3;
constexpr int kCentralUnit = 10;
constexpr int kModuleStatus = 11;
constexpr int kFeedbackRequestCode = 96;

// A module's status byte.
constexpr int kTypeBits = 0x07;
constexpr int kPresentBit = 0x08;
constexpr int kIdleBit = 0x10;
constexpr int kFaultBit = 0x20;

/// By the type bits of a status byte; all others are unknown.
constexpr VDType kTypes[] = {VDType::VdF, VDType::Vd60, VDType::QlrxS};

VDType TypeOf(int status) {
    const int type = status & kTypeBits;
    return type < static_cast<int>(std::size(kTypes)) ? kTypes[type] : VDType::Unknown;
}

template <StatusTable table>
Command BuildTable(std::span<const int> /*arguments*/) {
    return StatusTableRequest(table);
}

}  // namespace

Command ProtocolVersionRequest() {
    return CommandOf({kStatusFamily, kProtocolVersion});
}

std::optional<int> ReadProtocolVersion(const Reply& reply) {
    if (!reply.Is(4, {kStatusFamily, kProtocolVersion})) {
        return std::nullopt;
    }
    return DecodeVersion(reply[3], reply[4]);
}

Command CentralUnitRequest() {
    return CommandOf({kStatusFamily, kCentralUnit});
}

std::optional<CentralUnit> ReadCentralUnit(const Reply& reply) {
    if (!reply.Is(5, {kStatusFamily, kCentralUnit})) {
        return std::nullopt;
    }
    return CentralUnit{reply[3], DecodeVersion(reply[4], reply[5])};
}

Command ModuleStatusRequest(int address) {
    return CommandOf({kStatusFamily, kModuleStatus, address});
}

std::optional<ModuleStatus> ReadModuleStatus(const Reply& reply, int address) {
    if (!reply.Is(6, {kStatusFamily, kModuleStatus, address})) {
        return std::nullopt;
    }
    const int status = reply[4];
    return ModuleStatus{(status & kPresentBit) != 0, (status & kIdleBit) != 0,
                        (status & kFaultBit) != 0, TypeOf(status),
                        DecodeVersion(reply[5], reply[6])};
}

Command StatusTableRequest(StatusTable table) {
    return CommandOf({kStatusFamily, kStatusTable, static_cast<int>(table)});
}

std::vector<bool> ReadStatusTable(const Reply& reply, StatusTable table, int values) {
    constexpr int kLeading = 2;
    std::vector<bool> bits;
    if (!reply.Is(kLeading + values, {kStatusFamily, kStatusTable}) ||
        reply[3] >> kBitsPerTableValue != static_cast<int>(table)) {
        return bits;
    }
    for (int i = 0; i < values * kBitsPerTableValue; ++i) {
        const int value = reply[kLeading + 1 + i / kBitsPerTableValue];
        bits.push_back((value >> (i % kBitsPerTableValue) & 1) != 0);
    }
    return bits;
}

Command FeedbackRequest(int index) {
    return CommandOf({kFeedbackRequestCode + High7(index), Low7(index)});
}

std::vector<CommandRow> StatusCommands() {
    using Arguments = std::span<const int>;
    return {
        {"poll", {}, [](Arguments) { return kEmptyTransaction; }},
        {"fault-reset", {}, [](Arguments) { return kResetFault; }},
        {"protocol-version", {}, [](Arguments) { return ProtocolVersionRequest(); }},
        {"unit-type", {}, [](Arguments) { return CentralUnitRequest(); }},
        {"module-status",
         {{"address", 0, 127}},
         [](Arguments a) { return ModuleStatusRequest(a[0]); }},
        {"table-dip-switches", {}, &BuildTable<StatusTable::DipSwitches>},
        {"table-present", {}, &BuildTable<StatusTable::Present>},
        {"table-faults", {}, &BuildTable<StatusTable::Faults>},
        {"table-types", {}, &BuildTable<StatusTable::Types>},
        {"table-point-modules", {}, &BuildTable<StatusTable::PointModules>},
        {"feedback-request",
         {{"input", 0, 4095}},
         [](Arguments a) { return FeedbackRequest(a[0]); }},
    };
}

}  // namespace zelvar
