// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// The most simulated time that one look catches up with while trains run: 60,000 steps.
inline constexpr std::chrono::minutes kMostCatchUp{10};

/// Whether the unit feeds the track.
bool Powered(const UnitState& state);

/// Lets blocks, decoders and trains run up to `until`, in simulated time; what they trip is
/// reported. The time reached, which is `state.now` then: after a long absence less than asked for.
Time RunRailway(UnitState& state, Time until);

/// Reports what detectors and blocks have become. Two trains in one block are an overcurrent,
/// which puts the unit into fault; it is over when one of them has left.
void ReportTrack(UnitState& state);

}  // namespace zelvar::sim
