// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// The state for programs: lines "name=value", each ended by a line feed.
std::string StateDump(const UnitState& state);

}  // namespace zelvar::sim
