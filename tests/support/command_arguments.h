// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "protocol/command_row.h"

namespace zelvar::testing {

using Arguments = std::vector<int>;

/// Calls `use` with every combination of smallest and largest values of a command's parameters,
/// then with every value of each parameter while the others are at their smallest.
inline void ForEachArguments(const CommandRow& row,
                             const std::function<void(const Arguments&)>& use) {
    Arguments smallest;
    for (const CommandParameter& parameter : row.parameters) {
        smallest.push_back(parameter.minimum);
    }
    for (unsigned choice = 0; choice < 1U << smallest.size(); ++choice) {
        Arguments arguments = smallest;
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            if ((choice >> i & 1) != 0) {
                arguments[i] = row.parameters[i].maximum;
            }
        }
        use(arguments);
    }
    for (std::size_t i = 0; i < smallest.size(); ++i) {
        Arguments arguments = smallest;
        for (int value = row.parameters[i].minimum; value <= row.parameters[i].maximum; ++value) {
            arguments[i] = value;
            use(arguments);
        }
    }
}

}  // namespace zelvar::testing
