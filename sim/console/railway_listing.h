// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sim/console/state_table.h"

namespace zelvar::sim {

/// Where the trains are and how fast they go; no rows without trains.
TableSection TrainTable(const UnitState& state);
/// What stands in each section.
TableSection TrackTable(const UnitState& state);

}  // namespace zelvar::sim
