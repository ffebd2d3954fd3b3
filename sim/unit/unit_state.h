// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <chrono>

#include "sim/railway/drive.h"
#include "sim/railway/railway.h"
#include "sim/unit/layout.h"
#include "sim/unit/memories.h"
#include "sim/unit/reports.h"

namespace zelvar::sim {

/// Time since any fixed moment; the caller's clock never runs backwards.
using Time = std::chrono::nanoseconds;

/// Everything the commands and the console work on.
struct UnitState {
    /// Engines differ a little by `seed`; not at all when it is 0.
    explicit UnitState(const Layout& described, std::uint32_t seed = 0)
        : layout(described),
          memories(described),
          railway(described.track, seed),
          feedback(railway.detected()) {}

    Layout layout;
    Memories memories;
    Railway railway;
    Time now{0};  // simulated
    bool fault = false;
    bool hold = false;
    bool stopRequested = false;
    /// Passes the line through to a channel or its boot loader and answers nothing itself.
    bool transparent = false;
    /// Polls until a module's answer can go out; 0: it is the reply itself.
    int answerDelay = 1;
    std::bitset<kModuleAddresses> muted;  // modules that answer no request, by address
    ReportQueue reports;
    std::bitset<kBlocks> overcurrent;
    std::bitset<kFeedbackInputs> feedback;
    Drive drive;
    Accessories accessories;
    int hfiLevel = 0;  // the system's own, 0..15
};

}  // namespace zelvar::sim
