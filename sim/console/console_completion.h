// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// How the end of a line can go on.
struct Completion {
    std::string begun;               // the word or name at the end, as far as it is typed
    std::vector<std::string> words;  // what it can become
};

/// Commands, then what their arguments offer. Names can have spaces.
Completion CompleteLine(const UnitState& state, std::string_view line);

/// What all words begin with.
std::string CommonBeginning(const std::vector<std::string>& words);

/// A list in as few lines as possible on a terminal of `columns` characters, in order down the
/// columns. Every line ends with a line feed.
std::string InColumns(const std::vector<std::string>& words, std::size_t columns);

}  // namespace zelvar::sim
