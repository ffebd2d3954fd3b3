// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <chrono>
#include <cstdint>
#include <map>
#include <string_view>

#include "sim/railway/drive.h"
#include "sim/railway/railway.h"
#include "sim/railway/simulated_clock.h"
#include "sim/unit/layout.h"
#include "sim/unit/memories.h"
#include "sim/unit/reports.h"

namespace zelvar::sim {

/// Time since any fixed moment; the caller's clock never runs backwards.
using Time = std::chrono::nanoseconds;

/// What came over the line since the start.
struct FrameCounts {
    std::uint64_t received = 0;
    std::uint64_t broken = 0;  // with a wrong checksum or header
    std::uint64_t passedThrough = 0;
    std::uint64_t unknown = 0;
    std::uint64_t repeatedToggles = 0;
    std::map<std::string_view, std::uint64_t> commands;  // by their names
};

/// All that commands, console and views work on.
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
    SimulatedClock clock;
    Time now{0};  // simulated
    FrameCounts frames;
    bool fault = false;
    bool hold = false;
    bool stopRequested = false;
    /// The unit connects the line to a channel or its boot loader and does not answer.
    bool transparent = false;
    /// Polls until a module's answer can go out; 0: the answer is the reply itself.
    int answerDelay = 1;
    std::bitset<kModuleAddresses> muted;  // modules that do not answer, by address
    ReportQueue reports;
    std::bitset<kBlocks> overcurrent;
    std::bitset<kFeedbackInputs> feedback;
    Drive drive;
    Accessories accessories;
    int hfiLevel = 0;  // the system's own, 0..15
};

}  // namespace zelvar::sim
