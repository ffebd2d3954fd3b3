// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "sim/layouts/layout_file.h"

namespace zelvar::sim {

/// A text and what reading it says, each as "LINE: what". None: the text is right.
struct ProblemCase {
    const char* name;
    std::string text;
    std::vector<std::string> problems;
};

inline void PrintTo(const ProblemCase& row, std::ostream* out) {
    *out << row.text;
}

inline std::string CaseName(const testing::TestParamInfo<ProblemCase>& row) {
    return row.param.name;
}

/// A right unit, in lines 1 to 4.
inline std::string UnitText() {
    return "[unit]\ntype = \"KB-E\"\nversion = \"1.02\"\nprotocol = \"3.11 B\"\n";
}

inline std::vector<std::string> ProblemsOf(const std::string& text) {
    const auto parsed = ParseLayout(text);
    std::vector<std::string> problems;
    if (const auto* found = std::get_if<LayoutProblems>(&parsed)) {
        for (const LayoutProblem& problem : *found) {
            problems.push_back(std::to_string(problem.line) + ": " + problem.text);
        }
    }
    return problems;
}

/// The same without the list of keys that follows an unknown one, so that a new key needs no change
/// here.
inline std::vector<std::string> ProblemsWithoutKeys(const std::string& text) {
    std::vector<std::string> problems = ProblemsOf(text);
    for (std::string& problem : problems) {
        const std::size_t key = problem.find("unknown key");
        problem =
            problem.substr(0, key == std::string::npos ? key : problem.find(": expected", key));
    }
    return problems;
}

}  // namespace zelvar::sim
