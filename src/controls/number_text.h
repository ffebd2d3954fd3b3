// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace zelvar {

/// Reads the number at the beginning of a text: spaces are skipped, then sign, digits, decimal
/// point and digits, and exponent, as far as they go. Anything else ends the number; no number is
/// 0. Independent of the locale.
/// @return finite; a number that is too large becomes the largest double.
double Val(std::string_view text);

/// The number of a text as an integer: `Val`, rounded to the nearest, a half to the even
/// neighbour, then clamped. @param minimum, maximum the range of the field
int ValToInt(std::string_view text, int minimum, int maximum);

}  // namespace zelvar
