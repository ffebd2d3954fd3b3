// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/memories.h"

namespace zelvar::sim {

namespace {

// HFI level, alarm delays off and on, switch delays off (2 banks) and on (2 banks), DC shift, PWM
// multiplier, overcurrent detection, master/slave (auto), power control, loop currents A and B.
// All differ where they can, so that a mix-up shows; the address follows.
constexpr TractionSettings kFactoryTraction = {0, 6, 40, 20, 1, 2, 3, 4, 5, 8, 1, 0, 1, 35, 45, 0};

constexpr std::uint8_t kFactoryPointTime = 15;  // a quarter of a second

}  // namespace

TractionSettings FactoryTractionSettings(int line) {
    TractionSettings settings = kFactoryTraction;
    settings[kAddressParameter] = static_cast<std::uint8_t>(line % kModulesPerChannel);
    return settings;
}

PointSettings FactoryPointSettings() {
    return {kFactoryPointTime, {}};
}

int PointPosition(int address) {
    const int slot = address - kPointFamily;
    const int module = slot % kModulesPerChannel;
    if (slot < 0 || slot >= 2 * kModulesPerChannel || module >= kPointModulesPerChannel) {
        return -1;
    }
    return slot / kModulesPerChannel * kPointModulesPerChannel + module;
}

int PointAddress(int position) {
    return kPointFamily + position / kPointModulesPerChannel * kModulesPerChannel +
           position % kPointModulesPerChannel;
}

Memories::Memories(const Layout& layout) {
    for (int line = 0; line < kTractionLines; ++line) {
        TractionSettings settings = FactoryTractionSettings(line);
        settings[kMasterSlaveParameter] = layout.At(LineAddress(line)).masterSlave;
        traction[static_cast<std::size_t>(line)].SetBoth(settings);
    }
    for (Memory<PointSettings>& module : points) {
        module.SetBoth(FactoryPointSettings());
    }
}

void Memories::Restart() {
    for (Memory<TractionSettings>& module : traction) {
        module.Restart();
    }
    for (Memory<PointSettings>& module : points) {
        module.Restart();
    }
    unit.Restart();
}

}  // namespace zelvar::sim
