// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_layout.h"

namespace zelvar::twin {

sim::Layout EveryKind() {
    constexpr int kVersion = 1023;
    sim::Layout layout = sim::EmptyLayout();
    const auto put = [&](int address, sim::TractionType type) {
        layout.At(address) = {sim::StatusByte(static_cast<int>(type), sim::ModuleState::kOk),
                              kVersion};
    };
    for (const int line : {0, 3, 31}) {
        put(32 + line, sim::TractionType::kVdF);
    }
    for (const int line : {5, 16, 30}) {
        put(32 + line, sim::TractionType::kVd60);
    }
    for (const int second : {5, 30}) {
        put(second, sim::TractionType::kVd60);
    }
    for (const int line : {8, 15}) {
        put(32 + line, sim::TractionType::kQlrxS);
    }
    // Eight point-motor modules to a channel, whose addresses lie 16 apart.
    for (const int address : {64, 71, 80, 81, 87, 96, 127}) {
        put(address, sim::TractionType::kVdF);
    }
    return layout;
}

}  // namespace zelvar::twin
