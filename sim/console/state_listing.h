// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// The unit and its modules, one "name=value" a line.
void ListUnit(std::ostream& out, const UnitState& state);
/// Blocks that run, are lit or head backwards, links, decoders and accessories.
void ListDrive(std::ostream& out, const UnitState& state);
/// Where the trains are, and what stands in each section.
void ListRailway(std::ostream& out, const UnitState& state);
/// Both memories of every module that is there.
void ListMemories(std::ostream& out, const UnitState& state);

}  // namespace zelvar::sim
