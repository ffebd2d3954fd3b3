// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// What a line can go on with at its end.
struct Completion {
    std::string begun;               // the word or name at the end, as far as it is there
    std::vector<std::string> words;  // what it can become
};

/// Commands, then what their usage says: the words of a choice, and names for the placeholders that
/// have any. Names can have blanks. All in order, numbers by their size.
Completion CompleteLine(const UnitState& state, std::string_view line);

/// What all words begin with.
std::string CommonBeginning(const std::vector<std::string>& words);

/// A list in as few lines as a terminal of `columns` characters has room for, each ended by a line
/// feed; in order down the columns.
std::string InColumns(const std::vector<std::string>& words, std::size_t columns);

}  // namespace zelvar::sim
