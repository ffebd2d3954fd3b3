// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "unit_state.h"

namespace zelvar::sim {

/// What a line can go on with at its end.
struct Completion {
    std::string begun;               // the word or name at the end, as far as it is there
    std::vector<std::string> words;  // what it can become
};

/// Commands, then what their usage says: the words of a choice, and names for the placeholders that
/// have any. Names can have blanks.
Completion CompleteLine(const UnitState& state, std::string_view line);

/// What all words begin with.
std::string CommonBeginning(const std::vector<std::string>& words);

}  // namespace zelvar::sim
