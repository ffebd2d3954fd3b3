// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "sim/unit/layout.h"

namespace zelvar::sim {

/// The folder of the shipped layouts, at a fixed place beside the program's own folder, in the
/// build tree as in an installation.
/// @param program the first word of the command line, for systems without /proc
std::filesystem::path LayoutFolder(const std::string& program);

/// Reads the layout that a command line names: "none" is a unit without modules, a name with a
/// slash or that ends in ".toml" a file, any other name a shipped layout. If that fails, the lines
/// to print.
std::variant<Layout, std::string> ChooseLayout(const std::string& name,
                                               const std::filesystem::path& folder);

/// The shipped layouts, one a line: its name and its title.
std::string ListLayouts(const std::filesystem::path& folder);

}  // namespace zelvar::sim
