// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/module_status.h"

#include <algorithm>
#include <span>

#include "sim/protocol/addresses.h"

namespace zelvar::sim {

namespace {

std::string TypeName(std::span<const Word> types, int type) {
    const bool known = std::any_of(types.begin(), types.end(),
                                   [type](const Word& word) { return word.value == type; });
    return (known ? "" : "unknown type ") + WordFor(types, type);
}

}  // namespace

std::uint8_t StatusByte(int type, ModuleState state) {
    unsigned status = kPresentBit | (static_cast<unsigned>(type) & kTypeMask);
    if (state == ModuleState::kIdle) {
        status |= kIdleBit;
    } else if (state != ModuleState::kOk) {
        status |= kFaultBit;
    }
    return static_cast<std::uint8_t>(status);
}

std::string UnitTypeName(int type) {
    return TypeName(kUnitTypeWords, type);
}

std::string TractionTypeName(int type) {
    return TypeName(kTractionTypeWords, type);
}

std::string_view ModuleStateName(int address, int status) {
    if (!IsPresent(status)) {
        return "absent";
    }
    if (IsIdle(status)) {
        return "idle";
    }
    const int family = FamilyOf(address);
    if (!IsFaulty(status) || family == kSignalFamily) {
        return "OK";
    }
    return family == kPointFamily ? "hold" : "fault";
}

std::string StatusName(int address, int status) {
    const std::string state(ModuleStateName(address, status));
    const bool typed = IsPresent(status) && LineAt(address) >= 0;
    return typed ? TractionTypeName(TypeIn(status)) + ", " + state : state;
}

}  // namespace zelvar::sim
