// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelvar::sim {

/// A whole number min..max, in decimal or, with 0x before it, in hexadecimal. None if the text is
/// anything else or has anything more.
std::optional<int> ParseInt(std::string_view text, int min, int max);

/// "0..255", as messages and documents write a range.
std::string RangeText(int min, int max);

}  // namespace zelvar::sim
