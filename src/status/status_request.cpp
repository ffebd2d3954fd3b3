// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/status_request.h"

#include <algorithm>
#include <cstddef>

#include "protocol/version.h"

namespace zelvar {

namespace {

constexpr std::uint8_t kStatusFamily = 1;
constexpr std::uint8_t kProtocolVersion = 2;
constexpr std::uint8_t kStatusTable = 3;
constexpr std::uint8_t kCentralUnit = 10;
constexpr std::uint8_t kModuleStatus = 11;

constexpr int kDipTable = 0;
constexpr int kPresenceTable = 2;
constexpr int kFaultTable = 3;
constexpr int kTypeTable = 4;
constexpr int kJsTable = 6;

constexpr int kBitsPerTableByte = 4;

// A module's status byte.
constexpr int kTypeBits = 0x07;
constexpr int kPresentBit = 0x08;
constexpr int kIdleBit = 0x10;
constexpr int kFaultBit = 0x20;
constexpr int kTypeVd60 = 1;

struct TypeRow {
    VDType type;
    std::int16_t code;
};

/// By the type bits of a status byte; all others are unknown.
constexpr TypeRow kTypes[] = {{VDType::VdF, kVdF}, {VDType::Vd60, kVd60}, {VDType::QlrxS, kQlrxS}};
constexpr TypeRow kUnknownType{VDType::Unknown, kVdUnknown};

TypeRow TypeOf(int status) {
    const auto type = static_cast<std::size_t>(status & kTypeBits);
    return type < std::size(kTypes) ? kTypes[type] : kUnknownType;
}

/// @param onFaultBit what bit 5 means: point-motor modules report Hold where traction modules
/// report Fault, and signal controllers do not use it. The asymmetry is meant.
ModuleState StateOf(int status, ModuleState onFaultBit) {
    if ((status & kPresentBit) == 0) {
        return ModuleState::Absent;
    }
    if ((status & kIdleBit) != 0) {
        return ModuleState::Idle;
    }
    return (status & kFaultBit) != 0 ? onFaultBit : ModuleState::Ok;
}

Command Request(std::uint8_t count, std::uint8_t request, int argument) {
    return {count, {kStatusFamily, request, static_cast<std::uint8_t>(argument)}};
}

}  // namespace

Command ProtocolVersionRequest() {
    return Request(2, kProtocolVersion, 0);
}
Command CentralUnitRequest() {
    return Request(2, kCentralUnit, 0);
}
Command ModuleStatusRequest(int address) {
    return Request(3, kModuleStatus, address);
}
Command StatusTableRequest(int table) {
    return Request(3, kStatusTable, table);
}

StatusRequest::StatusRequest(Link& link, Progress& progress, const Clock& clock,
                             ModuleRegistry& registry)
    : link_(link), progress_(progress), clock_(clock), registry_(registry) {}

std::optional<SystemStatus> StatusRequest::Run(bool classicAsked) {
    constexpr int kFirstRequests = 2;
    status_ = SystemStatus();
    const ProgressScope progress(progress_, "Asking the central unit", kFirstRequests);
    if (!AskProtocolVersion()) {
        return std::nullopt;
    }
    progress_.Step();
    AskCentralUnit();
    progress_.Step();
    status_.classic = classicAsked || status_.protocolVersion < kNewViewProtocol;
    if (status_.classic) {
        AskClassicView();
    } else {
        AskNewView();
    }
    // A late answer must not be taken for the next command's.
    link_.Transact(kEmptyTransaction);
    return status_;
}

bool StatusRequest::AskProtocolVersion() {
    if (!link_.Transact(ProtocolVersionRequest())) {
        return false;
    }
    // The state is that of the first reply, whatever it is, and of no later one.
    status_.systemState = (ReplyAt(0) >> 4) & 3;
    const double start = clock_.SecondsSinceMidnight();
    bool offered = false;
    // A unit that is still starting may take any time, so this wait has no limit of its own.
    for (bool known = ReadProtocolVersion(); !known;) {
        double waited = clock_.SecondsSinceMidnight() - start;
        if (waited < 0) {
            waited += kSecondsPerDay;
        }
        if (!offered && waited >= kCancelOfferedAfter) {
            offered = true;
            progress_.OfferCancel();
        }
        if ((offered && progress_.IsCancelled()) || !link_.IsOpen()) {
            return false;
        }
        known = link_.Transact(kEmptyTransaction) && ReadProtocolVersion();
    }
    return true;
}

bool StatusRequest::ReadProtocolVersion() {
    if (!ReplyIs(4, kProtocolVersion)) {
        return false;
    }
    status_.protocolVersion = DecodeVersion(ReplyAt(3), ReplyAt(4));
    return true;
}

void StatusRequest::AskCentralUnit() {
    if (link_.Transact(CentralUnitRequest()) && ReplyIs(5, kCentralUnit)) {
        status_.unit = {ReplyAt(3), DecodeVersion(ReplyAt(4), ReplyAt(5))};
    }
}

void StatusRequest::AskNewView() {
    progress_.Begin("Asking the modules", kVDPrimaryLines + kJsModules + kYRModules);
    std::fill_n(registry_.vdType.begin(), kVDLines, kVdNone);
    std::fill_n(registry_.jsPresent.begin(), kJsModules, kJsAbsent);
    status_.vdTypes.fill(VDType::Absent);
    for (int m = 0; m < kVDPrimaryLines; ++m) {
        AskTractionModule(m);
        progress_.Step();
    }
    for (int j = 0; j < kJsModules; ++j) {
        AskPointMotorModule(j);
        progress_.Step();
    }
    for (int k = 0; k < kYRModules; ++k) {
        AskSignalController(k);
        progress_.Step();
    }
}

bool StatusRequest::AskModule(int address) {
    return link_.Transact(ModuleStatusRequest(address)) && ReplyIs(6, kModuleStatus) &&
           ReplyAt(3) == address;
}

void StatusRequest::AskTractionModule(int line) {
    if (!AskModule(kFamilyVD + line)) {
        return;
    }
    const auto index = static_cast<std::size_t>(line);
    const int status = ReplyAt(4);
    ModuleLine& unit = status_.vd[index];
    unit.state = StateOf(status, ModuleState::Fault);
    if (unit.state == ModuleState::Absent) {
        return;
    }
    const TypeRow type = TypeOf(status);
    registry_.vdType[index] = type.code;
    status_.vdTypes[index] = type.type;
    unit.version = DecodeVersion(ReplyAt(5), ReplyAt(6));
    if (type.type == VDType::Vd60) {
        AskSecondaryUnit(line);
    }
}

void StatusRequest::AskSecondaryUnit(int line) {
    if (!AskModule(kFamilyVDSecondary + line)) {
        return;
    }
    const int secondary = line + kVDPrimaryLines;
    const auto index = static_cast<std::size_t>(secondary);
    const int status = ReplyAt(4);
    ModuleLine& unit = status_.vd[index];
    unit.state = StateOf(status, ModuleState::Fault);
    if (unit.state == ModuleState::Absent) {
        return;
    }
    if ((status & kTypeBits) != kTypeVd60) {
        unit.state = ModuleState::Error;
        return;
    }
    registry_.vdType[index] = kVd60;
    unit.version = DecodeVersion(ReplyAt(5), ReplyAt(6));
}

void StatusRequest::AskPointMotorModule(int position) {
    if (!AskModule(kFamilyJs + JsAddressOf(position))) {
        return;
    }
    const auto index = static_cast<std::size_t>(position);
    ModuleLine& module = status_.js[index];
    module.state = StateOf(ReplyAt(4), ModuleState::Hold);
    if (module.state == ModuleState::Absent) {
        return;
    }
    registry_.jsPresent[index] = kJsPresent;
    module.version = DecodeVersion(ReplyAt(5), ReplyAt(6));
}

void StatusRequest::AskSignalController(int index) {
    if (!AskModule(kFamilyYR + index)) {
        return;
    }
    ModuleLine& module = status_.yr[static_cast<std::size_t>(index)];
    module.state = StateOf(ReplyAt(4), ModuleState::Ok);
    if (module.state != ModuleState::Absent) {
        module.version = DecodeVersion(ReplyAt(5), ReplyAt(6));
    }
}

void StatusRequest::AskClassicView() {
    constexpr int kTables = 5;
    progress_.Begin("Asking the modules", kTables);
    std::fill_n(registry_.vdType.begin(), kClassicVDLines, kVdNone);
    std::fill_n(registry_.jsPresent.begin(), kClassicJsModules, kJsAbsent);
    status_.vdTypes.fill(VDType::Unknown);
    status_.vd.fill({ModuleState::Unknown, std::nullopt});
    status_.js.fill({ModuleState::Unknown, std::nullopt});
    AskDipSwitches();
    progress_.Step();
    AskClassicTractionModules();
    AskClassicPointMotorModules();
    progress_.Step();
}

bool StatusRequest::AskTable(int table, int length) {
    return link_.Transact(StatusTableRequest(table)) && ReplyIs(length, kStatusTable) &&
           (ReplyAt(3) & 0xF0) == table << 4;
}

void StatusRequest::ForEachTableBit(int bytes,
                                    const std::function<void(int module, bool set)>& use) const {
    for (int module = 0; module < bytes * kBitsPerTableByte; ++module) {
        const int byte = ReplyAt(3 + module / kBitsPerTableByte);
        use(module, ((byte >> (module % kBitsPerTableByte)) & 1) != 0);
    }
}

void StatusRequest::AskDipSwitches() {
    if (AskTable(kDipTable, 3)) {
        status_.dip.emplace();
        // The switches read active-low.
        ForEachTableBit(
            1, [this](int i, bool set) { (*status_.dip)[static_cast<std::size_t>(i)] = !set; });
    }
}

void StatusRequest::AskClassicTractionModules() {
    constexpr int kTableBytes = kClassicVDLines / kBitsPerTableByte;
    constexpr int kAnswerLength = 2 + kTableBytes;
    const auto stateOf = [this](int n) -> ModuleState& {
        return status_.vd[static_cast<std::size_t>(n)].state;
    };
    if (AskTable(kPresenceTable, kAnswerLength)) {
        ForEachTableBit(kTableBytes, [&](int n, bool set) {
            stateOf(n) = set ? ModuleState::Ok : ModuleState::Absent;
        });
    }
    progress_.Step();
    if (AskTable(kTypeTable, kAnswerLength)) {
        ForEachTableBit(kTableBytes, [&](int n, bool set) {
            const auto index = static_cast<std::size_t>(n);
            if (stateOf(n) == ModuleState::Ok) {
                // The Classic View knows no VD60.
                status_.vdTypes[index] = set ? VDType::QlrxS : VDType::VdF;
                registry_.vdType[index] = set ? kQlrxS : kVdF;
            } else {
                status_.vdTypes[index] = VDType::NotAvailable;
            }
        });
    }
    progress_.Step();
    if (AskTable(kFaultTable, kAnswerLength)) {
        ForEachTableBit(kTableBytes, [&](int n, bool set) {
            if (stateOf(n) == ModuleState::Ok && set) {
                stateOf(n) = ModuleState::Fault;
            }
        });
    }
    progress_.Step();
}

void StatusRequest::AskClassicPointMotorModules() {
    constexpr int kTableBytes = kClassicJsModules / kBitsPerTableByte;
    constexpr int kAnswerLength = 2 + kTableBytes;
    if (AskTable(kJsTable, kAnswerLength)) {
        ForEachTableBit(kTableBytes, [this](int j, bool set) {
            const auto index = static_cast<std::size_t>(j);
            status_.js[index].state = set ? ModuleState::Ok : ModuleState::Absent;
            if (set) {
                registry_.jsPresent[index] = kJsPresent;
            }
        });
    }
}

bool StatusRequest::ReplyIs(int length, int request) const {
    return (ReplyAt(0) & kHeaderCountMask) == length && ReplyAt(1) == kStatusFamily &&
           ReplyAt(2) == request;
}

std::uint8_t StatusRequest::ReplyAt(int index) const {
    return link_.Reply()[static_cast<std::size_t>(index)];
}

}  // namespace zelvar
