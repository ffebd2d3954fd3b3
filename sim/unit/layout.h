// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "sim/protocol/addresses.h"
#include "sim/protocol/module_status.h"
#include "sim/protocol/traction_settings.h"
#include "sim/protocol/version.h"
#include "sim/railway/track_plan.h"

namespace zelvar::sim {

/// One place for a module.
struct ModuleSlot {
    ModuleSlot() = default;
    ModuleSlot(std::uint8_t statusByte, int decimalVersion)
        : status(statusByte), version(decimalVersion) {}

    bool Present() const { return IsPresent(status); }

    std::uint8_t status = kAbsentStatus;
    int version = 0;         // see sim/protocol/version.h
    std::uint8_t clock = 0;  // of traction units, see kClockWords
    /// Of traction units, as they come to the layout.
    TractionSettings settings = FactoryValues();
};

/// A described layout: the central unit and every place for a module, by its address.
struct Layout {
    int unitType = static_cast<int>(UnitType::kKbE);
    int systemVersion = 1020;
    int protocolVersion = 3112;
    std::uint8_t dipSwitches = 0x0F;  // a clear bit is a switch that is on
    std::array<ModuleSlot, kModuleAddresses> modules{};
    TrackPlan track;

    ModuleSlot& At(int address) { return modules[address]; }
    const ModuleSlot& At(int address) const { return modules[address]; }
};

/// A KB-E with no module and no track.
inline Layout EmptyLayout() {
    return {};
}

}  // namespace zelvar::sim
