// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/commands.h"
#include "sim/unit/unit_state.h"

namespace zelvar::sim {

namespace {

using Answer = std::optional<Payload>;

constexpr int kUnit = 1;  // first value of what concerns the unit itself
constexpr int kTableRequest = 3;
constexpr int kBitsPerValue = 4;  // a status table uses the low half of each value
constexpr int kTableModules = 16;
constexpr int kTablePointModules = 8;

void AppendVersion(Payload& answer, int version) {
    // A version that two bytes cannot carry is reported as none.
    const VersionBytes bytes = EncodeVersion(version).value_or(VersionBytes{});
    answer.Append(bytes.high);
    answer.Append(bytes.low);
}

Answer Poll(UnitState& state, const Payload&) {
    return state.reports.NextForPoll();
}

Answer ResetFault(UnitState& state, const Payload&) {
    state.fault = false;
    return std::nullopt;
}

Answer ProtocolVersion(UnitState& state, const Payload& command) {
    Payload answer = command;
    AppendVersion(answer, state.layout.protocolVersion);
    return answer;
}

Answer UnitTypeAndVersion(UnitState& state, const Payload& command) {
    Payload answer = command;
    answer.Append(state.layout.unitType);
    AppendVersion(answer, state.layout.systemVersion);
    return answer;
}

Answer ModuleStatus(UnitState& state, const Payload& command) {
    Payload answer = command;
    const ModuleSlot& slot = state.layout.At(command[2]);
    answer.Append(slot.status);
    AppendVersion(answer, slot.Present() ? slot.version : 0);
    return answer;
}

Answer DipSwitches(UnitState& state, const Payload& command) {
    return Payload{kUnit, kTableRequest, command[2] * 16 + state.layout.dipSwitches % 16};
}

/// A status table: number `table` in the upper half of the first value, one bit per module in the
/// lower halves.
template <typename Predicate>
Answer StatusTable(const UnitState& state, int table, int firstAddress, int modules,
                   Predicate isSet) {
    Payload answer{kUnit, kTableRequest};
    for (int first = 0; first < modules; first += kBitsPerValue) {
        int bits = first == 0 ? table * 16 : 0;
        for (int bit = 0; bit < kBitsPerValue; ++bit) {
            bits |= isSet(state.layout.At(firstAddress + first + bit)) ? 1 << bit : 0;
        }
        answer.Append(bits);
    }
    return answer;
}

Answer PresentModules(UnitState& state, const Payload& command) {
    return StatusTable(state, command[2], kTractionFamily, kTableModules,
                       [](const ModuleSlot& slot) { return slot.Present(); });
}

Answer FaultyModules(UnitState& state, const Payload& command) {
    return StatusTable(state, command[2], kTractionFamily, kTableModules,
                       [](const ModuleSlot& slot) {
                           return slot.Present() && (slot.status & kIdleBit) == 0 &&
                                  (slot.status & kFaultBit) != 0;
                       });
}

Answer ModuleTypes(UnitState& state, const Payload& command) {
    // This table knows two types only: whatever is no QLRX-s shows as a VD-F, a VD60 too.
    return StatusTable(
        state, command[2], kTractionFamily, kTableModules, [](const ModuleSlot& slot) {
            return slot.Present() &&
                   (slot.status & kTypeMask) == static_cast<int>(TractionType::kQlrxS);
        });
}

Answer PresentPointModules(UnitState& state, const Payload& command) {
    return StatusTable(state, command[2], kPointFamily, kTablePointModules,
                       [](const ModuleSlot& slot) { return slot.Present(); });
}

Answer FeedbackState(UnitState& state, const Payload& command) {
    const int input = command[0] % 32 * 128 + command[1];
    if (input >= kFeedbackInputs) {
        return std::nullopt;  // a report has no room for such a number
    }
    return FeedbackReport(input, state.feedback.test(static_cast<std::size_t>(input)));
}

constexpr CommandRow kStatusCommands[] = {
    {"poll", {}, &Poll},
    {"fault-reset", {Is(kUnit), Is(0)}, &ResetFault},
    {"protocol-version", {Is(kUnit), Is(2)}, &ProtocolVersion},
    {"unit-type", {Is(kUnit), Is(10)}, &UnitTypeAndVersion},
    {"module-status", {Is(kUnit), Is(11), Any()}, &ModuleStatus},
    {"table-dip-switches", {Is(kUnit), Is(kTableRequest), Is(0)}, &DipSwitches},
    {"table-present", {Is(kUnit), Is(kTableRequest), Is(2)}, &PresentModules},
    {"table-faults", {Is(kUnit), Is(kTableRequest), Is(3)}, &FaultyModules},
    {"table-types", {Is(kUnit), Is(kTableRequest), Is(4)}, &ModuleTypes},
    {"table-point-modules", {Is(kUnit), Is(kTableRequest), Is(6)}, &PresentPointModules},
    {"feedback-request", {Bits(0x60, 0x60), Any()}, &FeedbackState},
};

}  // namespace

std::span<const CommandRow> StatusCommands() {
    return kStatusCommands;
}

}  // namespace zelvar::sim
