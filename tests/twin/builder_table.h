// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "protocol/frame.h"

namespace zelvar::twin {

/// A command that the program can send, as one of its builders makes it.
struct BuilderRow {
    const char* builder;
    /// The unit's name for what is meant.
    const char* inUnitsWords;
    Command command;
};

/// At least one row for every function and constant of the program that makes a command. A new one
/// needs a row here.
const std::vector<BuilderRow>& BuilderTable();

}  // namespace zelvar::twin
