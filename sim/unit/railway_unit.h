// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// The most simulated time that one call catches up with while trains run: 60,000 steps.
inline constexpr std::chrono::minutes kMaxCatchUp{10};

/// Whether the unit feeds the track.
bool Powered(const UnitState& state);

/// Runs blocks, decoders and trains up to `until`, in simulated time, and reports what they change.
/// Returns the time reached, which is `state.now` then: less than `until` after a long absence.
Time RunRailway(UnitState& state, Time until);

/// Reports the detectors and blocks that changed. Two trains in one block are an overcurrent, which
/// puts the unit into fault. It ends when one of them has left.
void ReportTrack(UnitState& state);

}  // namespace zelvar::sim
