// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/status_request.h"

namespace zelvar {

namespace {

/// @param onFaultBit what the fault bit means: point-motor modules report Hold where traction
/// modules report Fault, and signal controllers do not use it. The asymmetry is intentional.
ModuleState StateOf(const ModuleStatus& status, ModuleState onFaultBit) {
    if (!status.isPresent) {
        return ModuleState::Absent;
    }
    if (status.isIdle) {
        return ModuleState::Idle;
    }
    return status.hasFaultBit ? onFaultBit : ModuleState::Ok;
}

/// How much time has passed, in seconds, also across midnight.
double SecondsSince(double start, const Clock& clock) {
    const double passed = clock.SecondsSinceMidnight() - start;
    return passed < 0 ? passed + kSecondsPerDay : passed;
}

}  // namespace

StatusRequest::StatusRequest(Link& link, Progress& progress, const Clock& clock,
                             ModuleRegistry& registry, StatusRequestView& view)
    : link_(link), progress_(progress), clock_(clock), registry_(registry), view_(view) {}

std::optional<SystemStatus> StatusRequest::Run(bool classicAsked) {
    constexpr int kFirstRequests = 2;
    status_ = SystemStatus();
    const ProgressScope progress(progress_, "Asking the central unit", kFirstRequests);
    if (!AskProtocolVersion()) {
        return std::nullopt;
    }
    progress_.Step();
    AskCentralUnit();
    if (!link_.IsOpen()) {
        return std::nullopt;
    }
    progress_.Step();
    status_.classic = classicAsked || status_.protocolVersion < kNewViewProtocol;
    if (!(status_.classic ? AskClassicView() : AskNewView())) {
        return std::nullopt;
    }
    // A late answer must not be taken for the next command's.
    link_.Transact(kEmptyTransaction);
    return link_.IsOpen() ? std::optional(status_) : std::nullopt;
}

bool StatusRequest::AskProtocolVersion() {
    const std::optional<Reply> first = link_.Transact(ProtocolVersionRequest());
    if (!first) {
        return false;
    }
    // The state is that of the first reply, whatever it is, and of no later one.
    status_.systemState = first->StateBits();
    const double start = clock_.SecondsSinceMidnight();
    bool offered = false;
    // A unit that is still starting may take any time, so this wait has no limit of its own.
    for (bool known = TakeProtocolVersion(first); !known;) {
        if (!offered && SecondsSince(start, clock_) >= kCancelOfferedAfter) {
            offered = true;
            progress_.OfferCancel();
        }
        if ((offered && progress_.IsCancelled()) || !link_.IsOpen()) {
            return false;
        }
        known = TakeProtocolVersion(link_.Transact(kEmptyTransaction));
    }
    return true;
}

bool StatusRequest::TakeProtocolVersion(const std::optional<Reply>& reply) {
    const std::optional<int> version = reply ? ReadProtocolVersion(*reply) : std::nullopt;
    if (version) {
        status_.protocolVersion = *version;
    }
    return version.has_value();
}

void StatusRequest::AskCentralUnit() {
    if (const std::optional<Reply> reply = link_.Transact(CentralUnitRequest())) {
        status_.unit = ReadCentralUnit(*reply).value_or(CentralUnit());
    }
}

bool StatusRequest::Shown() {
    progress_.Step();
    view_.ShowStatus(status_);
    return link_.IsOpen();
}

bool StatusRequest::AskNewView() {
    progress_.Begin("Asking the modules", kVDPrimaryLines + kJsModules + kYRModules);
    registry_.vdTypes.fill(VDType::Absent);
    registry_.jsPresent.fill(false);
    status_.vdTypes.fill(VDType::Absent);
    view_.ShowStatus(status_);
    view_.ShowCentralUnit(status_.unit);
    return AskTractionModules() && AskPointMotorModules() && AskSignalControllers();
}

std::optional<ModuleStatus> StatusRequest::AskModule(int address) {
    const std::optional<Reply> reply = link_.Transact(ModuleStatusRequest(address));
    return reply ? ReadModuleStatus(*reply, address) : std::nullopt;
}

bool StatusRequest::AskTractionModules() {
    for (int line = 0; line < kVDPrimaryLines; ++line) {
        AskTractionModule(line);
        if (!Shown()) {
            return false;
        }
    }
    view_.ListTractionModules(false);
    return true;
}

void StatusRequest::AskTractionModule(int line) {
    const std::optional<ModuleStatus> answer = AskModule(VDStatusAddress(line));
    if (!answer) {
        return;
    }
    const auto index = static_cast<unsigned>(line);
    ModuleLine& unit = status_.vd[index];
    unit.state = StateOf(*answer, ModuleState::Fault);
    if (unit.state == ModuleState::Absent) {
        return;
    }
    registry_.vdTypes[index] = answer->type;
    status_.vdTypes[index] = answer->type;
    unit.version = answer->version;
    if (answer->type == VDType::Vd60) {
        AskSecondaryUnit(line + kVDPrimaryLines);
    }
}

void StatusRequest::AskSecondaryUnit(int line) {
    const std::optional<ModuleStatus> answer = AskModule(VDStatusAddress(line));
    if (!answer) {
        return;
    }
    const auto index = static_cast<unsigned>(line);
    ModuleLine& unit = status_.vd[index];
    unit.state = StateOf(*answer, ModuleState::Fault);
    if (unit.state == ModuleState::Absent) {
        return;
    }
    if (answer->type != VDType::Vd60) {
        unit.state = ModuleState::Error;
        return;
    }
    registry_.vdTypes[index] = VDType::Vd60;
    unit.version = answer->version;
}

bool StatusRequest::AskPointMotorModules() {
    for (int position = 0; position < kJsModules; ++position) {
        AskPointMotorModule(position);
        if (!Shown()) {
            return false;
        }
    }
    view_.ListPointMotorModules(false);
    return true;
}

void StatusRequest::AskPointMotorModule(int position) {
    const std::optional<ModuleStatus> answer = AskModule(JsAddress(position));
    if (!answer) {
        return;
    }
    const auto index = static_cast<unsigned>(position);
    ModuleLine& module = status_.js[index];
    module.state = StateOf(*answer, ModuleState::Hold);
    if (module.state != ModuleState::Absent) {
        registry_.jsPresent[index] = true;
        module.version = answer->version;
    }
}

bool StatusRequest::AskSignalControllers() {
    for (int module = 0; module < kYRModules; ++module) {
        AskSignalController(module);
        if (!Shown()) {
            return false;
        }
    }
    return true;
}

void StatusRequest::AskSignalController(int module) {
    if (const std::optional<ModuleStatus> answer = AskModule(YRAddress(module))) {
        ModuleLine& line = status_.yr[static_cast<unsigned>(module)];
        line.state = StateOf(*answer, ModuleState::Ok);
        if (line.state != ModuleState::Absent) {
            line.version = answer->version;
        }
    }
}

}  // namespace zelvar
