// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "sim/layouts/layout_problem.h"
#include "sim/unit/layout.h"

namespace zelvar::sim {

/// What a layout file describes. docs/layouts.md is the reference of the format.
struct DescribedLayout {
    std::string title;  // may be empty
    Layout layout;
};

/// Reads a layout from a text. If anything is wrong, every problem that can be found is listed by
/// line; of a TOML syntax error only the first one.
std::variant<DescribedLayout, LayoutProblems> ParseLayout(std::string_view text);

/// Reads a layout from a file. Problems come as lines to print: FILE:LINE: what was expected, or
/// FILE: why it cannot be read.
std::variant<DescribedLayout, std::string> ReadLayoutFile(const std::string& path);

}  // namespace zelvar::sim
