// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace zelvar {

/// What the user reads when the unit has stopped answering in transparent mode.
inline constexpr std::string_view kTransparentText =
    "Your KB-E/KB-G is put in Transparent Mode\r\n"
    "Reboot your KB-E/KB-G to restart normal operation";

}  // namespace zelvar
