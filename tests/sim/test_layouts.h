// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include "sim/layouts/layout_file.h"

namespace zelvar::sim {

/// @throws std::runtime_error when the file is not right
inline Layout LayoutOf(const std::string& path) {
    const auto read = ReadLayoutFile(path);
    if (const auto* problems = std::get_if<std::string>(&read)) {
        throw std::runtime_error(*problems);
    }
    return std::get<DescribedLayout>(read).layout;
}

/// All families on both channels, VD60 pairs (one at channel 1 module 3), every state.
inline const Layout& MixedLayout() {
    static const Layout layout = LayoutOf(ZELVAR_TEST_LAYOUTS "/mixed.toml");
    return layout;
}

/// The mixed modules of a KB-F whose protocol is 3.10, too old to report modules singly.
inline const Layout& OldUnitLayout() {
    static const Layout layout = LayoutOf(ZELVAR_TEST_LAYOUTS "/old-unit.toml");
    return layout;
}

}  // namespace zelvar::sim
