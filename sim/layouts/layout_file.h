// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "sim/layouts/table_reader.h"
#include "sim/unit/layout.h"

namespace zelvar::sim {

/// What a layout file describes. docs/layouts.md is the reference of the format.
struct DescribedLayout {
    std::string title;  // may be empty
    Layout layout;
};

/// Limits of the track, in centimetres and seconds: far beyond any table, and small enough to
/// reckon with.
inline constexpr Limits kSectionLength{1, 10'000};
inline constexpr Limits kTrainLength{1, 1'000};
inline constexpr Limits kTopSpeed{1, 500};  // 300 km/h in 1:160 is 52 cm/s
inline constexpr Limits kTrainAcceleration{0, 500};

/// Reads a layout out of a text. Either all of it is right, or every problem that could be found is
/// listed by line: after a syntax error only that one.
std::variant<DescribedLayout, LayoutProblems> ParseLayout(std::string_view text);

/// The same out of a file. What is wrong comes as lines to print: FILE:LINE: what was expected, or
/// FILE: why it cannot be read.
std::variant<DescribedLayout, std::string> ReadLayoutFile(const std::string& path);

}  // namespace zelvar::sim
