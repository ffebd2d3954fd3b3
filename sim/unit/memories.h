// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "sim/unit/layout.h"

namespace zelvar::sim {

/// A memory in two parts: what holds now, and what comes back after a restart.
template <typename Settings>
struct Memory {
    Settings active;
    Settings permanent;

    Settings& Part(bool isPermanent) { return isPermanent ? permanent : active; }
    const Settings& Part(bool isPermanent) const { return isPermanent ? permanent : active; }
    void SetBoth(const Settings& settings) { active = permanent = settings; }
    void Restart() { active = permanent; }
};

/// The settings of one traction unit, by parameter number 1..15 (0 is not used).
inline constexpr int kTractionParameters = 16;
using TractionSettings = std::array<std::uint8_t, kTractionParameters>;
inline constexpr std::size_t kMasterSlaveParameter = 11;
/// In QLRX-s modules the module's address; the others report the state of their clock here, from
/// the active memory.
inline constexpr std::size_t kAddressParameter = 15;

inline constexpr int kPointModules = 16;
inline constexpr int kPointDevices = 64;

struct PointDevice {
    std::uint8_t time = 0;   // in sixtieths of a second; 0: the module's default
    std::uint8_t power = 0;  // 0 normal, 1 low, 2 high, 3 unlimited
    bool operator==(const PointDevice&) const = default;
};

struct PointSettings {
    std::uint8_t defaultTime = 0;  // in sixtieths of a second
    std::array<PointDevice, kPointDevices> devices{};
    bool operator==(const PointSettings&) const = default;
};

struct UnitSettings {
    std::uint8_t configuration = 0;  // eight switches, switch i is bit i
    std::uint8_t deviceMode = 0;     // the sum of the 64-device-mode boxes, 0..30
};

/// What the modules and the unit keep.
struct Memories {
    explicit Memories(const Layout& layout);

    /// The active memories become copies of the permanent ones.
    void Restart();

    std::array<Memory<TractionSettings>, kTractionLines> traction;  // by line
    std::array<Memory<PointSettings>, kPointModules> points;        // by position, see below
    Memory<UnitSettings> unit{};
    std::uint8_t options = 0;  // has one memory only, which outlives a restart
};

/// What leaves the workshop: "line" is 0..63.
TractionSettings FactoryTractionSettings(int line);
PointSettings FactoryPointSettings();

/// Position 0..15 of a point module (0..7 channel 0, 8..15 channel 1) by its address, and back; -1
/// for an address that no point module can have.
int PointPosition(int address);
int PointAddress(int position);

}  // namespace zelvar::sim
