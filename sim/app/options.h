// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "sim/railway/simulated_clock.h"
#include "sim/unit/layout.h"

namespace zelvar::sim {

/// What the command line asks for.
struct Options {
    std::string link;    // empty: no link
    std::string device;  // empty: a pseudo-terminal of its own
    bool pacing = true;
    int baud = 19200;
    std::string layoutName = "club";
    Layout layout;  // the one of that name; ParseOptions does not read it
    std::chrono::milliseconds unitDelay{1};
    int timeFactor = kUsualTimeFactor;
    int seed = 0;
    bool trace = false;
    std::string explain;  // a log to explain instead of serving; "-": standard input
    bool listLayouts = false;
};

/// The program ends before it starts: help or version (status 0), or a wrong command line.
struct EarlyEnd {
    int status = 0;
    std::string text;
};

inline constexpr int kWrongUsage = 2;

std::variant<Options, EarlyEnd> ParseOptions(std::span<const std::string_view> arguments);

/// The text of `--help`.
std::string UsageText();

/// "--link PATH" and all the others.
std::vector<std::string> OptionForms();

}  // namespace zelvar::sim
