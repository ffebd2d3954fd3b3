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
    Layout layout;  // what the name stands for; reading it is not left to ParseOptions
    std::chrono::milliseconds unitDelay{1};
    int timeFactor = kUsualTimeFactor;
    int seed = 0;
    bool trace = false;
    std::string explain;  // a log to explain instead of serving; "-": standard input
    bool listLayouts = false;
    bool help = false;
    bool version = false;
};

/// The options, or the message that says what is wrong with them.
std::variant<Options, std::string> ParseOptions(std::span<const std::string_view> arguments);

/// The text of `--help`.
std::string UsageText();

/// "--link" and all the others.
std::vector<std::string> OptionNames();

}  // namespace zelvar::sim
