// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zelvar::sim {

/// What is wrong with a described layout, and in which line.
struct LayoutProblem {
    int line = 0;
    std::string text;
};

using LayoutProblems = std::vector<LayoutProblem>;

}  // namespace zelvar::sim
