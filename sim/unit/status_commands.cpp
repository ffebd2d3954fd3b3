// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

constexpr int kTableModules = 16;
constexpr int kTablePointModules = 8;
constexpr Field kAskedModule = Whole(2);
constexpr Field kAskedInput = Wide(0, 0x1F);

void AppendVersion(Payload& answer, int version) {
    // A version that two bytes cannot carry is reported as none.
    const VersionBytes bytes = EncodeVersion(version).value_or(VersionBytes{});
    answer.Append(bytes.high);
    answer.Append(bytes.low);
}

Payload Poll(UnitState& state, const Payload&) {
    return state.reports.NextForPoll().value_or(Payload{});
}

Payload ResetFault(UnitState& state, const Payload&) {
    state.fault = false;
    return {};
}

Payload ProtocolVersion(UnitState& state, const Payload& command) {
    Payload answer = command;
    AppendVersion(answer, state.layout.protocolVersion);
    return answer;
}

Payload UnitTypeAndVersion(UnitState& state, const Payload& command) {
    Payload answer = command;
    answer.Append(state.layout.unitType);
    AppendVersion(answer, state.layout.systemVersion);
    return answer;
}

Payload ModuleStatus(UnitState& state, const Payload& command) {
    Payload answer = command;
    const ModuleSlot& slot = state.layout.At(kAskedModule.In(command));
    answer.Append(slot.status);
    AppendVersion(answer, slot.Present() ? slot.version : 0);
    return answer;
}

Payload DipSwitches(UnitState& state, const Payload&) {
    return {kToUnit, kTableCode,
            kDipSwitchTable * kHalfRange + state.layout.dipSwitches % kHalfRange};
}

/// A status table: its number in the high half of the first value, one bit for each module in the
/// low halves. `isSet` gets the status byte of a module.
template <typename Predicate>
Payload TableAnswer(const UnitState& state, StatusTable table, int firstAddress, int modules,
                    Predicate isSet) {
    Payload answer{kToUnit, kTableCode};
    for (int first = 0; first < modules; first += kModulesPerTableValue) {
        int bits = first == 0 ? table * kHalfRange : 0;
        for (int bit = 0; bit < kModulesPerTableValue; ++bit) {
            bits |= isSet(state.layout.At(firstAddress + first + bit).status) ? 1 << bit : 0;
        }
        answer.Append(bits);
    }
    return answer;
}

Payload PresentModules(UnitState& state, const Payload&) {
    return TableAnswer(state, kPresentTable, kTractionFamily, kTableModules, &IsPresent);
}

Payload FaultyModules(UnitState& state, const Payload&) {
    return TableAnswer(state, kFaultTable, kTractionFamily, kTableModules, &IsFaulty);
}

Payload ModuleTypes(UnitState& state, const Payload&) {
    // This table knows two types only: every module but a QLRX-s shows as a VD-F, a VD60 too.
    return TableAnswer(state, kTypeTable, kTractionFamily, kTableModules, [](int status) {
        return IsPresent(status) && TypeIn(status) == static_cast<int>(TractionType::kQlrxS);
    });
}

Payload PresentPointModules(UnitState& state, const Payload&) {
    return TableAnswer(state, kPointTable, kPointFamily, kTablePointModules, &IsPresent);
}

Payload FeedbackState(UnitState& state, const Payload& command) {
    const int input = kAskedInput.In(command);
    if (input >= kFeedbackInputs) {
        return {};  // a report has no room for such a number
    }
    return FeedbackReport(input, state.feedback.test(input));
}

constexpr CommandRow kStatusCommands[] = {
    {"poll", {}, {"poll"}, &Poll},
    {"fault-reset", {Is(kToUnit), Is(0)}, {"reset the fault"}, &ResetFault},
    {"protocol-version",
     {Is(kToUnit), Is(kProtocolVersionCode)},
     {"ask for the protocol version"},
     &ProtocolVersion,
     Asks::kYes},
    {"unit-type",
     {Is(kToUnit), Is(kUnitTypeCode)},
     {"ask for the central unit's type and version"},
     &UnitTypeAndVersion,
     Asks::kYes},
    {"module-status",
     {Is(kToUnit), Is(kModuleStatusCode), Any()},
     {"ask for the status {}", {{kAskedModule, &OfModule}}},
     &ModuleStatus,
     Asks::kYes},
    {"table-dip-switches",
     {Is(kToUnit), Is(kTableCode), Is(kDipSwitchTable)},
     {"ask for the table of DIP switches"},
     &DipSwitches,
     Asks::kYes},
    {"table-present",
     {Is(kToUnit), Is(kTableCode), Is(kPresentTable)},
     {"ask for the table of traction modules that are there"},
     &PresentModules,
     Asks::kYes},
    {"table-faults",
     {Is(kToUnit), Is(kTableCode), Is(kFaultTable)},
     {"ask for the table of traction modules in fault"},
     &FaultyModules,
     Asks::kYes},
    {"table-types",
     {Is(kToUnit), Is(kTableCode), Is(kTypeTable)},
     {"ask for the table of traction module types"},
     &ModuleTypes,
     Asks::kYes},
    {"table-point-modules",
     {Is(kToUnit), Is(kTableCode), Is(kPointTable)},
     {"ask for the table of point modules that are there"},
     &PresentPointModules,
     Asks::kYes},
    {"feedback-request",
     {Bits(0x60, 0x60), Any()},
     {"ask for feedback input {}", {kAskedInput}},
     &FeedbackState,
     Asks::kYes},
};

}  // namespace

std::span<const CommandRow> StatusCommands() {
    return kStatusCommands;
}

}  // namespace zelvar::sim
