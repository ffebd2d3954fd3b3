// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "unit_state.h"

namespace zelvar::sim {

/// What the last word of a line can become, in order; the word is empty behind a blank. Commands,
/// then what their usage says: the words of a choice, and names for the placeholders that have any.
std::vector<std::string> CompleteLine(const UnitState& state, std::string_view line);

/// The last word of a line; empty when the line is or ends with a blank.
std::string_view LastWord(std::string_view line);

/// What all words begin with.
std::string CommonBeginning(const std::vector<std::string>& words);

}  // namespace zelvar::sim
