// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "sim/text/words.h"

namespace zelvar::sim {

enum class UnitType : std::uint8_t { kKbF = 1, kKbE = 2, kKbG = 3, kQlrx = 10 };
enum class TractionType : std::uint8_t { kVdF = 0, kVd60 = 1, kQlrxS = 2 };

inline constexpr Word kUnitTypeWords[] = {{"KB-F", static_cast<int>(UnitType::kKbF)},
                                          {"KB-E", static_cast<int>(UnitType::kKbE)},
                                          {"KB-G", static_cast<int>(UnitType::kKbG)},
                                          {"QLRX", static_cast<int>(UnitType::kQlrx)}};
inline constexpr Word kTractionTypeWords[] = {{"VD-F", static_cast<int>(TractionType::kVdF)},
                                              {"VD60", static_cast<int>(TractionType::kVd60)},
                                              {"QLRX-s", static_cast<int>(TractionType::kQlrxS)}};

/// What a module reports about itself. Fault of a traction module and Hold of a point module are
/// the same bit.
enum class ModuleState : std::uint8_t { kOk, kIdle, kFault, kHold };

/// The bits of a status byte. Only traction modules have a type.
inline constexpr std::uint8_t kAbsentStatus = 0;
inline constexpr std::uint8_t kTypeMask = 0x07;
inline constexpr std::uint8_t kPresentBit = 0x08;
inline constexpr std::uint8_t kIdleBit = 0x10;
inline constexpr std::uint8_t kFaultBit = 0x20;

/// The status byte of a module that is there. `type` is 0..7, 0 for families without types.
std::uint8_t StatusByte(int type, ModuleState state);

constexpr bool IsPresent(int status) {
    return (status & kPresentBit) != 0;
}
constexpr bool IsIdle(int status) {
    return (status & kIdleBit) != 0;
}
/// Idle modules are not in fault, whatever their fault bit says.
constexpr bool IsFaulty(int status) {
    return IsPresent(status) && !IsIdle(status) && (status & kFaultBit) != 0;
}
constexpr int TypeIn(int status) {
    return status & kTypeMask;
}

/// "KB-E"; "unknown type 7"
std::string UnitTypeName(int type);
std::string TractionTypeName(int type);
/// The state in a status byte, by the family of the module's address: "absent", "idle", "fault",
/// "hold" or "OK".
std::string_view ModuleStateName(int address, int status);
/// The type before it where there is one: "VD60, OK".
std::string StatusName(int address, int status);

}  // namespace zelvar::sim
