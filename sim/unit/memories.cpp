// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/memories.h"

namespace zelvar::sim {

namespace {

TractionSettings WithAddress(TractionSettings settings, int line) {
    settings[kAddressParameter] = static_cast<std::uint8_t>(line % kModulesPerChannel);
    return settings;
}

}  // namespace

TractionSettings FactoryTractionSettings(int line) {
    return WithAddress(FactoryValues(), line);
}

TractionSettings DescribedTractionSettings(const Layout& layout, int line) {
    return WithAddress(layout.At(LineAddress(line)).settings, line);
}

Memories::Memories(const Layout& layout) {
    int line = 0;
    for (Memory<TractionSettings>& module : traction) {
        module.SetBoth(DescribedTractionSettings(layout, line));
        ++line;
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
