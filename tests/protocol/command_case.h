// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "protocol/frame.h"

namespace zelvar::testing {

/// A row of a command table.
struct CommandCase {
    /// Letters and digits only.
    std::string name;
    Command command;
    std::vector<int> values;
};

inline void PrintTo(const CommandCase& row, std::ostream* out) {
    *out << row.name;
}

inline std::string CaseName(const ::testing::TestParamInfo<CommandCase>& info) {
    return info.param.name;
}

/// The values that a command sends.
inline std::vector<int> ValuesOf(const Command& command) {
    return {command.values.begin(), command.values.begin() + command.count};
}

}  // namespace zelvar::testing
