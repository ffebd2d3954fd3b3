// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sim/console/state_table.h"

namespace zelvar::sim {

/// The modules' settings that are no longer as they left the workshop, in both memories.
TableSection ChangedSettings(const UnitState& state);

}  // namespace zelvar::sim
