// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "protocol/command.h"

namespace zelvar {

/// One number that a command carries, and its range.
struct CommandParameter {
    std::string_view name;
    int minimum = 0;
    int maximum = 0;
};

/// A command of the system: its name, its parameters, and how to build it from their values.
struct CommandRow {
    std::string_view name;
    std::vector<CommandParameter> parameters;
    /// @param arguments one for each parameter, in order, within its range
    Command (*build)(std::span<const int> arguments);
};

}  // namespace zelvar
