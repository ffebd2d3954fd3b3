// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sim/layouts/table_reader.h"
#include "sim/railway/track_plan.h"

namespace zelvar::sim {

/// Reads the [[section]] and [[train]] tables of a layout file.
TrackPlan ReadTrack(TableReader& root, LayoutProblems& problems);

}  // namespace zelvar::sim
