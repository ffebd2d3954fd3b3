// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "harness/child_process.h"

namespace zelvar::tour {

/// What keeps a program's pictures free of the user's own settings: one family of fonts, the plain
/// style of Qt, no language.
/// @param folder gets a file with the choice of fonts
/// @param palette "light" or "dark"
e2e::Variables Surroundings(const e2e::TempFolder& folder, const std::string& palette);

}  // namespace zelvar::tour
