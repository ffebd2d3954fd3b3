// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "sim/unit/layout.h"

namespace zelvar::sim {

/// The shipped layouts lie in a folder that has a fixed place beside the program's own, in the
/// build tree as in an installation.
/// @param program the first word of the command line, for systems that do not tell more
std::filesystem::path LayoutFolder(const std::string& program);

/// Reads the layout that a command line names: "none" is an empty unit, another bare word one of
/// the shipped ones, and what has a slash or ends in ".toml" a file. Else lines to print that say
/// what is wrong.
std::variant<Layout, std::string> ChooseLayout(const std::string& name,
                                               const std::filesystem::path& folder);

/// The shipped layouts, one a line: its name and its title.
std::string ListLayouts(const std::filesystem::path& folder);

}  // namespace zelvar::sim
