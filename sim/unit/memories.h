// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "sim/protocol/addresses.h"
#include "sim/protocol/traction_settings.h"
#include "sim/unit/layout.h"

namespace zelvar::sim {

/// A memory in two parts: what is active now, and what a restart brings back.
template <typename Settings>
struct Memory {
    Settings active;
    Settings permanent;

    Settings& Part(bool isPermanent) { return isPermanent ? permanent : active; }
    const Settings& Part(bool isPermanent) const { return isPermanent ? permanent : active; }
    void SetBoth(const Settings& settings) { active = permanent = settings; }
    void Restart() { active = permanent; }
};

struct PointDevice {
    std::uint8_t time = 0;   // in sixtieths of a second; 0: the module's default
    std::uint8_t power = 0;  // see kPowerWords
    bool operator==(const PointDevice&) const = default;
};

struct PointSettings {
    std::uint8_t defaultTime = 15;  // in sixtieths of a second
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

    std::array<Memory<TractionSettings>, kTractionLines> traction;  // by LineAt of the address
    std::array<Memory<PointSettings>, kPointModules> points;        // by PointPosition
    Memory<UnitSettings> unit{};
    std::uint8_t options = 0;  // has one memory only, which survives a restart
};

/// The settings of traction unit 0..63 as it left the factory, and as it came to a layout.
TractionSettings FactoryTractionSettings(int line);
TractionSettings DescribedTractionSettings(const Layout& layout, int line);

inline PointSettings FactoryPointSettings() {
    return {};
}

}  // namespace zelvar::sim
