// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "sim/railway/track_plan.h"

namespace zelvar::sim {

/// Families of module addresses: an address is family + channel * 16 + module.
inline constexpr int kSecondaryFamily = 0;  // the second unit of a VD60
inline constexpr int kTractionFamily = 32;
inline constexpr int kPointFamily = 64;
inline constexpr int kSignalFamily = 96;
inline constexpr int kModuleAddresses = 128;
inline constexpr int kModulesPerChannel = 16;
inline constexpr int kPointModulesPerChannel = 8;
inline constexpr int kTractionLines = 64;  // 32 primary units, then 32 secondary ones

enum class UnitType : std::uint8_t { kKbF = 1, kKbE = 2, kKbG = 3, kQlrx = 10 };
enum class TractionType : std::uint8_t { kVdF = 0, kVd60 = 1, kQlrxS = 2 };

/// What a module reports of itself; Fault of a traction module and Hold of a point module are the
/// same bit.
enum class ModuleState : std::uint8_t { kOk, kIdle, kFault, kHold };

/// A module's status byte for a type number 0..7 (0 for families without types).
std::uint8_t StatusByte(int type, ModuleState state);
inline constexpr std::uint8_t kAbsentStatus = 0;
inline constexpr std::uint8_t kTypeMask = 0x07;
inline constexpr std::uint8_t kPresentBit = 0x08;
inline constexpr std::uint8_t kIdleBit = 0x10;
inline constexpr std::uint8_t kFaultBit = 0x20;

/// One place for a module. Versions are decimal: 1023 is 1.02 C; 0 reports none.
struct ModuleSlot {
    std::uint8_t status = kAbsentStatus;
    int version = 0;
    std::uint8_t masterSlave = 0;  // as it leaves the workshop: 0 auto, 1 master, 2 slave
    std::uint8_t clock = 0;        // 0 good, 1 none, 2 bad, 4 degraded

    bool Present() const { return (status & kPresentBit) != 0; }
};

/// A described layout: the central unit and every place for a module, by its address.
struct Layout {
    int unitType = static_cast<int>(UnitType::kKbE);
    int systemVersion = 1020;
    int protocolVersion = 3112;
    std::uint8_t dipSwitches = 0x0F;  // a clear bit is a switch that is on
    std::array<ModuleSlot, kModuleAddresses> modules{};
    TrackPlan track;

    ModuleSlot& At(int address) { return modules[static_cast<std::size_t>(address)]; }
    const ModuleSlot& At(int address) const { return modules[static_cast<std::size_t>(address)]; }
};

/// A KB-E with no module and no track.
Layout EmptyLayout();

/// Address of a traction line's status: 0..31 are primary units, 32..63 secondary ones.
int LineAddress(int line);

/// Two version bytes.
struct VersionBytes {
    std::uint8_t high = 0;
    std::uint8_t low = 0;
};

/// The bytes that decode to `version` as
/// (high >> 3) * 1000 + (high & 7) * 100 + (low >> 3) * 10 + (low & 7); none when no two 7-bit
/// values do.
std::optional<VersionBytes> EncodeVersion(int version);

}  // namespace zelvar::sim
