// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "status/status_request.h"

namespace zelvar {

namespace {

constexpr int kTractionValues = kClassicVDLines / kBitsPerTableValue;
constexpr int kPointMotorValues = kClassicJsModules / kBitsPerTableValue;

}  // namespace

bool StatusRequest::AskClassicView() {
    constexpr int kTables = 5;
    progress_.Begin("Asking the modules", kTables);
    std::fill_n(registry_.vdTypes.begin(), kClassicVDLines, VDType::Absent);
    std::fill_n(registry_.jsPresent.begin(), kClassicJsModules, false);
    status_.vdTypes.fill(VDType::Unknown);
    status_.vd.fill({ModuleState::Unknown, std::nullopt});
    status_.js.fill({ModuleState::Unknown, std::nullopt});
    view_.ShowStatus(status_);
    view_.ShowCentralUnit(status_.unit);
    for (const auto ask : {&StatusRequest::AskDipSwitches, &StatusRequest::AskClassicPresence,
                           &StatusRequest::AskClassicTypes, &StatusRequest::AskClassicFaults}) {
        (this->*ask)();
        if (!Shown()) {
            return false;
        }
    }
    view_.ListTractionModules(true);
    AskClassicPointMotorModules();
    if (!Shown()) {
        return false;
    }
    view_.ListPointMotorModules(true);
    return true;
}

std::vector<bool> StatusRequest::AskTable(StatusTable table, int values) {
    const std::optional<Reply> reply = link_.Transact(StatusTableRequest(table));
    return reply ? ReadStatusTable(*reply, table, values) : std::vector<bool>();
}

void StatusRequest::AskDipSwitches() {
    const std::vector<bool> bits = AskTable(StatusTable::DipSwitches, 1);
    if (!bits.empty()) {
        // The switches read active-low.
        std::transform(bits.begin(), bits.end(), status_.dip.emplace().begin(),
                       [](bool bit) { return !bit; });
    }
}

void StatusRequest::AskClassicPresence() {
    const std::vector<bool> present = AskTable(StatusTable::Present, kTractionValues);
    for (std::size_t n = 0; n < present.size(); ++n) {
        status_.vd[n].state = present[n] ? ModuleState::Ok : ModuleState::Absent;
    }
}

void StatusRequest::AskClassicTypes() {
    const std::vector<bool> isQlrx = AskTable(StatusTable::Types, kTractionValues);
    for (std::size_t n = 0; n < isQlrx.size(); ++n) {
        if (status_.vd[n].state == ModuleState::Ok) {
            // The Classic View knows no VD60.
            status_.vdTypes[n] = isQlrx[n] ? VDType::QlrxS : VDType::VdF;
            registry_.vdTypes[n] = status_.vdTypes[n];
        } else {
            status_.vdTypes[n] = VDType::Absent;
        }
    }
}

void StatusRequest::AskClassicFaults() {
    const std::vector<bool> inFault = AskTable(StatusTable::Faults, kTractionValues);
    for (std::size_t n = 0; n < inFault.size(); ++n) {
        if (status_.vd[n].state == ModuleState::Ok && inFault[n]) {
            status_.vd[n].state = ModuleState::Fault;
        }
    }
}

void StatusRequest::AskClassicPointMotorModules() {
    const std::vector<bool> present = AskTable(StatusTable::PointModules, kPointMotorValues);
    for (std::size_t j = 0; j < present.size(); ++j) {
        status_.js[j].state = present[j] ? ModuleState::Ok : ModuleState::Absent;
        registry_.jsPresent[j] = registry_.jsPresent[j] || present[j];
    }
}

}  // namespace zelvar
