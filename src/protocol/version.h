// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace zelvar {

/// A version as it travels, two bytes of 0..127, as one number: 3101 is shown as 3.10 A.
/// @return 0..15857
int DecodeVersion(int high, int low);

/// A digit, a point and two digits; then, when the last decimal digit is not 0, a space and the
/// letter that it stands for. @param version at least 0
std::string FormatVersion(int version);

}  // namespace zelvar
